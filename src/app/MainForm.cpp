#include "app/MainForm.h"

#include "app/HeaderBar.h"
#include "app/MainWindowLoad.h"
#include "app/StripBar.h"
#include "catalogue/GamesPage.h"
#include "iwads/IwadForm.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize advancedSize(940, 600); // layout units; fits a screen of 1024 x 600 beside its panels

} // namespace

MainForm::MainForm()
{
    setObjectName(u"MainForm"_s);
    resize(advancedSize);
}

void MainForm::build(Launcher& launcher)
{
    m_launcher = &launcher;
    Controls& controls = launcher.controls;
    if (launcher.font.CustomFontOn) {
        constexpr int usualSize = 8;
        const int points = launcher.font.FontSize == 0 ? usualSize : launcher.font.FontSize;
        setFont(QFont(launcher.font.FontName, points, launcher.font.FontBold ? QFont::Bold : QFont::Normal));
    }

    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 12);
    rows->setSpacing(8);
    rows->addWidget(new HeaderBar(controls, m_binder));
    auto* below = new QVBoxLayout;
    below->setContentsMargins(12, 0, 12, 0);
    below->setSpacing(10);
    auto* games = new GamesPage(controls, m_binder);
    m_binder.bind(u"TabFrame_0"_s, controls.TabFrame[0], games);
    below->addWidget(games, 1);
    for (int tab = 1; tab < controls.OptionTabs.count(); ++tab) {
        auto* page = new QLabel(u"The options of this page cannot be changed here yet; those in config.vyk apply."_s);
        page->setAlignment(Qt::AlignCenter);
        m_binder.bind(NameOf(u"TabFrame"_s, tab), controls.TabFrame[static_cast<size_t>(tab)],
            static_cast<QWidget*>(page));
        below->addWidget(page, 1);
    }
    m_strip = new StripBar(controls, m_binder);
    below->addWidget(m_strip);
    rows->addLayout(below, 1);

    connect(&m_binder, &ControlBinder::written, this, &MainForm::afterWrite);
    qApp->installEventFilter(this);
}

QSize MainForm::screenSize() const
{
    return screen()->availableSize();
}

void MainForm::show()
{
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

void MainForm::refresh()
{
    m_binder.write();
}

void MainForm::showIwadForm()
{
    IwadForm form(*m_launcher, this);
    form.show();
    refresh();
}

void MainForm::endProgram()
{
    QCoreApplication::quit();
}

void MainForm::afterWrite()
{
    const WindowControl& form = m_launcher->controls.MainForm;
    if (windowTitle() != form.caption)
        setWindowTitle(form.caption);
    if (m_compact != form.compact) {
        m_compact = form.compact;
        resize(width(), height() + (m_compact ? -1 : 1) * m_strip->panelHeight());
    }
}

bool MainForm::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress && isActiveWindow() && !QApplication::activePopupWidget()) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        bool pressed = false;
        if (key == Qt::Key_Return || key == Qt::Key_Enter)
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
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        m_binder.run([this] { ActivateMainWindow(*m_launcher); });
    else if (event->type() == QEvent::WindowStateChange)
        m_binder.run([this] { ResizeMainWindow(*m_launcher); });
}

void MainForm::closeEvent(QCloseEvent* event)
{
    UnloadMainWindow(*m_launcher);
    event->accept();
    QCoreApplication::quit();
}
