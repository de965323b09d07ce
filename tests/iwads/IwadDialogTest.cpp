#include "iwads/IwadDialog.h"

#include "app/ShowAll.h"
#include "platform/Paths.h"
#include "tests/support/LauncherFixture.h"

using namespace Qt::StringLiterals;

namespace {

class DialogFixture : public LauncherFixture
{
public:
    IwadDialog dialog{launcher};
    IwadPaths& iwads = launcher.facts.iwads;

    // The paths of the four boxes and of iwads.cfg, relative to the installation, as one text each.
    QString boxes() const { return relative(QStringList(iwads.ShowIwads.begin(), iwads.ShowIwads.end())); }
    QString list() const
    {
        return relative(LinesOf(FromAnsi(installation.read(u"VYKLaunch/Data/iwads.cfg"_s))));
    }
    bool hasList() const { return installation.exists(u"VYKLaunch/Data/iwads.cfg"_s); }

    void add(const QString& file)
    {
        prompts.expectFile(file.isEmpty() ? QString() : addIwad(file));
        dialog.addIwad();
        ShowWindow(launcher);
    }

private:
    QString relative(QStringList paths) const
    {
        return WithSlashes(paths.join(u'|')).remove(installation.root() + u'/');
    }
};

} // namespace

class IwadDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void addFillsTheNextBox()
    {
        DialogFixture f;
        f.add({}); // cancelled
        QCOMPARE(f.list(), u"|||"_s);
        QVERIFY(f.dialog.canSearch());
        f.add(u"a/Doom.wad"_s);
        f.add(u"a/Doom2.wad"_s);
        f.add(u"b/TNT.WAD"_s);
        QCOMPARE(f.boxes(), u"a/Doom.wad|a/Doom2.wad|b/TNT.WAD|"_s);
        QCOMPARE(f.iwads.of(GameFamily::Tnt), f.path(u"b/TNT.WAD"_s));
        QVERIFY(!f.dialog.canSearch() && f.dialog.canAdd());
        QCOMPARE(f.launcher.controls.PwadList.count(), 3);

        f.prompts.expectMessage();
        f.add(u"a/Doom3.wad"_s);
        QCOMPARE(f.prompts.texts, {u"This does not appear to be a correct Doom Iwad.   "_s});
        QCOMPARE(f.prompts.titles, {QString()});
        QCOMPARE(f.prompts.styles, {Msg::Ok + Msg::Information});
        QCOMPARE(f.list(), f.boxes());

        f.add(u"b/Doom2.wad"_s); // takes the place of the first one's path
        QCOMPARE(f.iwads.of(GameFamily::Doom2), f.path(u"b/Doom2.wad"_s));
        QCOMPARE(f.boxes(), u"a/Doom.wad|a/Doom2.wad|b/TNT.WAD|b/Doom2.wad"_s);
        QVERIFY(!f.dialog.canAdd());
        f.dialog.activate();
        QVERIFY(!f.dialog.canAdd() && !f.dialog.warningShown());
    }

    void addThatCannotBeSavedIsReported()
    {
        DialogFixture f;
        f.files.failOn(u"iwads.cfg"_s, FileError::Kind::PermissionDenied);
        f.prompts.expectMessage();
        f.add(u"a/Doom.wad"_s);
        QCOMPARE(f.prompts.titles, {u" Access error"_s});
        QCOMPARE(f.boxes(), u"a/Doom.wad|||"_s);
    }

    void searchForgetsAndFinds()
    {
        DialogFixture f;
        f.dialog.activate();
        QVERIFY(f.dialog.warningShown());
        for (const QString& name : {u"a/Tnt.wad"_s, u"a/Doom.wad"_s, u"b/Doom.wad"_s, u"c/Doom.wad"_s})
            f.add(name);
        for (const QString& name : {u"Doom1"_s, u"Doom"_s, u"Doom2"_s, u"Plutonia"_s})
            f.addIwad(u"Data/"_s + name + u".wad"_s);
        f.dialog.search();
        ShowWindow(f.launcher);
        QCOMPARE(f.boxes(), u"Data/Doom2.wad|Data/Doom.wad|Data/Plutonia.wad|Data/Doom1.wad"_s);
        QVERIFY(f.iwads.of(GameFamily::Tnt).isEmpty());
        QVERIFY(!f.hasList() && !f.dialog.warningShown());
        QCOMPARE(f.launcher.controls.PwadList.count(), 4);
        QVERIFY(f.launcher.controls.LaunchButton.enabled);
    }

    void resetThenOk()
    {
        DialogFixture f;
        f.add(u"a/Doom.wad"_s);
        f.dialog.reset();
        ShowWindow(f.launcher);
        QCOMPARE(f.boxes(), u"|||"_s);
        QVERIFY(!f.iwads.anyKnown() && !f.hasList());
        QVERIFY(f.dialog.canSearch() && f.dialog.canAdd());
        const Controls& controls = f.launcher.controls;
        QVERIFY(controls.PwadList.isEmpty() && controls.PwadShowlist.isEmpty() && controls.MapList.isEmpty());
        QVERIFY(!controls.LaunchButton.enabled);

        f.prompts.expectMessage(Msg::ResultNo);
        QVERIFY(!f.dialog.accept());
        QCOMPARE(f.prompts.texts, {u"The Iwad locations must be set for the Launcher to function.    \r\n"
                                   "      Do you still wish to exit the VYKLauncher setup?"_s});
        QCOMPARE(f.prompts.titles, {u"Configuration error"_s});
        QCOMPARE(f.prompts.styles, {36});
        QVERIFY(f.window.calls.isEmpty());

        f.prompts.expectMessage(Msg::ResultYes);
        QVERIFY(f.dialog.accept());
        QVERIFY(f.launcher.startUp.ShuttingDown);
        QCOMPARE(f.window.calls, QStringList({u"hide"_s, u"endProgram"_s}));
    }
};

QTEST_GUILESS_MAIN(IwadDialogTest)
#include "IwadDialogTest.moc"
