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
    void whichAreGameFiles()
    {
        TemporaryInstallation installation;
        DiskFileSystem disk;
        const QStringList no{u"Doom2.wad"_s, u"plutonia.wad"_s, u"doom1.wad"_s,   u"TNT.wad"_s,
                             u"a.pk3"_s,     u"Kelspack.wad"_s, u"a.wad.zip"_s,   u"wad"_s,
                             u"awad"_s,      u"a.wads"_s,       u"sndinfo.bin"_s, QString()};
        const QStringList always{u"MAP.WAD"_s,  u".wad"_s,     u"mydoom2.wad"_s, u"DD_DEFNS"_s,
                                 u"scp_defn"_s, u"scp_zoff"_s, u"SndInfo"_s};
        const QStringList unlessWadsOnly{u"a.TXT"_s, u"a.htm"_s, u"a.html"_s, u"a.doc"_s,
                                         u"a.deh"_s, u"a.bex"_s, u"a.ded"_s,  u"a.lmp"_s};
        for (const QString& name : no + always + unlessWadsOnly) {
            const bool isOne = IsGameFile(disk, installation.path(u"g/"_s), name);
            QVERIFY2(isOne != no.contains(name), qPrintable(name));
            QVERIFY2(IsShownFile(name, true) != unlessWadsOnly.contains(name), qPrintable(name));
            QVERIFY2(IsShownFile(name, false), qPrintable(name));
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
        QCOMPARE(GameFilesOf(files, installation.path(u"g/"_s)), QStringList{u"map.wad"_s});
        QCOMPARE(installation.read(u"g/map.wad"_s), "backup");
        QCOMPARE(installation.tree(),
                 (QStringList{u"g/keep.VYKgwa.old"_s, u"g/lost.VYKbak"_s, u"g/map.wad"_s}));
        files.failOn({}, FileError::Kind::Other);
        QCOMPARE(GameFilesOf(files, installation.path(u"g/"_s)), (QStringList{u"lost.wad"_s, u"map.wad"_s}));
        QCOMPARE(installation.read(u"g/lost.wad"_s), "the only copy");
        QVERIFY(!installation.exists(u"g/lost.VYKbak"_s));
    }

    void gathers()
    {
        QCOMPARE(GatherGameFiles({u"a.wad"_s, u"B.WAD"_s, u"d.bex"_s, u"read.txt"_s, u"x.deh"_s, u"Y.DED"_s,
                                  u"zmain.wad"_s},
                                 u"ZMain.wad"_s),
                 (QStringList{u"ZMain.wad"_s, u"a.wad"_s, u"B.WAD"_s, u"x.deh"_s, u"Y.DED"_s}));
    }

    void choosesTheMainWad()
    {
        CommercialGame game;
        game.addWad(u"VYKGames/Many/Pwads/a.wad"_s, {u"MAP01"_s, u"MAP02"_s, u"MAP03"_s});
        game.addWad(u"VYKGames/Many/Pwads/b.wad"_s, {u"MAP05"_s});
        game.addWad(u"VYKGames/Many/Pwads/z.wad"_s, {});
        for (const QString& name : {u"b.wad"_s, u"C.wad"_s, u"a.wad"_s})
            game.addWad(u"VYKGames/Equal/Pwads/"_s + name, {u"E1M1"_s});
        game.addWad(u"VYKGames/One/Pwads/only.wad"_s, {});
        game.show(View::InstalledGames);
        const auto choose = [&](const QString& name) {
            game.selectGame(name);
            return game.launcher.controls.PwadShowlist.selectedText();
        };
        QCOMPARE(choose(u"Many"_s), u"a.wad"_s);
        QCOMPARE(game.launcher.SelectedGameFile(), game.path(u"VYKGames/Many/Pwads/a.wad"_s));
        QCOMPARE(choose(u"Equal"_s), u"C.wad"_s);
        QCOMPARE(choose(u"One"_s), u"only.wad"_s);

        // A tool that says nothing leaves every WAD a candidate.
        game.launcher.facts.wadReports.clear();
        game.processes.delegate = nullptr;
        game.processes.outputs = QList<QByteArray>(8);
        QCOMPARE(choose(u"Equal"_s), u"C.wad"_s);
        QVERIFY(game.launcher.controls.MapList.isEmpty());
    }

    void warps()
    {
        Truth truth;
        const auto warp = [&truth](const QStringList& maps, const QString& chosen, const QString& file) {
            truth.settings.Skill = 1;
            truth.facts.game.files = QStringList{file};
            truth.facts.file.maps = maps;
            truth.selection = {.filter = {}, .file = file, .map = chosen, .engine = {}, .SaveSlot = {}};
            return UpdateWarp(truth);
        };
        const QString wad = u"a.wad"_s;
        const struct
        {
            Warp actual;
            QString argument;
            std::optional<GameFamily> family;
        } rows[] = {
            {warp({u"MAP01"_s, u"MAP31"_s}, u"MAP31"_s, wad), u"31"_s, GameFamily::Doom2},
            {warp({u"E1M1"_s, u"E3M2"_s}, u"e3m2"_s, wad), u"3 2"_s, GameFamily::Doom},
            {warp({u"E1M1"_s}, {}, wad), {}, GameFamily::Doom},
            {warp({u"MAP01"_s}, u"MAP09"_s, wad), {}, GameFamily::Doom2}, // not of this WAD
            {warp({u"E1M8"_s}, u"E1M8"_s, u"TWZONE.WAD"_s), u"1 8"_s, GameFamily::Doom2},
            {warp({u"TITLE"_s}, u"TITLE"_s, wad), {}, std::nullopt},
            {warp({}, {}, wad), {}, std::nullopt},
        };
        for (const auto& row : rows) {
            QCOMPARE(row.actual.WarpArgument, row.argument);
            QVERIFY(row.actual.family == row.family);
        }
    }
};

QTEST_GUILESS_MAIN(GameFilesTest)
#include "GameFilesTest.moc"
