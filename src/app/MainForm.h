#pragma once

#include "app/Launcher.h"
#include "ui/ControlBinder.h"

#include <QWidget>

class StripBar;

// The main window: composes the pages, forwards the window's events, and is what the launcher asks of it.
class MainForm : public QWidget, public MainWindowHost
{
    Q_OBJECT

public:
    MainForm();

    // Builds the window over the launcher's controls; `launcher` must outlive the window.
    void build(Launcher& launcher);

    QSize screenSize() const override;
    QSize size() const override { return QWidget::size(); }
    QPoint position() const override { return pos(); }
    void moveTo(QPoint topLeft) override { move(topLeft); }
    bool isInNormalState() const override { return !isMinimized() && !isMaximized(); }
    bool isShown() const override { return isVisible(); }
    void show() override;
    void hide() override { QWidget::hide(); }
    void minimise() override { showMinimized(); }
    void bringToFront() override;
    void refresh() override;
    void showIwadForm() override;
    void endProgram() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void afterWrite();

    Launcher* m_launcher = nullptr; // set by build
    ControlBinder m_binder;
    StripBar* m_strip = nullptr;
    bool m_compact = false; // as the window is sized
};
