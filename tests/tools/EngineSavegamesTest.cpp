// Savegames under the launcher's and the engine's names: nothing is lost, whatever stops the adapter.
#include "tools/engine/EngineSavegames.h"
#include "platform/DiskFileSystem.h"

#include <QFile>
#include <QMap>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// The real disk, on which the n-th change fails, and all that follow.
class FailingDisk : public DiskFileSystem
{
public:
    int changesLeft = 1000;

    void copy(const QString& from, const QString& to) override
    {
        spend(to);
        DiskFileSystem::copy(from, to);
    }
    void remove(const QString& path) override
    {
        spend(path);
        DiskFileSystem::remove(path);
    }

private:
    void spend(const QString& path)
    {
        if (--changesLeft < 0)
            throw FileError(FileError::Kind::Other, path, u"disk failed"_s);
    }
};

} // namespace

class EngineSavegamesTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_folder;

    // `age` in seconds: the time of the last change, so that no test waits for a clock.
    void put(const QString& name, const QByteArray& content, int age = 0) const
    {
        QFile file(m_folder->filePath(name));
        QVERIFY(file.open(QFile::WriteOnly));
        file.write(content);
        file.flush();
        QVERIFY(file.setFileTime(QDateTime::currentDateTime().addSecs(-age), QFile::FileModificationTime));
    }

    QMap<QString, QByteArray> contents() const
    {
        QMap<QString, QByteArray> all;
        DiskFileSystem files;
        for (const QString& name : files.files(m_folder->path()))
            all.insert(name, files.read(m_folder->filePath(name), FileSystem::maximumSize));
        return all;
    }

    EngineSavegames savegames(FileSystem& files) const
    {
        return {files, m_folder->path(), u"doomsav%1.dsg"_s};
    }

    using Contents = QMap<QString, QByteArray>;

private Q_SLOTS:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void aGameFromStartToEnd()
    {
        put(u"KeldraxSav0.vyksg"_s, "kept", 100);
        put(u"KeldraxSav9.vyksg"_s, "old", 100);
        DiskFileSystem files;
        EngineSavegames saves = savegames(files);
        saves.present();
        QCOMPARE(contents().value(u"doomsav0.dsg"_s), "kept");
        QCOMPARE(contents().value(u"doomsav9.dsg"_s), "old");

        put(u"doomsav9.dsg"_s, "new", 50);
        put(u"doomsav12.dsg"_s, "page two");
        saves.publish();
        QCOMPARE(contents().value(u"KeldraxSav9.vyksg"_s), "new");

        // The player deletes a savegame in the launcher: an unchanged copy does not bring it back now.
        QVERIFY(QFile::remove(m_folder->filePath(u"KeldraxSav9.vyksg"_s)));
        saves.publish();
        QVERIFY(!contents().contains(u"KeldraxSav9.vyksg"_s));

        put(u"doomsav3.dsg"_s, "last words");
        put(u"doomsav9.dsg"_s, "newest", 20);
        saves.publishAll();
        saves.removePublished();
        QCOMPARE(contents(), (Contents{{u"KeldraxSav0.vyksg"_s, "kept"},
                                       {u"KeldraxSav3.vyksg"_s, "last words"},
                                       {u"KeldraxSav9.vyksg"_s, "newest"},
                                       {u"doomsav12.dsg"_s, "page two"}}));
        QCOMPARE(saves.problems(), QStringList{});
    }

    void leftOversOfAnAdapterThatWasKilled()
    {
        put(u"doomsav1.dsg"_s, "only here", 100);
        put(u"KeldraxSav2.vyksg"_s, "two, older", 100);
        put(u"doomsav2.dsg"_s, "two, newer", 50);
        put(u"KeldraxSav3.vyksg"_s, "three, newer", 50);
        put(u"doomsav3.dsg"_s, "three, older", 100);
        put(u"KeldraxSav4.vyksg"_s, "the same", 100);
        put(u"doomsav4.dsg"_s, "the same", 50);
        put(u"KeldraxSav5.vyksg"_s, "the disk was full", 100);
        put(u"doomsav5.dsg"_s, "", 50);
        DiskFileSystem files;
        EngineSavegames saves = savegames(files);
        saves.present();
        for (int slot = 1; slot <= 5; ++slot)
            QCOMPARE(contents().value(u"doomsav%1.dsg"_s.arg(slot)),
                     contents().value(u"KeldraxSav%1.vyksg"_s.arg(slot)));
        saves.removePublished();
        QCOMPARE(contents(), (Contents{{u"KeldraxSav1.vyksg"_s, "only here"},
                                       {u"KeldraxSav2.old"_s, "two, older"},
                                       {u"KeldraxSav2.vyksg"_s, "two, newer"},
                                       {u"KeldraxSav3.old"_s, "three, older"},
                                       {u"KeldraxSav3.vyksg"_s, "three, newer"},
                                       {u"KeldraxSav4.vyksg"_s, "the same"},
                                       {u"KeldraxSav5.vyksg"_s, "the disk was full"}}));
    }

    void whatIsNotPublishedIsNotRemoved()
    {
        put(u"doomsav1.dsg"_s, "not published");
        put(u"doomsav2.dsg"_s, "");
        put(u"doomsav3.dsg"_s, "longer than its copy");
        put(u"KeldraxSav3.vyksg"_s, "longer");
        const Contents before = contents();
        DiskFileSystem files;
        EngineSavegames saves = savegames(files);
        saves.removePublished();
        QCOMPARE(contents(), before);
        saves.publishAll();
        QVERIFY(!contents().contains(u"KeldraxSav2.vyksg"_s)); // an empty file is no savegame
    }

    // Whichever change of the disk fails, every savegame is still there under one name or another, and
    // the next run finds it.
    void everyStepMayFail()
    {
        bool failedOnce = false;
        for (int changes = 0; changes < 12; ++changes) {
            init();
            put(u"KeldraxSav0.vyksg"_s, "zero", 100);
            put(u"KeldraxSav1.vyksg"_s, "one, older", 100);
            put(u"doomsav1.dsg"_s, "one, newer", 50);
            FailingDisk disk;
            disk.changesLeft = changes;
            EngineSavegames saves = savegames(disk);
            saves.present();
            put(u"doomsav2.dsg"_s, "two", 20);
            saves.publish();
            put(u"doomsav3.dsg"_s, "three", 10);
            saves.publishAll();
            saves.removePublished();
            failedOnce = failedOnce || !saves.problems().isEmpty();
            for (const char* content : {"zero", "one, newer", "two", "three"})
                QVERIFY2(contents().values().contains(QByteArray(content)), content);

            DiskFileSystem files;
            EngineSavegames next = savegames(files);
            next.present();
            next.removePublished();
            QCOMPARE(contents(), (Contents{{u"KeldraxSav0.vyksg"_s, "zero"},
                                           {u"KeldraxSav1.old"_s, "one, older"},
                                           {u"KeldraxSav1.vyksg"_s, "one, newer"},
                                           {u"KeldraxSav2.vyksg"_s, "two"},
                                           {u"KeldraxSav3.vyksg"_s, "three"}}));
        }
        QVERIFY(failedOnce);
    }
};

QTEST_GUILESS_MAIN(EngineSavegamesTest)
#include "EngineSavegamesTest.moc"
