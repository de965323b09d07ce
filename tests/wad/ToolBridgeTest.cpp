// What the launcher makes of the game-file tool's reports, and of checkpwad.vyk.
#include "wad/ToolBridge.h"

#include "tests/support/CommercialGame.h"

#include <QTest>

using namespace Qt::StringLiterals;

class ToolBridgeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The number of maps is read from its fixed place, whatever a report holds there.
    void countField()
    {
        const QByteArray label = "Number of maps: ";
        const QList<QPair<QByteArray, int>> rows{{label + "32\r\n", 132}, {label + "7\r\n", 107},
                                                 {label + "0\r\n", 100},  {label + "7", 107},
                                                 {label + " 7\r\n", 17},  {label + "many\r\n", 10},
                                                 {label + "x7\r\n", 1},   {label + "\xb2\xb3\r\n", 10},
                                                 {"error", 10},           {"", 10}};
        for (const auto& [report, key] : rows) {
            LauncherFixture f;
            f.processes.outputs = {report};
            QCOMPARE(CountWadMaps(f.launcher, f.path(u"my games/a.wad"_s)), key);
            const QString line = u"VYKgfiles CHECKWAD \""_s + f.nativePath(u"my games/a.wad"_s) + u'"';
            QCOMPARE(f.processes.captures, (QList<RecordingProcesses::Call>{{line, f.path(u"Bin"_s)}}));
            QCOMPARE(f.installation.read(u"VYKLaunch/Data/pwad.vyk"_s), report + "\r\n");
        }
    }

    void realReports()
    {
        CommercialGame game;
        QStringList maps;
        for (int map = 1; map <= 32; ++map)
            maps << u"MAP%1"_s.arg(map, 2, 10, QChar(u'0'));
        game.addWad(u"big one.wad"_s, maps);
        QCOMPARE(CountWadMaps(game.launcher, game.path(u"big one.wad"_s)), 132);
        QCOMPARE(ListWadMaps(game.launcher, game.path(u"big one.wad"_s)), maps);
        game.installation.add(u"no.wad"_s, "no WAD");
        QCOMPARE(ListWadMaps(game.launcher, game.path(u"no.wad"_s)), QStringList());
    }

    void mapReports()
    {
        const QStringList maps{u"E1M1"_s, u"E1M2"_s, u"MAP01"_s};
        const QList<QPair<QByteArray, QStringList>> rows{
            {"h,h,h\r\nE1M1 ,E1M2 x\r\n\"MAP01, and more\"", maps},
            {"a\r\nb\r\nc\r\n", {}}, // a header only
            {"cannot open", {}},
            {"", {}}};
        for (const auto& [report, expected] : rows) {
            LauncherFixture f;
            f.processes.outputs = {report};
            QCOMPARE(ListWadMaps(f.launcher, f.path(u"a.wad"_s)), expected);
        }
    }

    void savegameReports()
    {
        LauncherFixture f;
        f.processes.outputs = {"0Start,1\r\n2End\r\n\"3Run, run\"\r\n4\xc9tage\r\n", ""};
        QStringList found;
        const auto savegames = ListSavegameHeaders(f.launcher, f.path(u"saves"_s));
        for (const SaveGame& game : savegames.value())
            found << game.slot + u' ' + game.description;
        QCOMPARE(f.processes.captures.last().commandLine,
                 u"VYKgfiles GETSAVEHDRS \""_s + f.nativePath(u"saves"_s) + u'"');
        QCOMPARE(found, (QStringList{u"0 Start"_s, u"2 End"_s, u"3 Run, run"_s, u"4 \u00c9tage"_s}));
        QVERIFY(ListSavegameHeaders(f.launcher, f.path(u"saves"_s)).value().isEmpty());
    }

    void aToolThatDoesNotStart()
    {
        LauncherFixture f;
        f.prompts.expectMessage(); // one for all that an event asks
        QCOMPARE(CountWadMaps(f.launcher, u"/a.wad"_s), 10);
        QVERIFY(!ListSavegameHeaders(f.launcher, u"/a"_s));
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
    }
};

QTEST_GUILESS_MAIN(ToolBridgeTest)
#include "ToolBridgeTest.moc"
