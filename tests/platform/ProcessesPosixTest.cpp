#include "platform/DiskFileSystem.h"
#include "platform/SystemProcesses.h"
#include "tests/support/TemporaryInstallation.h"

#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>
#include <QTest>
#include <cerrno>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

class ProcessesPosixTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void programsAreFoundWithOrWithoutExe()
    {
        TemporaryInstallation disk;
        disk.addProgram(u"Bin/Keldrax"_s, "#!/bin/sh\n");
        disk.addProgram(u"Bin/Tool.exe"_s, "#!/bin/sh\n");
        disk.add(u"Bin/Windows.exe"_s, "MZ\x90"); // needs no executable bit
        disk.add(u"Bin/notes"_s, "text");
        disk.addFolder(u"Bin/folder"_s);
        const DiskFileSystem files;
        const auto find = [&](const QString& name) { return FindProgram(files, name, disk.root()); };
        QCOMPARE(find(u"bin\\KELDRAX"_s), disk.path(u"Bin/Keldrax"_s));
        QCOMPARE(find(u"bin/keldrax.EXE"_s), disk.path(u"Bin/Keldrax"_s));
        QCOMPARE(find(u"Bin/Tool"_s), disk.path(u"Bin/Tool.exe"_s));
        QCOMPARE(find(disk.path(u"bin/tool.exe"_s)), disk.path(u"Bin/Tool.exe"_s));
        QCOMPARE(find(u"Bin/windows"_s), disk.path(u"Bin/Windows.exe"_s));
        for (const QString& none : {u"Bin/notes"_s, u"Bin/folder"_s, u"Keldrax"_s, u"sh"_s, QString()})
            QCOMPARE(find(none), QString());
        QCOMPARE(FindProgram(files, u"bin/sh"_s, {}), QString());
    }

    void captureReturnsBothStreamsInOrder()
    {
        TemporaryInstallation disk;
        disk.addProgram(u"Bin/VYKgFiles"_s, "#!/bin/sh\n"
                                            "cat\n" // ends at once: there is nothing to read
                                            "pwd -P; echo \"$#:$2\" >&2; echo last; exit 3\n");
        const DiskFileSystem files;
        SystemProcesses processes(files);
        const QString folder = QFileInfo(disk.path(u"Bin"_s)).canonicalFilePath();
        const Captured result =
            processes.capture(u"VYKgfiles CHECKWAD \"a $HOME 'b'.wad\""_s, disk.path(u"bin"_s));
        QVERIFY(result.started);
        QCOMPARE(QString::fromUtf8(result.output), folder + u"\n2:a $HOME 'b'.wad\nlast\n"_s);

        disk.addProgram(u"Bin/Long"_s, "#!/bin/sh\nhead -c 1000000 /dev/zero\n");
        QCOMPARE(processes.capture(u"Long"_s, folder).output.size(), 1'000'000);
    }

    void aFailedStartHasTheSystemsNumber()
    {
        TemporaryInstallation disk;
        disk.addProgram(u"Script"_s, "#!/no/such/interpreter\n");
        disk.addProgram(u"Broken"_s, "\x7F"
                                     "ELF and nothing more");
        const DiskFileSystem files;
        SystemProcesses processes(files);
        const auto error = [&](const QString& line) { return processes.capture(line, disk.root()).error; };
        QCOMPARE(error(u"None"_s), QString::number(ENOENT));
        QCOMPARE(error({}), QString::number(ENOENT));
        QCOMPARE(error(u"Script"_s), QString::number(ENOENT));
        QCOMPARE(error(u"Broken"_s), QString::number(ENOEXEC));
        for (const QString& line : {u"None"_s, u"Script"_s, u"Broken"_s, QString()})
            QVERIFY(!processes.start(line, disk.root()));
        QVERIFY(!processes.capture(disk.path(u"Script"_s), disk.path(u"no folder"_s)).started);
    }

    void startDoesNotWait()
    {
        TemporaryInstallation disk;
        QCOMPARE(mkfifo(QFile::encodeName(disk.path(u"gate"_s)).constData(), 0600), 0);
        disk.addProgram(u"Game"_s, "#!/bin/sh\nread line < gate\nprintf '%s' \"$1\" > part; mv part done\n");
        const DiskFileSystem files;
        SystemProcesses processes(files);
        QVERIFY(processes.start(u"game.exe \"two words\""_s, disk.root()));
        QVERIFY(!disk.exists(u"done"_s)); // it waits for the gate
        QFile gate(disk.path(u"gate"_s));
        QVERIFY(gate.open(QIODevice::WriteOnly) && gate.write("go\n") == 3);
        gate.close();
        QTRY_VERIFY(disk.exists(u"done"_s));
        QCOMPARE(disk.read(u"done"_s), "two words"_ba);
    }

    void windowsProgramsNeedWine()
    {
        TemporaryInstallation disk;
        disk.add(u"Bin/Tool.exe"_s, "MZ program");
        const DiskFileSystem files;
        SystemProcesses processes(files);
        const QByteArray path = qgetenv("PATH");
        const auto restore = qScopeGuard([&] { qputenv("PATH", path); });
        qputenv("PATH", disk.path(u"wine"_s).toUtf8());
        QVERIFY(!processes.start(u"Bin\\Tool"_s, disk.root()));
        QCOMPARE(processes.capture(u"Bin\\Tool"_s, disk.root()).error, QString::number(ENOEXEC));
        disk.addProgram(u"wine/wine"_s, "#!/bin/sh\necho \"$1|$2\"\n");
        QCOMPARE(QString::fromUtf8(processes.capture(u"Bin\\Tool \"a b\""_s, disk.root()).output),
                 disk.path(u"Bin/Tool.exe"_s) + u"|a b\n"_s);
    }
};

// No QCoreApplication: console programs use these functions without one.
QTEST_APPLESS_MAIN(ProcessesPosixTest)
#include "ProcessesPosixTest.moc"
