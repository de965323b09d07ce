// Which files of a folder are a game's, in which order they are passed, and which WAD is the main one.
#include "wad/GameFiles.h"

#include "tests/support/CommercialGame.h"
#include "wad/MainWad.h"

#include <QTest>

using namespace Qt::StringLiterals;

class GameFilesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isGameFile()
    {
        TemporaryInstallation installation;
        DiskFileSystem disk;
        installation.addFolder(u"g"_s);
        const QString folder = installation.path(u"g/"_s);
        const auto is = [&](const QString& name, bool wadsOnly) {
            return IsGameFile(disk, folder, name, wadsOnly);
        };
        for (const QString& name : {u"Doom2.wad"_s, u"DOOM.WAD"_s, u"plutonia.wad"_s, u"doom1.wad"_s,
                                    u"TNT.wad"_s, u"Kelspack.wad"_s, u"a.pk3"_s, u"wad"_s, u"a.wad.zip"_s,
                                    u"sndinfo.bin"_s, u"awad"_s, u"a.wads"_s, QString()})
            for (const bool wadsOnly : {false, true})
                QVERIFY2(!is(name, wadsOnly), qPrintable(name));
        for (const QString& name : {u"map.wad"_s, u"MAP.WAD"_s, u".wad"_s, u"mydoom2.wad"_s, u"DD_DEFNS"_s,
                                    u"scp_defn"_s, u"scp_zoff"_s, u"SndInfo"_s})
            for (const bool wadsOnly : {false, true})
                QVERIFY2(is(name, wadsOnly), qPrintable(name));
        for (const QString& name : {u"a.TXT"_s, u"a.htm"_s, u"a.html"_s, u"a.doc"_s, u"a.deh"_s, u"a.bex"_s,
                                    u"a.ded"_s, u"a.lmp"_s}) {
            QVERIFY2(is(name, false), qPrintable(name));
            QVERIFY2(!is(name, true), qPrintable(name));
        }
    }

    void tidies()
    {
        TemporaryInstallation installation;
        DiskFileSystem disk;
        FailingFileSystem files(disk);
        installation.add(u"g/map.VYKgwa"_s, "nodes");
        installation.add(u"g/map.vykBAK"_s, "backup");
        installation.add(u"g/map.wad"_s, "changed");
        installation.add(u"g/keep.VYKgwa.old"_s);
        installation.add(u"g/lost.VYKbak"_s, "the only copy");
        // What cannot be copied back is not deleted either.
        files.failOn(u"lost"_s, FileError::Kind::Other);
        QCOMPARE(GameFilesOf(files, installation.path(u"g/"_s), true), QStringList{u"map.wad"_s});
        QCOMPARE(installation.read(u"g/map.wad"_s), "backup");
        QCOMPARE(installation.tree(),
                 (QStringList{u"g/keep.VYKgwa.old"_s, u"g/lost.VYKbak"_s, u"g/map.wad"_s}));
        files.failOn({}, FileError::Kind::Other);
        QCOMPARE(GameFilesOf(files, installation.path(u"g/"_s), true),
                 (QStringList{u"lost.wad"_s, u"map.wad"_s}));
        QCOMPARE(installation.read(u"g/lost.wad"_s), "the only copy");
        QVERIFY(!installation.exists(u"g/lost.VYKbak"_s));
    }

    void gathers()
    {
        TemporaryInstallation installation;
        DiskFileSystem disk;
        for (const QString& name : {u"zmain.wad"_s, u"b maps.wad"_s, u"A-none.wad"_s, u"C.WAD"_s, u"x.deh"_s,
                                    u"Y.DED"_s, u"d.bex"_s, u"read.txt"_s})
            for (const QString& kind : {u"Mine/Pwads/"_s, u"Auto/GWADS/"_s, u"zips/"_s, u"Else/"_s})
                installation.add(kind + name);
        const auto count = [](const QString& path) { return path.contains(u"none"_s) ? 0 : 101; };
        const auto gather = [&](const QString& folder) {
            return GatherGameFiles(disk, installation.path(folder + u"/zmain.wad"_s), count);
        };
        for (const QString& folder : {u"Mine/Pwads"_s, u"zips"_s}) {
            QStringList expected;
            for (const QString& name :
                 {u"zmain.wad"_s, u"b maps.wad"_s, u"C.WAD"_s, u"A-none.wad"_s, u"x.deh"_s, u"Y.DED"_s})
                expected << installation.path(folder + u'/' + name);
            const GatheredFiles gathered = gather(folder);
            QCOMPARE(gathered.StoredFiles, expected);
            QVERIFY(gathered.inGameFolder);
            QCOMPARE(gathered.isArchive, folder == u"zips"_s);
            QCOMPARE(gathered.userDir, folder == u"zips"_s ? installation.path(folder) : u"Mine"_s);
        }
        const GatheredFiles automatic = gather(u"Auto/GWADS"_s);
        QVERIFY(automatic.inGameFolder && automatic.StoredFiles.isEmpty() && !automatic.isArchive);
        QCOMPARE(automatic.userDir, u"Auto"_s);
        const GatheredFiles other = gather(u"Else"_s);
        QVERIFY(!other.inGameFolder && other.StoredFiles.isEmpty());
    }

    void choosesTheMainWad()
    {
        CommercialGame game;
        Launcher& launcher = game.launcher;
        const auto choose = [&](const QString& name) {
            OptionUdirClick(launcher, 0);
            game.selectGame(name);
            return launcher.selection.SelectedGameFile;
        };
        game.addWad(u"VYKGames/Many/Pwads/a.wad"_s, {u"MAP01"_s, u"MAP02"_s, u"MAP03"_s});
        game.addWad(u"VYKGames/Many/Pwads/b.wad"_s, {u"MAP05"_s});
        game.addWad(u"VYKGames/Many/Pwads/z.wad"_s, {});
        QCOMPARE(choose(u"Many"_s), game.path(u"VYKGames/Many/Pwads/a.wad"_s));
        QCOMPARE(launcher.controls.PwadShowlist.selectedText(), u"a.wad"_s);
        QCOMPARE(launcher.controls.MapList.count(), 3);

        for (const QString& name : {u"b.wad"_s, u"C.wad"_s, u"a.wad"_s})
            game.addWad(u"VYKGames/Equal/Pwads/"_s + name, {u"E1M1"_s});
        QCOMPARE(choose(u"Equal"_s), game.path(u"VYKGames/Equal/Pwads/C.wad"_s));
        game.addWad(u"VYKGames/One/Pwads/only.wad"_s, {});
        QCOMPARE(choose(u"One"_s), game.path(u"VYKGames/One/Pwads/only.wad"_s));

        // Without the tool every WAD stays a candidate, and the path is whole.
        game.processes.delegate = nullptr;
        for (int run = 0; run < 8; ++run)
            game.processes.outputs << QByteArray();
        QCOMPARE(choose(u"Equal"_s), game.path(u"VYKGames/Equal/Pwads/C.wad"_s));
        launcher.controls.PwadShowlist.clear();
        ChooseMainWad(launcher, game.path(u"VYKGames/Equal/Pwads/"_s));
        QCOMPARE(launcher.selection.SelectedGameFile, game.path(u"VYKGames/Equal/Pwads/C.wad"_s));
        QVERIFY(!launcher.controls.LaunchButton.enabled);
    }

    void warps()
    {
        LauncherFixture f;
        f.launcher.iwads.of(GameFamily::Doom) = u"/iwads/doom.wad"_s;
        f.launcher.iwads.of(GameFamily::Doom2) = u"/iwads/doom2.wad"_s;
        const LaunchState& launch = f.launcher.launch;
        ListBox& maps = f.launcher.controls.MapList;
        const auto warp = [&](const QStringList& entries, int chosen) {
            maps.clear();
            for (const QString& entry : entries)
                maps.add(entry);
            maps.startAs(chosen);
            UpdateWarp(f.launcher);
            return launch.WarpArgument;
        };
        QCOMPARE(warp({u"MAP01"_s, u"MAP31"_s}, 1), u"31"_s);
        QCOMPARE(launch.SelectedIwadPath, u"/iwads/doom2.wad"_s);
        QCOMPARE(warp({u"E1M1"_s, u"E3M2"_s}, 1), u"3 2"_s);
        QCOMPARE(launch.SelectedIwadPath, u"/iwads/doom.wad"_s);
        QCOMPARE(warp({}, -1), u"3 2"_s); // no maps, no change
        QCOMPARE(warp({u"TITLE"_s}, 0), u"3 2"_s);
        f.launcher.selection.SelectedGameFile = u"/games/TWZONE.WAD"_s;
        QCOMPARE(warp({u"E1M8"_s}, 0), u"1 8"_s);
        QCOMPARE(launch.SelectedIwadPath, u"/iwads/doom2.wad"_s);
        QCOMPARE(warp({u"E1M1"_s}, -1), QString());
        QCOMPARE(warp({u"MAP01"_s}, -1), QString());
    }
};

QTEST_GUILESS_MAIN(GameFilesTest)
#include "GameFilesTest.moc"
