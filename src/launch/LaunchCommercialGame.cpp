#include "launch/LaunchCommercialGame.h"

#include "launch/LaunchSteps.h"
#include "launch/SwitchTable.h"
#include "music/AutoPlaylist.h"
#include "options/ModelPacks.h"

using namespace Qt::StringLiterals;

LaunchPlan PlanCommercialGame(Launcher& launcher)
{
    LaunchState& launch = launcher.launch;
    const QString wad = launcher.selection.SelectedWadPath;
    LaunchPlan plan;

    PrepareLaunch(launcher);
    if (!CheckHudWeaponsDefs(launcher.settings, launcher.files, launcher.paths))
        plan.notices << LaunchMessage{u"There is a compatibility issue between the standard and enhanced "
                                      u"models, enhanced models will not be used\r\n"
                                      "update to the latest model packs.  "_s,
                                      u" Launch error"_s};
    CheckKelspackWad(launcher, plan);

    launch.SelectedIwadPath = IwadPathFor(launcher.iwads, wad, launch.SelectedIwadPath);
    if (!launcher.files.fileExists(wad)) {
        plan.refusal = LaunchMessage{u"There appears to be a problem with the IWAD location.\r\n"
                                     "Reset Iwads and do a search or enter new locations."_s,
                                     u" Setup error"_s};
        plan.iwadGone = true;
        return plan;
    }
    return FinishPlan(launcher, std::move(plan),
                      Engine + IwadArgument(launcher, wad) +
                          OptionSwitches({.launcher = launcher,
                                          .path = LaunchPath::CommercialGame,
                                          .automaticPlaylist = AutomaticPlaylist(launcher)}));
}

LaunchResult LaunchCommercialGame(Launcher& launcher)
{
    return RunPlan(launcher, PlanCommercialGame(launcher));
}
