#include "app/MainForm.h"

#include "app/FontForm.h"
#include "app/HeaderBar.h"
#include "app/MainWindowLoad.h"
#include "app/ShowAll.h"
#include "app/StripBar.h"
#include "app/TipsForm.h"
#include "catalogue/GamesPage.h"
#include "iwads/IwadForm.h"
#include "music/MusicForm.h"
#include "options/GraphicsPage.h"
#include "options/ModelsPage.h"
#include "options/OptionsPage.h"
#include "options/SoundPage.h"
#include "options/TexForm.h"
#include "platform/Paths.h"
#include "ui/FilterView.h"
#include "ui/TitleView.h"

#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QScreen>
#include <QScrollArea>
#include <QShortcut>
#include <QTimer>
#include <QUrl>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// In layout units. The window with its title bar fits a screen of 1024 x 600; without the command panel it
// is lower by as much as the panel takes.
constexpr QSize advancedSize(940, 580);
constexpr int panelHeight = 100;

// The paths of the files that are dragged; none when none of them can be a game.
QStringList draggedGames(const QMimeData& dragged)
{
    QStringList paths;
    for (const QUrl& url : dragged.urls())
        if (url.isLocalFile())
            paths << url.toLocalFile();
    const bool hasGame = std::ranges::any_of(
        paths, [](const QString& path) { return EndsWith(path, u".wad"_s) || EndsWith(path, u".zip"_s); });
    return hasGame ? paths : QStringList();
}

} // namespace

MainForm::MainForm() : m_binder(this)
{
    setObjectName(u"MainForm"_s);
    resize(advancedSize);
}

void MainForm::attach(Launcher& launcher)
{
    m_launcher = &launcher;
    m_title = new TitleView(this);
    connect(&m_binder, &ControlBinder::aboutToWrite, this, &MainForm::beforeWrite);
    connect(&m_binder, &ControlBinder::written, this, &MainForm::afterWrite);
}

void MainForm::build()
{
    Controls& controls = m_launcher->controls;

    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 12);
    rows->setSpacing(8);
    rows->addWidget(new HeaderBar(m_title, controls, m_binder));
    auto* below = new QVBoxLayout;
    below->setContentsMargins(12, 0, 12, 0);
    below->setSpacing(10);
    auto* games = new GamesPage(controls, m_binder);
    m_binder.bind(u"TabFrame_0"_s, controls.TabFrame[Tab::Games], games);
    below->addWidget(games, 1);
    for (int tab = 1; tab < controls.OptionTabs.count(); ++tab) {
        auto* page = new QWidget;
        m_binder.bind(NameOf(u"TabFrame"_s, tab), controls.TabFrame[static_cast<Tab>(tab)], page);
        below->addWidget(page, 1);
        m_optionPages << page;
    }
    below->addWidget(new StripBar(controls, m_binder));
    rows->addLayout(below, 1);

    qApp->installEventFilter(this);
    setAcceptDrops(true);
    const auto* find = new QShortcut(Qt::CTRL | Qt::Key_F, this);
    connect(find, &QShortcut::activated, this, [this, games] {
        m_binder.run([this] { m_launcher->controls.OptionTabs.click(Tab::Games); });
        games->findGame();
    });
}

QSize MainForm::screenSize() const
{
    return screen()->availableSize();
}

void MainForm::show()
{
    if (!layout())
        build();
    refresh();
    QWidget::show();
}

void MainForm::bringToFront()
{
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void MainForm::checkFont(const FontSetting& font)
{
    constexpr int usualSize = 8;
    const QFont launcherFont(font.FontName, font.FontSize == 0 ? usualSize : font.FontSize,
                             font.FontBold ? QFont::Bold : QFont::Normal);
    QApplication::setFont(launcherFont); // of the windows to come
    setFont(launcherFont);
}

bool MainForm::isReachableAt(QPoint topLeft) const
{
    const QRect there(topLeft, QWidget::size());
    return std::ranges::any_of(QGuiApplication::screens(), [&](const QScreen* display) {
        return display->availableGeometry().intersects(there);
    });
}

void MainForm::refresh()
{
    ShowWindow(*m_launcher);
    m_title->showPicture(m_launcher->controls.TitlePic.text); // read beside the rest of the load
    m_binder.write();
}

void MainForm::showIwadForm()
{
    if (!m_iwadForm)
        m_iwadForm = new IwadForm(*m_launcher, this);
    m_iwadForm->show();
    refresh();
}

void MainForm::showTexForm()
{
    TexForm(*m_launcher, this).exec();
    refresh();
}

void MainForm::showFontForm()
{
    FontForm(*m_launcher, this).exec();
    refresh();
}

void MainForm::showTips()
{
    m_tipsWanted = true;
}

void MainForm::paintEvent(QPaintEvent* event)
{
    QWidget::paintEvent(event);
    if (std::exchange(m_tipsWanted, false))
        QTimer::singleShot(0, this, [this] {
            TipsForm(*m_launcher, this).exec();
            refresh();
        });
}

void MainForm::showMusicForm(PlaylistEditor& editor)
{
    MusicForm(editor, this).exec();
    refresh();
}

void MainForm::copyText(const QString& text)
{
    QGuiApplication::clipboard()->setText(text);
}

void MainForm::closeLauncher()
{
    UnloadMainWindow(*m_launcher);
    endProgram();
}

void MainForm::endProgram()
{
    QCoreApplication::exit(0);
}

void MainForm::beforeWrite()
{
    m_heightBefore = height();
    if (!layout())
        return;
    // Pages come before others go: the window would grow to hold both.
    layout()->setEnabled(false);
    const Controls& controls = m_launcher->controls;
    for (int page = 0; page < m_optionPages.size(); ++page)
        if (controls.TabFrame[static_cast<Tab>(page + 1)].visible && !m_optionPages.at(page)->layout())
            buildOptionPage(page);
}

void MainForm::buildOptionPage(int page)
{
    Controls& controls = m_launcher->controls;
    const std::function<QWidget*()> pages[] = {
        [&] { return new OptionsPage(controls, m_binder); },
        [&] { return new GraphicsPage(controls, m_binder); },
        [&] { return new SoundPage(controls, m_binder); },
        [&] { return new ModelsPage(controls, m_binder); },
    };
    auto* scroll = new QScrollArea; // large fonts may need more room than there is
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidgetResizable(true);
    scroll->setWidget(pages[page]());
    QWidget* place = m_optionPages.at(page);
    auto* filled = new QVBoxLayout(place);
    filled->setContentsMargins(0, 0, 0, 0);
    filled->addWidget(scroll);

    // The keyboard comes by where the page lies in the window, not last.
    QWidget* before = place;
    while (!(before->focusPolicy() & Qt::TabFocus))
        before = before->previousInFocusChain();
    for (QWidget* widget : scroll->widget()->findChildren<QWidget*>())
        if ((widget->focusPolicy() & Qt::TabFocus) && widget->window() == this) {
            setTabOrder(before, widget);
            before = widget;
        }
}

void MainForm::afterWrite()
{
    if (layout())
        layout()->setEnabled(true);
    const WindowControl& form = m_launcher->controls.MainForm;
    if (windowTitle() != form.caption)
        setWindowTitle(form.caption);
    fitMode();
}

void MainForm::fitMode()
{
    if (m_compact == m_launcher->controls.MainForm.compact)
        return;
    m_compact = !m_compact;
    // What has appeared may have made the window higher by itself, and what has gone need no longer fit.
    if (layout()) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        layout()->invalidate();
        layout()->activate();
    }
    resize(width(), m_heightBefore + (m_compact ? -panelHeight : panelHeight));
}

bool MainForm::eventFilter(QObject* watched, QEvent* event)
{
    // A drop-down list takes its entry, and closes, before the key press itself comes.
    if (event->type() == QEvent::ShortcutOverride && watched->isWindowType())
        m_keyIsPopups = QApplication::activePopupWidget();
    if (event->type() == QEvent::KeyPress && isActiveWindow() && !QApplication::activePopupWidget()) {
        const auto* keyEvent = static_cast<QKeyEvent*>(event);
        const bool isEnter =
            !m_keyIsPopups && (keyEvent->key() == Qt::Key_Return || keyEvent->key() == Qt::Key_Enter);
        const bool isMeantForList = qobject_cast<FilterView*>(QApplication::focusWidget());
        bool pressed = false;
        if (isEnter && !isMeantForList && !keyEvent->isAutoRepeat())
            m_binder.run([&] { pressed = EnterPressed(*m_launcher); });
        if (pressed)
            return true;
    }
    return QWidget::eventFilter(watched, event);
}

void MainForm::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (!m_launcher || !isVisible())
        return;
    // A command that is running must find everything as it was: these wait for its end.
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        m_binder.runAfter([this] { ActivateMainWindow(*m_launcher); });
    else if (event->type() == QEvent::WindowStateChange)
        m_binder.runAfter([this] { ResizeMainWindow(*m_launcher); });
}

void MainForm::closeEvent(QCloseEvent* event)
{
    if (m_binder.isRunning()) {
        event->ignore();
        return;
    }
    event->accept();
    closeLauncher();
}

void MainForm::dragEnterEvent(QDragEnterEvent* event)
{
    if (m_binder.isRunning() || draggedGames(*event->mimeData()).isEmpty())
        return;
    event->setDropAction(Qt::CopyAction); // the files stay where they are
    event->accept();
}

void MainForm::dropEvent(QDropEvent* event)
{
    const QStringList paths = draggedGames(*event->mimeData());
    if (paths.isEmpty())
        return;
    event->setDropAction(Qt::CopyAction);
    event->accept();
    // Later: the program that they come from waits until the drop has returned.
    QMetaObject::invokeMethod(
        this,
        [this, paths] {
            const auto& filesDropped = m_launcher->controls.MainForm.filesDropped;
            if (!m_binder.isRunning() && filesDropped)
                m_binder.run([&] { filesDropped(paths); });
        },
        Qt::QueuedConnection);
}
