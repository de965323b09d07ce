// The game-file tool: the real program's reports, and its reader on hostile WADs.
#include "tests/support/TemporaryInstallation.h"
#include "tools/VYKgFiles/CheckWad.h"
#include "tools/VYKgFiles/SaveGameHeaders.h"
#include "tools/wadreader/WadDirectory.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

#include <random>

using namespace Qt::StringLiterals;

namespace {

using Names = QList<QByteArray>;

const QString Device = OnWindows ? u"NUL"_s : u"/dev/zero"_s;

QByteArray number(qint32 value)
{
    const qint32 little = qToLittleEndian(value);
    return {reinterpret_cast<const char*>(&little), sizeof little};
}

QByteArray header(qint32 lumps, qint32 offset, const QByteArray& type = "PWAD")
{
    return type + number(lumps) + number(offset);
}

QByteArray entries(const Names& names)
{
    QByteArray bytes;
    for (const QByteArray& name : names)
        bytes += number(0x7fffffff) + number(-1) + name.leftJustified(8, '\0', true);
    return bytes;
}

// A WAD with some lump bytes between its header and its directory.
QByteArray wad(const Names& names, const QByteArray& type = "PWAD")
{
    return header(static_cast<qint32>(names.size()), 17, type) + "lumps" + entries(names);
}

QByteArray emptyReport()
{
    return "Number of maps: 0\r\nType: none\r\nLumps: 0\r\n";
}

} // namespace

class VYKgFilesTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> folder;

    QString path(const QString& name) const { return folder->filePath(name); }

    QString write(const QString& name, const QByteArray& bytes) const
    {
        QFile file(path(name));
        file.remove(); // quicker than truncating: some file systems write a truncated file out at once
        if (!file.open(QFile::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write a test file");
        return file.fileName();
    }

    struct Run
    {
        QByteArray output;
        int status = -1;
    };

    // Runs the real program, which must end by itself and leave standard error empty.
    static Run run(const QStringList& arguments)
    {
        QProcess process;
        process.start(QStringLiteral(VYKGFILES_PROGRAM), arguments);
        if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit)
            return {"did not end normally", -1};
        if (const QByteArray errors = process.readAllStandardError(); !errors.isEmpty())
            return {"standard error: " + errors, -1};
        return {process.readAllStandardOutput(), process.exitCode()};
    }

    static void compareRun(const QStringList& arguments, const QByteArray& output, int status)
    {
        const Run result = run(arguments);
        QCOMPARE(result.output, output);
        QCOMPARE(result.status, status);
    }

    std::string hostile(const QByteArray& bytes) const
    {
        return checkWad(write(u"hostile.wad"_s, bytes).toStdString()).text;
    }

private Q_SLOTS:
    void init() { folder = std::make_unique<QTemporaryDir>(); }

    void reportsMaps()
    {
        const Names names{"e1m1",   "THINGS",     "MAP07", "E1M1",   "MAP1",
                          "MAP123", "E0M1",       "E1M10", "EXMAP1", "map99\0zz"_ba,
                          "E9M9",   "\0MAP01"_ba, "M,\"",  "MAP0:",  "\xff\x80,\n"};
        compareRun({u"checkwad"_s, write(u"A b,c.wad"_s, wad(names))},
                   "Number of maps: 4\r\nType: PWAD\r\nLumps: 15\r\nE1M1  \r\nMAP07 \r\nMAP99 \r\nE9M9  \r\n",
                   0);
        compareRun({u"CHECKWAD"_s, write(u"none.wad"_s, wad({}, "IWAD"))},
                   "Number of maps: 0\r\nType: IWAD\r\nLumps: 0\r\n", 0);
    }

    void countStandsAtTheSeventeenthCharacter_data()
    {
        QTest::addColumn<int>("maps");
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("9") << 9 << "9\r"_ba;
        QTest::newRow("10") << 10 << "10"_ba;
        QTest::newRow("99") << 99 << "99"_ba;
        QTest::newRow("100") << 100 << "99"_ba;
    }

    void countStandsAtTheSeventeenthCharacter()
    {
        QFETCH(int, maps);
        Names names;
        for (int map = 0; map < maps; ++map)
            names.append("MAP" + QByteArray::number(map).rightJustified(2, '0'));
        const QByteArray report = QByteArray::fromStdString(hostile(wad(names)));
        QTEST(report.mid(16, 2), "text");
        QCOMPARE(report.count("\r\n"), maps + 3);
        QVERIFY(!report.contains(','));
    }

    void visitsEveryLumpOfALargeDirectory()
    {
        Names names;
        for (int i = 0; i < 5000; ++i)
            names.append("x" + QByteArray::number(i));
        names.append("MAP01");
        qsizetype seen = 0;
        const auto found =
            visitLumpNames(write(u"large.wad"_s, wad(names)).toStdString(), [&](std::string_view name) {
                QCOMPARE(name, std::string_view(names[seen].toUpper()));
                ++seen;
            });
        QVERIFY(found);
        QCOMPARE(seen, names.size());
        QCOMPARE(found->lumps, 5001U);
    }

    void refusesWhatIsNoWad_data()
    {
        const QByteArray directory = entries({"MAP01"});
        const auto size = static_cast<qint32>(12 + directory.size());
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("text") << "Number of maps: 32, and more text than a header holds"_ba;
        QTest::newRow("other id") << header(1, 12, "ZWAD") + directory;
        QTest::newRow("a million lumps") << header(1'000'000, 12) + directory;
        QTest::newRow("most lumps") << header(0x7fffffff, 12) + directory;
        QTest::newRow("product wraps") << header(0x10000001, 12) + directory;
        QTest::newRow("negative lumps") << header(-1, 12) + directory;
        QTest::newRow("offset past the end") << header(1, size) + directory;
        QTest::newRow("no lumps past the end") << header(0, size + 1) + directory;
        QTest::newRow("most offset") << header(1, 0x7fffffff) + directory;
        QTest::newRow("negative offset") << header(1, -16) + directory;
        QTest::newRow("big-endian") << "PWAD"_ba + "\0\0\0\1\0\0\0\x0c"_ba + directory;
    }

    void refusesWhatIsNoWad()
    {
        QFETCH(QByteArray, bytes);
        compareRun({u"CHECKWAD"_s, write(u"hostile.wad"_s, bytes)}, emptyReport(), 1);
    }

    void refusesAWadCutShortAnywhere()
    {
        const QByteArray whole = wad({"MAP01", "E1M1", "THINGS"});
        for (qsizetype size = 0; size < whole.size(); ++size)
            QCOMPARE(hostile(whole.first(size)), emptyReport().toStdString());
        QVERIFY(hostile(whole).starts_with("Number of maps: 2\r\n"));
    }

    void refusesWhatIsNoRegularFile()
    {
        for (const QString& name :
             {path(u"missing.wad"_s), folder->path(), Device, QString(), QString(5000, u'x')})
            compareRun({u"CHECKWAD"_s, name}, emptyReport(), 1);
        if (OnWindows)
            return; // no pipe stands in a folder
        QCOMPARE(QProcess::execute(u"mkfifo"_s, {path(u"pipe.wad"_s)}), 0);
        compareRun({u"CHECKWAD"_s, path(u"pipe.wad"_s)}, emptyReport(), 1);
        QCOMPARE(QProcess::execute(u"mkfifo"_s, {path(u"KeldraxSav1.vyksg"_s)}), 0);
        compareRun({u"GETSAVEHDRS"_s, folder->path()}, {}, 0);
        compareRun({u"GETSAVEHDRS"_s, path(u"KeldraxSav1.vyksg"_s)}, {}, 0);
    }

    // A sparse file makes the largest claims true: they may not cost memory or minutes.
    void refusesADirectoryBeyondTheFormatsOffsets()
    {
        QFile file(write(u"sparse.wad"_s, header(0x7fffffff, 12)));
        if (!file.resize(0x800000000))
            QSKIP("no sparse files here");
        compareRun({u"CHECKWAD"_s, file.fileName()}, emptyReport(), 1);
    }

    // Whatever the bytes, the report keeps its form and its count is true.
    void keepsTheReportsFormOnMutatedWads()
    {
        std::mt19937 random(20240607);
        const auto below = [&](qsizetype end) {
            return static_cast<qsizetype>(random() % static_cast<std::size_t>(end));
        };
        const QByteArray original = wad({"E1M1", "THINGS", "MAP01", "MAP31", "map32", "E2M8"});
        int wads = 0;
        for (int round = 0; round < 5000; ++round) {
            QByteArray bytes = original;
            for (qsizetype change = below(6); change >= 0; --change)
                bytes[below(round % 2 ? 12 : bytes.size())] = static_cast<char>(random());
            if (round % 5 == 0)
                bytes.truncate(below(bytes.size()));
            const QByteArray report = QByteArray::fromStdString(hostile(bytes));
            const Names lines = report.split('\n');
            QVERIFY(report.startsWith("Number of maps: ") && report.endsWith("\r\n"));
            QCOMPARE(lines[0].mid(16).trimmed().toInt(), lines.size() - 4);
            for (const QByteArray& map : lines.sliced(3, lines.size() - 4))
                QVERIFY2(map.size() == 7 && (map.startsWith("MAP") || map[0] == 'E'), map.constData());
            wads += report != emptyReport();
        }
        QVERIFY(wads > 500 && wads < 4500); // both outcomes were really met
    }

    void readsRealWads_data()
    {
        QTest::addColumn<QString>("wadFile");
        QTest::addColumn<QByteArray>("start");
        QTest::addColumn<QByteArray>("end");
        QTest::addColumn<int>("maps");
        QTest::newRow("episodes") << u"/usr/share/games/doom/freedoom1.wad"_s << "E1M1  \r\n"_ba
                                  << "E4M9  \r\n"_ba << 36;
        QTest::newRow("numbered") << u"/usr/share/games/doom/freedoom2.wad"_s << "MAP01 \r\n"_ba
                                  << "MAP32 \r\n"_ba << 32;
    }

    void readsRealWads()
    {
        QFETCH(QString, wadFile);
        QFETCH(QByteArray, start);
        QFETCH(QByteArray, end);
        QFETCH(int, maps);
        if (!QFile::exists(wadFile))
            QSKIP("Freedoom is not installed");
        const Run result = run({u"CHECKWAD"_s, wadFile});
        QCOMPARE(result.status, 0);
        QCOMPARE(result.output.mid(16, 2), QByteArray::number(maps));
        QCOMPARE(result.output.count("\r\n"), maps + 3);
        QVERIFY(result.output.contains("Type: IWAD\r\n") && result.output.contains("\r\n" + start));
        QVERIFY(result.output.contains(end));
    }

    void listsSavegamesInSlotOrder()
    {
        compareRun({u"GETSAVEHDRS"_s, folder->path()}, {}, 0);
        compareRun({u"GETSAVEHDRS"_s, path(u"missing"_s)}, {}, 0);
        write(u"KeldraxSav7.vyksg"_s, "  Hangar\tgate\x01 \0junk"_ba);
        write(u"keldraxsav0.VYKSG"_s, "Start\0"_ba);
        write(u"KeldraxSav2.vyksg"_s, "Run, \"gun\"\0"_ba);
        write(u"KeldraxSav3.vyksg"_s, "Twenty-four bytes it has, not this");
        write(u"KeldraxSav4.vyksg"_s, {});
        write(u"KELDRAXSAV5.VYKSG"_s, "another");
        write(u"KeldraxSav5.vyksg"_s, "\xc9tage\r\n7\n"_ba); // wins, where both can be
        for (const QString& other :
             {u"KeldraxSav10.vyksg"_s, u"KeldraxSavA.vyksg"_s, u"KeldraxSav1.vyksg.bak"_s})
            write(other, "no savegame");
        const QByteArray report = "0Start\r\n\"2Run, 'gun'\"\r\n3Twenty-four bytes it has\r\n4\r\n"
                                  "5\xc9tage  7\r\n7Hangar gate\r\n";
        compareRun({u"getsavehdrs"_s, folder->path()}, report, 0);
        compareRun({u"GETSAVEHDRS"_s, folder->path() + u'/'}, report, 0);
        compareRun({u"GETSAVEHDRS"_s, path(u"KeldraxSav7.vyksg"_s)}, "7Hangar gate\r\n", 0);
        compareRun({u"GETSAVEHDRS"_s, path(u"KeldraxSav10.vyksg"_s)}, {}, 0);
        compareRun({u"GETSAVEHDRS"_s, path(u"KeldraxSav9.vyksg"_s)}, {}, 0);
    }

    void printsNothingOnWrongUsage()
    {
        for (const QStringList& arguments :
             {QStringList(), {u"CHECKWAD"_s}, {u"CHECKWADS"_s, u"a"_s}, {u"CHECKWAD"_s, u"a"_s, u"b"_s}})
            compareRun(arguments, {}, 2);
    }
};

QTEST_GUILESS_MAIN(VYKgFilesTest)
#include "VYKgFilesTest.moc"
