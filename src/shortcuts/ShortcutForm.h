#pragma once

#include "ui/Prompts.h"
#include "ui/ToolTipView.h"

#include <QDialog>

class QCheckBox;
class QPushButton;

// A dialog with one button, which cancels until a box is ticked. It asks where to make a shortcut, or
// whether to remove the model packs.
class ShortcutForm : public QDialog
{
    Q_OBJECT

public:
    explicit ShortcutForm(const ShortcutQuestion& question, QWidget* parent = nullptr);
    explicit ShortcutForm(const CleanupQuestion& question, QWidget* parent = nullptr);

    // What was ticked of the shortcuts.
    ShortcutChoice choice() const;

private:
    explicit ShortcutForm(QWidget* parent);
    void arrange(QWidget* frame);
    QCheckBox* box(const QString& name, const QString& caption, const QString& toolTip);
    QWidget* shortcutFrame(const ShortcutQuestion& question);
    QWidget* modelDelFrame(const CleanupQuestion& question);
    void CheckSelect(); // what the button does with shortcuts
    void CheckDelete(); // ... with model packs

    clsToolTip m_toolTips;
    QCheckBox* m_startMenu = nullptr;
    QCheckBox* m_desktop = nullptr;
    QCheckBox* m_map = nullptr;
    QCheckBox* m_delete = nullptr;
    QPushButton* m_button;
    bool m_goesOn = false; // what the button does: it goes on, or it cancels
};
