#include "app/FontChoice.h"
#include "app/MainWindowLoad.h"
#include "app/SettingsLoad.h"
#include "app/Tips.h"
#include "tests/support/LauncherFixture.h"

using namespace Qt::StringLiterals;

namespace {

enum { Documentation = 1, EditLog = 3, EngineLog = 4, IwadLocations = 5, Font = 6, ZipFolder = 7 };

class Fixture : public LauncherFixture
{
public:
    void click(size_t tool) { launcher.controls.AuxButton.at(tool).clicked(); }
    QByteArray archives() const { return installation.read(u"VYKLaunch/Data/archives.vyk"_s); }
};

} // namespace

class ToolbarTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void documentation();
    void logs();
    void dialogs();
    void zipFolder();
    void movedInstallation();
    void zipFolderTexts_data();
    void zipFolderTexts();
    void tips();
    void hostileTips();
    void tipsAtStartup();
    void fonts();
    void restartThatFails();
};

void ToolbarTest::documentation()
{
    Fixture f;
    f.prompts.expectFile({});
    f.click(Documentation);
    QCOMPARE(f.prompts.fileQuestions.last().folder, f.path(u"VYK_Docs"_s));
    f.prompts.expectFile(u"/docs/manual.pdf"_s);
    f.click(Documentation);
    QCOMPARE(f.prompts.opened, QStringList());
    f.prompts.expectFile(u"/docs/Manual.HTM"_s);
    f.click(Documentation);
    QCOMPARE(f.prompts.fileQuestions.last().folder, u"/docs"_s);
    QCOMPARE(f.prompts.opened, QStringList(u"/docs/Manual.HTM"_s));
}

void ToolbarTest::logs()
{
    Fixture f;
    f.click(EditLog);
    f.click(EngineLog);
    QVERIFY(f.processes.starts.isEmpty());
    f.installation.add(u"EDIT.OUT"_s);
    f.installation.add(u"Keldrax.out"_s);
    f.click(EditLog);
    QCOMPARE(f.processes.lastCommandLine(), u"notepad.exe \""_s + f.nativePath(u"EDIT.OUT"_s) + u'"');
    f.processes.startResult = false; // there is no such program: the system's own choice
    f.click(EngineLog);
    QCOMPARE(f.prompts.opened, QStringList(f.path(u"Keldrax.out"_s)));
}

void ToolbarTest::dialogs()
{
    Fixture f;
    f.click(IwadLocations);
    f.click(Font);
    QCOMPARE(f.window.calls, QStringList({u"showIwadForm"_s, u"showFontForm"_s}));
}

void ToolbarTest::zipFolder()
{
    Fixture f;
    f.installation.add(u"Elsewhere/Öl & Feuer.zip"_s);
    f.prompts.allowMessages = true; // its first file is no zip
    f.prompts.expectFile(f.path(u"Elsewhere"_s));
    f.click(ZipFolder);
    QCOMPARE(f.archives(), ToAnsi(f.nativePath(u"Elsewhere"_s)) + "\r\n");
    QCOMPARE(f.launcher.controls.Auto[0].caption, u"CUSTOM ZIP LIBRARY"_s);
    QCOMPARE(f.launcher.controls.PwadList.count(), 1);
    QCOMPARE(f.launcher.settings.ListMode, 2);

    f.prompts.expectFile({}); // cancelled: as it was
    f.click(ZipFolder);
    QCOMPARE(f.archives(), ToAnsi(f.nativePath(u"Elsewhere"_s)) + "\r\n");

    f.disk.removeTree(f.path(u"Elsewhere"_s));
    f.files.failOn(u"archives.vyk"_s, FileError::Kind::PermissionDenied);
    f.prompts.expectFile({});
    f.click(ZipFolder);
    QCOMPARE(f.launcher.paths.ArchivesPath, f.path(u"VYKArchives"_s));
}

void ToolbarTest::movedInstallation()
{
    Fixture f;
    f.installation.add(u"VYKLaunch/Data/archives.vyk"_s, "/where/it/was/VYKArchives\r\n");
    ReadStoredSettings(f.launcher);
    QCOMPARE(f.launcher.paths.ArchivesPath, f.path(u"VYKArchives"_s));
    f.installation.add(u"VYKLaunch/Data/archives.vyk"_s, "/a/drive/that/is/off\r\n");
    ReadStoredSettings(f.launcher);
    QCOMPARE(f.launcher.paths.ArchivesPath, u"/a/drive/that/is/off"_s);
}

void ToolbarTest::zipFolderTexts_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<QString>("prefix");
    QTest::newRow("30") << 30 << u"Current Location: "_s;
    QTest::newRow("31") << 31 << u"Location: "_s;
    QTest::newRow("40") << 40 << u"Location: "_s;
    QTest::newRow("41") << 41 << QString();
    QTest::newRow("49") << 49 << QString();
}

void ToolbarTest::zipFolderTexts()
{
    QFETCH(const int, length);
    QFETCH(const QString, prefix);
    Fixture f;
    const QString question = u"Select the new location of your zipped wad files ..."_s;
    for (const bool longer : {false, true}) {
        f.launcher.paths.ArchivesPath = QString(longer ? 50 : length, u'x');
        const QString shown = f.launcher.paths.ArchivesPath;
        f.prompts.expectFile({});
        f.click(ZipFolder);
        QCOMPARE(f.prompts.folderTexts.last(),
                 longer ? question : QString(prefix + shown + u"\r\n"_s + question));
    }
}

void ToolbarTest::tips()
{
    Fixture f;
    f.installation.add(u"VYKLaunch/Data/Tips.txt"_s, "one\r\n\r\nthree");
    f.launcher.settings.TipNumber = 3;
    Tips tips(f.launcher);
    QStringList shown;
    for (int i = 0; i < 4; ++i, tips.next())
        shown << tips.text();
    QCOMPARE(shown, QStringList({u"one"_s, QString(), u"three"_s, u"one"_s}));

    f.disk.remove(f.path(u"VYKLaunch/Data/Tips.txt"_s));
    Tips none(f.launcher);
    none.next();
    QVERIFY(none.text().startsWith(u"That the tips.txt file was not found? \r\n\r\nThis file was placed"_s));
}

void ToolbarTest::hostileTips()
{
    QByteArray noise;
    for (int i = 0; i < 100'000; ++i)
        noise += static_cast<char>(i * 31 % 256);
    for (const QByteArray& bytes :
         {QByteArray(), QByteArray(10'000'000, 'x'), QByteArray(3'000'000, '\n'), noise})
        for (const int number : {-5, 0, 7, std::numeric_limits<int>::max()}) {
            Fixture f;
            f.installation.add(u"VYKLaunch/Data/tips.txt"_s, bytes);
            f.launcher.settings.TipNumber = number;
            const Tips tips(f.launcher);
            QVERIFY(tips.text().size() < 2000);
            QVERIFY(f.launcher.settings.TipNumber >= 1);
        }
}

void ToolbarTest::tipsAtStartup()
{
    Fixture f;
    f.addIwad(u"Data/Doom2.wad"_s);
    f.installation.add(u"VYKLaunch/Data/tips.txt"_s, "one\r\ntwo\r\n");
    f.setConfig(f.configWith({{4, u" 1 "_s}, {62, u" 0 "_s}}));
    LoadMainWindow(f.launcher);
    QCOMPARE(f.launcher.settings.TipNumber, 2); // though nobody sees it

    CheckBox& box = f.launcher.controls.chkLaunchPrefs[5];
    box.setTicked(true);
    Tips tips(f.launcher);
    tips.showAtStartup(false);
    QVERIFY(!box.ticked() && !f.launcher.settings.ShowTipsAtStartup);
    tips.showAtStartup(true);
    QVERIFY(!box.ticked() && f.launcher.settings.ShowTipsAtStartup);
}

void ToolbarTest::fonts()
{
    Fixture f;
    UseFont(f.launcher, {.FontName = u"Times New Roman"_s, .FontSize = 10, .FontBold = true});
    const FontSetting font = LoadFontSetting(f.disk, f.path(u"VYKLaunch/font.vyk"_s));
    QVERIFY(font.CustomFontOn && font.FontBold);
    QCOMPARE(font.FontName, u"Times New Roman"_s);
    QCOMPARE(font.FontSize, 10);
    QCOMPARE(f.window.font.FontName, font.FontName);
    QVERIFY(f.processes.lastCommandLine().endsWith(u"VYKlauncher.exe\" /RESTART"_s));
    QVERIFY(f.hasConfig()); // saved before
    QCOMPARE(f.window.calls, QStringList(u"endProgram"_s));

    UseFont(f.launcher, {.FontName = u"Arial"_s, .FontSize = 8});
    QCOMPARE(f.installation.read(u"VYKLaunch/font.vyk"_s), QByteArray("Arial,8\r\n"));
    UseDefaultFont(f.launcher);
    QVERIFY(!f.installation.exists(u"VYKLaunch/font.vyk"_s));
    QCOMPARE(f.processes.starts.size(), 3);
}

void ToolbarTest::restartThatFails()
{
    Fixture f;
    f.processes.startResult = false;
    f.files.failOn(u"font.vyk"_s, FileError::Kind::PermissionDenied);
    f.prompts.expectMessage();
    UseFont(f.launcher, {.FontName = u"Arial"_s, .FontSize = 8});
    QVERIFY(f.hasConfig());
}

QTEST_GUILESS_MAIN(ToolbarTest)
#include "ToolbarTest.moc"
