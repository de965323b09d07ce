#include "tools/VYKplay/Play.h"

#include "app/Connect.h"
#include "app/SettingsLoad.h"
#include "app/ShowAll.h"
#include "app/StartUp.h"
#include "catalogue/GameLists.h"
#include "catalogue/GameSelection.h"
#include "catalogue/InstallGame.h"
#include "engines/EngineFailure.h"
#include "iwads/IwadSearch.h"
#include "launch/LaunchButton.h"
#include "music/Playlists.h"
#include "options/EngineList.h"
#include "options/PackFacts.h"
#include "platform/DiskFileSystem.h"
#include "platform/Paths.h"
#include "platform/ReadOnlyFileSystem.h"
#include "platform/SystemProcesses.h"
#include "platform/Text.h"
#include "state/OptionTable.h"
#include "tools/VYKplay/ConsoleServices.h"
#include "tools/VYKplay/Integrate.h"
#include "wad/MainWad.h"

#include <QEventLoop>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

constexpr int done = 0;
constexpr int refused = 1;
constexpr int wrongUsage = 2;

const QString ownEngine = u"This installation starts an engine of its own."_s;

// The launcher's state as its window would have loaded it, except that nothing is selected.
void load(Launcher& launcher, bool withVersions, QTextStream& err)
{
    launcher.font = LoadFontSetting(launcher.files, launcher.paths.LaunchPath + u"font.vyk"_s);
    const ReadResult result = ReadStoredSettings(launcher);
    const bool otherVersion = !SameName(launcher.settings.LauncherVersion, DefaultSettings().LauncherVersion);
    if (result == ReadResult::Corrupt || otherVersion) {
        err << "config.vyk cannot be read: the default settings are used." << Qt::endl;
        UseDefaultSettings(launcher);
    }
    CorrectSettings(launcher.settings);
    IwadPaths& iwads = launcher.facts.iwads;
    BuildIwadList(iwads, launcher.files, launcher.paths, launcher.environment);
    launcher.facts.iwadsOnDisk = ReadIwadFacts(iwads, launcher.files, launcher.paths, launcher.environment);
    ReadPacks(launcher);
    ReadEngines(launcher, withVersions);
    ReadPlaylists(launcher);
}

QList<View> viewsOf(const Arguments& arguments)
{
    return arguments.view ? QList<View>{*arguments.view}
                          : QList<View>{View::DoomGames, View::InstalledGames, View::ZipLibrary};
}

// Selects the game in the first view that has it. A game that loads its files itself has none chosen until
// the player chooses one: then it is its main WAD.
bool selectGame(Launcher& launcher, const Arguments& arguments)
{
    for (const View view : viewsOf(arguments)) {
        const ListEntry game = FindGame(GamesOf(launcher, view), arguments.game);
        if (game.name.isEmpty())
            continue;
        SelectedNameOf(launcher.settings, view) = game.name;
        SelectView(launcher, view);
        if (launcher.gameIs(GameKind::Gwad) && launcher.chosenFile().isEmpty())
            SelectFile(launcher, ChooseMainWad(launcher, launcher.facts.game));
        ShowWindow(launcher);
        return true;
    }
    return false;
}

int listGames(Launcher& launcher, const Arguments& arguments, QTextStream& out)
{
    for (const View view : viewsOf(arguments))
        for (const ListEntry& game : GamesOf(launcher, view))
            out << game.text << Qt::endl;
    return done;
}

int listMaps(const Launcher& launcher, QTextStream& out)
{
    if (launcher.gameIs(GameKind::Archive) && launcher.facts.opened.path.isEmpty())
        return refused; // a message has said why
    for (const QString& map : launcher.facts.file.maps)
        out << map << Qt::endl;
    return done;
}

// The usual engine is marked.
int listEngines(const Launcher& launcher, QTextStream& out, QTextStream& err)
{
    if (!launcher.facts.startsOtherEngines) {
        err << ownEngine << Qt::endl;
        return refused;
    }
    const FoundEngine* usual = launcher.engine();
    for (const FoundEngine& engine : launcher.facts.engines)
        out << (&engine == usual ? "* " : "  ") << engine.title << (engine.version.isEmpty() ? "" : " ")
            << engine.version << '\t' << NativePath(engine.program) << Qt::endl;
    return done;
}

// The engine for this start; false when there is no such engine.
bool chooseEngine(Launcher& launcher, const QString& wanted, QTextStream& err)
{
    if (wanted.isEmpty())
        return true;
    if (!launcher.facts.startsOtherEngines) {
        err << ownEngine << Qt::endl;
        return false;
    }
    try {
        launcher.selection.engine =
            FindEngine(wanted, launcher.paths.RootPath, QProcessEnvironment::systemEnvironment()).program;
        ShowWindow(launcher);
        return true;
    } catch (const EngineFailure& failure) {
        err << failure.what() << Qt::endl;
        return false;
    }
}

// Chooses the start as a player's clicks would; false when the map or savegame is not there.
bool chooseStart(Launcher& launcher, const Arguments& arguments, QTextStream& err)
{
    Controls& controls = launcher.controls;
    if (arguments.skill != 0 || arguments.newGame)
        controls.SkillsLevel[SkillList::Basic].select(arguments.skill);
    if (!arguments.map.isEmpty()) {
        const int map = controls.MapList.find(arguments.map);
        if (map < 0)
            err << "There is no map \"" << arguments.map << "\" in " << arguments.game << '.' << Qt::endl;
        controls.MapList.click(map);
        return map >= 0;
    }
    if (!arguments.slot.isEmpty()) {
        const ListBox& saves = controls.SaveGameList;
        for (int i = 0; i < saves.count(); ++i) {
            if (saves.entry(i).left(1) == arguments.slot) {
                controls.SaveGameList.click(i);
                return true;
            }
        }
        err << "There is no savegame in slot \"" << arguments.slot << "\" of " << arguments.game << '.'
            << Qt::endl;
        return false;
    }
    return true;
}

int play(Launcher& launcher, const Arguments& arguments, QTextStream& err)
{
    if (!chooseStart(launcher, arguments, err) || !chooseEngine(launcher, arguments.engine, err))
        return refused;
    std::optional<bool> played;
    QEventLoop firstSeconds;
    const auto known = [&](bool ok) {
        played = ok;
        firstSeconds.quit();
    };
    if (LaunchSelectedGame(launcher, known) == LaunchResult::Refused)
        return refused;
    if (!played)
        firstSeconds.exec();
    return *played ? done : refused;
}

Installed installFile(Launcher& launcher, const QString& path, bool asGwad)
{
    if (!asGwad)
        return InstallPwadGame(launcher, path);
    return InstallGwadGame(launcher, path);
}

int install(Launcher& launcher, const Arguments& arguments, QTextStream& err)
{
    bool all = true;
    for (const QString& file : arguments.files) {
        const QString path = QFileInfo(file).absoluteFilePath();
        const Installed installed = launcher.files.fileExists(path)
                                        ? installFile(launcher, path, arguments.asGwad)
                                        : Installed::NotAGame;
        if (installed == Installed::NotAGame)
            err << file << ": there is no such .wad or .zip file." << Qt::endl;
        all = all && installed == Installed::Done;
    }
    return all ? done : refused;
}

// What an installation that was cut off has left; what cannot be put right is left for the next command.
void recoverGames(FileSystem& files, const QString& root)
{
    try {
        RecoverGames(files, InstallationPaths(root).GamesPath);
    } catch (const FileError&) {
    }
}

int run(Launcher& launcher, const Arguments& arguments, QTextStream& out, QTextStream& err)
{
    if (arguments.command == Arguments::Command::Integrate && arguments.remove) {
        RemoveLauncherFromMenu(launcher.files, MenuFolders::ofUser());
        return done;
    }
    const QString missing = CheckRequiredFiles(launcher.files, launcher.paths);
    if (!missing.isEmpty()) {
        err << missing << " has not been detected - re-install Keldrax." << Qt::endl;
        return refused;
    }
    if (arguments.command == Arguments::Command::Integrate)
        return AddLauncherToMenu(launcher.files, MenuFolders::ofUser(), launcher.paths, err) ? done : refused;
    load(launcher, arguments.command == Arguments::Command::Engines, err);
    if (arguments.command == Arguments::Command::Install)
        return install(launcher, arguments, err);
    if (arguments.command == Arguments::Command::List)
        return listGames(launcher, arguments, out);
    if (arguments.command == Arguments::Command::Engines)
        return listEngines(launcher, out, err);
    if (!selectGame(launcher, arguments)) {
        err << "There is no game \"" << arguments.game << "\"." << Qt::endl;
        return refused;
    }
    return arguments.command == Arguments::Command::Maps ? listMaps(launcher, out)
                                                         : play(launcher, arguments, err);
}

} // namespace

int RunVYKplay(const Arguments& arguments, const QString& root, QTextStream& out, QTextStream& err)
{
    if (!arguments.wrong.isEmpty()) {
        err << arguments.wrong << "\n\n" << UsageText() << Qt::flush;
        return wrongUsage;
    }
    if (arguments.command == Arguments::Command::Help) {
        out << UsageText() << Qt::flush;
        return done;
    }
    DiskFileSystem disk;
    recoverGames(disk, root);
    ReadOnlyFileSystem readOnly(disk, root + u"/VYKLaunch/Zips/"_s);
    SystemProcesses system(disk);
    PrintingProcesses printing(system, out);
    QTextStream input(stdin);
    ConsolePrompts prompts(err, input);
    NoWindow window;

    // Listing and dry runs change nothing; a zip is extracted, no more.
    const bool changes = arguments.command == Arguments::Command::Install ||
                         arguments.command == Arguments::Command::Integrate ||
                         (arguments.command == Arguments::Command::Play && !arguments.dryRun);
    FileSystem& files = changes ? static_cast<FileSystem&>(disk) : readOnly;
    Processes& processes = changes ? static_cast<Processes&>(system) : printing;
    ConnectedLauncher launcher(files, processes, prompts, window, root);
    try {
        return run(launcher, arguments, out, err);
    } catch (const FileError& error) {
        err << error.what() << Qt::endl;
        return refused;
    }
}
