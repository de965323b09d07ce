// The games list and what choosing in it does; the records of what was chosen last.
#include "app/ShowAll.h"
#include "launch/LaunchButton.h"
#include "platform/Paths.h"
#include "records/GameRecords.h"
#include "tests/support/CommercialGame.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString doom2Map = u"VYKLaunch/GameInfo/Iwads/doom2.vykm"_s;
const QString doom2Save = u"VYKLaunch/GameInfo/Save/doom2.vyks"_s;

Settings remembering(bool maps, bool saves, int skill = 3)
{
    Settings settings = DefaultSettings();
    settings.RememberLastMap = maps;
    settings.RememberLastSavegame = saves;
    settings.Skill = skill;
    return settings;
}

void addSavegames(CommercialGame& game)
{
    game.installation.add(u"UserSG/doom2/savegame/KeldraxSav7.vyksg"_s, "Before the boss\0\0"_ba);
    game.installation.add(u"UserSG/DOOM2/savegame/other.txt"_s);
    game.installation.add(u"UserSG/doom2/savegame/KeldraxSav0.vyksg"_s, "Start, \"gun\"\0"_ba);
    game.selectGame(u"Doom II"_s);
}

} // namespace

class GameListsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void views()
    {
        CommercialGame game;
        const Controls& controls = game.launcher.controls;
        game.addWad(u"VYKGames/Beta/Pwads/b.wad"_s, {u"E1M1"_s});
        game.addWad(u"VYKGames/alpha/Gwads/a.wad"_s, {u"MAP01"_s});
        game.installation.addFolder(u"VYKGames/no game"_s);
        game.installation.add(u"VYKArchives/some.ZIP"_s);
        game.installation.add(u"VYKArchives/some.txt"_s);
        QCOMPARE(controls.PwadList.entries(), (QStringList{u"DOOM II"_s, u"DOOM/ULTIMATE DOOM"_s}));
        QCOMPARE(controls.Auto[Heading::Games].caption, u"COMMERCIAL DOOM LIST"_s);
        QCOMPARE(controls.MapList.entries(), (QStringList{u"MAP01"_s, u"MAP07"_s, u"MAP31"_s}));

        game.show(View::InstalledGames);
        QCOMPARE(controls.PwadList.entries(), (QStringList{u"ALPHA"_s, u"BETA"_s}));
        QCOMPARE(controls.PwadShowlist.entries(), QStringList{u"a.wad"_s});
        game.selectGame(u"BETA"_s);
        QVERIFY(game.launcher.gameIs(GameKind::Pwad) && controls.LaunchButton.enabled);
        game.prompts.expectMessage(); // an empty file is no zip
        game.show(View::ZipLibrary);
        QCOMPARE(controls.PwadList.entries(), QStringList{u"SOME"_s});
        QVERIFY(controls.MapList.isEmpty() && !controls.LaunchButton.enabled);

        // Each view has its own remembered game.
        game.show(View::InstalledGames);
        QCOMPARE(controls.PwadList.selectedText(), u"BETA"_s);
        game.launcher.facts.iwads = {};
        game.show(View::DoomGames);
        QVERIFY(controls.PwadList.isEmpty() && controls.PwadShowlist.isEmpty());
        QVERIFY(!controls.LaunchButton.enabled && !controls.AuxButton[Tool::Shortcut].enabled);
    }

    void mapsAreRemembered()
    {
        CommercialGame game(remembering(true, false));
        const ListBox& maps = game.launcher.controls.MapList;
        QCOMPARE(maps.selectedText(), u"MAP01"_s);
        QVERIFY(!game.installation.exists(doom2Map)); // restored, not picked
        game.pickMap(u"MAP07"_s);
        QCOMPARE(game.installation.read(doom2Map), "MAP07\r\n");
        const QList<QPair<QByteArray, QString>> rows{{"MAP07\r\n", u"MAP07"_s},
                                                     {"", u"MAP01"_s},
                                                     {"MAP99\r\n", u"MAP01"_s},
                                                     {QByteArray("\0\xff,", 3), u"MAP01"_s},
                                                     {" \"map31\" ,more\r\nMAP07\r\n", u"MAP31"_s}};
        for (const auto& [record, map] : rows) {
            game.installation.add(doom2Map, record);
            game.selectGame(u"Doom II"_s);
            QCOMPARE(maps.selectedText(), map);
        }
        game.addWad(u"VYKGames/Mine/Pwads/m.wad"_s, {u"MAP01"_s, u"MAP02"_s});
        game.show(View::InstalledGames);
        game.pickMap(u"MAP02"_s);
        QCOMPARE(game.installation.read(u"VYKLaunch/GameInfo/Pwads/mine.vykm"_s), "MAP02\r\n");
    }

    // A savegame gives way to a map for good, whether the map is remembered or not.
    void mapsAreNotRemembered()
    {
        CommercialGame game(remembering(false, true));
        game.installation.add(doom2Map, "MAP31\r\n");
        addSavegames(game);
        QCOMPARE(game.launcher.controls.MapList.selectedText(), u"MAP01"_s);
        game.pickSavegame(u"7 - Before the boss"_s);
        QVERIFY(game.installation.exists(doom2Save));
        game.pickMap(u"MAP07"_s);
        QCOMPARE(game.installation.read(doom2Map), "MAP31\r\n");
        QVERIFY(!game.installation.exists(doom2Save));
    }

    // A game's name never leads out of the records' folder.
    void hostileNames()
    {
        CommercialGame game(remembering(true, true));
        const QStringList before = game.installation.tree();
        for (const GameKind kind : {GameKind::Pwad, GameKind::Gwad, GameKind::Archive}) {
            for (const QString& name : {u"../../x"_s, u"a/b"_s, u"a\\b"_s, u"/etc/x"_s, u" "_s, QString()}) {
                game.launcher.facts.game.kind = kind;
                game.launcher.facts.game.name = name;
                GameRecords records(game.files, game.launcher.paths, game.launcher);
                records.SaveLastMap();
                records.SaveGwadSelection();
                records.SaveLastSavegame();
                QCOMPARE(records.map() + records.gwadFile() + records.LastSavegame(), QString());
                QCOMPARE(game.installation.tree(), before);
            }
        }
    }

    void savegames()
    {
        CommercialGame game(remembering(true, true));
        addSavegames(game);
        Launcher& launcher = game.launcher;
        const Controls& controls = launcher.controls;
        QCOMPARE(controls.SaveGameList.entries(),
                 (QStringList{u"0 - Start, 'gun'"_s, u"7 - Before the boss"_s}));
        QCOMPARE(controls.SaveGameList.selected(), -1);
        game.pickSavegame(u"7 - Before the boss"_s);
        QCOMPARE(controls.MapList.selected(), -1);
        QCOMPARE(game.installation.read(doom2Save), "7\r\n");
        QCOMPARE(LaunchSelectedGame(launcher), LaunchResult::Started);
        QVERIFY2(game.processes.lastCommandLine().endsWith(u" -sk 3 -loadgame 7 "_s),
                 qPrintable(game.processes.lastCommandLine()));

        // Remembered for its game alone, and restored in place of the map.
        game.selectGame(u"Doom/Ultimate Doom"_s);
        QVERIFY(controls.SaveGameList.isEmpty());
        QCOMPARE(controls.MapList.selectedText(), u"E1M1"_s);
        game.selectGame(u"Doom II"_s);
        QCOMPARE(controls.SaveGameList.selectedText(), u"7 - Before the boss"_s);
        QCOMPARE(controls.MapList.selected(), -1);

        // After a game the slot stays chosen, wherever it is listed now.
        game.installation.add(u"UserSG/doom2/savegame/KeldraxSav1.vyksg"_s, "New\0"_ba);
        ActivateMainWindow(launcher);
        QCOMPARE(controls.SaveGameList.count(), 3);
        QCOMPARE(controls.SaveGameList.selectedText(), u"7 - Before the boss"_s);

        game.pickMap(u"MAP31"_s);
        QVERIFY(!game.installation.exists(doom2Save));
        QCOMPARE(controls.SaveGameList.selected(), -1);
        game.installation.add(doom2Save, "9");
        game.selectGame(u"Doom II"_s);
        QCOMPARE(controls.MapList.selectedText(), u"MAP31"_s);
    }

    // The task menus as they are for each kind of game, and the convert items in development mode only.
    void taskMenus()
    {
        CommercialGame game;
        Controls& controls = game.launcher.controls;
        const auto shown = [](const Menu* menu) {
            QStringList items;
            for (const MenuItem* item : menu ? *menu : Menu())
                if (item->visible && !item->isSeparator)
                    items << (item->enabled ? item->caption : u"("_s + item->caption + u')');
            return items;
        };
        QVERIFY(!controls.PwadList.taskMenu() &&
                !controls.SaveGameList.taskMenu()); // a Doom game has no tasks
        game.addWad(u"VYKGames/Auto/Gwads/a.wad"_s, {u"MAP01"_s});
        game.addWad(u"VYKGames/Hand/Pwads/h.wad"_s, {u"MAP01"_s});
        game.addWad(u"VYKGames/iron tide/Pwads/irontide.wad"_s, {u"MAP01"_s});
        game.show(View::InstalledGames);
        game.selectGame(u"HAND"_s);
        QCOMPARE(shown(controls.PwadList.taskMenu()),
                 (QStringList{u"Uninstall game from list"_s, u"Rename game in list"_s}));
        controls.chkTesting.setTicked(true);
        QCOMPARE(shown(controls.PwadList.taskMenu()).mid(2),
                 (QStringList{u"(Convert Udir to Pwads)"_s, u"Convert  Udir to Gwads"_s}));
        game.selectGame(u"AUTO"_s);
        QCOMPARE(shown(controls.PwadList.taskMenu()).mid(2),
                 (QStringList{u"Convert Udir to Pwads"_s, u"(Convert  Udir to Gwads)"_s}));
        QVERIFY(!controls.PwadShowlist.taskMenu());
        game.pickFile(u"a.wad"_s);
        QCOMPARE(shown(controls.PwadShowlist.taskMenu()), QStringList{u"Delete file"_s});
        game.selectGame(u"IRON TIDE"_s);
        QCOMPARE(shown(controls.PwadList.taskMenu()), QStringList{u"Uninstall game from list"_s});
    }

    // A name whose capitals do not fold back is found again, and every file of a game is asked about once.
    void namesAndReports()
    {
        CommercialGame game;
        Launcher& launcher = game.launcher;
        constexpr int wads = 50;
        for (int i = 0; i < wads; ++i)
            game.addWad(u"VYKGames/Stra\u00dfe/Pwads/w%1.wad"_s.arg(i), {u"MAP01"_s});
        const auto runs = [&game] {
            return std::ranges::count_if(game.processes.captures, [](const auto& call) {
                return call.commandLine.contains(u"CHECKWAD"_s);
            });
        };
        const auto before = runs();
        launcher.settings.SelectedGame = u"Stra\u00dfe"_s;
        game.show(View::InstalledGames);
        QCOMPARE(launcher.controls.PwadList.selectedText(), u"STRASSE"_s);
        QCOMPARE(launcher.controls.PwadShowlist.count(), wads);
        QCOMPARE(launcher.controls.PwadShowlist.selectedText(), u"w9.wad"_s);
        QCOMPARE(runs() - before, wads);
        game.addWad(u"VYKGames/Stra\u00dfe/Pwads/w3.wad"_s, {u"MAP01"_s, u"MAP02"_s});
        game.selectGame(u"STRASSE"_s);
        QCOMPARE(runs() - before, wads + 1);
        QCOMPARE(launcher.controls.PwadShowlist.selectedText(), u"w3.wad"_s);
        LaunchSelectedGame(launcher);
        QVERIFY(game.processes.lastCommandLine().contains(u"-udir \"Stra\u00dfe\" "_s));
    }

    void clearingWhatIsRemembered()
    {
        CommercialGame game(remembering(true, true));
        Controls& controls = game.launcher.controls;
        const QString info = u"VYKLaunch/GameInfo/"_s;
        for (const QString& record : {u"Iwads/a.vykm"_s, u"Pwads/a.vykm"_s, u"Zips/a.vykm"_s,
                                      u"Gwads/a.vykm"_s, u"Gwads/a.vykg"_s, u"Save/Gwads/a/b.vyks"_s})
            game.installation.add(info + record);
        controls.chkLaunchPrefs[LaunchPrefs::RememberLastMap].setTicked(false);
        QCOMPARE(game.installation.tree().filter(info),
                 (QStringList{info + u"Gwads/a.vykg"_s, info + u"Save/Gwads/a/b.vyks"_s}));
        controls.chkLaunchPrefs[LaunchPrefs::RememberLastSavegame].setTicked(false);
        QCOMPARE(game.installation.tree().filter(info), QStringList{info + u"Gwads/a.vykg"_s});
    }

    void theScriptedMapSwitch()
    {
        CommercialGame game;
        Controls& controls = game.launcher.controls;
        game.addWad(u"VYKGames/Plain/Pwads/p.wad"_s, {u"MAP01"_s});
        game.addWad(u"VYKGames/iron tide/Pwads/irontide.wad"_s, {u"MAP01"_s});
        controls.chkMain[Main::AdvancedOptions].setTicked(true);
        game.show(View::InstalledGames);
        QVERIFY(!controls.ImageCM.visible); // no models, no switch
        game.installation.addFolder(u"Md2/irontide"_s);
        game.load();
        QVERIFY(controls.ImageCM.visible);
        game.selectGame(u"PLAIN"_s);
        controls.ImageCM.clicked();
        QCOMPARE(controls.PwadList.entries(), QStringList{u"IRON TIDE"_s});
        QCOMPARE(controls.Auto[Heading::Games].caption, u"KELDRAX SCRIPTED MAP"_s);
        game.load(); // as the next start finds it
        QCOMPARE(controls.PwadList.entries(), QStringList{u"IRON TIDE"_s});
        controls.Auto[Heading::Games].clicked();
        QCOMPARE(controls.PwadList.selectedText(), u"PLAIN"_s);
    }
};

QTEST_GUILESS_MAIN(GameListsTest)
#include "GameListsTest.moc"
