// From the Launch button to the engine's start: the whole command line, messages, log and window.
#include "launch/LaunchButton.h"

#include "platform/Paths.h"
#include "shell/ShellOpen.h"
#include "tests/support/CommercialGame.h"
#include "tests/support/Packs.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString engine = u"Bin\\Keldrax"_s;
const QString options = u"-np -nht -3d -ch 128 -ro -ct 9 -cmd \"audio-ricoh 4\" \"rend-light 1\" "
                        "\"rend-smoke 0\" "_s;

void press(CommercialGame& game)
{
    QVERIFY(game.launcher.controls.LaunchButton.enabled);
    game.launcher.controls.LaunchButton.clicked();
}

void verifyNothingHappened(CommercialGame& game)
{
    QVERIFY(game.processes.starts.isEmpty());
    QVERIFY(!game.installation.exists(u"VYKLaunch/launch.log"_s));
    QVERIFY(!game.launcher.session.AfterLaunch && !game.window.calls.contains(u"minimise"_s));
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
        QVERIFY(launcher.session.AfterLaunch);
        QCOMPARE(game.window.calls, QStringList{u"minimise"_s});

        game.pickSkill(4);
        game.selectGame(u"Doom/Ultimate Doom"_s);
        game.pickMap(u"E3M2"_s);
        launcher.controls.edCustom.text = u"-nomonsters \"a b\" -fast"_s;
        launcher.controls.edCustom.typed();
        press(game);
        QCOMPARE(game.processes.lastCommandLine(),
                 engine + u" -Doom "_s + options + u"-sk 4 -wp 3 2 -nomonsters \"a b\" -fast "_s);
        QCOMPARE(game.installation.read(u"VYKLaunch/launch.log"_s),
                 game.processes.lastCommandLine().toLatin1() + "\r\n");
    }

    void theIwadsNameIsTheDisks()
    {
        CommercialGame game;
        game.installation.addFolder(u"elsewhere/my wads"_s);
        QVERIFY(QFile::remove(game.path(u"Iwads/Doom2.wad"_s)));
        game.addWad(u"Iwads/DOOM2.WAD"_s, {u"MAP01"_s});
        game.load();
        press(game);
        QCOMPARE(game.processes.lastCommandLine(), engine + u" -DOOM2 "_s + options);

        // Outside the standard places the engine needs the path.
        const QString moved = game.path(u"elsewhere/my wads/Doom2.wad"_s);
        QVERIFY(QFile::rename(game.path(u"Iwads/DOOM2.WAD"_s), moved));
        game.installation.add(u"VYKLaunch/Data/iwads.cfg"_s, ToAnsi(NativePath(moved)));
        game.load();
        press(game);
        QCOMPARE(game.processes.lastCommandLine(),
                 engine + u" -iwad \""_s + NativePath(moved) + u"\" "_s + options);
    }

    void refusesWithItsMessage()
    {
        CommercialGame game;
        game.addWad(u"Iwads/Plutonia.wad"_s, {});
        game.load();
        game.selectGame(u"The Plutonia Experiment"_s);
        game.prompts.expectMessage();
        press(game);
        QCOMPARE(game.prompts.texts.last(), u"The plutonia.wad contains no levels.    "_s);
        QCOMPARE(game.prompts.titles.last(), u" Wad error"_s);
        QCOMPARE(game.prompts.styles.last(), Msg::Ok + Msg::Information);
        verifyNothingHappened(game);

        // The IWAD went while it was selected.
        game.selectGame(u"Doom II"_s);
        QVERIFY(QFile::remove(game.path(u"Iwads/Doom2.wad"_s)));
        game.prompts.expectMessage();
        press(game);
        QCOMPARE(game.prompts.texts.last(), u"There appears to be a problem with the IWAD location.\r\n"
                                            "Reset Iwads and do a search or enter new locations."_s);
        QCOMPARE(game.prompts.titles.last(), u" Setup error"_s);
        QCOMPARE(game.window.calls, QStringList{u"showIwadForm"_s});
        verifyNothingHappened(game);
    }

    // Nothing escapes a double quote: only a name that would stand on the line is in the way.
    void doubleQuotes()
    {
        if (OnWindows)
            QSKIP("no name holds one here");
        CommercialGame game;
        Settings& settings = game.launcher.settings;
        game.addWad(u"else\"where \"/Doom2.wad"_s, {u"MAP01"_s});
        QVERIFY(QFile::remove(game.path(u"Iwads/Doom2.wad"_s)));
        game.launcher.facts.iwads.of(GameFamily::Doom2) = game.path(u"else\"where \"/Doom2.wad"_s);
        game.selectGame(u"Doom II"_s);
        game.prompts.expectMessage();
        press(game);
        QCOMPARE(game.prompts.titles.last(), u" Launch error"_s);
        verifyNothingHappened(game);

        game.addWad(u"Iwads/Doom2.wad"_s, {u"MAP01"_s});
        game.installation.add(u"VYKLaunch/Music/a\"b.vym"_s);
        game.load();
        settings.PlaylistName = u"a\"b"_s;
        press(game);
        QCOMPARE(game.processes.starts.size(), 1);
        settings.ManualPlaylistOn = true;
        game.prompts.expectMessage();
        press(game);
        QCOMPARE(game.processes.starts.size(), 1);
    }

    void launchModes()
    {
        CommercialGame game;
        Launcher& launcher = game.launcher;
        launcher.controls.ExitOption.click(LaunchMode::Normal);
        press(game);
        QCOMPARE(game.window.calls, QStringList());

        // A start that fails keeps the launcher, whatever the mode.
        game.processes.startResult = false;
        for (const LaunchMode mode : {LaunchMode::Minimised, LaunchMode::Exit}) {
            launcher.controls.ExitOption.click(mode);
            game.prompts.expectMessage();
            press(game);
            QCOMPARE(game.prompts.texts.last(),
                     u"Cannot execute! The command line was:\r\n"_s + engine + u" -Doom2 "_s + options);
            QCOMPARE(game.prompts.titles.last(), QString());
            QCOMPARE(game.prompts.styles.last(), Msg::Ok);
            QCOMPARE(game.window.calls.last(), u"bringToFront"_s);
            QVERIFY(!launcher.startUp.ShuttingDown && !launcher.session.AfterLaunch);
        }

        // So does a game that ends with an error, now or later, and the window is back with what it said.
        game.processes.startResult = true;
        for (const LaunchMode mode : {LaunchMode::Normal, LaunchMode::Minimised, LaunchMode::Exit}) {
            launcher.controls.ExitOption.click(mode);
            press(game);
            game.window.calls.clear();
            game.prompts.expectMessage();
            game.processes.watches.last().failed(u"W_Init: a.wad is no WAD\nbye"_s);
            QVERIFY(game.prompts.texts.last().contains(u"W_Init: a.wad is no WAD\r\nbye"_s));
            QCOMPARE(game.window.calls, QStringList(u"bringToFront"_s));
            QVERIFY(!launcher.startUp.ShuttingDown);
        }

        // The launcher ends when it is known that the game goes on.
        game.window.calls.clear();
        press(game);
        QCOMPARE(launcher.settings.LastLaunchMode, static_cast<int>(LaunchMode::Exit));
        QCOMPARE(game.window.calls, QStringList());
        game.processes.watches.last().settled();
        QCOMPARE(game.window.calls, QStringList(u"closeLauncher"_s));
    }

    // What was played last is chosen again, whatever its name and however old its record.
    void aCommaInAName()
    {
        CommercialGame game;
        const QString file = u"Maps, part 2.wad"_s;
        game.addWad(u"VYKGames/Auto/Gwads/"_s + file, {u"MAP01"_s});
        game.addWad(u"VYKGames/Auto/Gwads/z.wad"_s, {u"MAP01"_s, u"MAP02"_s});
        game.load();
        game.show(View::InstalledGames);
        game.selectGame(u"Auto"_s);
        game.pickFile(file);
        press(game);
        const QString record = u"VYKLaunch/GameInfo/Gwads/auto.vykg"_s;
        QCOMPARE(game.installation.read(record), "\"Maps, part 2.wad\"\r\n");
        for (const QByteArray& line : {game.installation.read(record), "Maps, part 2.wad\r\n"_ba}) {
            game.pickFile(u"z.wad"_s);
            game.installation.add(record, line);
            game.show(View::DoomGames);
            game.show(View::InstalledGames);
            QCOMPARE(game.launcher.chosenFile(), file);
        }
    }

    // What is missing or does not agree is switched off, with its message, and the game starts.
    void repairsOptions()
    {
        CommercialGame game;
        Settings& settings = game.launcher.settings;
        game.installation.add(u"Defs/Model/hudweapons.ded"_s,
                              "# HWeapons version 10 - Do not edit this line\r\nx");
        game.installation.add(u"Defs/Model/Tovrens/hudweapons.ded"_s, "# HWeapons version 9\r\n");
        settings.TovrensReplacements = settings.KelspackWeapons = settings.KelspackAlternative = true;
        game.prompts.expectMessage();
        game.prompts.expectMessage();
        press(game);
        QCOMPARE(game.prompts.texts,
                 (QStringList{u"There is a compatibility issue between the standard and enhanced models, "
                              "enhanced models will not be used\r\nupdate to the latest model packs.  "_s,
                              u" Unable to use kelspack as the kelspack.wad was not found.  "_s}));
        QCOMPARE(game.prompts.titles, (QStringList{u" Launch error"_s, u" Launch error"_s}));
        QCOMPARE(game.processes.lastCommandLine(), engine + u" -Doom2 "_s + options);
        QVERIFY(!settings.TovrensReplacements && !settings.KelspackWeapons && !settings.KelspackAlternative);
    }

    // What was added since the window was computed counts at the launch.
    void packsAreLookedForAgain()
    {
        CommercialGame game;
        Packs::add(game.installation, Packs::All);
        press(game);
        QCOMPARE(game.processes.lastCommandLine(),
                 engine + u" -Doom2 -am -data hv_doom_sfx.wad -3d -ch 128 -upm -usb -ro -ct 9 -cmd "
                          "\"audio-ricoh 4\" \"rend-light 1\" \"rend-smoke 1\" "_s);
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
};

QTEST_GUILESS_MAIN(LaunchTest)
#include "LaunchTest.moc"
