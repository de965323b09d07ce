// From the Launch button to the engine's start: the whole command line, messages, log and window.
#include "launch/LaunchButton.h"

#include "launch/ShellOpen.h"
#include "platform/Paths.h"
#include "tests/support/CommercialGame.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString engine = u"Bin\\Keldrax"_s;
const QString options = u"-np -nht -3d -ch 128 -upm -ro -ct 9 -cmd \"audio-ricoh 4\" \"rend-light 1\" "
                        "\"rend-smoke 1\" "_s;

void press(CommercialGame& game)
{
    QVERIFY(game.launcher.controls.LaunchButton.enabled);
    game.launcher.controls.LaunchButton.clicked();
}

void verifyNothingHappened(CommercialGame& game)
{
    QVERIFY(game.processes.starts.isEmpty());
    QVERIFY(!game.installation.exists(u"VYKLaunch/launch.log"_s));
    QVERIFY(!game.launcher.launch.AfterLaunch && !game.window.calls.contains(u"minimise"_s));
}

} // namespace

class LaunchTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsWhatIsChosen()
    {
        CommercialGame game;
        Launcher& launcher = game.launcher;
        game.window.topLeft = {31, 47};
        press(game);
        const QString line = engine + u" -Doom2 "_s + options;
        QCOMPARE(game.processes.starts, (QList<RecordingProcesses::Call>{{line, launcher.paths.RootPath}}));
        QCOMPARE(game.installation.read(u"VYKLaunch/launch.log"_s), line.toLatin1() + "\r\n");
        QCOMPARE(launcher.settings.WindowTop, 47);
        QCOMPARE(launcher.settings.WindowLeft, 31);
        QVERIFY(launcher.launch.AfterLaunch && !launcher.launch.RicochetOn);
        QCOMPARE(game.window.calls, QStringList{u"minimise"_s});

        game.pickSkill(4);
        game.pickMap(u"MAP31"_s);
        launcher.controls.edCustom.text = u"-nomonsters \"a b\" -fast"_s;
        press(game);
        QCOMPARE(game.processes.lastCommandLine(),
                 engine + u" -Doom2 "_s + options + u"-sk 4 -wp 31 -nomonsters \"a b\" -fast "_s);
        QCOMPARE(game.installation.read(u"VYKLaunch/launch.log"_s),
                 game.processes.lastCommandLine().toLatin1() + "\r\n");

        game.pickSkill(0);
        launcher.controls.edCustom.text.clear();
        game.selectGame(u"Doom/Ultimate Doom"_s);
        press(game);
        QCOMPARE(game.processes.lastCommandLine(), engine + u" -Doom "_s + options);
        game.pickMap(u"E3M2"_s);
        press(game);
        QCOMPARE(game.processes.lastCommandLine(), engine + u" -Doom "_s + options + u"-sk 4 -wp 3 2 "_s);
        launcher.launch.WarpArgument.clear();
        launcher.launch.StartChoice = StartChoice::ChosenMap;
        press(game);
        QCOMPARE(game.processes.lastCommandLine(), engine + u" -Doom "_s + options + u"-sk 4 "_s);
    }

    void theIwadsNameIsTheDisks()
    {
        CommercialGame game;
        game.installation.addFolder(u"elsewhere/my wads"_s);
        QVERIFY(QFile::remove(game.path(u"Iwads/Doom2.wad"_s)));
        game.addWad(u"Iwads/DOOM2.WAD"_s, {u"MAP01"_s});
        game.launcher.iwads = {};
        BuildIwadList(game.launcher.iwads, game.files, game.launcher.paths, {});
        OptionUdirClick(game.launcher, 1);
        game.selectGame(u"Doom II"_s);
        press(game);
        QVERIFY(game.processes.lastCommandLine().startsWith(u"Bin\\Keldrax -DOOM2 -np "_s));

        // Outside the standard places the engine needs the path.
        const QString moved = game.path(u"elsewhere/my wads/Doom2.wad"_s);
        QVERIFY(QFile::rename(game.path(u"Iwads/DOOM2.WAD"_s), moved));
        game.launcher.iwads.of(GameFamily::Doom2) = moved;
        OptionUdirClick(game.launcher, 1);
        game.selectGame(u"Doom II"_s);
        press(game);
        QCOMPARE(game.processes.lastCommandLine(),
                 engine + u" -iwad \""_s + NativePath(moved) + u"\" "_s + options);
    }

    void refusesWithItsMessage()
    {
        CommercialGame game;
        Launcher& launcher = game.launcher;
        game.addWad(u"Iwads/Plutonia.wad"_s, {});
        launcher.iwads.of(GameFamily::Plutonia) = game.path(u"Iwads/Plutonia.wad"_s);
        OptionUdirClick(launcher, 1);
        game.selectGame(u"The Plutonia Experiment"_s);
        game.prompts.expectMessage();
        press(game);
        QCOMPARE(game.prompts.texts.last(), u"The plutonia.wad contains no levels.    "_s);
        QCOMPARE(game.prompts.titles.last(), u" Wad error"_s);
        QCOMPARE(game.prompts.styles.last(), Msg::Ok + Msg::Information);
        verifyNothingHappened(game);

        game.selectGame(u"Doom II"_s);
        QVERIFY(QFile::remove(game.path(u"Iwads/Doom2.wad"_s)));
        for (const bool forShortcut : {false, true}) {
            launcher.launch.ShortcutMode = forShortcut;
            game.window.calls.clear();
            game.prompts.expectMessage();
            press(game);
            QCOMPARE(game.prompts.texts.last(), u"There appears to be a problem with the IWAD location.\r\n"
                                                "Reset Iwads and do a search or enter new locations."_s);
            QCOMPARE(game.prompts.titles.last(), u" Setup error"_s);
            QCOMPARE(game.window.calls, QStringList{u"showIwadForm"_s});
            QVERIFY(!launcher.launch.ShortcutMode);
            verifyNothingHappened(game);
        }
    }

    // Nothing escapes a double quote: only a name that would stand on the line is in the way.
    void doubleQuotes()
    {
        if (OnWindows)
            QSKIP("no name holds one here");
        CommercialGame game;
        Launcher& launcher = game.launcher;
        game.addWad(u"else\"where \"/Doom2.wad"_s, {u"MAP01"_s});
        QVERIFY(QFile::remove(game.path(u"Iwads/Doom2.wad"_s)));
        launcher.iwads.of(GameFamily::Doom2) = launcher.selection.SelectedWadPath =
            game.path(u"else\"where \"/Doom2.wad"_s);
        game.prompts.expectMessage();
        press(game);
        QCOMPARE(game.prompts.titles.last(), u" Launch error"_s);
        verifyNothingHappened(game);

        game.addWad(u"Iwads/Doom2.wad"_s, {u"MAP01"_s});
        launcher.settings.PlaylistName = u"a\"b"_s;
        press(game);
        QCOMPARE(game.processes.starts.size(), 1);
        launcher.controls.Corpse.text = u"9\" -devparm"_s;
        game.prompts.expectMessage();
        press(game);
        QCOMPARE(game.processes.starts.size(), 1);
    }

    void launchModes()
    {
        CommercialGame game;
        Launcher& launcher = game.launcher;
        launcher.controls.ExitOption.select(0);
        press(game);
        QCOMPARE(launcher.settings.LastLaunchMode, 0);
        QCOMPARE(game.window.calls, QStringList());

        // A start that fails keeps the launcher, whatever the mode.
        game.processes.startResult = false;
        for (const int mode : {1, 2}) {
            game.window.calls.clear();
            launcher.controls.ExitOption.select(mode);
            game.prompts.expectMessage();
            press(game);
            QCOMPARE(game.prompts.texts.last(),
                     u"Cannot execute! The command line was:\r\n"_s + engine + u" -Doom2 "_s + options);
            QCOMPARE(game.prompts.titles.last(), QString());
            QCOMPARE(game.prompts.styles.last(), Msg::Ok);
            QCOMPARE(game.window.calls.last(), u"bringToFront"_s);
            QVERIFY(!launcher.startUp.ShuttingDown && !launcher.launch.AfterLaunch);
        }

        game.processes.startResult = true;
        game.window.calls.clear();
        QVERIFY(QFile::remove(game.path(u"VYKLaunch/launch.log"_s)));
        press(game);
        QCOMPARE(launcher.settings.LastLaunchMode, 2);
        QCOMPARE(game.window.calls, (QStringList{u"hide"_s, u"endProgram"_s}));
        QVERIFY(launcher.startUp.ShuttingDown && game.installation.exists(u"VYKLaunch/launch.log"_s));
    }

    void shortcutMode()
    {
        CommercialGame game;
        Launcher& launcher = game.launcher;
        launcher.controls.ExitOption.select(2);
        launcher.settings.LastLaunchMode = 1;
        launcher.launch.ShortcutMode = true;
        game.pickMap(u"MAP07"_s);
        QCOMPARE(LaunchSelectedGame(launcher), LaunchResult::HandedOver);
        QCOMPARE(launcher.launch.ShortcutArguments, u"-Doom2 "_s + options + u"-sk 2 -wp 07 "_s);
        QVERIFY(!launcher.launch.ShortcutMode && !launcher.startUp.ShuttingDown);
        QCOMPARE(launcher.settings.LastLaunchMode, 1);
        verifyNothingHappened(game);
    }

    // What is missing is switched off, with its message, and the game starts.
    void repairsOptions()
    {
        CommercialGame game;
        Launcher& launcher = game.launcher;
        for (const size_t box : {1U, 2U, 3U}) {
            launcher.controls.chkAltModels[box].enabled = true;
            launcher.controls.chkAltModels[box].startAs(1);
        }
        game.installation.add(u"Defs/Model/hudweapons.ded"_s,
                              "# HWeapons version 10 - Do not edit this line\r\nx");
        game.installation.add(u"Defs/Model/Tovrens/hudweapons.ded"_s, "# HWeapons version 9\r\n");
        game.prompts.expectMessage();
        game.prompts.expectMessage();
        press(game);
        QCOMPARE(game.prompts.texts,
                 (QStringList{u"There is a compatibility issue between the standard and enhanced models, "
                              "enhanced models will not be used\r\nupdate to the latest model packs.  "_s,
                              u" Unable to use kelspack as the kelspack.wad was not found.  "_s}));
        QCOMPARE(game.prompts.titles, (QStringList{u" Launch error"_s, u" Launch error"_s}));
        QCOMPARE(game.processes.lastCommandLine(), engine + u" -Doom2 "_s + options);
        QVERIFY(!launcher.settings.TovrensReplacements && !launcher.settings.KelspackWeapons);

        for (const QString& file : {u"Md2/Kelspack/kelspack.wad"_s, u"Md2/Kelspack/AK47/AK47.md2"_s,
                                    u"Md2/Tovrens/Gore/Gore6.dmd"_s})
            game.installation.add(file);
        launcher.modelPacks.ModelPacksMissing = false;
        game.installation.add(u"Defs/Model/Tovrens/hudweapons.ded"_s,
                              "# hweapons VERSION 10 - Do not edit this line\n");
        press(game);
        QCOMPARE(game.processes.lastCommandLine(), engine + u" -Doom2 -fp -ap -am "_s + options);
    }

    // Packs that are there enable their options at the launch.
    void packsAreLookedForAgain()
    {
        CommercialGame game;
        game.installation.add(u"Data/Patches/stbar.png"_s);
        game.installation.add(u"Data/hv_doom_sfx.wad"_s);
        game.installation.add(u"Data/DTEX/detail.wad"_s);
        game.installation.addFolder(u"Data/skyboxes"_s);
        game.launcher.controls.chkGraphics[2].startAs(1);
        game.launcher.controls.chkSound[2].startAs(0);
        press(game);
        QCOMPARE(game.processes.lastCommandLine(),
                 engine + u" -Doom2 -nht -data hv_doom_sfx.wad -3d -ch 128 -upm -dt -usb -ro -ct 9 -cmd "
                          "\"rend-light 1\" \"rend-smoke 1\" "_s);
    }

    void aLogThatFailsStopsNoGame()
    {
        CommercialGame game;
        game.installation.add(u"VYKLaunch/launch.log"_s, "the last line");
        game.files.failOn(u"launch.log"_s, FileError::Kind::Other);
        press(game);
        QCOMPARE(game.processes.starts.size(), 1);
        QCOMPARE(game.installation.read(u"VYKLaunch/launch.log"_s), "the last line");
    }

    void shellOpen()
    {
        QueuedPrompts prompts;
        QVERIFY(ShellOpen(prompts, u"/a/help.txt"_s));
        prompts.canOpen = false;
        prompts.expectMessage();
        QVERIFY(!ShellOpen(prompts, u"https://example.org"_s));
        QCOMPARE(prompts.opened, (QStringList{u"/a/help.txt"_s, u"https://example.org"_s}));
        QCOMPARE(prompts.texts, QStringList{u"Unable to find associated file.   "_s});
        QCOMPARE(prompts.titles, QStringList{u" Shell error"_s});
        QCOMPARE(prompts.styles, QList<int>{Msg::Ok + Msg::Critical});
    }
};

QTEST_GUILESS_MAIN(LaunchTest)
#include "LaunchTest.moc"
