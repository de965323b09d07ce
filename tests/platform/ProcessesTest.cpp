#include "platform/DiskFileSystem.h"
#include "platform/SystemProcesses.h"
#include "tests/support/TemporaryInstallation.h"

#include <QTest>

using namespace Qt::StringLiterals;

class ProcessesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void commandLines()
    {
        const auto split = [](const QString& line) { return SplitCommandLine(line).join(u'|'); };
        QCOMPARE(split(u"  a\t b \"c d\"e\" \"f  "_s), u"a|b|c de f"_s);
        QCOMPARE(split(u"\"Dir\\\" a\\b\\"_s), u"Dir\\|a\\b\\"_s); // nothing escapes
        QCOMPARE(split(u"a \"\" \"b c "_s), u"a||b c "_s);         // open to the end
        QCOMPARE(SplitCommandLine(u" \t"_s), QStringList());
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
