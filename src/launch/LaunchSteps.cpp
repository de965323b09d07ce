#include "launch/LaunchSteps.h"

#include "app/SettingsControls.h"
#include "app/StartUp.h"
#include "options/PresenceChecks.h"
#include "platform/Paths.h"
#include "platform/Text.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int minimiseMode = 1;
constexpr int exitMode = 2;

// Nothing in a command line escapes a double quote: a path that holds one would be split.
bool canBeQuoted(const Launcher& launcher, const QString& commandLine)
{
    const QString own = commandLine.chopped(CustomText(launcher).size());
    const auto carries = [&own](const QString& value) { return value.contains(u'"') && own.contains(value); };
    return own.count(u'"') % 2 == 0 && !carries(NativePath(launcher.launch.SelectedIwadPath)) &&
           !carries(NativePath(launcher.settings.TexturePath)) &&
           !carries(BaseNameOf(launcher.settings.PlaylistName));
}

void writeLog(Launcher& launcher, const QString& commandLine)
{
    try {
        WriteLines(launcher.files, launcher.paths.LaunchPath + u"launch.log"_s, {commandLine});
    } catch (const FileError&) {
        // The log is for the player to read; a game starts without it.
    }
}

} // namespace

void PrepareLaunch(Launcher& launcher)
{
    const bool forShortcut = launcher.launch.ShortcutMode;
    ReadControlsToSettings(launcher.settings, launcher.controls);
    const int mode = launcher.settings.LaunchMode;
    if (!forShortcut && mode >= 0 && mode <= exitMode)
        launcher.settings.LastLaunchMode = mode;
    CheckGraphicsPacks(launcher);
    CheckSoundPack(launcher);
    launcher.launch.RicochetOn =
        launcher.controls.chkSound[2].ticked() && !launcher.controls.chkMain[0].ticked();
    if (!launcher.controls.chkMain[1].enabled)
        launcher.settings.HighResTextures = false;
}

void CheckKelspackWad(Launcher& launcher)
{
    Settings& settings = launcher.settings;
    if ((!settings.KelspackWeapons && !settings.KelspackAlternative) || settings.CoreEffects ||
        launcher.files.fileExists(launcher.paths.RootPath + u"/md2/Kelspack/kelspack.wad"_s))
        return;
    launcher.prompts.MsgboxPos(u" Unable to use kelspack as the kelspack.wad was not found.  "_s,
                               Msg::Ok + Msg::Information, u" Launch error"_s);
    settings.KelspackWeapons = settings.KelspackAlternative = false;
}

QString IwadArgument(const Launcher& launcher, const QString& wad)
{
    const QString& iwad = launcher.launch.SelectedIwadPath;
    if (IsIwadMissing(wad, launcher.files, launcher.paths, launcher.environment))
        return u" -iwad \""_s + NativePath(iwad) + u"\" "_s;
    return u" -"_s + BaseNameOf(iwad) + u' ';
}

QString StartSwitches(const Launcher& launcher)
{
    const LaunchState& launch = launcher.launch;
    if (launch.StartChoice == StartChoice::ChosenMap && !launch.WarpArgument.isEmpty())
        return u"-wp "_s + launch.WarpArgument + u' ';
    if (launch.StartChoice == StartChoice::ChosenSavegame)
        return u"-loadgame "_s + launch.SaveSlot + u' ';
    return {};
}

QString CustomText(const Launcher& launcher)
{
    const QString& text = launcher.settings.CustomText;
    return text.isEmpty() ? QString() : text + u' ';
}

LaunchResult RefuseUnquotable(Launcher& launcher)
{
    launcher.launch.AfterLaunch = false;
    launcher.launch.ShortcutMode = false;
    launcher.prompts.MsgboxPos(u"A file or folder name holds a double quote, which the engine's command line "
                               "cannot carry.    \r\nRename it and try again.    "_s,
                               Msg::Ok + Msg::Information, u" Launch error"_s);
    return LaunchResult::Refused;
}

LaunchResult FinishLaunch(Launcher& launcher, const QString& commandLine)
{
    LaunchState& launch = launcher.launch;
    const bool forShortcut = std::exchange(launch.ShortcutMode, false);
    if (!canBeQuoted(launcher, commandLine))
        return RefuseUnquotable(launcher);
    if (forShortcut) {
        launch.ShortcutArguments = commandLine.mid(Engine.size() + 1);
        launch.AfterLaunch = false;
        return LaunchResult::HandedOver;
    }

    writeLog(launcher, commandLine);
    launcher.settings.WindowTop = launcher.window.position().y();
    launcher.settings.WindowLeft = launcher.window.position().x();
    if (launcher.settings.LastLaunchMode == minimiseMode)
        launcher.window.minimise();
    launch.RicochetOn = false;
    if (!launcher.processes.start(commandLine, launcher.paths.RootPath)) {
        launch.AfterLaunch = false;
        launcher.window.bringToFront(); // a message over a minimised window may not be seen
        launcher.prompts.MsgboxPos(u"Cannot execute! The command line was:\r\n"_s + commandLine, Msg::Ok,
                                   QString());
        return LaunchResult::Refused;
    }
    if (launcher.settings.LastLaunchMode == exitMode)
        ShutDownLauncher(launcher);
    return LaunchResult::Started;
}
