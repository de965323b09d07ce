// What the launcher makes of the game-file tool's reports, and of checkpwad.vyk.
#include "wad/ToolBridge.h"

#include "tests/support/CommercialGame.h"

#include <QTest>

using namespace Qt::StringLiterals;

class ToolBridgeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void countField_data()
    {
        QTest::addColumn<QByteArray>("report");
        QTest::addColumn<int>("key");
        const QByteArray label = "Number of maps: ";
        QTest::newRow("two digits") << label + "32\r\n" << 132;
        QTest::newRow("one digit") << label + "7\r\n" << 107;
        QTest::newRow("no map") << label + "0\r\n" << 100;
        QTest::newRow("ends after its digit") << label + "7" << 107;
        QTest::newRow("right-aligned") << label + " 7\r\n" << 17;
        QTest::newRow("no number") << label + "many\r\n" << 10;
        QTest::newRow("a letter before the digit") << label + "x7\r\n" << 1;
        QTest::newRow("other digits") << label + "\xb2\xb3\r\n" << 10;
        QTest::newRow("short") << QByteArray("error") << 10;
        QTest::newRow("empty") << QByteArray() << 10;
    }
    void countField()
    {
        QFETCH(QByteArray, report);
        LauncherFixture f;
        f.processes.outputs = {report};
        QTEST(CountWadMaps(f.launcher, f.path(u"my games/a.wad"_s)), "key");
        QCOMPARE(
            f.processes.captures,
            (QList<RecordingProcesses::Call>{
                {u"VYKgfiles CHECKWAD \""_s + f.nativePath(u"my games/a.wad"_s) + u'"', f.path(u"Bin"_s)}}));
        QCOMPARE(f.installation.read(u"VYKLaunch/Data/pwad.vyk"_s), report + "\r\n");
    }

    void realReports()
    {
        CommercialGame game;
        QStringList maps;
        for (int map = 1; map <= 32; ++map)
            maps << u"MAP%1"_s.arg(map, 2, 10, QChar(u'0'));
        game.addWad(u"big one.wad"_s, maps);
        QCOMPARE(CountWadMaps(game.launcher, game.path(u"big one.wad"_s)), 132);
        ListWadMaps(game.launcher, game.path(u"big one.wad"_s));
        QCOMPARE(game.launcher.controls.MapList.entries(), maps);
        QCOMPARE(CountWadMaps(game.launcher, game.path(u"Iwads/Doom.wad"_s)), 102);
        ListWadMaps(game.launcher, game.path(u"Iwads/Doom.wad"_s));
        QCOMPARE(game.launcher.controls.MapList.entries(), (QStringList{u"E1M1"_s, u"E3M2"_s}));
        game.installation.add(u"no.wad"_s, "no WAD");
        ListWadMaps(game.launcher, game.path(u"no.wad"_s));
        QVERIFY(game.launcher.controls.MapList.isEmpty());
    }

    void mapReports_data()
    {
        QTest::addColumn<QByteArray>("report");
        QTest::addColumn<QStringList>("maps");
        QTest::newRow("padded fields") << QByteArray("h,h,h\r\nE1M1 ,E1M2 x\r\n\"MAP01, and more\"")
                                       << QStringList{u"E1M1"_s, u"E1M2"_s, u"MAP01"_s};
        QTest::newRow("header only") << QByteArray("a\r\nb\r\nc\r\n") << QStringList();
        QTest::newRow("less than a header") << QByteArray("cannot open") << QStringList();
        QTest::newRow("nothing printed") << QByteArray() << QStringList{u"OLD"_s};
    }
    void mapReports()
    {
        QFETCH(QByteArray, report);
        LauncherFixture f;
        f.launcher.controls.MapList.add(u"OLD"_s);
        f.processes.outputs = {report};
        ListWadMaps(f.launcher, f.path(u"a.wad"_s));
        QTEST(f.launcher.controls.MapList.entries(), "maps");
        QCOMPARE(f.installation.exists(u"VYKLaunch/Data/pwad.vyk"_s), !report.isEmpty());
    }

    void savegameReports()
    {
        LauncherFixture f;
        f.processes.outputs = {"0Start,1\r\n2End\r\n\"3Run, run\"\r\n4\xc9tage\r\n", ""};
        ListBox& list = f.launcher.controls.SaveGameList;
        ListSavegameHeaders(f.launcher, f.path(u"saves"_s));
        QCOMPARE(f.processes.captures.last().commandLine,
                 u"VYKgfiles GETSAVEHDRS \""_s + f.nativePath(u"saves"_s) + u'"');
        QCOMPARE(list.entries(),
                 (QStringList{u"0 - Start"_s, u"2 - End"_s, u"3 - Run, run"_s, u"4 - Étage"_s}));
        ListSavegameHeaders(f.launcher, f.path(u"saves"_s));
        QVERIFY(list.isEmpty());
    }

    void aToolThatDoesNotStart()
    {
        LauncherFixture f;
        f.launcher.controls.SaveGameList.add(u"0 - old"_s);
        for (int i = 0; i < 2; ++i)
            f.prompts.expectMessage();
        QCOMPARE(CountWadMaps(f.launcher, u"/a.wad"_s), 10);
        ListSavegameHeaders(f.launcher, u"/a"_s);
        QVERIFY(f.launcher.controls.SaveGameList.isEmpty());
        QCOMPARE(f.prompts.texts.last(), u"CreateProcess failed. Error: 2"_s);
        QCOMPARE(f.prompts.titles.last(), QString());
        // No command line carries this name: the tool is not run at all.
        QCOMPARE(CountWadMaps(f.launcher, u"/a\" -x \"b.wad"_s), 10);
        QCOMPARE(f.processes.captures.size(), 2);
    }

    void aReportThatCannotBeKept()
    {
        CommercialGame game;
        game.files.failOn(u"pwad.vyk"_s, FileError::Kind::Other);
        game.selectGame(u"Doom/Ultimate Doom"_s);
        QCOMPARE(game.launcher.controls.MapList.count(), 2);
        QCOMPARE(CountWadMaps(game.launcher, game.path(u"Iwads/Doom2.wad"_s)), 103);
    }

    void sections_data()
    {
        QTest::addColumn<QByteArray>("list");
        QTest::addColumn<int>("section");
        QTest::newRow("before every section") << QByteArray("other.wad\r\nMine.WAD\r\nCheck2\r\n") << 1;
        QTest::newRow("two lines") << QByteArray("Check5\r\nmine.wad\r\n") << 5;
        QTest::newRow("one line") << QByteArray("Check5,mine.wad") << 5;
        QTest::newRow("quotes") << QByteArray("\"check7 (basic)\"\r\n\"mine.wad\"") << 7;
        QTest::newRow("the first counts") << QByteArray("CHECK3,mine.wad\nCheck2,mine.wad") << 3;
        QTest::newRow("sections in any order") << QByteArray("Check6\rx.wad\rCheck4\rmine.wad") << 4;
        QTest::newRow("no such section") << QByteArray("Check8,mine.wad") << 1;
        QTest::newRow("part of a name") << QByteArray("Check2,mine.wad2,amine.wad") << 0;
        QTest::newRow("empty") << QByteArray() << 0;
    }
    void sections()
    {
        QFETCH(QByteArray, list);
        LauncherFixture f;
        QCOMPARE(CheckPwad(f.files, f.launcher.paths, u"/games/mine.wad"_s), 0);
        f.installation.add(u"VYKLaunch/Data/checkpwad.vyk"_s, list);
        QTEST(CheckPwad(f.files, f.launcher.paths, u"/games/mine.wad"_s), "section");
    }
};

QTEST_GUILESS_MAIN(ToolBridgeTest)
#include "ToolBridgeTest.moc"
