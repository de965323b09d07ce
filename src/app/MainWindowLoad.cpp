#include "app/MainWindowLoad.h"

#include "app/SettingsControls.h"
#include "app/SettingsLoad.h"
#include "app/StartUp.h"
#include "app/Themes.h"
#include "app/Tips.h"
#include "app/ToolTips.h"
#include "catalogue/GameLists.h"
#include "catalogue/GameStaging.h"
#include "catalogue/ScriptedMapMode.h"
#include "music/AutoPlaylist.h"
#include "music/Playlists.h"
#include "options/DisplayMode.h"
#include "options/DisplayResolution.h"
#include "options/LoadOptions.h"
#include "platform/Paths.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int exitMode = 2; // LaunchMode

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

void emptyZipFolder(Launcher& launcher)
{
    const QString zips = launcher.paths.LaunchPath + u"Zips/"_s;
    if (launcher.settings.LastLaunchMode != exitMode)
        return;
    for (const QString& name : launcher.files.files(zips)) {
        try {
            launcher.files.remove(zips + name);
        } catch (const FileError&) {
            // What is in use is deleted another time.
        }
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
    const bool useSaved = known && !launcher.startUp.RunningUnderWine && launcher.window.isReachableAt(saved);
    launcher.window.moveTo(useSaved ? saved : centre);
    launcher.controls.WineImage.visible = launcher.startUp.RunningUnderWine;
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
    Controls& controls = launcher.controls;
    Settings& settings = launcher.settings;

    CheckDPISettings(launcher);
    if (!launcher.font.FontName.isEmpty())
        launcher.window.checkFont(launcher.font);
    createOwnFolders(launcher);
    recoverGames(launcher);
    LoadSettings(launcher);
    if (launcher.startUp.ShuttingDown)
        return;
    PrepareOptions(launcher);
    GetTitlePic(launcher);
    if (!settings.ShowTipsAtStartup)
        Tips hidden(launcher); // each start has its tip, shown or not
    if (!settings.DisableToolTips)
        ToolTipText(launcher);
    if (!settings.AdvancedOptions)
        DefaultMode(launcher);
    launcher.window.refresh(); // the window has its height from here on
    GetCurrentRes(launcher);

    BuildIwadList(launcher.iwads, launcher.files, launcher.paths, launcher.environment);
    if (!launcher.iwads.anyKnown())
        settings.SelectedDoomGame.clear();
    emptyZipFolder(launcher);
    placeWindow(launcher);
    ApplySettingsToControls(settings, controls);
    LoadPlaylists(launcher);
    if (!settings.AdvancedOptions)
        DefaultMode(launcher); // again: the edit mode, say, shows a button
    if (settings.DevelopmentMode)
        controls.chkTesting.visible = controls.ExitOption[0].visible = true;
    if (settings.LaunchMode == 0)
        controls.ExitOption[0].visible = true;
    if (controls.SkillsLevel[1].selected() == 0)
        launcher.launch.StartChoice = StartChoice::NewGame;
    SelectStartupOptions(launcher);

    const bool viewIsHidden = settings.ListMode == zipLibrary && !settings.AdvancedOptions;
    OptionUdirClick(launcher, viewIsHidden ? doomGames : qBound(0, settings.ListMode, zipLibrary));
    if (launcher.iwads.ShowIwads[0].isEmpty())
        launcher.window.showIwadForm();
    if (launcher.startUp.ShuttingDown)
        return;

    CheckOptions(launcher);
    if (!settings.PlaylistFrameHidden)
        controls.SoundFrame[1].visible = true;
    reportReset(launcher);
    RestoreScriptedMapMode(launcher);
    launcher.selection.gamesChanged = false;
    controls.MainForm.caption = launcher.startUp.WindowCaption;
    launcher.window.refresh();
}

void UnloadMainWindow(Launcher& launcher)
{
    if (launcher.startUp.ShuttingDown)
        return;
    Settings& settings = launcher.settings;
    if (!launcher.startUp.RunningUnderWine && launcher.window.isInNormalState()) {
        settings.WindowTop = launcher.window.position().y();
        settings.WindowLeft = launcher.window.position().x();
    }
    try {
        launcher.files.remove(launcher.paths.LaunchDataPath + u"pwad.vyk"_s);
    } catch (const FileError&) {
        // The last report of the game-file tool matters to nobody.
    }
    ReadControlsToSettings(settings, launcher.controls);
    try {
        if (!launcher.startUp.VersionUpdate)
            SaveSettings(launcher);
    } catch (const FileError&) {
        launcher.prompts.MsgboxPos(u"The settings could not be saved to    \r\n"_s +
                                       NativePath(ConfigPath(launcher)) + u"    "_s,
                                   Msg::Ok + Msg::Exclamation, u" Access error"_s);
    }
    if (launcher.startUp.RestartRequested)
        RestartLauncher(launcher);
}

void ActivateMainWindow(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    if (launcher.settings.SelectedDoomGame.isEmpty())
        controls.PwadList.select(0);
    if (!HasAutoPlaylists(launcher))
        controls.chkSound[4].setTicked(false);
    LaunchState& launch = launcher.launch;
    launch.AfterLaunch = launch.AfterLaunch && Reset(launcher);
}

void ResizeMainWindow(Launcher& launcher)
{
    if (launcher.window.isInNormalState() && std::exchange(launcher.launch.AfterLaunch, false))
        Reset(launcher);
}

bool EnterPressed(Launcher& launcher)
{
    const Button& launch = launcher.controls.LaunchButton;
    if (!launch.enabled)
        return false;
    launch.clicked();
    return true;
}
