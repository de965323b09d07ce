#pragma once

#include "ui/Prompts.h"

#include <QWidget>

// The real dialogs, over the main window.
class PromptsView : public Prompts
{
public:
    // `mainWindow` must outlive this object.
    explicit PromptsView(QWidget* mainWindow) : m_mainWindow(mainWindow) {}

    int MsgboxPos(const QString& text, int style, const QString& title) override;
    QString chooseFile(const FileQuestion& question) override;
    QString chooseFolder(const QString& text, const QString& folder) override;
    std::optional<QString> askName(const NameQuestion& question) override;
    QString askPassword(const QString& text) override;
    bool askModelCleanup(const CleanupQuestion& question) override;
    bool confirmModelCleanup(const std::function<void(bool)>& neverAgain) override;
    std::optional<ShortcutChoice> askShortcut(const ShortcutQuestion& question) override;
    std::unique_ptr<Progress> showProgress(const QString& what) override;
    bool openWithShell(const QString& target) override;

private:
    QWidget* over() const; // the window that a dialog belongs to

    QWidget* m_mainWindow;
};
