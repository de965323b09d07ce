#include "app/MainWindowLoad.h"

#include "app/ShowAll.h"
#include "app/Themes.h"
#include "catalogue/GameSelection.h"
#include "iwads/IwadDialog.h"
#include "tests/support/LauncherFixture.h"

using namespace Qt::StringLiterals;

class MainWindowLoadTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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
            f.launcher.RunningUnderWine = row.wine;
            LoadMainWindow(f.launcher);
            QCOMPARE(f.window.topLeft, row.placed);
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
        f.launcher.RunningUnderWine = true;
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

    // What stands in the file and cannot be: it is as the options themselves would leave it.
    void storedSettingsAreSettled()
    {
        LauncherFixture f;
        f.addIwad(u"Data/Doom2.wad"_s);
        f.setConfig(f.configWith({{2, u" 4 "_s}, {40, u" 1 "_s}, {52, u" 0 "_s}, {74, u" 0 "_s}}));
        LoadMainWindow(f.launcher);
        QVERIFY(!f.launcher.settings.ResurrectCorpses); // without a fade
        QCOMPARE(f.launcher.settings.LastSkill, 4);     // "Start game from New" keeps it
        QCOMPARE(f.launcher.startChoice(), StartChoice::NewGame);
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
        f.addIwad(u"Data/Doom2.wad"_s);
        f.installation.add(u"VYKLaunch/Music/Auto-Playlist.vyk"_s);
        f.setConfig(f.configWith({{37, u" 1 "_s}}));
        LoadMainWindow(f.launcher);
        ActivateMainWindow(f.launcher);
        QVERIFY(f.launcher.controls.chkSound[Sound::AutoPlaylist].ticked());
        QVERIFY(QFile::remove(f.path(u"VYKLaunch/Music/Auto-Playlist.vyk"_s)));
        DeselectGame(f.launcher);
        ActivateMainWindow(f.launcher);
        QVERIFY(!f.launcher.controls.chkSound[Sound::AutoPlaylist].ticked());
        QCOMPARE(f.launcher.controls.PwadList.selected(), 0);
    }
};

QTEST_GUILESS_MAIN(MainWindowLoadTest)
#include "MainWindowLoadTest.moc"
