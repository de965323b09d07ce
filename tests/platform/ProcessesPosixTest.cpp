#include "platform/DiskFileSystem.h"
#include "platform/SystemProcesses.h"
#include "tests/support/TemporaryInstallation.h"

#include <QFile>
#include <QScopeGuard>
#include <QTest>
#include <cerrno>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

class ProcessesPosixTest : public QObject
{
    Q_OBJECT

    TemporaryInstallation m_disk;
    DiskFileSystem m_files;
    SystemProcesses m_processes{m_files};

    Captured capture(const QString& line) { return m_processes.capture(line, m_disk.root()); }

private Q_SLOTS:
    void programsAreFoundWithOrWithoutExe()
    {
        m_disk.addProgram(u"Bin/Keldrax"_s, "#!/bin/sh\n");
        m_disk.addProgram(u"Bin/Tool.exe"_s, "#!/bin/sh\n");
        m_disk.add(u"Bin/Windows.exe"_s, "MZ\x90"); // needs no executable bit
        m_disk.add(u"Bin/notes/text"_s, "text");
        const auto find = [&](const QString& name) { return FindProgram(m_files, name, m_disk.root()); };
        for (const QString& program : {u"Keldrax"_s, u"Tool.exe"_s, u"Windows.exe"_s}) {
            const QString path = m_disk.path(u"Bin/"_s + program);
            const QString plain = u"bin\\"_s + program.section(u'.', 0, 0);
            for (const QString& spelling : {path, plain.toUpper(), plain + u".EXE"_s})
                QCOMPARE(find(spelling), path);
        }
        for (const QString& none : {u"Bin/notes"_s, u"Bin/notes/text"_s, u"Keldrax"_s, u"sh"_s, QString()})
            QCOMPARE(find(none), QString());
        QCOMPARE(FindProgram(m_files, u"bin/sh"_s, {}), QString());
    }

    void captureReturnsBothStreamsInOrder()
    {
        m_disk.addProgram(u"Tools/Files"_s, "#!/bin/sh\n"
                                            "cat\n" // ends at once: there is nothing to read
                                            "pwd -P; echo \"$#:$2\" >&2; head -c 100000 /dev/zero; exit 3\n");
        const QString folder = QFileInfo(m_disk.path(u"Tools"_s)).canonicalFilePath();
        QCOMPARE(m_processes.capture(u"files CHECKWAD \"a $HOME 'b'.wad\""_s, folder).output,
                 folder.toUtf8() + "\n2:a $HOME 'b'.wad\n" + QByteArray(100000, 0));
    }

    void watchedPrograms()
    {
        QStringList told;
        const ProgramWatch watch{.settled = [&] { told << u"settled"_s; },
                                 .failed = [&](const QString& words) { told << words; }};
        m_disk.addProgram(u"Fails"_s,
                          "#!/bin/sh\nyes ' far  too much' | head -9999; echo; echo why >&2; exit 3\n");
        m_disk.addProgram(u"Crashes"_s, "#!/bin/sh\nkill -9 $$\n");
        m_disk.addProgram(u"Ends"_s, "#!/bin/sh\n");
        QVERIFY(!m_processes.startWatched(u"None"_s, m_disk.root(), watch));
        for (const QString& program : {u"Fails"_s, u"Crashes"_s, u"Ends"_s}) {
            QVERIFY(m_processes.startWatched(program, m_disk.root(), watch));
            const qsizetype before = told.size();
            QTRY_VERIFY(told.size() > before);
        }
        QVERIFY(told[0].startsWith(u"far too much\n"_s) && told[0].endsWith(u"\nwhy"_s) &&
                told[0].size() < 100);
        QCOMPARE(told.sliced(1), (QStringList{u""_s, u"settled"_s}));

        // What runs on is settled, and outlives the launcher.
        QCOMPARE(mkfifo(QFile::encodeName(m_disk.path(u"door"_s)).constData(), 0600), 0);
        m_disk.addProgram(u"Runs"_s, "#!/bin/sh\nread line < door\necho more\n>opened\n");
        {
            SystemProcesses impatient(m_files, std::chrono::milliseconds(0));
            QVERIFY(impatient.startWatched(u"Runs"_s, m_disk.root(), watch));
            QTRY_COMPARE(told.size(), 4);
        }
        QCOMPARE(told.last(), u"settled"_s);
        m_disk.add(u"door"_s, "go\n");
        QTRY_VERIFY(m_disk.exists(u"opened"_s));
    }

    void startDoesNotWait()
    {
        QCOMPARE(mkfifo(QFile::encodeName(m_disk.path(u"gate"_s)).constData(), 0600), 0);
        m_disk.addProgram(u"Game"_s,
                          "#!/bin/sh\nread line < gate\nprintf '%s' \"$1\" > part; mv part done\n");
        QVERIFY(m_processes.start(u"game.exe \"two words\""_s, m_disk.root()));
        QVERIFY(!m_disk.exists(u"done"_s)); // it waits for the gate
        m_disk.add(u"gate"_s, "go\n");
        QTRY_VERIFY(m_disk.exists(u"done"_s));
        QCOMPARE(m_disk.read(u"done"_s), "two words"_ba);
    }

    void windowsProgramsNeedWine()
    {
        const QString program = m_disk.path(u"Wide/Tool.exe"_s);
        m_disk.add(u"Wide/Tool.exe"_s, "MZ program");
        const auto restore = qScopeGuard([path = qgetenv("PATH")] { qputenv("PATH", path); });
        qputenv("PATH", m_disk.path(u"wine"_s).toUtf8());
        QVERIFY(!m_processes.start(program, m_disk.root()));
        QCOMPARE(capture(program).error, QString::number(ENOEXEC));
        m_disk.addProgram(u"wine/wine"_s, "#!/bin/sh\necho \"$1|$2\"\n");
        QCOMPARE(capture(u"wide\\tool \"a b\""_s).output, program.toUtf8() + "|a b\n");
    }
};

QTEST_GUILESS_MAIN(ProcessesPosixTest)
#include "ProcessesPosixTest.moc"
