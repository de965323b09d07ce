// Zip files, also those that a hostile hand made: what is extracted, and that nothing lies elsewhere.
#include "platform/Archive.h"

#include "platform/DiskFileSystem.h"
#include "platform/FileNames.h"
#include "tests/support/FailingFileSystem.h"
#include "tests/support/TemporaryInstallation.h"
#include "tests/support/ZipMaker.h"

#include <QFile>
#include <QFileInfo>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

using Files = QMap<QString, QByteArray>;

class Extracting
{
public:
    explicit Extracting(const QByteArray& zip)
    {
        place.add(u"a.zip"_s, zip);
        place.addFolder(u"in/side"_s);
    }

    Extraction run()
    {
        const ExtractionCalls calls{
            .password = [this] { return passwords.isEmpty() ? QString() : passwords.takeFirst(); },
            .progress = [this](qint64, qint64) { return stepsUntilCancelled-- != 0; },
        };
        return ExtractArchive(files, place.path(u"a.zip"_s), place.path(u"in/side"_s), calls);
    }

    // What lies in the folder; a file anywhere else counts with its whole path.
    Files found() const
    {
        Files all;
        for (const QString& file : place.tree())
            if (file != u"a.zip")
                all[file.startsWith(u"in/side/"_s) ? file.mid(8) : file] = place.read(file);
        return all;
    }

    TemporaryInstallation place;
    DiskFileSystem disk;
    FailingFileSystem files{disk};
    QStringList passwords;
    int stepsUntilCancelled = -1;
};

// The older encryption lets one wrong password in 256 pass, depending on random bytes at the zip's beginning.
QByteArray lockedAgainstWrong(const char* encryption)
{
    constexpr int tries = 20;
    QByteArray locked;
    for (int i = 0; i < tries; ++i) {
        locked = LockedZip("door.wad", "wad", "s\xc3\xa9same", encryption);
        Extracting zip(locked);
        zip.passwords = {u"wrong"_s};
        if (zip.run() == Extraction::NotAZip)
            break;
    }
    return locked;
}

} // namespace

class ArchiveTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void memberNames()
    {
        const struct
        {
            QByteArray name;
            QString expected; // empty: not extracted
            bool isUtf8 = false;
        } rows[] = {
            {"plain.wad", u"plain.wad"_s},
            {"folder/deep/inner.txt", u"inner.txt"_s},
            {"../../up.wad", u"up.wad"_s},
            {"/etc/absolute.wad", u"absolute.wad"_s},
            {"C:\\games\\drive.wad", u"drive.wad"_s},
            {"C:drive.wad", u"drive.wad"_s},
            {"a/..", QString()},
            {"a/.", QString()},
            {"...", QString()},
            {" ", QString()},
            {"folder/", QString()},
            {"con", u"_con"_s},
            {"a/AUX.wad", u"_AUX.wad"_s},
            {"com1.txt", u"_com1.txt"_s},
            {"company.wad", u"company.wad"_s},
            {"what?\"<>|*:.txt", u"what_______.txt"_s},
            {"line\nbreak.txt", u"line_break.txt"_s},
            {"dots.wad. .", u"dots.wad"_s},
            {"Stra\xe1"
             "e \x81"
             "ber.wad",
             u"Stra\u00dfe \u00fcber.wad"_s}, // code page 437
            {"caf\xc3\xa9.wad", u"caf\u00e9.wad"_s},
            {"caf\xc3\xa9.txt", u"caf\u00e9.txt"_s, true},
            {QByteArray(300, 'x') + ".wad", QString(251, u'x') + u".wad"_s},
        };
        for (const auto& row : rows) {
            Extracting zip(ZipMaker().add({.name = row.name, .bytes = "x", .isUtf8 = row.isUtf8}).bytes());
            QCOMPARE(zip.run(), Extraction::Done);
            const Files expected = row.expected.isEmpty() ? Files() : Files{{row.expected, "x"}};
            QVERIFY2(zip.found() == expected, qPrintable(QString::fromLatin1(row.name) + u" gives "_s +
                                                         QStringList(zip.found().keys()).join(u' ')));
        }
        for (const QString& name :
             {u"Alpha"_s, u" x"_s, u"a.b"_s, u"\u00dcber"_s, u".hidden"_s, u"console"_s})
            QVERIFY2(IsUsableName(name), qPrintable(name));
    }

    void contentsAndTimes()
    {
        const QByteArray large(3'000'000, 'w');
        Extracting zip(ZipMaker()
                           .add({.name = "One/Map.WAD", .bytes = "first"})
                           .add({.name = "Two/map.wad", .bytes = large, .packing = ZipMaker::Deflated})
                           .add({.name = "empty.txt", .bytes = ""})
                           .bytes());
        QCOMPARE(zip.run(), Extraction::Done);
        QVERIFY(zip.found() == (Files{{u"map.wad"_s, large}, {u"empty.txt"_s, ""}})); // the later one stays
        QCOMPARE(QFileInfo(zip.place.path(u"in/side/map.wad"_s)).lastModified().date(), QDate(2020, 1, 1));
    }

    void links()
    {
        Extracting zip(ZipMaker()
                           .add({.name = "link", .bytes = "/etc/passwd", .unixMode = 0120777})
                           .add({.name = "file", .bytes = "x"})
                           .add({.name = "there", .bytes = "new"})
                           .bytes());
        zip.place.add(u"outside"_s, "old");
        QVERIFY(QFile::link(zip.place.path(u"outside"_s), zip.place.path(u"in/side/there"_s)));
        QCOMPARE(zip.run(), Extraction::Done);
        QVERIFY(zip.found() == (Files{{u"file"_s, "x"}, {u"there"_s, "new"}, {u"outside"_s, "old"}}));
        QVERIFY(!QFileInfo(zip.place.path(u"in/side/there"_s)).isSymLink());
    }

    void passwords()
    {
        for (const char* encryption : {"traditional", "aes256"}) {
            const QByteArray locked = lockedAgainstWrong(encryption);
            Extracting known(locked);
            known.passwords = {u"wrong"_s, u"s\u00e9same"_s};
            QCOMPARE(known.run(), Extraction::Done);
            QCOMPARE(known.found().value(u"door.wad"_s), "wad");
            for (const QStringList& tried : {QStringList{}, QStringList{u"wrong"_s}}) {
                Extracting unknown(locked);
                unknown.passwords = tried;
                QCOMPARE(unknown.run(), Extraction::NotAZip);
            }
        }
    }

    void damaged()
    {
        const QByteArray wad = QByteArray("a wad of some length ").repeated(100);
        const QByteArray good = ZipMaker()
                                    .add({.name = "one.wad", .bytes = wad, .packing = ZipMaker::Deflated})
                                    .add("two.wad", wad)
                                    .bytes();
        for (qsizetype length = 0; length < good.size(); length += length < 200 ? 31 : 301) {
            Extracting zip(good.first(length));
            QVERIFY2(zip.run() == Extraction::NotAZip, qPrintable(QString::number(length)));
        }
        QByteArray changed = good; // a byte of the stored member
        changed[good.indexOf("two.wad") + 300] = '#';
        Extracting flipped(changed);
        QCOMPARE(flipped.run(), Extraction::NotAZip);
        for (const quint32 claimed : {1U, 0x7fffffffU, 0xfffffff0U}) {
            Extracting liar(ZipMaker().add({.name = "l.wad", .bytes = wad, .claimedSize = claimed}).bytes());
            QCOMPARE(liar.run(), Extraction::NotAZip);
            QVERIFY(liar.found().value(u"l.wad"_s).size() <= wad.size());
        }
        for (const QByteArray& other : {QByteArray(), "a text file"_ba, QByteArray(100'000, 0),
                                        TemporaryInstallation::wad("PWAD", {u"MAP01"_s})}) {
            Extracting zip(other);
            QCOMPARE(zip.run(), Extraction::NotAZip);
            QVERIFY(zip.found().isEmpty());
        }
    }

    // Some ten kilobytes that claim, and would give, gigabytes.
    void bombs()
    {
        const QByteArray zeros(80 * 1024 * 1024, 0);
        ZipMaker maker;
        maker.add({.name = "b0", .bytes = zeros, .packing = ZipMaker::Deflated});
        Extracting bomb(maker.bytes());
        QCOMPARE(bomb.run(), Extraction::TooLarge);
        for (const QByteArray& bytes : bomb.found())
            QVERIFY(bytes.size() <= 66 * 1024 * 1024);
    }

    void cancelledAndFailing()
    {
        const QByteArray zip = ZipMaker().add("one.wad", "1").add("two.wad", "2").bytes();
        Extracting cancelled(zip);
        cancelled.stepsUntilCancelled = 0;
        QCOMPARE(cancelled.run(), Extraction::Cancelled);
        QVERIFY(cancelled.found().isEmpty());
        Extracting failing(zip);
        failing.files.failOn(u"two.wad"_s, FileError::Kind::PermissionDenied);
        QVERIFY_THROWS_EXCEPTION(FileError, failing.run());
        QVERIFY(failing.found() == (Files{{u"one.wad"_s, "1"}}));
        Extracting missing(zip);
        QFile::remove(missing.place.path(u"a.zip"_s));
        QVERIFY_THROWS_EXCEPTION(FileError, missing.run());
    }
};

QTEST_GUILESS_MAIN(ArchiveTest)
#include "ArchiveTest.moc"
