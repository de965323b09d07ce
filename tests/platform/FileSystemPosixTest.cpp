// Links, pipes and locks.
#include "platform/DiskFileSystem.h"
#include "platform/FileLock.h"
#include "tests/support/TemporaryInstallation.h"

#include <QFile>
#include <QTest>
#include <csignal>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

class FileSystemPosixTest : public QObject
{
    Q_OBJECT

    TemporaryInstallation m_disk;
    DiskFileSystem m_files;

    QString at(const QString& path) const { return m_disk.path(path); }

private Q_SLOTS:
    void aPipeIsNoFile() // and nothing waits for its other end
    {
        QCOMPARE(mkfifo(QFile::encodeName(at(u"pipe"_s)).constData(), 0600), 0);
        QVERIFY_THROWS_EXCEPTION(FileError, m_files.read(at(u"pipe"_s), 1));
    }

    // Links are listed, counted and removed themselves, whatever they lead to.
    void linksAreNotFollowed()
    {
        m_disk.add(u"Elsewhere/big"_s, QByteArray(1000, 'x'));
        m_disk.add(u"Pack/a"_s, "12345");
        m_disk.add(u"Pack/Sub/.hidden"_s, "123");
        QVERIFY(QFile::link(at(u"Elsewhere"_s), at(u"Pack/Folder"_s)));
        QVERIFY(QFile::link(at(u"Elsewhere/big"_s), at(u"Pack/Sub/file"_s)));
        QVERIFY(QFile::link(at(u"nowhere"_s), at(u"Pack/Nothing"_s)));
        const auto counted = [&](const QString& path) {
            const TreeContents found = m_files.contents(at(path));
            return u"%1 %2 %3"_s.arg(found.folders).arg(found.files).arg(found.bytes);
        };
        QCOMPARE(counted(u"pack/"_s), u"2 5 8"_s);
        QCOMPARE(counted(u"Pack/Folder"_s), u"0 1 0"_s);
        QCOMPARE(counted(u"none"_s), u"0 0 0"_s);
        QString entries;
        for (const FolderEntry& entry : m_files.entries(at(u"PACK"_s)))
            entries += entry.name + u"=%1 "_s.arg(static_cast<int>(entry.kind));
        QCOMPARE(entries, u"a=0 Folder=2 Nothing=2 Sub=1 "_s);

        m_disk.add(u"Pack/NOTHING"_s); // the exact spelling goes, also where it leads nowhere
        m_files.remove(at(u"Pack/Nothing"_s));
        m_files.remove(at(u"pack/folder"_s));
        m_files.removeTree(at(u"Pack/SUB"_s));
        QCOMPARE(m_disk.tree().filter(u"/"_s).join(u' '), u"Elsewhere/big Pack/NOTHING Pack/a"_s);
        QCOMPARE(counted(u"Pack"_s), u"1 2 5"_s);
    }

    // Not a byte of the old file is lost, however large the new one is.
    void aFullDisk()
    {
        constexpr rlim_t room = 1000;
        m_disk.add(u"large"_s, QByteArray(100000, 'x'));
        rlimit before = {};
        QCOMPARE(getrlimit(RLIMIT_FSIZE, &before), 0);
        const auto former = std::signal(SIGXFSZ, SIG_IGN);
        for (const qsizetype size : {room + 1, room * 9, room * 17, room * 100}) {
            m_disk.add(u"old"_s, "old");
            const QByteArray bytes(size, 'n');
            const rlimit full = {room, before.rlim_max};
            QCOMPARE(setrlimit(RLIMIT_FSIZE, &full), 0);
            const auto fails = [](const auto& write) {
                try {
                    write();
                    return false;
                } catch (const FileError&) {
                    return true;
                }
            };
            const bool allFail = fails([&] { m_files.write(at(u"old"_s), bytes); }) &&
                                 fails([&] { m_files.copy(at(u"large"_s), at(u"old"_s)); });
            QByteArray left = bytes;
            const bool createFails =
                fails([&] { m_files.create(at(u"new"_s), [&] { return std::exchange(left, {}); }, {}); });
            QCOMPARE(setrlimit(RLIMIT_FSIZE, &before), 0);
            QVERIFY(allFail && createFails);
            QCOMPARE(m_disk.read(u"old"_s), "old");
            QCOMPARE(m_disk.tree().filter(u"old"_s).size() + m_disk.tree().filter(u"new"_s).size(), 1);
        }
        std::signal(SIGXFSZ, former);
    }

    // For a user who has none yet, it is made; where it cannot be made, nothing goes anywhere.
    void theTrash()
    {
        const QByteArray former = qgetenv("XDG_DATA_HOME");
        m_disk.add(u"Game/Pwads/a.wad"_s, "game");
        m_disk.add(u"taken"_s);
        qputenv("XDG_DATA_HOME", QFile::encodeName(at(u"taken/share"_s)));
        QVERIFY(!m_files.hasTrash() && !m_files.moveToTrash(at(u"Game"_s)));
        QCOMPARE(m_disk.read(u"Game/Pwads/a.wad"_s), "game");
        qputenv("XDG_DATA_HOME", QFile::encodeName(at(u"home/share"_s)));
        QVERIFY(m_files.hasTrash() && m_files.moveToTrash(at(u"game"_s)));
        qputenv("XDG_DATA_HOME", former);
        QCOMPARE(m_disk.read(u"home/share/Trash/files/Game/Pwads/a.wad"_s), "game");
        QVERIFY(m_disk.exists(u"home/share/Trash/info/Game.trashinfo"_s) &&
                !m_files.folderExists(at(u"Game"_s)));
        QVERIFY_THROWS_EXCEPTION(FileError, m_files.moveToTrash(at(u"Game"_s)));
    }

    void lockedFiles()
    {
        m_disk.add(u"File"_s, "text");
        QVERIFY(!IsFileLocked(at(u"none"_s)));
        for (const bool whole : {true, false}) {
            QVERIFY(!IsFileLocked(at(u"File"_s)));
            const int file = open(QFile::encodeName(at(u"File"_s)).constData(), O_RDWR | O_CLOEXEC);
            // A record lock that belongs to an open file counts like another program's.
            struct flock record = {};
            record.l_type = F_RDLCK;
            record.l_start = 2;
            record.l_len = 1;
            QCOMPARE(whole ? flock(file, LOCK_SH) : fcntl(file, F_OFD_SETLK, &record), 0);
            QVERIFY(IsFileLocked(at(u"file"_s)));
            close(file);
        }
        QVERIFY(!IsFileLocked(at(u"File"_s))); // and it is free again
    }
};

QTEST_GUILESS_MAIN(FileSystemPosixTest)
#include "FileSystemPosixTest.moc"
