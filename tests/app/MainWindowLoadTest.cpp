#include "app/MainWindowLoad.h"

#include "app/Themes.h"
#include "iwads/IwadDialog.h"
#include "launch/LaunchCommercialGame.h"
#include "tests/support/LauncherFixture.h"

using namespace Qt::StringLiterals;

class MainWindowLoadTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void freshInstallation()
    {
        LauncherFixture f;
        const QString iwad = f.addIwad(u"Data/Doom2.wad"_s);
        LoadMainWindow(f.launcher);
        QVERIFY(QDir(f.path(u"VYKGames"_s)).exists());
        QVERIFY(QDir(f.path(u"VYKLaunch/GameInfo"_s)).exists());
        QCOMPARE(f.launcher.controls.PwadList.entries(), {u"DOOM II"_s});
        QCOMPARE(f.launcher.settings.SelectedDoomGame, u"DOOM II"_s);
        QCOMPARE(f.launcher.launch.StartChoice, StartChoice::NewGame);
        QVERIFY(f.launcher.controls.ExitOption[2].visible && !f.launcher.controls.ExitOption[0].visible);
        QVERIFY(f.window.calls.isEmpty()); // start-up shows it
        QCOMPARE(f.launcher.iwads.ShowIwads[0], iwad);
    }

    void withoutIwads()
    {
        LauncherFixture f;
        f.setConfig(f.configWith({{57, u"Doom II"_s}}));
        LoadMainWindow(f.launcher);
        QCOMPARE(f.window.calls, {u"showIwadForm"_s});
        QCOMPARE(f.launcher.settings.SelectedDoomGame, QString());

        LauncherFixture g; // the player leaves from the dialog
        const QByteArray before = g.configWith({{57, u"Doom II"_s}});
        g.setConfig(before);
        g.prompts.expectMessage(Msg::ResultYes);
        g.window.onIwadForm = [&g] { IwadDialog(g.launcher).accept(); };
        LoadMainWindow(g.launcher);
        QVERIFY(g.launcher.startUp.ShuttingDown);
        UnloadMainWindow(g.launcher);
        QCOMPARE(g.config(), before);
    }

    void placement()
    {
        const QPoint centre(490, 230); // 940 x 620 on 1920 x 1080
        const struct
        {
            int top, left;
            bool wine;
            QPoint placed;
        } rows[] = {{12, 34, false, {34, 12}},
                    {1079, 1919, false, {1919, 1079}}, // a part of it is on the screen
                    {-20, -900, false, {-900, -20}},
                    {12, -940, false, centre},
                    {12, 1921, false, centre},
                    {1081, 34, false, centre},
                    {12, std::numeric_limits<int>::min(), false, centre},
                    {12, 34, true, centre}};
        for (const auto& row : rows) {
            LauncherFixture f;
            f.addIwad(u"Doom.wad"_s);
            f.setConfig(f.configWith({{82, QString::number(row.top)}, {83, QString::number(row.left)}}));
            f.launcher.startUp.RunningUnderWine = row.wine;
            LoadMainWindow(f.launcher);
            QCOMPARE(f.window.topLeft, row.placed);
            QCOMPARE(f.launcher.controls.WineImage.visible, row.wine);
        }
    }

    void unloadRecordsThePosition()
    {
        LauncherFixture f;
        const auto savedPosition = [&f] { return f.config().split('\n').mid(81, 2).join().trimmed(); };
        f.launcher.settings.WindowTop = 5;
        f.launcher.settings.WindowLeft = 6;
        f.window.topLeft = {70, 80};
        f.window.normal = false; // minimised
        UnloadMainWindow(f.launcher);
        QCOMPARE(savedPosition(), "5 \r 6"_ba);
        f.window.normal = true;
        UnloadMainWindow(f.launcher);
        QCOMPARE(savedPosition(), "80 \r 70"_ba);
        f.launcher.startUp.RunningUnderWine = true;
        f.window.topLeft = {1, 2};
        UnloadMainWindow(f.launcher);
        QCOMPARE(f.launcher.settings.WindowTop, 80);
        QCOMPARE(savedPosition(), ""_ba);
    }

    void unloadSavesWholeOrNothing()
    {
        for (int failing = 1; failing <= 3; ++failing) {
            LauncherFixture f;
            const QByteArray before = f.configWith({{4, u" 1 "_s}});
            f.setConfig(before);
            f.installation.add(u"VYKLaunch/Data/pwad.vyk"_s, "report");
            f.launcher.settings.TipNumber = 2;
            f.files.failAt(failing, FileError::Kind::PermissionDenied);
            const bool saveFails = failing == 2;
            if (saveFails)
                f.prompts.expectMessage();
            UnloadMainWindow(f.launcher);
            QCOMPARE(f.prompts.titles.value(0), saveFails ? u" Access error"_s : QString());
            if (saveFails)
                QCOMPARE(f.config(), before);
            else
                QCOMPARE(f.config().split('\n').value(3), " 2 \r"_ba);
            QCOMPARE(f.config().count("\r\n"), 83);
            QCOMPARE(f.installation.exists(u"VYKLaunch/Data/pwad.vyk"_s), failing == 1);
            QCOMPARE(f.files.calls(), 2); // nothing is deleted before it is replaced
            QCOMPARE(f.installation.tree().filter(u"config"_s).size(), 1); // no half-written file stays
        }
    }

    void unloadAfterAResetSavesNothing()
    {
        LauncherFixture f;
        f.launcher.startUp.VersionUpdate = true;
        UnloadMainWindow(f.launcher);
        QVERIFY(!f.hasConfig());
    }

    void noCorpseFadeReachesTheEngine()
    {
        for (const bool fade : {true, false}) {
            LauncherFixture f;
            f.addIwad(u"Data/Doom2.wad"_s);
            f.setConfig(f.configWith({{40, u" 1 "_s}, {74, fade ? u" 3 "_s : u" 0 "_s}, {76, u" 0 "_s}}));
            LoadMainWindow(f.launcher);
            const Controls& controls = f.launcher.controls;
            QCOMPARE(controls.chkVYKOpts[3].ticked(), fade);
            QCOMPARE(controls.chkVYKOpts[3].enabled, fade);
            QCOMPARE(controls.Corpse.colour, fade ? Colour::Normal : Colour::Accent);
            QCOMPARE(controls.TexLabel[1].caption,
                     fade ? u"Seconds before corpse fade"_s : u"No corpse fade"_s);
            QCOMPARE(controls.ChkGL.caption, u"Pipebomb launcher"_s);
            QCOMPARE(controls.Timeout.colour, Colour::Accent);

            QCOMPARE(LaunchCommercialGame(f.launcher), LaunchResult::Started);
            const QString line = f.processes.lastCommandLine();
            QCOMPARE(line.contains(u" -ro "_s), fade);
            QCOMPARE(line.contains(u" -ct 3 "_s), fade);
            QCOMPARE(line.contains(u" -ct "_s), fade);
        }
    }

    void skills()
    {
        for (const int skill : {0, 3}) {
            LauncherFixture f;
            f.addIwad(u"Data/Doom2.wad"_s);
            f.setConfig(f.configWith({{2, u" 4 "_s}, {52, QString::number(skill)}}));
            LoadMainWindow(f.launcher);
            QCOMPARE(f.launcher.settings.LastSkill, skill == 0 ? 4 : 3); // "Start game from New" keeps it
            QCOMPARE(f.launcher.controls.SkillsLevel[0].selected(), skill);
            QCOMPARE(f.launcher.launch.StartChoice == StartChoice::NewGame, skill == 0);
        }
    }

    void themesCycle()
    {
        LauncherFixture f;
        Launcher& launcher = f.launcher;
        for (const QString& name : {u"DEFAULT.jpg"_s, u"b.BMP"_s, u"a.jpg"_s, u"notes.txt"_s})
            f.installation.add(u"VYKLaunch/Themes/"_s + name);
        const auto shown = [&launcher] { return launcher.controls.TitlePic.text.section(u'/', -1); };
        launcher.settings.TitlePicIndex = 5; // of an earlier, larger folder
        GetTitlePic(launcher);
        QCOMPARE(shown(), u"DEFAULT.jpg"_s);
        QCOMPARE(launcher.settings.TitlePicIndex, 0);
        for (const QString& next : {u"a.jpg"_s, u"b.BMP"_s, u"DEFAULT.jpg"_s, u"a.jpg"_s}) {
            launcher.controls.TitlePic.clicked();
            QCOMPARE(shown(), next);
        }
        launcher.settings.TitlePicIndex = -1;
        GetTitlePic(launcher);
        QCOMPARE(shown(), u"DEFAULT.jpg"_s);

        LauncherFixture without;
        without.installation.add(u"VYKLaunch/Themes/a.jpg"_s);
        GetTitlePic(without.launcher);
        QVERIFY(without.launcher.controls.TitlePic.text.isEmpty());
    }

    void extractedGamesGoAfterAnExit()
    {
        for (const int mode : {1, 2}) {
            LauncherFixture f;
            f.addIwad(u"Data/Doom2.wad"_s);
            f.installation.add(u"VYKLaunch/Zips/game.wad"_s);
            f.installation.add(u"VYKLaunch/Zips/Checks/kept.vykchk"_s);
            f.setConfig(f.configWith({{71, QString::number(mode)}}));
            LoadMainWindow(f.launcher);
            QCOMPARE(f.installation.exists(u"VYKLaunch/Zips/game.wad"_s), mode != 2);
            QVERIFY(f.installation.exists(u"VYKLaunch/Zips/Checks/kept.vykchk"_s));
        }
    }

    void activation()
    {
        LauncherFixture f;
        Controls& controls = f.launcher.controls;
        f.addIwad(u"Data/Doom2.wad"_s);
        f.installation.add(u"VYKLaunch/Music/Auto-Playlist.vyk"_s);
        f.installation.add(u"VYKLaunch/Music/Mine.vym"_s);
        f.setConfig(f.configWith({{14, u" 1 "_s}, {37, u" 1 "_s}, {80, u" 0 "_s}}));
        LoadMainWindow(f.launcher);
        QVERIFY(controls.chkTesting.visible && controls.ExitOption[0].visible &&
                controls.SoundFrame[1].visible);
        ActivateMainWindow(f.launcher);
        QVERIFY(controls.chkSound[4].ticked());

        QVERIFY(QFile::remove(f.path(u"VYKLaunch/Music/Auto-Playlist.vyk"_s)));
        controls.PwadList.deselect();
        f.launcher.settings.SelectedDoomGame.clear();
        ActivateMainWindow(f.launcher);
        QVERIFY(!controls.chkSound[4].ticked());
        QCOMPARE(controls.PwadList.selected(), 0);
    }

    void enterPressesLaunchOnlyWhenEnabled()
    {
        LauncherFixture f;
        int presses = 0;
        Button& launch = f.launcher.controls.LaunchButton;
        launch.clicked = [&presses] { ++presses; };
        launch.enabled = false;
        QVERIFY(!EnterPressed(f.launcher));
        launch.enabled = true;
        QVERIFY(EnterPressed(f.launcher));
        QCOMPARE(presses, 1);
    }
};

QTEST_GUILESS_MAIN(MainWindowLoadTest)
#include "MainWindowLoadTest.moc"
