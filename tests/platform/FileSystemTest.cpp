#include "platform/DiskFileSystem.h"
#include "platform/Paths.h"
#include "tests/support/FailingFileSystem.h"
#include "tests/support/TemporaryInstallation.h"

#include <QFile>
#include <QFileInfo>
#include <QTest>
#include <functional>

using namespace Qt::StringLiterals;
using Kind = FileError::Kind;

class FileSystemTest : public QObject
{
    Q_OBJECT

    static bool fails(Kind kind, const std::function<void()>& call)
    {
        try {
            call();
        } catch (const FileError& error) {
            return error.kind() == kind;
        }
        return false;
    }

private Q_SLOTS:
    void pathsAsTexts()
    {
        QCOMPARE(FileNameOf(u"c:\\a/Doom2.wad"_s), u"Doom2.wad"_s);
        QCOMPARE(FileNameOf(u"/games/Hell/"_s), u"Hell"_s);
        QCOMPARE(FileNameOf(u"/"_s), QString());
        QCOMPARE(BaseNameOf(u"a.d/b.c.wad"_s), u"b.c"_s);
        QCOMPARE(BaseNameOf(u"a.d/b"_s), u"b"_s);
        QCOMPARE(FolderOf(u"a\\b\\c/"_s), u"a/b"_s);
        QCOMPARE(FolderOf(u"/a"_s), u"/"_s);
        QCOMPARE(FolderOf(u"/"_s), QString());
        QCOMPARE(FolderOf(u"a"_s), QString());
    }

    void aWrongCaseFindsTheFile()
    {
        TemporaryInstallation disk;
        disk.add(u"VYKGames/Hölle/Map.WAD"_s, "map");
        const DiskFileSystem files;
        const QString map = disk.path(u"VYKGames/Hölle/Map.WAD"_s);
        QCOMPARE(files.actualPath(disk.path(u"vykgames\\HÖLLE\\map.wad"_s)), map);
        QCOMPARE(files.actualPath(map), map);
        QCOMPARE(files.actualPath(disk.path(u"vykGAMES/../vykgames/hölle/"_s)),
                 disk.path(u"VYKGames/../VYKGames/Hölle"_s));
        QCOMPARE(files.read(disk.path(u"VYKGames/hölle/map.wad"_s), 2), "ma"_ba);
        QVERIFY(files.modified(disk.path(u"vykgames/hölle/map.wad"_s)).isValid());
        QCOMPARE(files.files(disk.path(u"Vykgames/hölle"_s)), QStringList{u"Map.WAD"_s});

        if (OnWindows)
            return;
        // The exact spelling wins, then the first in ascending order.
        disk.add(u"data/one"_s);
        disk.add(u"DATA/two"_s);
        QVERIFY(files.fileExists(disk.path(u"data/ONE"_s)));
        QVERIFY(files.fileExists(disk.path(u"Data/TWO"_s)));
        QVERIFY(!files.fileExists(disk.path(u"Data/one"_s)));
        for (const QString& name : {u"ab"_s, u"cd"_s, u"ef"_s, u"gh"_s, u"ij"_s}) {
            const QString capital = name[0].toUpper() + name.sliced(1);
            for (const QString& spelling : {name, name.toUpper(), capital})
                disk.addFolder(spelling);
            const QString wanted = name[0] + name.sliced(1).toUpper();
            QCOMPARE(files.actualPath(disk.path(wanted)), disk.path(name.toUpper()));
        }
    }

    void whatIsNotThereIsNotFound()
    {
        TemporaryInstallation disk;
        disk.add(u"file"_s, "x");
        disk.addFolder(u"folder"_s);
        const DiskFileSystem files;
        for (const QString& path : {QString(), disk.path(u"other"_s), disk.path(u"file/below"_s),
                                    disk.path(u"file"_s) + QChar::Null, QString(100'000, u'/') + u"x/y"_s}) {
            QCOMPARE(files.actualPath(path), QString());
            QVERIFY(!files.fileExists(path) && !files.folderExists(path));
            QVERIFY(files.files(path).isEmpty() && files.folders(path).isEmpty());
            QVERIFY(!files.modified(path).isValid());
        }
        QVERIFY(!files.folderExists(disk.path(u"file"_s)));
        QVERIFY(!files.fileExists(disk.path(u"folder"_s)));
        QVERIFY(fails(Kind::NotFound, [&] { files.read(disk.path(u"other"_s), 1); }));
        QVERIFY(fails(Kind::Other, [&] { files.read(disk.path(u"folder"_s), 1); }));
        QCOMPARE(files.read(disk.path(u"file"_s), -1), QByteArray());
    }

    void listsAscendWithoutRegardToCase()
    {
        TemporaryInstallation disk;
        QStringList ascending{u".hidden"_s, u"a"_s, u"B"_s, u"b"_s, u"C"_s};
        if (OnWindows)
            ascending.removeOne(u"B"_s);
        for (const QString& name : ascending)
            disk.add(name);
        for (const QString& name : {u"folder/x"_s, u"E/x"_s})
            disk.add(name);
        const DiskFileSystem files;
        QCOMPARE(files.files(disk.root()), ascending);
        QCOMPARE(files.folders(disk.root()), (QStringList{u"E"_s, u"folder"_s}));
    }

    void writingReplacesTheFileUnderItsOwnSpelling()
    {
        TemporaryInstallation disk;
        disk.add(u"Data/Config.vyk"_s, "old");
        DiskFileSystem files;
        files.write(disk.path(u"data/config.vyk"_s), "new");
        files.write(disk.path(u"DATA/fresh"_s), "\0\n"_ba);
        const QByteArray large(3'000'001, 'x');
        files.write(disk.path(u"large"_s), large);
        files.copy(disk.path(u"LARGE"_s), disk.path(u"Data/CONFIG.VYK"_s));
        files.copy(disk.path(u"data/Fresh"_s), disk.path(u"copy"_s));
        QCOMPARE(disk.tree(), (QStringList{u"Data/Config.vyk"_s, u"Data/fresh"_s, u"copy"_s, u"large"_s}));
        QVERIFY(disk.read(u"Data/Config.vyk"_s) == large);
        QCOMPARE(disk.read(u"copy"_s), "\0\n"_ba);
    }

    void refusedWritesLeaveTheOldFile()
    {
        TemporaryInstallation disk;
        disk.add(u"locked"_s, "old");
        disk.add(u"new"_s, "new");
        disk.addFolder(u"folder"_s);
        const QString locked = disk.path(u"Locked"_s);
        QVERIFY(QFile::setPermissions(disk.path(u"locked"_s), QFile::ReadOwner));
        DiskFileSystem files;
        QVERIFY(fails(Kind::PermissionDenied, [&] { files.write(locked, "new"); }));
        QVERIFY(fails(Kind::PermissionDenied, [&] { files.copy(disk.path(u"new"_s), locked); }));
        QVERIFY(fails(Kind::Other, [&] { files.write(disk.path(u"FOLDER"_s), "new"); }));
        QVERIFY(fails(Kind::NotFound, [&] { files.write(disk.path(u"none/x"_s), "new"); }));
        QVERIFY(fails(Kind::NotFound, [&] { files.copy(disk.path(u"none"_s), disk.path(u"new"_s)); }));
        QVERIFY(fails(Kind::Other, [&] { files.write({}, "new"); }));
        QVERIFY(fails(Kind::Other, [&] { files.write(disk.path(u"a"_s) + QChar::Null, "new"); }));
        QVERIFY_THROWS_EXCEPTION(FileError, files.write(disk.path(QString(300, u'n')), "new"));
        QCOMPARE(disk.tree(), (QStringList{u"locked"_s, u"new"_s})); // no temporary file either
        QCOMPARE(disk.read(u"locked"_s), "old"_ba);
        QCOMPARE(disk.read(u"new"_s), "new"_ba);

        files.remove(locked);
        files.remove(locked);
        QVERIFY(!disk.exists(u"locked"_s));
    }

    void foldersComeAndGo()
    {
        TemporaryInstallation disk;
        disk.add(u"Games/file"_s);
        DiskFileSystem files;
        files.createFolder(disk.path(u"games\\New\\deep/"_s));
        files.createFolder(disk.path(u"GAMES/new"_s));
        QVERIFY(disk.exists(u"Games/New/deep"_s));
        QCOMPARE(files.folders(disk.root()), QStringList{u"Games"_s});
        QVERIFY(fails(Kind::Exists, [&] { files.createFolder(disk.path(u"games/File"_s)); }));
        QVERIFY(fails(Kind::Exists, [&] { files.removeFolder(disk.path(u"games"_s)); }));
        QVERIFY(fails(Kind::NotFound, [&] { files.removeFolder(disk.path(u"none"_s)); }));
        QVERIFY(fails(Kind::Other, [&] { files.remove(disk.path(u"games/new"_s)); }));
        files.removeFolder(disk.path(u"games/new/DEEP"_s));
        QVERIFY(disk.exists(u"Games/New"_s) && !disk.exists(u"Games/New/deep"_s));
    }

    void theFailingDoubleFailsWhereItIsTold()
    {
        TemporaryInstallation disk;
        DiskFileSystem real;
        FailingFileSystem files(real);
        files.failAt(2, Kind::InUse);
        files.write(disk.path(u"a"_s), "a");
        QVERIFY(fails(Kind::InUse, [&] { files.copy(disk.path(u"a"_s), disk.path(u"b"_s)); }));
        files.createFolder(disk.path(u"Folder"_s));
        QCOMPARE(files.calls(), 3);
        files.failOn(u"FOLDER"_s, Kind::PermissionDenied);
        QVERIFY(fails(Kind::PermissionDenied, [&] { files.removeFolder(disk.path(u"Folder"_s)); }));
        QCOMPARE(disk.tree(), QStringList{u"a"_s});
    }
};

QTEST_GUILESS_MAIN(FileSystemTest)
#include "FileSystemTest.moc"
