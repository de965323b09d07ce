// Zip files, also those that a hostile hand made: what is extracted, and that nothing lies elsewhere.
#include "platform/Archive.h"

#include "platform/DiskFileSystem.h"
#include "platform/FileNames.h"
#include "tests/support/FailingFileSystem.h"
#include "tests/support/TemporaryInstallation.h"
#include "tests/support/ZipMaker.h"

#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

using Files = QMap<QString, QByteArray>;

struct Extracting
{
    TemporaryInstallation place;
    DiskFileSystem disk;
    FailingFileSystem files{disk};
    int stepsUntilCancelled = -1;

    explicit Extracting(const QByteArray& zip)
    {
        place.add(u"a.zip"_s, zip);
        place.addFolder(u"in/side"_s);
    }

    Extraction run(QStringList passwords = {})
    {
        passwords << QString();
        return ExtractArchive(files, place.path(u"a.zip"_s), place.path(u"in/side"_s),
                              {.password = [&] { return passwords.takeFirst(); },
                               .progress = [&](qint64, qint64) { return stepsUntilCancelled-- != 0; }});
    }

    // What lies in the folder; a file anywhere else counts with its whole path.
    Files found() const
    {
        Files all;
        for (const QString& file : place.tree())
            all[file.startsWith(u"in/side/"_s) ? file.mid(8) : file] = place.read(file);
        all.remove(u"a.zip"_s);
        return all;
    }
};

const QByteArray wad = QByteArray("a wad of some length ").repeated(3);

QByteArray twoWads()
{
    return ZipMaker().add({"one.wad", wad, ZipMaker::Deflated}).add("two.wad", wad).bytes();
}

} // namespace

class ArchiveTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void memberNames()
    {
        const QByteArray given =
            "folder/deep/in.txt;../../up.wad;C:\\a\\drive.wad;D:.x;a/..;...; ;folder/;con;"
            "a/AUX.wad;company.wad;what?\"<>|*:.txt;line\nbreak;dots.wad. .;"
            "Stra\341e \201ber.wad;caf\303\251.wad;" +
            QByteArray(300, 'x') + ".wad";
        ZipMaker maker;
        for (const QByteArray& name : given.split(';'))
            maker.add(name, "x");
        Extracting zip(maker.add({.name = "caf\303\251.txt", .bytes = "x", .isUtf8 = true}).bytes());
        QCOMPARE(zip.run(), Extraction::Done);
        const QString names = QStringList(zip.found().keys()).join(u'|');
        QCOMPARE(names, u".x|Straße über.wad|_AUX.wad|_con|café.txt|café.wad|company.wad|dots.wad|drive.wad|"
                        "in.txt|line_break|up.wad|what_______.txt|"_s +
                            QString(251, u'x') + u".wad"_s);

        // Whatever a name is made of, it becomes one that stays as it is, or none.
        const QString characters = u"./\\: cC?é\x7f\u0001日OoNn1-"_s;
        QRandomGenerator random(1);
        for (int round = 0; round < 5000; ++round) {
            QString text(random.bounded(2) * 254, u'é');
            for (int i = random.bounded(6); i > 0; --i)
                text += characters[random.bounded(static_cast<int>(characters.size()))];
            const QString name = UsableNameOf(text);
            QVERIFY(name.isEmpty() || (IsUsableName(name) && UsableNameOf(name) == name));
        }
    }

    void contentsTimesAndLinks()
    {
        const QByteArray large(3'000'000, 'w');
        Extracting zip(ZipMaker()
                           .add({.name = "One/Map.WAD", .bytes = "first"}) // the later one stays
                           .add({.name = "Two/map.wad", .bytes = large, .packing = ZipMaker::Deflated})
                           .add({.name = "link", .bytes = "/etc/passwd", .unixMode = 0120777})
                           .add("there", "new")
                           .bytes());
        zip.place.add(u"outside"_s, "old");
        QVERIFY(QFile::link(zip.place.path(u"outside"_s), zip.place.path(u"in/side/there"_s)));
        QCOMPARE(zip.run(), Extraction::Done);
        const Files expected{{u"map.wad"_s, large}, {u"there"_s, "new"}, {u"outside"_s, "old"}};
        QVERIFY(zip.found() == expected);
        QVERIFY(!QFileInfo(zip.place.path(u"in/side/there"_s)).isSymLink());
        QCOMPARE(QFileInfo(zip.place.path(u"in/side/map.wad"_s)).lastModified().date(), QDate(2020, 1, 1));
    }

    void passwords()
    {
        for (const char* encryption : {"traditional", "aes256"}) {
            // The older encryption lets one wrong password in 256 pass, depending on random bytes in the zip.
            QByteArray locked;
            int tries = 20;
            do
                locked = LockedZip("door.wad", "wad", "s\303\251same", encryption);
            while (Extracting(locked).run({u"wrong"_s}) != Extraction::NoPassword && --tries);
            QVERIFY(tries > 0 && Extracting(locked).run() == Extraction::NoPassword);
            Extracting known(locked);
            QCOMPARE(known.run({u"wrong"_s, u"s\u00e9same"_s}), Extraction::Done);
            QCOMPARE(known.found(), (Files{{u"door.wad"_s, "wad"}}));
        }
    }

    // No damage makes a file of other bytes pass for a good one.
    void damaged()
    {
        const QByteArray good = twoWads();
        QByteArrayList none{"a text file", QByteArray(100'000, 0)};
        for (const quint32 claimed : {1U, 0x7fffffffU, 0xfffffff0U})
            none << ZipMaker().add({.name = "l.wad", .bytes = wad, .claimedSize = claimed}).bytes();
        for (qsizetype at = 0; at < good.size(); ++at) {
            none << good.first(at);
            Extracting zip(QByteArray(good).replace(at, 1, QByteArray(1, good[at] ^ (1 << at % 8))));
            QVERIFY(zip.run() != Extraction::Done || zip.found().values().count(wad) == zip.found().size());
        }
        for (const QByteArray& bytes : none) {
            Extracting zip(bytes);
            QCOMPARE(zip.run(), Extraction::NotAZip);
            QVERIFY(zip.found().value(u"l.wad"_s).size() <= wad.size());
        }
        // Some ten kilobytes that would give gigabytes.
        const ZipMaker::Member zeros{"b", QByteArray(80 * 1024 * 1024, 0), ZipMaker::Deflated};
        Extracting bomb(ZipMaker().add(zeros).bytes());
        QCOMPARE(bomb.run(), Extraction::TooLarge);
        QVERIFY(bomb.found().value(u"b"_s).size() <= 66 * 1024 * 1024);
    }

    // Each reason has a result of its own, and what would fill the memory is not tried.
    void whatCannotBeUnpacked()
    {
        const QByteArray good = ZipMaker().add({"one.wad", wad, ZipMaker::Deflated}).bytes();
        const auto packed = [&good](char method) {
            QByteArray zip = good;
            zip[8] = zip[zip.indexOf("PK\1\2") + 10] = method;
            return zip;
        };
        QByteArray commented = good + QByteArray(0x5000, 'c'), largeDirectory = good;
        commented[good.size() - 1] = 0x50;
        largeDirectory[good.size() - 22 + 15] = 0x10;
        const std::pair<QByteArray, Extraction> rows[] = {
            {packed(9), Extraction::Deflate64},
            {packed(6), Extraction::Imploded},
            {packed(14), Extraction::OtherPacking},
            {packed(93), Extraction::OtherPacking},
            {commented, Extraction::LongComment},
            {largeDirectory, Extraction::TooLarge},
            {ZipMaker().add("folder/", {}).add("..", "x").bytes(), Extraction::NoFiles}};
        for (const auto& [bytes, result] : rows) {
            Extracting zip(bytes);
            QCOMPARE(zip.run(), result);
            QVERIFY(zip.found().isEmpty());
        }
    }

    // Wherever it is cancelled or the disk fails: what was extracted before stays, and is whole.
    void cancelledAndFailing()
    {
        auto result = Extraction::Cancelled;
        for (int steps = 0; result == Extraction::Cancelled; ++steps) {
            Extracting zip(twoWads());
            zip.stepsUntilCancelled = steps;
            result = zip.run();
            QCOMPARE(zip.found().values().count(wad), zip.found().size());
            QVERIFY(steps > 3 || result == Extraction::Cancelled);
        }
        for (const int call : {1, 2}) {
            Extracting zip(twoWads());
            zip.files.failAt(call, FileError::Kind::PermissionDenied);
            QVERIFY_THROWS_EXCEPTION(FileError, zip.run());
            QCOMPARE(zip.found().values(), QByteArrayList(call - 1, wad));
        }
    }
};

QTEST_GUILESS_MAIN(ArchiveTest)
#include "ArchiveTest.moc"
