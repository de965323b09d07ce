#include "launch/LaunchPlan.h"
#include "shortcuts/MakeShortcut.h"
#include "tests/support/CommercialGame.h"

#include <QtTest>

#include <objbase.h>
#include <shlobj.h>

using namespace Qt::StringLiterals;

namespace {

constexpr ShortcutChoice desktopOnly{.DesktopShortcut = true};

// What the shell reads in a shortcut.
struct Read
{
    QString target, arguments, folder;
    int show = 0;
};

Read readLink(const QString& path)
{
    constexpr int longest = 4096;
    wchar_t text[longest] = {};
    Read read;
    IShellLinkW* link = nullptr;
    IPersistFile* file = nullptr;
    CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW,
                     reinterpret_cast<void**>(&link));
    link->QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(&file));
    if (SUCCEEDED(file->Load(QDir::toNativeSeparators(path).toStdWString().c_str(), STGM_READ))) {
        link->GetPath(text, longest, nullptr, 0);
        read.target = QDir::fromNativeSeparators(QString::fromWCharArray(text));
        link->GetArguments(text, longest);
        read.arguments = QString::fromWCharArray(text);
        link->GetWorkingDirectory(text, longest);
        read.folder = QDir::fromNativeSeparators(QString::fromWCharArray(text));
        link->GetShowCmd(&read.show);
    }
    file->Release();
    link->Release();
    return read;
}

} // namespace

// The shell's own links.
class ShortcutsWin32Test : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))); }
    void cleanupTestCase() { CoUninitialize(); }

    void namesOfAnyKind_data()
    {
        QTest::addColumn<QString>("root");
        QTest::addColumn<QString>("game");
        for (const QString& name : {u"Zwei  Läufer"_s, u"100% %f %%"_s, u"it's"_s, u"$HOME `id`"_s,
                                    u"a;b&c(e)[g]#~!^"_s, u"= x=y"_s, u"v1.5"_s})
            QTest::addRow("%s", qPrintable(name)) << name << name;
        QTest::addRow("other letters") << u"Ærøå"_s << u"日本"_s;
    }
    // The shell reads the arguments of a launch, and what it starts receives them.
    void namesOfAnyKind()
    {
        QFETCH(QString, root);
        QFETCH(QString, game);
        CommercialGame fixture; // for its doubles and folders
        const QString base = root + u'/';
        fixture.installation.add(base + u"Data/Doom2.wad"_s);
        fixture.addWad(base + u"VYKGames/"_s + game + u"/Pwads/main file.wad"_s, {u"MAP03"_s});
        fixture.installation.addBuilt(base + u"Bin/Keldrax"_s, RECORDER_PROGRAM);
        fixture.installation.addBuilt(base + u"Bin/VYKgFiles"_s, VYKGFILES_PROGRAM);
        ConnectedLauncher launcher(fixture.files, fixture.processes, fixture.prompts, fixture.window,
                                   fixture.path(root));
        launcher.environment = {};
        launcher.shortcutFolders = fixture.launcher.shortcutFolders;
        ReadFacts(launcher);
        launcher.controls.OptionUdir.click(View::InstalledGames);
        launcher.controls.SkillsLevel[SkillList::Basic].click(4);
        const QString line = PlanLaunch(launcher).commandLine;
        QVERIFY(line.startsWith(u"Bin\\Keldrax "_s));
        fixture.prompts.expectShortcut(desktopOnly);
        MakeShortcut(launcher);

        const QDir desktop(launcher.shortcutFolders.desktop);
        const QStringList made = desktop.entryList(QDir::Files | QDir::System);
        QCOMPARE(made.size(), 1);
        const Read link = readLink(desktop.filePath(made.first()));
        QCOMPARE(link.target, fixture.path(base + u"Bin/Keldrax.exe"_s));
        QCOMPARE(link.arguments, line.sliced(12));
        QCOMPARE(link.folder, desktop.path());
        QCOMPARE(link.show, SW_SHOWNORMAL);

        const QString recorded = desktop.filePath(u"arguments.txt"_s); // in the link's working folder
        ShellExecuteW(nullptr, L"open",
                      QDir::toNativeSeparators(desktop.filePath(made.first())).toStdWString().c_str(),
                      nullptr, nullptr, SW_SHOWNORMAL);
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(recorded), 60000);
        QFile file(recorded);
        QVERIFY(file.open(QFile::ReadOnly));
        QCOMPARE(QString::fromUtf8(file.readAll()), SplitCommandLine(line).sliced(1).join(u'\n') + u'\n');
    }
};

QTEST_GUILESS_MAIN(ShortcutsWin32Test)
#include "ShortcutsWin32Test.moc"
