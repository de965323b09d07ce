// What goes and what stays when the model packs or the built nodes are removed, also when a call fails, and
// the definition files that the player adds.
#include "options/CleanUpModels.h"
#include "options/CustomDefs.h"
#include "options/PackFacts.h"
#include "platform/Paths.h"
#include "tests/support/LauncherFixture.h"

#include <QRegularExpression>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const ModelCleanup everything{true, true, true};

// Every pack, in part and in the spellings of several unpackers, among files that are the player's own.
class Packs : public LauncherFixture
{
public:
    explicit Packs(const QString& md2 = u"Md2"_s)
    {
        for (const QString& file :
             {u"hudweapons/SuperShotgun/db-shells.md2"_s, u"Items/a"_s, u"Lod/Common/a"_s,
              u"Lod/STANDARD/a"_s, u"Lod/Enhanced/a"_s, u"Monsters/Imp/a"_s, u"Monsters/Soldiers2/a"_s,
              u"Monsters/soldiers2/b"_s, u"Tovrens/Gore/Gore6.dmd"_s, u"Kelspack/kelspack.wad"_s,
              u"Shiny.png"_s, u"metallic.png"_s})
            installation.add(md2 + u'/' + file, "12345");
        for (const QString& file :
             {u"Model/ITEMS.DED"_s, u"Model/Lod.ded"_s, u"Model/Tovrens/hudweapons.ded"_s,
              u"Model/Kelspack/Fullpack.ded"_s, u"Custom/Dorn's pistol packing zombies.ded"_s,
              u"Custom/Tovrens pistol packing zombies.ded"_s})
            installation.add(u"Defs/"_s + file, "12345");
        for (const QString& file :
             {md2 + u"/Mine/a"_s, md2 + u"/Flames"_s, md2 + u"/readme.txt"_s, u"Defs/Model/Weapons.ded/a"_s,
              u"Defs/Model/Mine.ded"_s, u"Defs/Custom/Mine.ded"_s, u"Elsewhere/Imp/a"_s, u"Elsewhere/a"_s})
            installation.add(file, "own");
        DetectModelPacks(launcher);
        own = installation.tree().filter(
            QRegularExpression(u"^Bin/|/Mine|/Flames$|readme|Model/Weapons\\.ded/|^Elsewhere/"_s));
    }

    // The files that are neither the player's nor removed.
    QStringList left() const
    {
        QStringList found = installation.tree();
        found.removeIf([this](const QString& file) { return own.contains(file); });
        return found;
    }
    bool keepsOwn() const
    {
        const QStringList found = installation.tree();
        return std::ranges::all_of(own, [&](const QString& file) { return found.contains(file); });
    }

    QStringList own;
};

const QString advice = u"Important: Close down the launcher before re-installing any model packs.    "_s;

} // namespace

class ModelCleanupTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyPack()
    {
        for (const QString& md2 : {u"Md2"_s, u"MD2"_s}) {
            Packs packs(md2);
            const QString locked = packs.path(md2 + u"/Items/a"_s);
            QVERIFY(QFile::setPermissions(locked, QFile::ReadOwner));
            packs.prompts.expectModelCleanup(true);
            packs.prompts.expectConfirmation(true);
            packs.prompts.expectMessage();
            packs.launcher.controls.ButPurge[Purge::Models].clicked();
            // Two of the folders are one where case does not count.
            QCOMPARE(
                packs.prompts.cleanupSummaries,
                QStringList{u"To be removed: %1 folders and 18 files, 90 bytes"_s.arg(OnWindows ? 15 : 16)});
            QCOMPARE(packs.left(), QStringList());
            QVERIFY(packs.keepsOwn());
            QCOMPARE(packs.prompts.titles, QStringList{u" Cleanup Completed"_s});
            QCOMPARE(packs.prompts.texts, QStringList{advice});
            QCOMPARE(packs.prompts.styles, QList<int>{Msg::Information});
            const ModelPacks& found = packs.launcher.facts.modelPacks;
            QVERIFY(found.ModelPacksMissing && !found.ModelPack2Installed && !found.KelspackInstalled);
        }
    }

    void questions()
    {
        Packs packs;
        const qsizetype before = packs.left().size();
        Button& button = packs.launcher.controls.AuxButton[Tool::CleanUpModels];
        const QString confirm = u"VYKLaunch/Data/confirm.vyk"_s;
        packs.prompts.expectModelCleanup(false);
        button.clicked();

        packs.files.failOn(confirm, FileError::Kind::PermissionDenied);
        packs.prompts.expectModelCleanup(true);
        packs.prompts.expectConfirmation(false, true);
        packs.prompts.expectMessage();
        button.clicked();
        QCOMPARE(packs.prompts.titles, QStringList{u" Access error "_s});
        packs.files.failOn({}, FileError::Kind::Other);
        QVERIFY(!packs.installation.exists(confirm));

        packs.prompts.expectModelCleanup(true);
        packs.prompts.expectConfirmation(false, true);
        button.clicked();
        QCOMPARE(packs.installation.read(confirm), "Cleanup confirmation removed.\r\n"_ba);
        QCOMPARE(packs.left().size(), before + 1);

        packs.prompts.expectModelCleanup(true); // and no confirmation any more
        packs.prompts.expectMessage();
        button.clicked();
        QCOMPARE(packs.left(), QStringList{confirm});
    }

    // A link goes, what it leads to stays, whether it stands for a pack's folder or for one above it.
    void links()
    {
        if (OnWindows)
            QSKIP("not everybody makes links here");
        LauncherFixture f;
        for (const QString& file : {u"Elsewhere/Imp/a"_s, u"Elsewhere/Common/a"_s, u"Elsewhere/a"_s})
            f.installation.add(file, QByteArray(5000, 'x'));
        const QStringList before = f.installation.tree();
        for (const QString& folder : {u"Md2/Items"_s, u"Defs/Model"_s})
            f.installation.addFolder(folder);
        const auto link = [&f](const QString& to, const QString& at) {
            return QFile::link(f.path(to), f.path(at));
        };
        for (const QString& at : {u"Md2/Monsters"_s, u"Md2/lod"_s, u"Md2/Nature"_s, u"Md2/Items/deep"_s})
            QVERIFY(link(u"Elsewhere"_s, at));
        QVERIFY(link(u"nowhere"_s, u"Md2/Tech"_s));
        QVERIFY(link(u"Elsewhere/a"_s, u"Md2/shiny.png"_s));
        QVERIFY(link(u"Elsewhere"_s, u"Defs/Model/Lod.ded"_s));
        QVERIFY(link(u"Elsewhere"_s, u"Defs/Model/mine"_s));
        QCOMPARE(ModelPackContents(f.files, FindModelPackItems(f.files, f.launcher.paths, everything)),
                 u"1 folder and 7 files, 0 bytes"_s);
        QCOMPARE(DeleteModelPacks(f.launcher, everything), QStringList());
        QVERIFY(f.disk.entries(f.path(u"Md2"_s)).isEmpty());
        QCOMPARE(f.disk.entries(f.path(u"Defs/Model"_s)).size(), 1);
        QVERIFY(QFile::remove(f.path(u"Defs/Model/mine"_s)));
        QCOMPARE(f.installation.tree(), before);
    }

    // One call fails: the rest goes, what is left is named, and the next cleanup finds it.
    void failingCalls()
    {
        for (int call = 1;; ++call) {
            Packs packs;
            packs.installation.add(u"VYKLaunch/Data/confirm.vyk"_s);
            packs.own << u"VYKLaunch/Data/confirm.vyk"_s;
            packs.files.failAt(call, FileError::Kind::PermissionDenied);
            packs.prompts.expectModelCleanup(true);
            packs.prompts.expectMessage();
            CleanUpModels(packs.launcher);
            const bool failed = packs.files.calls() >= call;
            QVERIFY(packs.keepsOwn());
            const QString text = WithSlashes(packs.prompts.texts.last());
            QVERIFY(text.startsWith(advice));
            const bool clean = FindModelPackItems(packs.files, packs.launcher.paths, everything).isEmpty();
            QCOMPARE(text == advice, clean);
            QCOMPARE(packs.prompts.styles.last() == Msg::Information, clean);
            for (const QString& file :
                 packs.left()) { // or its folder, or it is kept with a folder that is named
                const bool named = text.contains(u"\r\n"_s + file) ||
                                   text.contains(u"\r\n"_s + file.section(u'/', 0, 1)) ||
                                   file.endsWith(u".png"_s);
                QVERIFY2(named, qPrintable(file + u" / "_s + text));
            }
            packs.files.failAt(0, FileError::Kind::Other);
            QCOMPARE(DeleteModelPacks(packs.launcher, everything), QStringList());
            QCOMPARE(packs.left(), QStringList());
            if (!failed) {
                QVERIFY(call > 15);
                break;
            }
        }
    }

    void nodes()
    {
        LauncherFixture f;
        for (const QString& file : {u"gwa/a.gwa"_s, u"gwa/b.gwa"_s, u"gwa/Sub/c.gwa"_s, u"VykanFiles/d"_s})
            f.installation.add(file);
        QVERIFY(QFile::setPermissions(f.path(u"gwa/b.gwa"_s), QFile::ReadOwner));
        Button& button = f.launcher.controls.ButPurge[Purge::Nodes];
        f.prompts.expectMessage(Msg::ResultNo);
        button.clicked();
        QCOMPARE(f.prompts.titles, QStringList{u" Delete all saved nodes"_s});
        QVERIFY(f.installation.exists(u"gwa/a.gwa"_s));

        f.files.failOn(u"a.gwa"_s, FileError::Kind::InUse);
        f.prompts.expectMessage(Msg::ResultYes);
        f.prompts.expectMessage();
        button.clicked();
        QVERIFY(f.prompts.texts.last().endsWith(u"\r\n"_s + NativePath(u"gwa/a.gwa"_s)));
        QVERIFY(!f.installation.exists(u"gwa/b.gwa"_s) && !f.installation.exists(u"VykanFiles/d"_s));
        f.files.failOn({}, FileError::Kind::Other);
        f.prompts.expectMessage(Msg::ResultYes);
        button.clicked();
        QVERIFY(f.disk.files(f.path(u"gwa"_s)).isEmpty() && f.disk.files(f.path(u"VYKAnFiles"_s)).isEmpty());
        QVERIFY(f.installation.exists(u"gwa/Sub/c.gwa"_s) && f.installation.exists(u"VykanFiles"_s));
    }
};

QTEST_GUILESS_MAIN(ModelCleanupTest)
#include "ModelCleanupTest.moc"
