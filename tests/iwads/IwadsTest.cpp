// Where the IWADs are found, and the list of those that the player located.
#include "iwads/IwadSearch.h"

#include "catalogue/GameLists.h"
#include "platform/Paths.h"
#include "tests/support/LauncherFixture.h"

using namespace Qt::StringLiterals;

namespace {

class IwadFixture : public LauncherFixture
{
public:
    IwadPaths& iwads = launcher.facts.iwads;

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
        QStringList titles;
        for (const ListEntry& game : FillDoomGamesList(f.iwads, true))
            titles << game.text;
        QCOMPARE(titles, QStringList({u"Doom II"_s, u"Doom/Ultimate Doom"_s, u"Shareware Doom"_s,
                                      u"The Plutonia Experiment"_s, u"TNT - Final Doom"_s}));
        QCOMPARE(FillDoomGamesList(f.iwads, false).value(0).text, u"DOOM II"_s);

        // Nodes that stay are no failure.
        f.files.failOn(u"VYKgwa"_s, FileError::Kind::InUse);
        f.installation.add(u"Data/Doom2.VYKgwa"_s);
        f.iwads = {};
        f.build();
        QVERIFY(!f.iwads.ShowIwads[0].isEmpty());
    }

    void savedList()
    {
        IwadFixture f;
        f.installation.add(u"Data/Doom2.wad"_s);
        for (const QString& name : {u"Größe/DOOM2.WAD"_s, u"Größe/tnt.wad"_s, u"x/Doom.wad"_s})
            f.installation.add(name);
        const QString root = f.installation.root();
        f.setList(ToAnsi(root + u"\\Größe\\doom2.wad\r\n"_s + root + u"/größe/TNT.WAD\r\n"_s + root +
                         u"/Größe/other.wad\r\n\r\n"_s + root + u"/x/Doom.wad\r\n"_s));
        f.build();
        QCOMPARE(f.iwads.of(GameFamily::Doom2), f.path(u"Data/Doom2.wad"_s)); // found by itself: wins
        QCOMPARE(f.iwads.of(GameFamily::Tnt), f.path(u"Größe/tnt.wad"_s));
        QCOMPARE(f.iwads.of(GameFamily::Doom),
                 f.path(u"x/Doom.wad"_s)); // what a disk that is away took up counts not
        QCOMPARE(f.iwads.IwadFolder, f.path(u"Größe"_s));
        QCOMPARE(f.iwads.ShowIwads[1], f.path(u"Größe/tnt.wad"_s));
        QCOMPARE(f.iwads.ShowIwads[2], f.path(u"x/Doom.wad"_s));
        QVERIFY(f.hasList());
    }

    // Of two for one game the player added the later one; what is away today is in the list tomorrow.
    void aSecondOne()
    {
        IwadFixture f;
        for (const QString& name : {u"Data/Doom2.wad"_s, u"x/Doom2.wad"_s})
            f.installation.add(name);
        const QString root = f.installation.root();
        f.setList(ToAnsi(root + u"/Data/Doom2.wad\r\n"_s + root + u"/x/Doom2.wad\r\n/away/Tnt.wad\r\n"_s));
        f.build();
        QCOMPARE(f.iwads.of(GameFamily::Doom2), f.path(u"x/Doom2.wad"_s));
        QCOMPARE(f.iwads.ShowIwads[0], f.path(u"x/Doom2.wad"_s));
        SaveIwadList(f.iwads, f.files, f.launcher.paths);
        QVERIFY(f.installation.read(u"VYKLaunch/Data/iwads.cfg"_s).contains("/away/Tnt.wad\r\n"));
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
            QVERIFY(f.hasList()); // its disk may be there tomorrow

            f.setList(bytes);
            f.files.failOn(u"iwads.cfg"_s, FileError::Kind::PermissionDenied);
            f.build(); // one that cannot be deleted is no failure either
            QVERIFY(f.hasList());
        }
    }

    // The engine finds by itself what has the name of one in a standard place, wherever it is known to lie.
    void whatTheEngineFinds()
    {
        IwadFixture f;
        f.launcher.environment = {f.path(u"dollar"_s), f.path(u"plain"_s)};
        const auto facts = [&f](const QString& path) {
            f.iwads = {};
            f.iwads.of(GameFamily::Doom2) = path;
            return ReadIwadFacts(f.iwads, f.files, f.launcher.paths,
                                 f.launcher.environment)[static_cast<size_t>(GameFamily::Doom2)];
        };
        const QString elsewhere = f.path(u"elsewhere/doom2.wad"_s);
        QVERIFY(!facts(elsewhere).exists);
        f.installation.add(u"elsewhere/doom2.wad"_s);
        QVERIFY(facts(elsewhere).exists && !facts(elsewhere).foundByEngine);
        for (const QString& place : {u"plain"_s, u"dollar"_s, u"."_s, u"Data"_s, u"Iwads"_s}) {
            f.installation.add(place + u"/DOOM2.wad"_s);
            QVERIFY2(facts(elsewhere).foundByEngine, qPrintable(place));
            QVERIFY(QFile::remove(f.path(place + u"/DOOM2.wad"_s)));
        }
    }
};

QTEST_GUILESS_MAIN(IwadsTest)
#include "IwadsTest.moc"
