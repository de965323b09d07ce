#pragma once

#include "state/Launcher.h"
#include "ui/ControlBinder.h"

#include <QWidget>

class IwadForm;
class TitleView;

// The main window: composes the pages, forwards the window's events, and is what the launcher asks of it.
class MainForm : public QWidget, public MainWindowHost
{
    Q_OBJECT

public:
    MainForm();

    // Ties the window to the launcher, which must outlive it. The widgets come when it is first shown, so
    // that the launcher's load need not wait for them.
    void attach(Launcher& launcher);

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
    void checkFont(const FontSetting& font) override;
    bool isReachableAt(QPoint topLeft) const override;
    void refresh() override;
    void showIwadForm() override;
    void showTexForm() override;
    void showFontForm() override;
    void showTips(); // as soon as the window is painted: nobody waits for it longer
    void showMusicForm(PlaylistEditor& editor) override;
    void copyText(const QString& text) override;
    int logicalDpi() const override { return logicalDpiX(); }
    void closeLauncher() override;
    void endProgram() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void build();
    void beforeWrite();
    void buildOptionPage(int page);
    void afterWrite();
    void fitMode(); // the height that goes with the mode

    Launcher* m_launcher = nullptr; // set by attach
    ControlBinder m_binder;
    TitleView* m_title = nullptr;
    QList<QWidget*> m_optionPages;  // those of the tabs after the first; each is filled when it is shown
    IwadForm* m_iwadForm = nullptr; // from its first use on
    bool m_tipsWanted = false;
    bool m_keyIsPopups = false; // the key that is being pressed went to an open list or menu
    bool m_compact = false;     // as the window is sized
    int m_heightBefore = 0;     // before the controls were written to the widgets
};
