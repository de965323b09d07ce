#include "platform/DiskFileSystem.h"
#include "platform/FileLock.h"
#include "platform/WidePath.h"
#include "tests/support/TemporaryInstallation.h"

#include <QTest>
#include <windows.h>

using namespace Qt::StringLiterals;
using Kind = FileError::Kind;

class FileSystemWin32Test : public QObject
{
    Q_OBJECT

    // The file as another program has it open.
    class Opened
    {
    public:
        Opened(const QString& path, DWORD shared)
            : m_file(CreateFileW(WidePath(path).c_str(), GENERIC_READ, shared, nullptr, OPEN_EXISTING,
                                 FILE_ATTRIBUTE_NORMAL, nullptr))
        {
        }
        ~Opened() { CloseHandle(m_file); }
        Q_DISABLE_COPY_MOVE(Opened)

    private:
        HANDLE m_file;
    };

private Q_SLOTS:
    void aFileInUse()
    {
        TemporaryInstallation disk;
        disk.add(u"Größe/File"_s, "text");
        const QString path = disk.path(u"größe/file"_s);
        QVERIFY(!IsFileLocked(path));
        QVERIFY(!IsFileLocked(disk.path(u"none"_s)));
        DiskFileSystem files;
        {
            const Opened byReader(path, FILE_SHARE_READ);
            QVERIFY(IsFileLocked(path));
            const auto kindOf = [](const auto& call) {
                try {
                    call();
                } catch (const FileError& error) {
                    return error.isDenied();
                }
                return false;
            };
            QVERIFY(kindOf([&] { files.write(path, "new"); }));
            QVERIFY(kindOf([&] { files.overwrite(path, "new"); }));
            QVERIFY(kindOf([&] { files.remove(path); }));
            QVERIFY(kindOf([&] { files.move(path, disk.path(u"other"_s)); }));
            QVERIFY(kindOf([&] { files.removeTree(disk.path(u"Größe"_s)); }));
            const Opened alone(disk.path(u"none"_s), 0);
        }
        QCOMPARE(disk.read(u"Größe/File"_s), "text"_ba);
        QCOMPARE(disk.tree(), QStringList{u"Größe/File"_s});
        QVERIFY(!IsFileLocked(path));
    }

    void readOnlyFilesGoWithTheirFolder()
    {
        TemporaryInstallation disk;
        for (const QString& name : {u"Pack/a"_s, u"Pack/Sub/b"_s, u"c"_s}) {
            disk.add(name, "text");
            SetFileAttributesW(WidePath(disk.path(name)).c_str(), FILE_ATTRIBUTE_READONLY);
        }
        SetFileAttributesW(WidePath(disk.path(u"Pack/Sub"_s)).c_str(), FILE_ATTRIBUTE_READONLY);
        DiskFileSystem files;
        QVERIFY(files.isReadOnly(disk.path(u"C"_s)));
        QVERIFY_THROWS_EXCEPTION(FileError, files.write(disk.path(u"c"_s), "new"));
        files.remove(disk.path(u"C"_s));
        files.removeTree(disk.path(u"pack"_s));
        QVERIFY(disk.tree().isEmpty() && !disk.exists(u"Pack"_s));
    }
};

QTEST_GUILESS_MAIN(FileSystemWin32Test)
#include "FileSystemWin32Test.moc"
