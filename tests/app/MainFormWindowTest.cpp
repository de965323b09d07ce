#include "app/Connect.h"
#include "app/MainForm.h"
#include "app/MainWindowLoad.h"
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
    void initTestCase() { qunsetenv("DOOMWADDIR"); }

    void init()
    {
        m_installation = std::make_unique<TemporaryInstallation>();
        m_installation->makeComplete();
        m_installation->addBuilt(u"Bin/Keldrax"_s, RECORDER_PROGRAM);
        m_installation->addBuilt(u"Bin/VYKgFiles"_s, VYKGFILES_PROGRAM);
        m_installation->add(u"Data/Doom2.wad"_s, TemporaryInstallation::wad("IWAD", mapNames(32)));
        m_installation->add(u"Data/DOOM.WAD"_s, TemporaryInstallation::wad("IWAD", {u"E1M1"_s, u"E2M3"_s}));

        m_files = std::make_unique<DiskFileSystem>();
        m_processes = std::make_unique<SystemProcesses>(*m_files);
        m_prompts = std::make_unique<QueuedPrompts>();
        m_window = std::make_unique<MainForm>();
        m_launcher = std::make_unique<ConnectedLauncher>(*m_files, *m_processes, *m_prompts, *m_window,
                                                         m_installation->root());
        m_launcher->startUp.WindowCaption = u"VYKLauncher"_s;
        m_window->attach(*m_launcher);
        LoadMainWindow(*m_launcher);
        m_window->show();
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }

    void cleanup()
    {
        m_window.reset();
        m_launcher.reset();
        m_prompts.reset();
    }

    void everyWidgetIsNamedOnceAndAccessible()
    {
        QStringList names;
        for (const QWidget* widget : m_window->findChildren<QWidget*>()) {
            const QString name = widget->objectName();
            const bool takesInput =
                qobject_cast<const QAbstractButton*>(widget) || qobject_cast<const QLineEdit*>(widget) ||
                qobject_cast<const ListView*>(widget) || qobject_cast<const QComboBox*>(widget);
            QVERIFY2(!takesInput || !name.isEmpty(), widget->metaObject()->className());
            if (name.isEmpty() || name.startsWith(u"qt_"_s))
                continue;
            QVERIFY2(!names.contains(name), qPrintable(name));
            names << name;
            QVERIFY2(!widget->accessibleName().trimmed().isEmpty(), qPrintable(name));
        }
        QCOMPARE(find<QWidget>(u"PwadList"_s)->accessibleName(), u"Games"_s);
    }

    void theKeyboardGoesFromTheTabsThroughThePage()
    {
        click(u"chkMain_2"_s);
        click(u"OptionTabs_3"_s);
        find<QWidget>(u"OptionTabs_4"_s)->setFocus();
        for (const QString& name : {u"chkSound_3"_s, u"chkSound_1"_s, u"chkSound_0"_s, u"chkSound_9"_s}) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QCOMPARE(QApplication::focusWidget()->objectName(), name);
        }
    }

    void fromAClickedMapToTheEngine()
    {
        clickRow(u"MapList"_s, 6);
        QCOMPARE(find<QComboBox>(u"SkillsLevel_1"_s)->currentIndex(), 2); // the remembered skill
        auto* skill = find<QComboBox>(u"SkillsLevel_1"_s);
        skill->setFocus();
        QTest::keyClick(skill, Qt::Key_Down);
        QTest::keyClick(skill, Qt::Key_Down);
        click(u"LaunchButton"_s);

        const QStringList arguments = engineArguments();
        QCOMPARE(arguments.first(), u"-Doom2"_s);
        QCOMPARE(arguments.last(4), (QStringList{u"-sk"_s, u"4"_s, u"-wp"_s, u"07"_s}));
        QVERIFY(m_window->isMinimized());
        QVERIFY(m_installation->read(u"VYKLaunch/launch.log"_s).startsWith("Bin\\Keldrax -Doom2 "));
        QCOMPARE(m_installation->read(u"VYKLaunch/GameInfo/Iwads/doom2.vykm"_s), QByteArray("MAP07\r\n"));
    }

    // As the launcher is after a first start but for its view, and with a skill chosen before.
    void aSavegameOfAGameThatLoadsItsFilesItself_data()
    {
        QTest::addColumn<QString>("map");
        QTest::addColumn<int>("skill");
        QTest::addColumn<QString>("iwad");
        for (const int skill : {0, 4}) {
            QTest::addRow("Doom, skill %d", skill) << u"E2M3"_s << skill << u"-DOOM"_s;
            QTest::addRow("Doom II, skill %d", skill) << u"MAP05"_s << skill << u"-Doom2"_s;
        }
    }

    void aSavegameOfAGameThatLoadsItsFilesItself()
    {
        QFETCH(const QString, map);
        QFETCH(const int, skill);
        QFETCH(const QString, iwad);
        m_installation->add(u"VYKGames/x/Gwads/a.wad"_s, TemporaryInstallation::wad("PWAD", {map}));
        m_installation->add(u"VYKGames/x/Gwads/b.wad"_s, TemporaryInstallation::wad("PWAD", {u"MAP01"_s}));
        m_installation->add(u"UserSG/a/savegame/KeldraxSav3.vyksg"_s,
                            QByteArray("Before the gate").leftJustified(64, 0));
        click(u"OptionUdir_0"_s);
        QVERIFY(!find<QPushButton>(u"LaunchButton"_s)->isEnabled());
        auto* skills = find<QComboBox>(u"SkillsLevel_1"_s);
        for (int i = 0; i < skill; ++i)
            QTest::keyClick(skills, Qt::Key_Down);
        clickRow(u"PwadShowlist"_s, 0);
        QCOMPARE(rowsOf(u"SaveGameList"_s), QStringList(u"3 - Before the gate"_s));
        clickRow(u"SaveGameList"_s, 0);
        QCOMPARE(currentRowOf(u"MapList"_s), -1);
        const int used = skill == 0 ? 2 : skill; // the remembered one
        QCOMPARE(skills->currentIndex(), used);
        click(u"LaunchButton"_s);

        const QStringList arguments = engineArguments();
        QCOMPARE(arguments.value(0), iwad);
        QCOMPARE(arguments.last(4), (QStringList{u"-sk"_s, QString::number(used), u"-loadgame"_s, u"3"_s}));
    }

    void enterLaunchesOnTheGamesTab()
    {
        click(u"chkMain_2"_s);
        click(u"OptionTabs_1"_s);
        QTest::keyClick(m_window->windowHandle(), Qt::Key_Return);
        QVERIFY(!launched());

        click(u"OptionTabs_0"_s);
        QTest::keyClick(find<QWidget>(u"PwadList"_s), Qt::Key_Return);
        QVERIFY(launched());
        QVERIFY(!engineArguments().contains(u"-wp"_s));
    }

    void anOpenListOwnsReturn()
    {
        auto* skill = find<QComboBox>(u"SkillsLevel_1"_s);
        skill->setFocus();
        skill->showPopup();
        QVERIFY(QApplication::activePopupWidget());
        for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Return})
            QTest::keyClick(m_window->windowHandle(), key);
        QVERIFY(!QApplication::activePopupWidget());
        QCOMPARE(m_launcher->settings.Skill, 3);
        QVERIFY(!launched());
    }

    void closingSavesWhatWasChosen()
    {
        m_window->move(40, 50);
        m_window->close();
        const QStringList lines =
            QString::fromLatin1(m_installation->read(u"VYKLaunch/config.vyk"_s)).split(u"\r\n"_s);
        QCOMPARE(lines.size(), 84);
        QCOMPARE(lines.at(81), u" 50 "_s);
        QCOMPARE(lines.at(82), u" 40 "_s);
    }

    void theTitlePictureCyclesAndSurvivesABadFile()
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

    void ctrlFFindsAGameAndEnterDoesNotLaunchIt()
    {
        click(u"chkMain_2"_s); // advanced
        click(u"OptionTabs_1"_s);
        QTest::keyClick(m_window.get(), Qt::Key_F, Qt::ControlModifier);
        auto* filter = find<QLineEdit>(u"edFilter"_s);
        QVERIFY(filter->hasFocus() && filter->isVisible());

        QTest::keyClicks(filter, u"ultimate"_s);
        QCOMPARE(rowsOf(u"PwadList"_s), QStringList(u"DOOM/ULTIMATE DOOM"_s));
        QCOMPARE(m_launcher->settings.SelectedDoomGame, u"DOOM II"_s);
        QTest::keyClick(m_window->windowHandle(), Qt::Key_Return);
        QCOMPARE(m_launcher->settings.SelectedDoomGame, u"DOOM/ULTIMATE DOOM"_s);
        QVERIFY(!launched());
    }

    void droppedGamesAreHandedOnAfterTheDrop()
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

    void aCommandThatRunsIsLeftAlone()
    {
        bool windowClosed = true;
        bool started = true;
        m_launcher->controls.Auto[Heading::Games].clicked = [&] {
            windowClosed = m_window->close();
            QTest::keyClick(m_window->windowHandle(), Qt::Key_Return);
            started = launched();
        };
        QTest::mouseClick(find<QWidget>(u"Auto_0"_s), Qt::LeftButton);
        QVERIFY(!windowClosed);
        QVERIFY(!started);
        QVERIFY(m_window->close());
    }

private:
    template <class Widget>
    Widget* find(const QString& name) const
    {
        return m_window->findChild<Widget*>(name);
    }
    void click(const QString& button) { find<QAbstractButton>(button)->click(); }
    bool launched() const { return m_installation->exists(u"VYKLaunch/launch.log"_s); }
    void clickRow(const QString& list, int row);
    QStringList rowsOf(const QString& list) const;
    int currentRowOf(const QString& list) const { return find<ListView>(list)->currentIndex().row(); }
    QStringList engineArguments()
    {
        const bool ended =
            QTest::qWaitFor([this] { return m_installation->exists(u"arguments.txt"_s); }, 30000);
        if (!ended)
            return {};
        return QString::fromUtf8(m_installation->read(u"arguments.txt"_s)).split(u'\n', Qt::SkipEmptyParts);
    }

    std::unique_ptr<TemporaryInstallation> m_installation;
    std::unique_ptr<DiskFileSystem> m_files;
    std::unique_ptr<SystemProcesses> m_processes;
    std::unique_ptr<QueuedPrompts> m_prompts;
    std::unique_ptr<MainForm> m_window;
    std::unique_ptr<ConnectedLauncher> m_launcher;
};

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

QTEST_MAIN(MainFormWindowTest)
#include "MainFormWindowTest.moc"
