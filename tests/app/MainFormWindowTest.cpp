#include "app/MainForm.h"
#include "app/MainWindowLoad.h"
#include "app/SettingsLoad.h"
#include "platform/DiskFileSystem.h"
#include "platform/SystemProcesses.h"
#include "tests/support/QueuedPrompts.h"
#include "tests/support/TemporaryInstallation.h"
#include "ui/ListView.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

QStringList mapNames(int count)
{
    QStringList names;
    for (int map = 1; map <= count; ++map)
        names << u"MAP%1"_s.arg(map, 2, 10, QChar(u'0'));
    return names;
}

} // namespace

// The real window over a temporary installation, with the real game-file tool.
class MainFormWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void everyWidgetIsNamedOnceAndAccessible();
    void aClickChangesTheControlAndTheWidgetsFollow();
    void advancedOptionsShowThePanelAndTheTabs();
    void optionPagesComeWhenTheyAreShown();
    void theKeyboardGoesFromTheTabsThroughThePage();
    void fromAClickedMapToTheEngine();
    void aSavegameIsListedAndLoaded();
    void enterLaunchesUnlessLaunchIsOff();
    void typedParametersReachTheEngine();
    void closingSavesWhatWasChosen();
    void tabbingByChoosesNothing();
    void aClickOnTheChosenMapIsAPick();
    void theLauncherFontReachesEveryText();
    void captionsAreShownAsTheyAre();
    void theTitlePictureCyclesAndSurvivesABadFile();
    void ctrlFFindsAGameAndEnterDoesNotLaunchIt();
    void droppedGamesAreHandedOnAfterTheDrop();
    void aCommandThatRunsIsLeftAlone();

private:
    template <class Widget>
    Widget* find(const QString& name) const
    {
        return m_window->findChild<Widget*>(name);
    }
    void clickRow(const QString& list, int row);
    QStringList rowsOf(const QString& list) const;
    int currentRowOf(const QString& list) const { return find<ListView>(list)->currentIndex().row(); }
    QStringList engineArguments();

    std::unique_ptr<TemporaryInstallation> m_installation;
    std::unique_ptr<DiskFileSystem> m_files;
    std::unique_ptr<SystemProcesses> m_processes;
    std::unique_ptr<QueuedPrompts> m_prompts;
    std::unique_ptr<MainForm> m_window;
    std::unique_ptr<Launcher> m_launcher;
};

void MainFormWindowTest::initTestCase()
{
    qunsetenv("DOOMWADDIR");
}

void MainFormWindowTest::init()
{
    m_installation = std::make_unique<TemporaryInstallation>();
    m_installation->makeComplete();
    m_installation->addBuilt(u"Bin/Keldrax"_s, RECORDER_PROGRAM);
    m_installation->addBuilt(u"Bin/VYKgFiles"_s, VYKGFILES_PROGRAM);
    m_installation->add(u"Data/Doom2.wad"_s, TemporaryInstallation::wad("IWAD", mapNames(32)));
    m_installation->add(u"Data/DOOM.WAD"_s, TemporaryInstallation::wad("IWAD", {u"E1M1"_s, u"E2M3"_s}));
    m_installation->add(u"UserSG/doom2/savegame/KeldraxSav3.vyksg"_s,
                        QByteArray("Before the gate").leftJustified(64, 0));

    m_files = std::make_unique<DiskFileSystem>();
    m_processes = std::make_unique<SystemProcesses>(*m_files);
    m_prompts = std::make_unique<QueuedPrompts>();
    m_window = std::make_unique<MainForm>();
    m_launcher =
        std::make_unique<Launcher>(*m_files, *m_processes, *m_prompts, *m_window, m_installation->root());
    m_launcher->startUp.WindowCaption = u"VYKLauncher"_s;
    m_window->attach(*m_launcher);
    LoadMainWindow(*m_launcher);
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void MainFormWindowTest::cleanup()
{
    m_window.reset();
    m_launcher.reset();
    m_prompts.reset();
}

void MainFormWindowTest::clickRow(const QString& name, int row)
{
    auto* list = find<ListView>(name);
    const QModelIndex index = list->model()->index(row, 0);
    list->scrollTo(index);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(index).center());
}

QStringList MainFormWindowTest::rowsOf(const QString& name) const
{
    const QAbstractItemModel* model = find<ListView>(name)->model();
    QStringList rows;
    for (int row = 0; row < model->rowCount(); ++row)
        rows << model->index(row, 0).data().toString();
    return rows;
}

QStringList MainFormWindowTest::engineArguments()
{
    const bool ended = QTest::qWaitFor([this] { return m_installation->exists(u"arguments.txt"_s); }, 30000);
    if (!ended)
        return {};
    return QString::fromUtf8(m_installation->read(u"arguments.txt"_s)).split(u'\n', Qt::SkipEmptyParts);
}

void MainFormWindowTest::everyWidgetIsNamedOnceAndAccessible()
{
    QStringList names;
    for (const QWidget* widget : m_window->findChildren<QWidget*>()) {
        const QString name = widget->objectName();
        if (name.isEmpty() || name.startsWith(u"qt_"_s))
            continue;
        QVERIFY2(!names.contains(name), qPrintable(name));
        names << name;
        QVERIFY2(!widget->accessibleName().trimmed().isEmpty(), qPrintable(name));
    }
    // Everything that takes a click or a key has its control.
    for (const QWidget* widget : m_window->findChildren<QWidget*>()) {
        const bool takesInput =
            qobject_cast<const QAbstractButton*>(widget) || qobject_cast<const QLineEdit*>(widget) ||
            qobject_cast<const ListView*>(widget) || qobject_cast<const QComboBox*>(widget);
        QVERIFY2(!takesInput || !widget->objectName().isEmpty(), widget->metaObject()->className());
    }
    for (const QString& name :
         {u"chkMain_0"_s, u"chkMain_2"_s, u"OptionUdir_1"_s, u"OptionTabs_0"_s, u"SkillsLevel_0"_s,
          u"edCustom"_s, u"LaunchButton"_s, u"Home_0"_s, u"Home_3"_s, u"TitlePic"_s, u"Auto_0"_s})
        QVERIFY2(names.contains(name), qPrintable(name));
    QCOMPARE(find<QWidget>(u"PwadList"_s)->accessibleName(), u"Games"_s);
    QCOMPARE(find<QWidget>(u"SaveGameList"_s)->accessibleName(), u"Savegames"_s);
    QCOMPARE(find<QWidget>(u"edFilter"_s)->accessibleName(), u"Find a game"_s);
}

void MainFormWindowTest::aClickChangesTheControlAndTheWidgetsFollow()
{
    find<QAbstractButton>(u"chkMain_0"_s)->click();
    QVERIFY(m_launcher->controls.chkMain[0].ticked());

    clickRow(u"PwadList"_s, 1);
    QCOMPARE(m_launcher->settings.SelectedDoomGame, u"DOOM/ULTIMATE DOOM"_s);
    QCOMPARE(rowsOf(u"MapList"_s).size(), 2);
    QCOMPARE(rowsOf(u"PwadShowlist"_s), QStringList(u"DOOM.WAD"_s));

    m_launcher->controls.LaunchButton.enabled = false;
    m_launcher->controls.Auto[0].caption = u"CHANGED"_s;
    m_window->refresh();
    QVERIFY(!find<QPushButton>(u"LaunchButton"_s)->isEnabled());
    QCOMPARE(find<QLabel>(u"Auto_0"_s)->text(), u"CHANGED"_s);
}

void MainFormWindowTest::advancedOptionsShowThePanelAndTheTabs()
{
    m_window->resize(m_window->width(), m_window->minimumSizeHint().height() + 50); // little room
    const int low = m_window->height();
    QVERIFY(!find<QWidget>(u"edCustom"_s)->isVisible());
    QVERIFY(!find<QWidget>(u"OptionTabs_2"_s)->isVisible());

    find<QAbstractButton>(u"chkMain_2"_s)->click();
    QVERIFY(find<QWidget>(u"edCustom"_s)->isVisible());
    QVERIFY(m_window->height() > low + 50 && m_window->height() < low + 150);
    find<QAbstractButton>(u"OptionTabs_2"_s)->click();
    QVERIFY(!find<QWidget>(u"PwadList"_s)->isVisible());
    QVERIFY(!find<QPushButton>(u"LaunchButton"_s)->isEnabled());

    find<QAbstractButton>(u"chkMain_2"_s)->click();
    QVERIFY(find<QWidget>(u"PwadList"_s)->isVisible());
    QVERIFY(find<QPushButton>(u"LaunchButton"_s)->isEnabled());
    QCOMPARE(m_window->height(), low);
}

void MainFormWindowTest::optionPagesComeWhenTheyAreShown()
{
    find<QAbstractButton>(u"chkMain_2"_s)->click();
    const QSize size = m_window->size();
    QVERIFY(size.height() <= 600 && size.width() <= 1024);
    const QStringList frames{u"OptFrame_0"_s, u"GraphicFrames_5"_s, u"SoundFrame_0"_s, u"FrameModel_0"_s};
    for (int tab = 1; tab <= 4; ++tab) {
        const QString frame = frames.at(tab - 1);
        QVERIFY(!find<QWidget>(frame));
        find<QAbstractButton>(NameOf(u"OptionTabs"_s, tab))->click();
        QVERIFY(find<QWidget>(frame)->isVisible());
        QCoreApplication::processEvents();
        QCOMPARE(m_window->size(), size);
        auto* page = find<QWidget>(NameOf(u"TabFrame"_s, tab))
                         ->findChild<QScrollArea*>(); // nothing has to be scrolled to
        QVERIFY(!page->verticalScrollBar()->isVisible() && !page->horizontalScrollBar()->isVisible());
        QCOMPARE(find<QWidget>(u"AuxButton_8"_s)->isVisible(), tab == 4);
    }
    const auto* page = find<QWidget>(u"OptFrame_0"_s);
    find<QAbstractButton>(u"OptionTabs_1"_s)->click();
    QCOMPARE(find<QWidget>(u"OptFrame_0"_s), page);
    find<QAbstractButton>(u"OptionTabs_0"_s)->click();
    QCoreApplication::processEvents();
    QCOMPARE(m_window->size(), size);
}

void MainFormWindowTest::theKeyboardGoesFromTheTabsThroughThePage()
{
    find<QAbstractButton>(u"chkMain_2"_s)->click();
    find<QAbstractButton>(u"OptionTabs_3"_s)->click();
    find<QWidget>(u"OptionTabs_4"_s)->setFocus();
    for (const QString& name : {u"chkSound_3"_s, u"chkSound_1"_s, u"chkSound_0"_s, u"chkSound_9"_s,
                                u"cbChannels"_s, u"chkSound_2"_s, u"RicoButton_0"_s, u"RicoButton_1"_s,
                                u"SelectionList"_s, u"butMusic_0"_s, u"chkSound_10"_s, u"chkMain_0"_s}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget()->objectName(), name);
    }
}

void MainFormWindowTest::fromAClickedMapToTheEngine()
{
    clickRow(u"MapList"_s, 6);
    QCOMPARE(find<QComboBox>(u"SkillsLevel_1"_s)->currentIndex(), 2); // the remembered skill
    auto* skill = find<QComboBox>(u"SkillsLevel_1"_s);
    skill->setFocus();
    QTest::keyClick(skill, Qt::Key_Down);
    QTest::keyClick(skill, Qt::Key_Down);
    find<QPushButton>(u"LaunchButton"_s)->click();

    const QStringList arguments = engineArguments();
    QCOMPARE(arguments.first(), u"-Doom2"_s);
    QCOMPARE(arguments.last(4), (QStringList{u"-sk"_s, u"4"_s, u"-wp"_s, u"07"_s}));
    QVERIFY(m_window->isMinimized());
    QVERIFY(m_installation->read(u"VYKLaunch/launch.log"_s).startsWith("Bin\\Keldrax -Doom2 "));
    QCOMPARE(m_installation->read(u"VYKLaunch/GameInfo/Iwads/doom2.vykm"_s), QByteArray("MAP07\r\n"));
}

void MainFormWindowTest::aSavegameIsListedAndLoaded()
{
    QCOMPARE(rowsOf(u"SaveGameList"_s), QStringList(u"3 - Before the gate"_s));
    clickRow(u"MapList"_s, 4);
    clickRow(u"SaveGameList"_s, 0);
    QCOMPARE(currentRowOf(u"MapList"_s), -1);
    find<QPushButton>(u"LaunchButton"_s)->click();
    QCOMPARE(engineArguments().last(2), (QStringList{u"-loadgame"_s, u"3"_s}));
}

void MainFormWindowTest::enterLaunchesUnlessLaunchIsOff()
{
    m_launcher->controls.LaunchButton.enabled = false;
    m_window->refresh();
    QTest::keyClick(find<QWidget>(u"PwadList"_s), Qt::Key_Return);
    QVERIFY(!m_installation->exists(u"VYKLaunch/launch.log"_s));

    m_launcher->controls.LaunchButton.enabled = true;
    m_window->refresh();
    QTest::keyClick(find<QWidget>(u"PwadList"_s), Qt::Key_Return);
    QVERIFY(m_installation->exists(u"VYKLaunch/launch.log"_s));
    QVERIFY(!engineArguments().contains(u"-wp"_s));
}

void MainFormWindowTest::typedParametersReachTheEngine()
{
    find<QAbstractButton>(u"chkMain_2"_s)->click();
    QTest::keyClicks(find<QWidget>(u"edCustom"_s), u"-nomonsters \"two words\""_s);
    find<QPushButton>(u"LaunchButton"_s)->click();
    QCOMPARE(engineArguments().last(2), (QStringList{u"-nomonsters"_s, u"two words"_s}));
}

void MainFormWindowTest::closingSavesWhatWasChosen()
{
    clickRow(u"PwadList"_s, 1);
    find<QAbstractButton>(u"chkMain_2"_s)->click();
    m_window->move(40, 50);
    m_window->close();
    const QStringList lines =
        QString::fromLatin1(m_installation->read(u"VYKLaunch/config.vyk"_s)).split(u"\r\n"_s);
    QCOMPARE(lines.size(), 84);
    QCOMPARE(lines.at(46), u" 1 "_s);
    QCOMPARE(lines.at(56), u"DOOM/ULTIMATE DOOM"_s);
    QCOMPARE(lines.at(81), u" 50 "_s);
    QCOMPARE(lines.at(82), u" 40 "_s);
}

void MainFormWindowTest::tabbingByChoosesNothing()
{
    m_installation->add(u"VYKLaunch/GameInfo/Iwads/doom2.vykm"_s, "MAP05\r\n");
    for (const QString& name : {u"SaveGameList"_s, u"MapList"_s}) {
        find<QWidget>(name)->setFocus(Qt::TabFocusReason);
        QCOMPARE(currentRowOf(name), -1);
    }
    QCOMPARE(m_launcher->launch.StartChoice, StartChoice::NewGame);
    QCOMPARE(m_installation->read(u"VYKLaunch/GameInfo/Iwads/doom2.vykm"_s), QByteArray("MAP05\r\n"));

    QTest::keyClick(find<QWidget>(u"MapList"_s), Qt::Key_Down); // but the keys choose
    QCOMPARE(m_launcher->launch.StartChoice, StartChoice::ChosenMap);
}

void MainFormWindowTest::aClickOnTheChosenMapIsAPick()
{
    auto* skill = find<QComboBox>(u"SkillsLevel_1"_s);
    skill->setFocus();
    QTest::keyClick(skill, Qt::Key_Down);
    QCOMPARE(currentRowOf(u"MapList"_s), 0);
    QVERIFY(!m_installation->exists(u"VYKLaunch/GameInfo/Iwads/doom2.vykm"_s));
    clickRow(u"MapList"_s, 0);
    QCOMPARE(m_installation->read(u"VYKLaunch/GameInfo/Iwads/doom2.vykm"_s), QByteArray("MAP01\r\n"));
}

void MainFormWindowTest::theLauncherFontReachesEveryText()
{
    const QFont before = QApplication::font();
    m_window->checkFont(
        {.CustomFontOn = true, .FontName = u"DejaVu Serif"_s, .FontSize = 14, .FontBold = false});
    for (const QString& name :
         {u"chkMain_0"_s, u"Auto_0"_s, u"LaunchButton"_s, u"PwadList"_s, u"SkillsLevel_1"_s}) {
        QCOMPARE(find<QWidget>(name)->font().family(), u"DejaVu Serif"_s);
        QVERIFY(find<QWidget>(name)->font().pointSizeF() >= 14);
    }
    QApplication::setFont(before);
}

void MainFormWindowTest::captionsAreShownAsTheyAre()
{
    m_launcher->controls.chkMain[0].caption = u"Doom & Hell"_s;
    m_launcher->controls.Auto[0].caption = u"<b>LIST</b>"_s;
    m_window->refresh();
    QCOMPARE(find<QAbstractButton>(u"chkMain_0"_s)->text(), u"Doom && Hell"_s);
    QCOMPARE(find<QLabel>(u"Auto_0"_s)->textFormat(), Qt::PlainText);
}

void MainFormWindowTest::theTitlePictureCyclesAndSurvivesABadFile()
{
    QImage picture(300, 40, QImage::Format_RGB32);
    picture.fill(Qt::green);
    m_installation->addFolder(u"VYKLaunch/Themes"_s);
    QVERIFY(picture.save(m_installation->path(u"VYKLaunch/Themes/default.jpg"_s)));
    m_installation->add(u"VYKLaunch/Themes/broken.bmp"_s, "no picture at all");
    auto* title = find<QWidget>(u"TitlePic"_s);
    const auto centre = [title] { return title->grab().toImage().pixelColor(200, 50); };

    m_launcher->settings.TitlePicIndex = 7;
    QTest::mouseClick(title, Qt::LeftButton, {}, {200, 50});
    QCOMPARE(m_launcher->settings.TitlePicIndex, 0);
    QVERIFY(centre().green() > 200);
    QTest::mouseClick(title, Qt::LeftButton, {}, {200, 50});
    QCOMPARE(m_launcher->settings.TitlePicIndex, 1);
    QVERIFY(centre().green() > 200); // the broken one is skipped
}

void MainFormWindowTest::ctrlFFindsAGameAndEnterDoesNotLaunchIt()
{
    find<QAbstractButton>(u"chkMain_2"_s)->click(); // advanced
    find<QAbstractButton>(u"OptionTabs_1"_s)->click();
    QTest::keyClick(m_window.get(), Qt::Key_F, Qt::ControlModifier);
    auto* filter = find<QLineEdit>(u"edFilter"_s);
    QVERIFY(filter->hasFocus() && filter->isVisible());

    QTest::keyClicks(filter, u"ultimate"_s);
    QCOMPARE(rowsOf(u"PwadList"_s), QStringList(u"DOOM/ULTIMATE DOOM"_s));
    QCOMPARE(m_launcher->settings.SelectedDoomGame, u"DOOM II"_s);
    QTest::keyClick(m_window->windowHandle(), Qt::Key_Return);
    QCOMPARE(m_launcher->settings.SelectedDoomGame, u"DOOM/ULTIMATE DOOM"_s);
    QVERIFY(!m_installation->exists(u"VYKLaunch/launch.log"_s));

    QTest::keyClick(m_window.get(), Qt::Key_F, Qt::ControlModifier);
    QCOMPARE(filter->selectedText(), u"ultimate"_s);
}

void MainFormWindowTest::droppedGamesAreHandedOnAfterTheDrop()
{
    QStringList dropped;
    m_launcher->controls.MainForm.filesDropped = [&](const QStringList& paths) { dropped = paths; };
    QMimeData games, texts;
    games.setUrls({QUrl::fromLocalFile(u"/a/readme.txt"_s), QUrl::fromLocalFile(u"/a/b c.WAD"_s)});
    texts.setUrls({QUrl(u"http://localhost/a.wad"_s), QUrl::fromLocalFile(u"/a/readme.txt"_s)});
    const auto dragEnters = [this](const QMimeData& data) {
        QDragEnterEvent event({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, {});
        event.ignore();
        QApplication::sendEvent(m_window.get(), &event);
        return event.isAccepted();
    };
    QVERIFY(!dragEnters(texts));
    QVERIFY(dragEnters(games));
    QDropEvent drop({9, 9}, Qt::CopyAction, &games, Qt::LeftButton, {});
    QApplication::sendEvent(m_window.get(), &drop);
    QVERIFY(dropped.isEmpty());
    QCoreApplication::processEvents();
    QCOMPARE(dropped, (QStringList{u"/a/readme.txt"_s, u"/a/b c.WAD"_s}));
}

void MainFormWindowTest::aCommandThatRunsIsLeftAlone()
{
    bool windowClosed = true;
    bool launched = true;
    m_launcher->controls.Auto[0].clicked = [&] {
        windowClosed = m_window->close();
        QTest::keyClick(m_window->windowHandle(), Qt::Key_Return);
        launched = m_installation->exists(u"VYKLaunch/launch.log"_s);
    };
    QTest::mouseClick(find<QWidget>(u"Auto_0"_s), Qt::LeftButton);
    QVERIFY(!windowClosed);
    QVERIFY(!launched);
    QVERIFY(m_window->close());
}

QTEST_MAIN(MainFormWindowTest)
#include "MainFormWindowTest.moc"
