#include "platform/DiskFileSystem.h"
#include "platform/Paths.h"
#include "tests/support/TemporaryInstallation.h"

#include <QFile>
#include <QRandomGenerator>
#include <QTest>
#include <functional>

using namespace Qt::StringLiterals;
using Kind = FileError::Kind;

class FileSystemTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<TemporaryInstallation> m_disk;
    DiskFileSystem m_files;

    QString at(const QString& path) const { return m_disk->path(path); }

private Q_SLOTS:
    void init() { m_disk = std::make_unique<TemporaryInstallation>(); }

    void pathsAsTexts()
    {
        QCOMPARE(FolderOf(u"c:\\a\\b/"_s) + FolderOf(u"/a"_s) + FolderOf(u"a"_s) + FolderOf(u"/"_s),
                 u"c:/a/"_s);
        QCOMPARE(BaseNameOf(u"a.d/b"_s) + BaseNameOf(u"a.d/c.d.wad"_s), u"bc.d"_s);
        QCOMPARE(FileNameOf(u"c:\\a/b.wad"_s) + FileNameOf(u"/c/"_s) + FileNameOf(u"/"_s), u"b.wadc"_s);
    }

    void anySpellingFindsTheFile()
    {
        const QString map = u"VYKGames/Hölle/Map.WAD"_s;
        m_disk->add(map, "map");
        QRandomGenerator random(1);
        for (int round = 0; round < 100; ++round) {
            QString spelled = map;
            for (QChar& c : spelled)
                c = random.bounded(2) ? c.toLower() : c == u'/' && random.bounded(2) ? u'\\' : c.toUpper();
            QCOMPARE(m_files.actualPath(at(spelled)), at(map));
        }
        QCOMPARE(m_files.actualPath(at(u"vykGAMES/../vykgames/hölle/"_s)),
                 at(u"VYKGames/../VYKGames/Hölle"_s));

        if (OnWindows)
            return;
        // The exact spelling wins, then the first in ascending order.
        m_disk->add(u"data/one"_s);
        m_disk->add(u"DATA/two"_s);
        QVERIFY(m_files.fileExists(at(u"data/ONE"_s)) && !m_files.fileExists(at(u"Data/one"_s)));
        for (const QString& name : {u"ab"_s, u"cd"_s, u"ef"_s, u"gh"_s, u"ij"_s}) {
            m_disk->addFolder(name);
            m_disk->addFolder(name.toUpper());
            QCOMPARE(m_files.actualPath(at(name[0] + name.sliced(1).toUpper())), at(name.toUpper()));
        }
    }

    void changesKeepTheSpelling()
    {
        m_disk->add(u"Data/Config.vyk"_s, "old");
        const QByteArray large(3'000'001, 'x');
        m_files.write(at(u"DATA/.fresh"_s), "\0\n"_ba);
        m_files.write(at(u"large"_s), large);
        m_files.copy(at(u"LARGE"_s), at(u"Data/CONFIG.VYK"_s));
        m_files.copy(at(u"data/.Fresh"_s), at(u"copied"_s));
        m_files.move(at(u"COPIED"_s), at(u"Copy"_s));
        QCOMPARE(m_disk->tree().join(u' '), u"Copy Data/.fresh Data/Config.vyk large"_s);
        QVERIFY(m_disk->read(u"Data/Config.vyk"_s) == large);
        QCOMPARE(m_disk->read(u"Copy"_s), "\0\n"_ba);

        m_files.createFolder(at(u"data\\New\\deep/"_s));
        m_files.createFolder(at(u"DATA/new"_s));
        m_files.createFolder(at(u"data/aged"_s));
        m_files.removeFolder(at(u"data/new/DEEP"_s));
        // Lists ascend without regard to case.
        const auto listed = [&](const QString& folder) {
            return (m_files.folders(at(folder)) + m_files.files(at(folder))).join(u' ');
        };
        QCOMPARE(listed(u"."_s) + u'|' + listed(u"DATA"_s), u"Data Copy large|aged New .fresh Config.vyk"_s);
        QVERIFY(listed(u"Data/New"_s).isEmpty());
    }

    void whatIsRefusedChangesNothing()
    {
        m_disk->add(u"locked"_s, "old");
        m_disk->add(u"new"_s, "new");
        m_disk->add(u"Games/file"_s);
        const QString locked = at(u"Locked"_s), other = at(u"new"_s);
        const QString none = at(u"none"_s), games = at(u"games"_s);
        QVERIFY(QFile::setPermissions(at(u"locked"_s), QFile::ReadOwner));
        const std::pair<Kind, std::function<void()>> refused[] = {
            {Kind::PermissionDenied, [&] { m_files.write(locked, "x"); }},
            {Kind::PermissionDenied, [&] { m_files.copy(other, locked); }},
            {Kind::PermissionDenied, [&] { m_files.move(other, locked); }},
            {Kind::Other, [&] { m_files.write(games, "x"); }},
            {Kind::Other, [&] { m_files.write(none + QChar::Null, "x"); }},
            {Kind::NotFound, [&] { m_files.write(none + u"/x"_s, "x"); }},
            {Kind::NotFound, [&] { m_files.copy(none, other); }},
            {Kind::Other, [&] { m_files.removeTree(other); }},
            {Kind::Other, [&] { m_files.remove(games); }},
            {Kind::Exists, [&] { m_files.createFolder(games + u"/File"_s); }},
            {Kind::Exists, [&] { m_files.removeFolder(games); }},
            {Kind::Exists, [&] { m_files.move(other, games); }},
        };
        for (const auto& [kind, change] : refused) {
            try {
                change();
                QFAIL("was not refused");
            } catch (const FileError& error) {
                QVERIFY2(error.kind() == kind, error.what());
            }
            QCOMPARE(m_disk->tree().join(u' '), u"Games/file locked new"_s); // no temporary file
            QCOMPARE(m_disk->read(u"locked"_s) + m_disk->read(u"new"_s), "oldnew");
        }
        QVERIFY_THROWS_EXCEPTION(FileError, m_files.write(at(QString(300, u'n')), "x"));
        m_files.remove(locked);
        m_files.remove(locked); // is no failure
        QVERIFY(!m_disk->exists(u"locked"_s));
    }
};

QTEST_GUILESS_MAIN(FileSystemTest)
#include "FileSystemTest.moc"
