#include "app/FontChoice.h"
#include "app/MainWindowLoad.h"
#include "app/SettingsLoad.h"
#include "app/ShowAll.h"
#include "app/Tips.h"
#include "tests/support/LauncherFixture.h"

using namespace Qt::StringLiterals;

namespace {

class Fixture : public LauncherFixture
{
public:
    void click(Tool tool) { launcher.controls.AuxButton[tool].clicked(); }
    QByteArray archives() const { return installation.read(u"VYKLaunch/Data/archives.vyk"_s); }
};

} // namespace

class ToolbarTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void logsAndDialogs()
    {
        Fixture f;
        f.click(Tool::EditLog);
        f.click(Tool::EngineLog);
        QVERIFY(f.processes.starts.isEmpty());
        f.installation.add(u"EDIT.OUT"_s);
        f.installation.add(u"Keldrax.out"_s);
        f.click(Tool::EditLog);
        QCOMPARE(f.processes.lastCommandLine(), u"notepad.exe \""_s + f.nativePath(u"EDIT.OUT"_s) + u'"');
        f.click(Tool::Iwads);
        f.click(Tool::Font);
        QCOMPARE(f.window.calls, QStringList({u"showIwadForm"_s, u"showFontForm"_s}));
        f.processes.startResult = false; // there is no such program: the system's own choice
        f.click(Tool::EngineLog);
        QCOMPARE(f.prompts.opened, QStringList(f.path(u"Keldrax.out"_s)));
    }

    void zipFolder()
    {
        Fixture f;
        f.installation.add(u"Elsewhere/Öl & Feuer.zip"_s);
        f.prompts.allowMessages = true; // its first file is no zip
        f.prompts.expectFile(f.path(u"Elsewhere"_s));
        f.click(Tool::ZipFolder);
        QCOMPARE(f.archives(), ToAnsi(f.nativePath(u"Elsewhere"_s)) + "\r\n");
        QCOMPARE(f.launcher.controls.Auto[Heading::Games].caption, u"CUSTOM ZIP LIBRARY"_s);
        QCOMPARE(f.launcher.controls.PwadList.count(), 1);
        QCOMPARE(f.launcher.settings.ListMode, 2);

        f.prompts.expectFile({}); // cancelled: as it was
        f.click(Tool::ZipFolder);
        QCOMPARE(f.archives(), ToAnsi(f.nativePath(u"Elsewhere"_s)) + "\r\n");

        // What is opened there would be deleted with the next zip.
        for (const QString& own : {u"VYKLaunch/Zips"_s, u"VYKLaunch"_s, u"VYKGames"_s, u"."_s}) {
            f.installation.addFolder(own);
            f.prompts.expectFile(f.path(own));
            f.click(Tool::ZipFolder);
            QCOMPARE(f.prompts.titles.last(), u" Zip library folder"_s);
            QCOMPARE(f.archives(), ToAnsi(f.nativePath(u"Elsewhere"_s)) + "\r\n");
        }

        f.disk.removeTree(f.path(u"Elsewhere"_s));
        f.files.failOn(u"archives.vyk"_s, FileError::Kind::PermissionDenied);
        f.prompts.expectFile({});
        f.click(Tool::ZipFolder);
        QCOMPARE(f.launcher.paths.ArchivesPath, f.path(u"VYKArchives"_s));
    }

    void movedInstallation()
    {
        Fixture f;
        f.installation.add(u"VYKLaunch/Data/archives.vyk"_s, "/where/it/was/VYKArchives\r\n");
        ReadStoredSettings(f.launcher);
        QCOMPARE(f.launcher.paths.ArchivesPath, f.path(u"VYKArchives"_s));
        f.installation.add(u"VYKLaunch/Data/archives.vyk"_s, "/a/drive/that/is/off\r\n");
        ReadStoredSettings(f.launcher);
        QCOMPARE(f.launcher.paths.ArchivesPath, u"/a/drive/that/is/off"_s);
    }

    void tips()
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
        QVERIFY(
            none.text().startsWith(u"That the tips.txt file was not found? \r\n\r\nThis file was placed"_s));
    }

    void hostileTips()
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
};

QTEST_GUILESS_MAIN(ToolbarTest)
#include "ToolbarTest.moc"
