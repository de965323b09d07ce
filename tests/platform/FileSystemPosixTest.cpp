#include "platform/DiskFileSystem.h"
#include "platform/FileLock.h"
#include "tests/support/TemporaryInstallation.h"

#include <QFile>
#include <QFileInfo>
#include <QTest>
#include <fcntl.h>
#include <functional>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

// Links, pipes and locks.
class FileSystemPosixTest : public QObject
{
    Q_OBJECT

    static bool isLockedBy(const QString& path, const std::function<bool(int)>& lock)
    {
        const int file = open(QFile::encodeName(path).constData(), O_RDWR | O_CLOEXEC);
        const bool taken = lock(file);
        const bool locked = IsFileLocked(path);
        close(file);
        return taken && locked;
    }

private Q_SLOTS:
    void aPipeIsNoFile()
    {
        TemporaryInstallation disk;
        QCOMPARE(mkfifo(QFile::encodeName(disk.path(u"pipe"_s)).constData(), 0600), 0);
        // and does not wait
        QVERIFY_THROWS_EXCEPTION(FileError, DiskFileSystem().read(disk.path(u"pipe"_s), 1));
    }

    void linksAreRemovedNotWhatTheyLeadTo()
    {
        TemporaryInstallation disk;
        disk.add(u"Games/file"_s);
        DiskFileSystem files;
        QVERIFY(QFile::link(disk.path(u"Games"_s), disk.path(u"Link"_s)));
        QVERIFY(QFile::link(disk.path(u"nowhere"_s), disk.path(u"Dangling"_s)));
        files.remove(disk.path(u"link"_s));
        disk.add(u"DANGLING"_s);
        files.remove(disk.path(u"Dangling"_s));
        QVERIFY(!QFileInfo(disk.path(u"Link"_s)).isSymLink());
        QVERIFY(!QFileInfo(disk.path(u"Dangling"_s)).isSymLink());
        QVERIFY(disk.exists(u"Games/file"_s) && disk.exists(u"DANGLING"_s));
    }

    // What would go with a folder: links are counted, not followed.
    void entriesAndContents()
    {
        TemporaryInstallation disk;
        disk.add(u"Elsewhere/big"_s, QByteArray(1000, 'x'));
        disk.add(u"Pack/a"_s, "12345");
        disk.add(u"Pack/Sub/.hidden"_s, "123");
        QVERIFY(QFile::link(disk.path(u"Elsewhere"_s), disk.path(u"Pack/folder"_s)));
        QVERIFY(QFile::link(disk.path(u"Elsewhere/big"_s), disk.path(u"Pack/Sub/file"_s)));
        QVERIFY(QFile::link(disk.path(u"nowhere"_s), disk.path(u"Pack/nothing"_s)));
        const DiskFileSystem files;
        const auto counted = [&](const QString& path) {
            const TreeContents found = files.contents(disk.path(path));
            return QList<qint64>{found.folders, found.files, found.bytes};
        };
        QCOMPARE(counted(u"pack/"_s), (QList<qint64>{2, 5, 8}));
        QCOMPARE(counted(u"Pack/a"_s), (QList<qint64>{0, 1, 5}));
        QCOMPARE(counted(u"Pack/folder"_s), (QList<qint64>{0, 1, 0}));
        QCOMPARE(counted(u"none"_s), (QList<qint64>{0, 0, 0}));
        QString entries;
        for (const FolderEntry& entry : files.entries(disk.path(u"PACK"_s)))
            entries += entry.name + u"=%1 "_s.arg(static_cast<int>(entry.kind));
        QCOMPARE(entries, u"a=0 folder=2 nothing=2 Sub=1 "_s);
        QVERIFY(files.entries(disk.path(u"Pack/a"_s)).isEmpty());
    }

    void lockedFiles()
    {
        TemporaryInstallation disk;
        disk.add(u"File"_s, "text");
        const QString path = disk.path(u"File"_s);
        QVERIFY(!IsFileLocked(path));
        QVERIFY(!IsFileLocked(disk.path(u"none"_s)));
        QVERIFY(isLockedBy(path, [](int file) { return flock(file, LOCK_SH) == 0; }));
        // A record lock that belongs to an open file counts like another program's.
        QVERIFY(isLockedBy(path, [](int file) {
            struct flock lock = {};
            lock.l_type = F_RDLCK;
            lock.l_start = 2;
            lock.l_len = 1;
            return fcntl(file, F_OFD_SETLK, &lock) == 0;
        }));
        QVERIFY(!IsFileLocked(disk.path(u"file"_s))); // and it is free again
    }
};

QTEST_GUILESS_MAIN(FileSystemPosixTest)
#include "FileSystemPosixTest.moc"
