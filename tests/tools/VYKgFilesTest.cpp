// The game-file tool: the real program's reports, and its reader on hostile WADs.
#include "tests/support/TemporaryInstallation.h"
#include "tools/VYKgFiles/CheckWad.h"

#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QTest>
#include <QtEndian>

using namespace Qt::StringLiterals;

namespace {

// The WAD, claiming something else.
QByteArray claiming(QByteArray wad, qint32 lumps, qint32 offset)
{
    qToLittleEndian(lumps, wad.data() + 4);
    qToLittleEndian(offset, wad.data() + 8);
    return wad;
}

const QByteArray emptyReport = "Number of maps: 0\r\nType: none\r\nLumps: 0\r\n";

} // namespace

class VYKgFilesTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<TemporaryInstallation> m_folder;

    QString path(const QString& name) const { return m_folder->path(name); }

    // What the real program returns, which must end by itself and leave standard error empty, and prints.
    static QByteArray run(const QStringList& arguments)
    {
        QProcess process;
        process.start(QStringLiteral(VYKGFILES_PROGRAM), arguments);
        if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit)
            return "did not end normally";
        return process.readAllStandardError() + QByteArray::number(process.exitCode()) + ": " +
               process.readAllStandardOutput();
    }
    static QByteArray checkedWad(const QString& path) { return run({u"CHECKWAD"_s, path}); }
    static QByteArray headers(const QString& path) { return run({u"GETSAVEHDRS"_s, path}); }

    // The same in this process, of a WAD of these bytes.
    QByteArray report(const QByteArray& bytes) const
    {
        QFile::remove(path(u"a.wad"_s)); // some file systems write a truncated file out at once
        m_folder->add(u"a.wad"_s, bytes);
        return QByteArray::fromStdString(checkWad(path(u"a.wad"_s).toStdString()).text);
    }

private Q_SLOTS:
    void init() { m_folder = std::make_unique<TemporaryInstallation>(); }

    void reportsMaps()
    {
        const QString names = u"e1m1;THINGS;MAP07;E1M1;MAP1;MAP123;E0M1;E1M10;EXMAP1;map99\0zz;E9M9;\0MAP01;"
                              "M,\";MAP0:;\u00ff\u0080,\n"_s;
        m_folder->add(u"A b,c.wad"_s, TemporaryInstallation::wad("PWAD", names.split(u';')));
        QCOMPARE(
            run({u"checkwad"_s, path(u"A b,c.wad"_s)}),
            "0: Number of maps: 4\r\nType: PWAD\r\nLumps: 15\r\nE1M1  \r\nMAP07 \r\nMAP99 \r\nE9M9  \r\n");
        // Every lump of a large directory is seen, and the count stands at the 17th character.
        for (const int maps : {9, 10, 99, 100}) {
            QStringList lumps(5000, u"THING"_s);
            for (int map = 0; map < maps; ++map)
                lumps << u"MAP%1"_s.arg(map, 2, 10, QChar(u'0'));
            const QByteArray found = report(TemporaryInstallation::wad("IWAD", lumps));
            const QByteArray count = QByteArray::number(qMin(maps, 99));
            QVERIFY(found.startsWith("Number of maps: " + count + "\r\nType: IWAD\r\nLumps: 5"));
            QVERIFY(found.endsWith(lumps.last().toLatin1().leftJustified(5) + " \r\n") &&
                    found.count("\r\n") == maps + 3);
        }
    }

    void refusesWhatIsNoWad()
    {
        const QByteArray whole = TemporaryInstallation::wad("PWAD", {u"MAP01"_s, u"E1M1"_s, u"THINGS"_s});
        const auto size = static_cast<qint32>(whole.size());
        QByteArrayList none{'Z' + whole.sliced(1), claiming(whole, 0x03000000, 0x18000000),
                            claiming(whole, 0, size + 1)};
        for (const qint32 lumps : {1'000'000, 0x7fffffff, 0x10000001, -1})
            none << claiming(whole, lumps, 24);
        for (const qint32 offset : {size - 32, size, 0x7fffffff, -16})
            none << claiming(whole, 3, offset);
        for (qint32 length = 0; length < size; ++length)
            none << whole.first(length);
        for (const QByteArray& bytes : none)
            QCOMPARE(report(bytes), emptyReport);
        QVERIFY(report(whole).startsWith("Number of maps: 2\r\n"));
        // A sparse file makes the largest claims true: they may not cost memory or minutes.
        QFile file(path(u"a.wad"_s));
        QVERIFY(file.open(QFile::ReadWrite) && file.write(claiming(whole, 0x7fffffff, 12)) == size);
        if (file.resize(0x800000000))
            QCOMPARE(checkedWad(file.fileName()), "1: " + emptyReport);
    }

    void refusesWhatIsNoRegularFile()
    {
        const QString device = OnWindows ? u"NUL"_s : u"/dev/zero"_s;
        for (const QString& name :
             {path(u"none"_s), m_folder->root(), device, QString(), QString(5000, u'x')})
            QCOMPARE(checkedWad(name), "1: " + emptyReport);
        for (const QString& wrong : {u""_s, u"CHECKWAD"_s, u"CHECKWADS a"_s, u"CHECKWAD a b"_s})
            QCOMPARE(run(wrong.split(u' ', Qt::SkipEmptyParts)), "2: ");
        if (OnWindows)
            return; // no pipe stands in a folder
        const QString pipe = path(u"KeldraxSav1.vyksg"_s);
        QCOMPARE(QProcess::execute(u"mkfifo"_s, {pipe}), 0);
        QCOMPARE(checkedWad(pipe) + headers(pipe) + headers(m_folder->root()),
                 "1: " + emptyReport + "0: 0: ");
    }

    // Whatever the bytes, the report keeps its form and its count is true.
    void keepsTheReportsFormOnMutatedWads()
    {
        QRandomGenerator random(1);
        const QByteArray original =
            TemporaryInstallation::wad("PWAD", QString(u"E1M1 THINGS MAP01 map32"_s).split(u' '));
        int wads = 0;
        for (int round = 0; round < 5000; ++round) {
            QByteArray bytes = original;
            for (int change = random.bounded(6); change >= 0; --change)
                bytes[random.bounded(round % 2 ? 12 : int(bytes.size()))] = static_cast<char>(random());
            const QByteArray found = report(bytes);
            const QByteArrayList lines = found.split('\n');
            QCOMPARE(lines[0].mid(16).trimmed().toInt(), lines.size() - 4);
            for (const QByteArray& map : lines.sliced(3, lines.size() - 4))
                QVERIFY2(map.size() == 7 && (map.startsWith("MAP") || map[0] == 'E'), map.constData());
            wads += found != emptyReport;
        }
        QVERIFY(wads > 500 && wads < 4500); // both outcomes were really met
    }

    void listsSavegamesInSlotOrder()
    {
        const std::pair<QString, QByteArray> files[] = {
            {u"KELDRAXSAV0.VYKSG"_s, "another"},
            {u"KeldraxSav0.vyksg"_s, "\311tage\r\n7\n"}, // wins, where both can be
            {u"KeldraxSav2.vyksg"_s, "Run, \"gun\"\0"_ba},
            {u"KeldraxSav3.vyksg"_s, "Twenty-four bytes it has, not this"},
            {u"KeldraxSav4.vyksg"_s, {}},
            {u"keldraxsav5.VYKSG"_s, "  Hangar\tgate\x01 \0junk"_ba},
            {u"KeldraxSav10.vyksg"_s, "no savegame"},
        };
        for (const auto& [name, bytes] : files)
            m_folder->add(name, bytes);
        const QByteArray all = "0: 0\311tage  7\r\n\"2Run, 'gun'\"\r\n3Twenty-four bytes it has\r\n4\r\n"
                               "5Hangar gate\r\n";
        QCOMPARE(run({u"getsavehdrs"_s, m_folder->root() + u'/'}), all);
    }
};

QTEST_GUILESS_MAIN(VYKgFilesTest)
#include "VYKgFilesTest.moc"
