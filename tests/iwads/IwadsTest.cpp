#include "iwads/IwadPaths.h"
#include "tests/support/LauncherFixture.h"

using namespace Qt::StringLiterals;

namespace {

class IwadFixture : public LauncherFixture
{
public:
    IwadPaths& iwads = launcher.iwads;

    QString search(GameFamily family)
    {
        QStringList found;
        iwads = {};
        SearchIwads(iwads, found, files, launcher.paths, launcher.environment);
        return QDir(installation.root()).relativeFilePath(iwads.of(family));
    }
    void build() { BuildIwadList(iwads, files, launcher.paths, launcher.environment); }
    void setList(const QByteArray& bytes) { installation.add(u"VYKLaunch/Data/iwads.cfg"_s, bytes); }
    bool hasList() const { return installation.exists(u"VYKLaunch/Data/iwads.cfg"_s); }
};

} // namespace

class IwadsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Each place is better than all after it: the IWAD is removed from one after the other.
    void precedence()
    {
        const QStringList fullGames{u"dollar"_s, u"."_s, u"Data"_s, u"Iwads"_s};
        const QStringList shareware{u"dollar"_s, u"Iwads"_s, u"Data"_s, u"."_s};
        for (const QString& name :
             {u"Doom.wad"_s, u"DOOM2.WAD"_s, u"TnT.wad"_s, u"plutonia.wad"_s, u"Doom1.wad"_s}) {
            const GameFamily family = FamilyOfIwad(name).value();
            const QStringList places = family == GameFamily::Shareware ? shareware : fullGames;
            IwadFixture f;
            f.launcher.environment = {f.path(u"dollar"_s), f.path(u"plain"_s)};
            for (const QString& place : places + QStringList{u"nowhere"_s, u"plain"_s})
                f.installation.add(place + u'/' + name);
            for (const QString& place : places) {
                const QString file = QDir::cleanPath(place + u'/' + name);
                QCOMPARE(f.search(family), file);
                QVERIFY(QFile::remove(f.path(file)));
            }
            f.search(family); // the plain variable does not count while the other one's folder exists
            QVERIFY(!f.iwads.anyKnown());
            f.launcher.environment.dollarDoomWadDir += u"/gone"_s;
            QCOMPARE(f.search(family), u"plain/"_s + name);
            f.launcher.environment = {};
            f.search(family);
            QVERIFY(!f.iwads.anyKnown());
        }
    }

    void aFullListStopsTheSearch()
    {
        IwadFixture f;
        f.installation.add(u"Data/Doom.wad"_s);
        f.installation.add(u"env/Doom2.wad"_s);
        f.launcher.environment.doomWadDir = f.path(u"env"_s);
        f.iwads.ShowIwads[3] = u"/somewhere/Tnt.wad"_s;
        QStringList found;
        SearchIwads(f.iwads, found, f.files, f.launcher.paths, f.launcher.environment);
        QCOMPARE(found, {f.path(u"env/Doom2.wad"_s)});
    }

    void build()
    {
        IwadFixture f;
        for (const QString& name : {u"Doom1.wad"_s, u"Doom.wad"_s, u"Doom2.wad"_s, u"TNT.WAD"_s,
                                    u"Plutonia.wad"_s, u"Doom2.VYKgwa"_s, u"TNT.vykGWA"_s, u"Doom1.VYKgwa"_s})
            f.installation.add(u"Data/"_s + name);
        QVERIFY(QFile::setPermissions(f.path(u"Data/Doom2.VYKgwa"_s), QFile::ReadOwner));
        f.build();
        QStringList boxes;
        for (const QString& box : f.iwads.ShowIwads)
            boxes << box.section(u'/', -1);
        QCOMPARE(boxes, QStringList({u"Doom2.wad"_s, u"Doom.wad"_s, u"TNT.WAD"_s, u"Plutonia.wad"_s}));
        // The fifth has no box, and its nodes are not looked at.
        QCOMPARE(f.installation.tree().filter(u"gwa"_s, Qt::CaseInsensitive), {u"Data/Doom1.VYKgwa"_s});
        QVERIFY(!f.iwads.of(GameFamily::Shareware).isEmpty());

        SaveIwadList(f.iwads, f.files, f.launcher.paths);
        QCOMPARE(
            f.installation.read(u"VYKLaunch/Data/iwads.cfg"_s),
            QDir::toNativeSeparators(
                QStringList(f.iwads.ShowIwads.begin(), f.iwads.ShowIwads.end()).join(u"\r\n"_s) + u"\r\n"_s)
                .toLatin1());
        QCOMPARE(DoomGameTitles(f.iwads, true),
                 QStringList({u"Shareware Doom"_s, u"Doom/Ultimate Doom"_s, u"Doom II"_s,
                              u"The Plutonia Experiment"_s, u"TNT - Final Doom"_s}));
        QCOMPARE(DoomGameTitles(f.iwads, false).value(1), u"DOOM/ULTIMATE DOOM"_s);
    }

    void aNodeFileThatStaysIsNoFailure()
    {
        IwadFixture f;
        f.installation.add(u"Data/Doom2.wad"_s);
        f.installation.add(u"Data/Doom2.VYKgwa"_s);
        f.files.failOn(u"VYKgwa"_s, FileError::Kind::InUse);
        f.build();
        QVERIFY(!f.iwads.ShowIwads[0].isEmpty());
    }

    void savedList()
    {
        IwadFixture f;
        f.installation.add(u"Data/Doom2.wad"_s);
        for (const QString& name :
             {u"Größe/DOOM2.WAD"_s, u"Größe/tnt.wad"_s, u"Größe/other.wad"_s, u"x/Doom.wad"_s})
            f.installation.add(name);
        const QByteArray root = f.installation.root().toLatin1();
        f.setList(root +
                  "\\Gr\xF6\xDF"
                  "e\\doom2.wad\r\n" +
                  root +
                  "/gr\xF6\xDF"
                  "e/TNT.WAD\r\n" +
                  root +
                  "/Gr\xF6\xDF"
                  "e/other.wad\r\n\r\n" +
                  root + "/x/Doom.wad\r\n");
        f.build();
        QCOMPARE(f.iwads.of(GameFamily::Doom2), f.path(u"Data/Doom2.wad"_s)); // found by itself: wins
        QCOMPARE(f.iwads.of(GameFamily::Tnt), f.path(u"Größe/tnt.wad"_s));
        QVERIFY(f.iwads.of(GameFamily::Doom).isEmpty()); // only four lines count
        QCOMPARE(f.iwads.IwadFolder, f.path(u"Größe"_s));
        QCOMPARE(f.iwads.ShowIwads[1], f.path(u"Größe/tnt.wad"_s));
        QVERIFY(f.iwads.ShowIwads[2].isEmpty());
        QVERIFY(f.hasList());
    }

    void uselessList()
    {
        for (const QByteArray& bytes :
             {""_ba, "\r\n\r\n\r\n\r\n"_ba, "/nowhere/Doom.wad\r\nDoom2.wad\r\n"_ba, "/tmp\r\n"_ba,
              QByteArray("\0\xff\x80/\0\n\r\n../../\r\n\"%s\"\0", 20), QByteArray(100000, 'a')}) {
            IwadFixture f;
            f.setList(bytes);
            f.build();
            QVERIFY(!f.iwads.anyKnown());
            QVERIFY(!f.hasList());

            f.setList(bytes);
            f.files.failOn(u"iwads.cfg"_s, FileError::Kind::PermissionDenied);
            f.build(); // one that cannot be deleted is no failure either
            QVERIFY(f.hasList());
        }
    }

    void missingOnlyOutsideTheStandardPlaces()
    {
        IwadFixture f;
        f.launcher.environment = {f.path(u"dollar"_s), f.path(u"plain"_s)};
        const auto missing = [&f](const QString& name) {
            return IsIwadMissing(name, f.files, f.launcher.paths, f.launcher.environment);
        };
        f.installation.add(u"elsewhere/doom2.wad"_s);
        QVERIFY(missing(f.path(u"elsewhere/doom2.wad"_s)));
        for (const QString& place : {u"plain"_s, u"dollar"_s, u"."_s, u"Data"_s, u"Iwads"_s}) {
            f.installation.add(place + u"/DOOM2.wad"_s);
            QVERIFY2(!missing(u"doom2.wad"_s) && !missing(u"/x/Doom2"_s), qPrintable(place));
            QVERIFY(QFile::remove(f.path(place + u"/DOOM2.wad"_s)));
        }
    }

    void pathForAName()
    {
        IwadFixture f;
        for (const GameFamilyRow& row : GameFamilies) {
            const QString name = QString::fromUtf16(row.iwadName);
            f.iwads.of(row.family) = u"/"_s + name;
            QCOMPARE(IwadPathFor(f.iwads, name.toUpper(), {}), u"/"_s + name);
        }
        QCOMPARE(IwadPathFor(f.iwads, u"doom3.wad"_s, u"before"_s), u"before"_s);
        QVERIFY(!FamilyOfIwad(u"Doom2.wad.bak"_s) && !FamilyOfIwad(QString()));
        QCOMPARE(FamilyOfTitle(u"tnt - final doom"_s), GameFamily::Tnt);
    }
};

QTEST_GUILESS_MAIN(IwadsTest)
#include "IwadsTest.moc"
