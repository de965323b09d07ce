// Whichever call of the file system fails in an operation that changes a player's files, and at whichever the
// launcher is ended, there is what was before or what was wanted, and nothing is lost.
#include "app/Connect.h"
#include "app/FontChoice.h"
#include "app/MainWindowLoad.h"
#include "app/SettingsLoad.h"
#include "catalogue/GameStaging.h"
#include "catalogue/InstallGame.h"
#include "iwads/IwadDialog.h"
#include "music/PlaylistEditor.h"
#include "platform/DiskFileSystem.h"
#include "shortcuts/MakeShortcut.h"
#include "state/OptionTable.h"
#include "tests/support/FailingFileSystem.h"
#include "tests/support/FakeWindow.h"
#include "tests/support/Packs.h"
#include "tests/support/QueuedPrompts.h"
#include "tests/support/RecordingProcesses.h"
#include "tests/support/TemporaryInstallation.h"
#include "tests/support/ZipMaker.h"

#include <QDir>
#include <QDirIterator>
#include <QRegularExpression>
#include <QTest>

#ifndef Q_OS_WIN
#include <sys/wait.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

namespace {

using Contents = QMap<QString, QByteArray>;

// Goes on with everything.
class WillingPlayer : public QueuedPrompts
{
public:
    int MsgboxPos(const QString& text, int style, const QString&) override
    {
        constexpr int buttons = 7;
        const bool asks = (style & buttons) == Msg::YesNo || (style & buttons) == Msg::YesNoCancel;
        (asks ? questions : messages) << text;
        return asks ? Msg::ResultYes : Msg::ResultOk;
    }
    QString chooseFile(const FileQuestion&) override { return file; }
    QString chooseFolder(const QString&, const QString&) override { return file; }
    std::optional<QString> askName(const NameQuestion&) override { return u"Omega"_s; }
    bool askModelCleanup(const CleanupQuestion&) override { return true; }
    bool confirmModelCleanup(const std::function<void(bool)>&) override { return true; }
    std::optional<ShortcutChoice> askShortcut(const ShortcutQuestion&) override
    {
        return ShortcutChoice{
            .StartMenuShortcut = true, .DesktopShortcut = false, .IncludeMapInShortcut = false};
    }

    QString file;
    QStringList messages, questions;
};

QString trash()
{
    return qEnvironmentVariable("XDG_DATA_HOME") + u"/Trash"_s;
}

// A collection with some of everything.
class World
{
public:
    World()
    {
        installation.makeComplete();
        const QString named =
            u"VYKGames/Alpha/Pwads/main.wad|VYKGames/Alpha/Pwads/readme.txt|VYKGames/Alpha/savegame/0|"
            "VYKGames/Beta/Gwads/one.wad|VYKGames/Beta/Gwads/two.wad|VYKGames/Beta/Gwads/one.deh|"
            "VYKGames/Both/Pwads/a.wad|VYKGames/Both/Pwads/same.deh|VYKGames/Both/Gwads/same.deh|"
            "VYKGames/Omega 2/other.txt|Down/new.wad|Iwads/Doom2.wad|Other/Doom.wad|"
            "UserSG/main/savegame/KeldraxSav1.vyksg|UserSG/pack/savegame/KeldraxSav0.vyksg|"
            "MD2/main/model.md2|VYKLaunch/Music/List.vym"_s;
        for (const QString& file : named.split(u'|'))
            installation.add(file, file.toUtf8());
        installation.add(u"Down/Beta.zip"_s, ZipMaker().add("three.wad", "3").add("two.wad", "22").bytes());
        installation.add(u"Down/Zeta.zip"_s, ZipMaker().add("four.wad", "4").add("five.wad", "5").bytes());
        installation.add(u"VYKArchives/pack.zip"_s,
                         ZipMaker().add("pack.wad", "p").add("b.wad", "b").bytes());
        installation.add(u"VYKLaunch/GameInfo/Gwads/beta.vykg"_s, "one.wad\r\n");
        installation.add(u"Menu/Alpha.lnk"_s, "shortcut of Alpha");
        installation.add(u"Md2/Kelspack/AK47/AK47.md2"_s, "pack 1");
        installation.add(u"Md2/HudWeapons/a.md2"_s, "pack 2");
        processes.outputs = QList<QByteArray>(200, "VYKgFiles,1,1,MAP01\r\n");
        launcher.environment = {};
        launcher.shortcutFolders = {installation.path(u"Desktop"_s), installation.path(u"Menu"_s)};
        files.trash = !OnWindows;
        launcher.settings = DefaultSettings();
        launcher.settings.RememberLastMap = true;
        ReadFacts(launcher);
    }

    void select(View view, const QString& game, const QString& file = {})
    {
        launcher.controls.OptionUdir.click(view);
        click(launcher.controls.PwadList, game);
        if (!file.isEmpty())
            click(launcher.controls.PwadShowlist, file);
    }
    static void click(ListBox& list, const QString& entry)
    {
        if (list.find(entry) < 0)
            qFatal("not listed: %s", qPrintable(entry));
        list.click(list.find(entry));
    }

    // All but what is made again when it is needed.
    Contents contents() const
    {
        static const QRegularExpression cache(u"^VYKLaunch/Zips/|/pwad\\.vyk$|\\.lock$|\\.desktop$"_s);
        Contents found;
        for (const QString& file : installation.tree())
            if (!file.contains(cache))
                found[file] =
                    file.endsWith(u".lnk"_s) // which knows where it lies
                        ? QByteArray()
                        : installation.read(file)
                              .replace(installation.root().toUtf8(), "ROOT")
                              .replace(QDir::toNativeSeparators(installation.root()).toUtf8(), "ROOT");
        return found;
    }

    TemporaryInstallation installation;
    DiskFileSystem disk;
    FailingFileSystem files{disk};
    RecordingProcesses processes;
    WillingPlayer prompts;
    FakeWindow window;
    ConnectedLauncher launcher{files, processes, prompts, window, installation.root()};
};

enum class Promise {
    Whole,    // all is as before, or as wanted
    EachFile, // ... each file by itself, or in the trash
};

struct Operation
{
    const char* name;
    Promise promise;
    std::function<void(World&)> prepare;
    std::function<void(World&)> run;
};

QList<Operation> operations()
{
    const auto nothing = [](World&) {};
    const auto installed = [](const QString& game, const QString& file = {}) {
        return [game, file](World& world) { world.select(View::InstalledGames, game, file); };
    };
    const auto zip = [](World& world) { world.select(View::ZipLibrary, u"PACK"_s); };
    const auto item = [](MenuItem Controls::*command) {
        return [command](World& world) { (world.launcher.controls.*command).clicked(); };
    };
    const auto path = [](World& world, const QString& file) { return world.installation.path(file); };
    const auto savegame = [](World& world) {
        world.processes.outputs = {"VYKgFiles,1,1,MAP01\r\n", "VYKgFiles,1,1,MAP01\r\n", "1one\r\n",
                                   "1one\r\n", "1one\r\n"};
        world.select(View::InstalledGames, u"ALPHA"_s);
        world.launcher.facts.file.savegames = {{.slot = u"1"_s, .description = u"one"_s}};
        world.launcher.selection.SaveSlot = u"1"_s;
        world.launcher.settings.Skill = 3;
    };
    const auto playlist = [](World& world) { world.launcher.settings.PlaylistName = u"List"_s; };
    using enum Promise;
    return {
        {"settings", Whole, nothing,
         [](World& world) {
             world.launcher.settings.LightLevel = 7;
             UnloadMainWindow(world.launcher);
         }},
        {"keep faulty settings", Whole,
         [](World& world) { world.installation.add(u"VYKLaunch/config.vyk"_s, "v9.1\r\n-1\r\n99999\r\n"); },
         [](World& world) { LoadSettings(world.launcher); }},
        {"put back a WAD", EachFile,
         [](World& world) { world.installation.add(u"VYKGames/Beta/Gwads/new.VYKbak"_s, "backup"); },
         installed(u"BETA"_s)},
        {"record", Whole, installed(u"ALPHA"_s),
         [](World& world) { world.click(world.launcher.controls.MapList, u"MAP01"_s); }},
        {"record of a file", EachFile, installed(u"BETA"_s, u"one.wad"_s),
         [](World& world) { world.click(world.launcher.controls.PwadShowlist, u"two.wad"_s); }},
        {"install a WAD", Whole, nothing,
         [path](World& world) { InstallPwadGame(world.launcher, path(world, u"Down/new.wad"_s)); }},
        {"install a zip", Whole, nothing,
         [path](World& world) { InstallPwadGame(world.launcher, path(world, u"Down/Zeta.zip"_s)); }},
        {"add to a game", Whole, nothing,
         [path](World& world) { InstallGwadGame(world.launcher, path(world, u"Down/Beta.zip"_s)); }},
        {"install over a folder", EachFile,
         [zip](World& world) {
             QDir(world.installation.path(u"VYKGames"_s)).rename(u"Omega 2"_s, u"Omega"_s);
             zip(world);
         },
         item(&Controls::mcUdirUnZip)},
        {"install from the library", EachFile, zip, item(&Controls::mcGwadUnZip)},
        {"convert", EachFile, installed(u"ALPHA"_s), item(&Controls::mcGwadConvert)},
        {"convert back", EachFile, installed(u"BETA"_s), item(&Controls::mcUdirConvert)},
        {"convert what is both", EachFile, installed(u"BOTH"_s), item(&Controls::mcUdirConvert)},
        {"rename", EachFile, installed(u"ALPHA"_s), item(&Controls::mcRenameFolder)},
        {"rename a zip", EachFile, zip, item(&Controls::mcRenameArchive)},
        {"remove", EachFile, installed(u"ALPHA"_s), item(&Controls::mcDeleteFolder)},
        {"remove a file", EachFile, installed(u"BETA"_s, u"two.wad"_s), item(&Controls::mcDeleteFile)},
        {"remove a zip", EachFile, zip, item(&Controls::mcDeleteArchive)},
        {"delete a savegame", Whole, savegame, item(&Controls::mcDelSaveGame)},
        {"purge savegames", EachFile, nothing,
         [](World& world) { world.launcher.controls.ButPurge[Purge::SaveGames].clicked(); }},
        {"purge nodes", EachFile, [](World& world) { world.installation.add(u"gwa/main.gwa"_s); },
         [](World& world) { world.launcher.controls.ButPurge[Purge::Nodes].clicked(); }},
        {"clean up packs", EachFile, nothing,
         [](World& world) { world.launcher.controls.ButPurge[Purge::Models].clicked(); }},
        {"delete a playlist", Whole, playlist,
         [](World& world) { world.launcher.controls.butMusic[PlaylistCommand::Delete].clicked(); }},
        {"save a playlist", Whole, playlist,
         [](World& world) {
             PlaylistEditor editor(world.launcher, u"List"_s);
             if (editor.open() && editor.close()) // as it was put right
                 editor.save();
         }},
        {"assign a playlist", Whole, playlist,
         [](World& world) { world.launcher.controls.mcAutoSelect[AutoGame::Doom2].clicked(); }},
        {"make a shortcut", EachFile, installed(u"ALPHA"_s),
         [](World& world) { MakeShortcut(world.launcher); }},
        {"change the font", EachFile, nothing,
         [](World& world) {
             FontSetting font;
             font.CustomFontOn = true;
             font.FontName = u"Sans"_s;
             font.FontSize = 9;
             UseFont(world.launcher, font);
         }},
        {"add an IWAD", Whole, nothing,
         [path](World& world) {
             world.prompts.file = path(world, u"Other/Doom.wad"_s);
             IwadDialog dialog(world.launcher);
             dialog.activate();
             dialog.addIwad();
         }},
        {"open a zip", Whole, nothing, zip},
    };
}

// What differs from both; empty when the promise is kept.
QString broken(const Operation& operation, const Contents& before, const Contents& wanted,
               const Contents& now)
{
    if (now == before || now == wanted)
        return {};
    if (operation.promise == Promise::Whole)
        return u"neither the old nor the new"_s;
    QStringList wrong;
    for (auto file = now.begin(); file != now.end(); ++file) {
        const auto isThatOf = [&file](const Contents& other) {
            return other.contains(file.key()) && other[file.key()] == *file;
        };
        if (!isThatOf(before) && !isThatOf(wanted))
            wrong << file.key();
    }
    return wrong.join(u' ');
}

// Whose bytes are neither in the installation nor in the trash; records and lists may be written anew.
QStringList lost(const Contents& before, const Contents& now)
{
    static const QRegularExpression rewritten(u"^VYKLaunch/|^gwa/|\\.lnk$"_s);
    QList<QByteArray> there = now.values();
    for (QDirIterator file(trash(), QDir::Files, QDirIterator::Subdirectories); file.hasNext();) {
        QFile kept(file.next());
        if (kept.open(QFile::ReadOnly))
            there << kept.readAll();
    }
    QStringList missing;
    for (auto file = before.begin(); file != before.end(); ++file)
        if (!file.key().contains(rewritten) && !there.contains(*file))
            missing << file.key();
    return missing;
}

} // namespace

class EveryCallTest : public QObject
{
    Q_OBJECT

    QSet<QString> m_called;
    QStringList m_told;

    static Contents wantedOf(const Operation& operation, int& calls, QSet<QString>& called)
    {
        World world;
        operation.prepare(world);
        world.files.failAt(0, FileError::Kind::Other);
        operation.run(world);
        calls = world.files.calls();
        called += world.files.called;
        return world.contents();
    }

private Q_SLOTS:
    void init() { m_told.clear(); }

    void eachCallFails()
    {
        if (OnWindows)
            QSKIP("slow under Wine; and there a shortcut whose last step fails leaves its .lnk.new, which is "
                  "to be mended");
        for (const Operation& operation : operations()) {
            int calls = 0;
            const Contents wanted = wantedOf(operation, calls, m_called);
            QVERIFY2(calls > 0, operation.name);
            for (const auto kind :
                 {FileError::Kind::PermissionDenied, FileError::Kind::DiskFull, FileError::Kind::InUse}) {
                for (int call = 1; call <= calls; ++call) {
                    QDir(trash()).removeRecursively();
                    World world;
                    operation.prepare(world);
                    const Contents before = world.contents();
                    world.prompts.messages.clear();
                    world.files.failAt(call, kind);
                    operation.run(world);
                    RecoverGames(world.disk, world.launcher.paths.GamesPath); // as the next start does
                    const Contents now = world.contents();
                    const auto tell = [&](const QString& what) {
                        if (!what.isEmpty())
                            m_told << u"%1, call %2, failure %3: %4"_s.arg(QLatin1String(operation.name))
                                          .arg(call)
                                          .arg(static_cast<int>(kind))
                                          .arg(what);
                    };
                    tell(broken(operation, before, wanted, now));
                    if (world.files.trash)
                        tell(lost(before, now).join(u' '));
                    if (world.prompts.messages.size() > 1)
                        tell(world.prompts.messages.join(u'|'));
                }
            }
        }
        QVERIFY2(m_told.isEmpty(), qPrintable(m_told.join(u'\n')));
        // What the interface can do is what is tried here.
        QFile header(QStringLiteral(TEST_DATA "/../../src/platform/FileSystem.h"));
        QVERIFY(header.open(QFile::ReadOnly));
        const QString text = QString::fromUtf8(header.readAll()).simplified();
        static const QRegularExpression changing(u"virtual \\w+ (\\w+)\\([^;]*\\) = 0;"_s);
        for (auto found = changing.globalMatch(text); found.hasNext();)
            if (const QString name = found.next().captured(1); name != u"removeFolder")
                QVERIFY2(m_called.contains(name), qPrintable(name));
    }

#ifndef Q_OS_WIN
    void endedAtEachCall()
    {
        for (const Operation& operation : operations()) {
            int calls = 0;
            const Contents wanted = wantedOf(operation, calls, m_called);
            for (int call = 1; call <= calls; ++call) {
                QDir(trash()).removeRecursively();
                World world;
                operation.prepare(world);
                const Contents before = world.contents();
                const pid_t child = fork();
                if (child == 0) {
                    int left = call;
                    world.files.beforeCall = [&left] {
                        if (--left == 0)
                            _exit(0);
                    };
                    operation.run(world);
                    _exit(0);
                }
                int status = 0;
                QCOMPARE(waitpid(child, &status, 0), child);
                QVERIFY(WIFEXITED(status) && WEXITSTATUS(status) == 0);
                RecoverGames(world.disk, world.launcher.paths.GamesPath);
                const Contents now = world.contents();
                const QString wrong = broken(operation, before, wanted, now) + lost(before, now).join(u' ');
                if (!wrong.isEmpty())
                    m_told << u"%1, ended at call %2: %3"_s.arg(QLatin1String(operation.name))
                                  .arg(call)
                                  .arg(wrong);
            }
        }
        QVERIFY2(m_told.isEmpty(), qPrintable(m_told.join(u'\n')));
    }
#endif
};

QTEST_GUILESS_MAIN(EveryCallTest)
#include "EveryCallTest.moc"
