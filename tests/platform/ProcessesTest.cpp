#include "platform/DiskFileSystem.h"
#include "platform/SystemProcesses.h"
#include "tests/support/TemporaryInstallation.h"

#include <QTest>

using namespace Qt::StringLiterals;

class ProcessesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void commandLines_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("blanks") << u"  a\t b  "_s << QStringList{u"a"_s, u"b"_s};
        QTest::newRow("quotes") << u"\"a b\"c d\" \"e"_s << QStringList{u"a bc"_s, u"d e"_s};
        QTest::newRow("nothing escapes") << u"\"Dir\\\" a\\b\\"_s << QStringList{u"Dir\\"_s, u"a\\b\\"_s};
        QTest::newRow("empty") << u"a \"\" b"_s << QStringList{u"a"_s, u""_s, u"b"_s};
        QTest::newRow("open to the end") << u"a \"b c "_s << QStringList{u"a"_s, u"b c "_s};
        QTest::newRow("nothing") << u" \t"_s << QStringList{};
    }
    void commandLines()
    {
        QFETCH(QString, line);
        QFETCH(QStringList, arguments);
        QCOMPARE(SplitCommandLine(line), arguments);
    }

    // What a launch writes on the line is what the program gets.
    void aStartedProgramGetsTheArguments()
    {
        TemporaryInstallation disk;
        disk.addBuilt(u"Spiele ä/Bin/Keldrax"_s, RECORDER_PROGRAM);
        const DiskFileSystem files;
        SystemProcesses processes(files);
        const QString folder = disk.path(u"Spiele ä"_s);
        QVERIFY(processes.start(u"Bin\\Keldrax -f \"D:\\Größe 100%\\a'b.wad\" -x=\"two  words\" 日本 "_s,
                                folder));
        QTRY_VERIFY_WITH_TIMEOUT(disk.exists(u"Spiele ä/arguments.txt"_s), 60000);
        QCOMPARE(QString::fromUtf8(disk.read(u"Spiele ä/arguments.txt"_s)),
                 u"-f\nD:\\Größe 100%\\a'b.wad\n-x=two  words\n日本\n"_s);
        QVERIFY(!processes.start(u"Bin\\None -x"_s, folder));
        QCOMPARE(processes.capture(u"Bin\\None -x"_s, folder).error, u"2"_s);
    }
};

// No QCoreApplication: console programs use these functions without one.
QTEST_APPLESS_MAIN(ProcessesTest)
#include "ProcessesTest.moc"
