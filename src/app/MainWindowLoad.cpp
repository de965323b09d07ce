#include "app/MainWindowLoad.h"

#include "app/SettingsLoad.h"
#include "app/ShowAll.h"
#include "app/StartUp.h"
#include "app/Themes.h"
#include "app/Tips.h"
#include "catalogue/GameLists.h"
#include "catalogue/GameStaging.h"
#include "catalogue/ZipLibrary.h"
#include "iwads/IwadSearch.h"
#include "music/Playlists.h"
#include "options/DisplayResolution.h"
#include "options/EngineList.h"
#include "options/PackFacts.h"
#include "platform/Paths.h"
#include "ui/FileErrorReport.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace {

void createOwnFolders(Launcher& launcher)
{
    launcher.files.createFolder(launcher.paths.RootPath + u"/VYKGames"_s);
    launcher.files.createFolder(launcher.paths.LaunchPath + u"GameInfo"_s);
}

void recoverGames(Launcher& launcher)
{
    try {
        RecoverGames(launcher.files, launcher.paths.GamesPath);
    } catch (const FileError&) {
        // What an installation that was cut off moved aside stays there until the next one.
    }
}

void placeWindow(Launcher& launcher)
{
    Settings& settings = launcher.settings;
    const QPoint saved(settings.WindowLeft, settings.WindowTop);
    const QSize free = launcher.window.screenSize() - launcher.window.size();
    const QPoint centre(free.width() / 2, free.height() / 2);
    const bool known =
        settings.WindowTop != Settings::unknownPosition && settings.WindowLeft != Settings::unknownPosition;
    if (!known) {
        settings.WindowTop = centre.y();
        settings.WindowLeft = centre.x();
    }
    const bool useSaved = known && !launcher.RunningUnderWine && launcher.window.isReachableAt(saved);
    launcher.window.moveTo(useSaved ? saved : centre);
}

void reportReset(Launcher& launcher)
{
    StartUpState& startUp = launcher.startUp;
    if (!startUp.VersionUpdate)
        return;
    startUp.VersionUpdate = false;
    const bool unreadable = std::exchange(startUp.ConfigReadError, false);
    launcher.window.show();
    const QString reason =
        unreadable ? u"Corrupt config file detected required the launcher configurations to     "_s
                   : u"The latest version upgrade required the launcher configurations to     "_s;
    launcher.prompts.MsgboxPos(
        reason + u"\r\n"_s + u" be reset to the default settings, please reconfigure your settings. "_s,
        Msg::Ok + Msg::SystemModal, u" Version update "_s + launcher.settings.LauncherVersion);
}

} // namespace

void LoadMainWindow(Launcher& launcher)
{
    Settings& settings = launcher.settings;
    launcher.facts.logicalDpi = launcher.window.logicalDpi();
    if (!launcher.font.FontName.isEmpty())
        launcher.window.checkFont(launcher.font);
    createOwnFolders(launcher);
    recoverGames(launcher);
    LoadSettings(launcher);
    if (launcher.startUp.ShuttingDown)
        return;
    if (!settings.ShowTipsAtStartup)
        Tips hidden(launcher); // each start has its tip, shown or not
    GetTitlePic(launcher);
    launcher.window.refresh(); // the window has its height from here on
    if (settings.LastLaunchMode == static_cast<int>(LaunchMode::Exit))
        EmptyZipFolder(launcher);
    placeWindow(launcher);
    ReadFacts(launcher);
    if (launcher.facts.iwads.ShowIwads[0].isEmpty())
        launcher.window.showIwadForm();
    if (launcher.startUp.ShuttingDown)
        return;
    reportReset(launcher);
    launcher.window.refresh();
}

void ReadFacts(Launcher& launcher)
{
    Facts& facts = launcher.facts;
    ReadPacks(launcher);
    ReadEngines(launcher, launcher.selection.tab == Tab::Options);
    LoadPlaylists(launcher);
    facts.resolution = GetCurrentRes(launcher.files, launcher.paths);
    BuildIwadList(facts.iwads, launcher.files, launcher.paths, launcher.environment);
    facts.iwadsOnDisk = ReadIwadFacts(facts.iwads, launcher.files, launcher.paths, launcher.environment);
    if (!facts.iwads.anyKnown())
        launcher.settings.SelectedDoomGame.clear();
    SelectView(launcher, launcher.view());
}

void UnloadMainWindow(Launcher& launcher)
{
    if (launcher.startUp.ShuttingDown)
        return;
    Settings& settings = launcher.settings;
    if (!launcher.RunningUnderWine && launcher.window.isInNormalState()) {
        settings.WindowTop = launcher.window.position().y();
        settings.WindowLeft = launcher.window.position().x();
    }
    try {
        launcher.files.remove(launcher.paths.LaunchDataPath + u"pwad.vyk"_s);
    } catch (const FileError&) {
        // The last report of the game-file tool matters to nobody.
    }
    try {
        if (!launcher.startUp.VersionUpdate)
            SaveSettings(launcher);
    } catch (const FileError& error) {
        if (!ReportCause(launcher.prompts, error))
            launcher.prompts.MsgboxPos(u"The settings could not be saved to    \r\n"_s +
                                           NativePath(ConfigPath(launcher)) + u"    "_s,
                                       Msg::Ok + Msg::Exclamation, u" Access error"_s);
    }
    if (launcher.startUp.RestartRequested)
        RestartLauncher(launcher);
}

void ActivateMainWindow(Launcher& launcher)
{
    if (launcher.view() == View::DoomGames && launcher.gameIs(GameKind::None))
        SelectView(launcher, View::DoomGames);
    if (ReadPlaylists(launcher); launcher.facts.autoPlaylists.isEmpty())
        launcher.settings.AutoPlaylistsOn = false;
    launcher.session.AfterLaunch = launcher.session.AfterLaunch && Reset(launcher);
    ShowWindow(launcher);
}

void ResizeMainWindow(Launcher& launcher)
{
    if (launcher.window.isInNormalState() && std::exchange(launcher.session.AfterLaunch, false))
        Reset(launcher);
    ShowWindow(launcher);
}

bool EnterPressed(Launcher& launcher)
{
    const Button& launch = launcher.controls.LaunchButton;
    if (!launch.enabled)
        return false;
    launch.clicked();
    return true;
}
