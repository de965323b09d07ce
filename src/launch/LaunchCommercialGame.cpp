#include "launch/LaunchCommercialGame.h"

#include "launch/LaunchSteps.h"
#include "launch/SwitchTable.h"
#include "options/ModelPacks.h"

using namespace Qt::StringLiterals;

LaunchResult LaunchCommercialGame(Launcher& launcher)
{
    LaunchState& launch = launcher.launch;
    const QString wad = launcher.selection.SelectedWadPath;

    PrepareLaunch(launcher);
    if (!CheckHudWeaponsDefs(launcher.settings, launcher.files, launcher.paths)) {
        launcher.prompts.MsgboxPos(u"There is a compatibility issue between the standard and enhanced "
                                   u"models, enhanced models will not be used\r\n"
                                   "update to the latest model packs.  "_s,
                                   Msg::Ok + Msg::Information, u" Launch error"_s);
        launcher.settings.TovrensReplacements = false;
    }
    CheckKelspackWad(launcher);

    launch.SelectedIwadPath = IwadPathFor(launcher.iwads, wad, launch.SelectedIwadPath);
    if (!launcher.files.fileExists(wad)) {
        launcher.prompts.MsgboxPos(u"There appears to be a problem with the IWAD location.\r\n"
                                   "Reset Iwads and do a search or enter new locations."_s,
                                   Msg::Ok + Msg::Information, u" Setup error"_s);
        launcher.window.showIwadForm();
        launch.ShortcutMode = false;
        return LaunchResult::Refused;
    }

    QString commandLine = Engine + IwadArgument(launcher, wad);
    launch.AfterLaunch = true;
    commandLine +=
        OptionSwitches({.launcher = launcher, .path = LaunchPath::CommercialGame, .automaticPlaylist = {}});
    commandLine += StartSwitches(launcher) + CustomText(launcher);
    return FinishLaunch(launcher, commandLine);
}
