#include "launch/LaunchSteps.h"

#include "app/SettingsControls.h"
#include "options/ModelPacks.h"
#include "options/PresenceChecks.h"
#include "platform/Paths.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// Nothing in a command line escapes a double quote: a path that holds one would be split.
bool canBeQuoted(const Launcher& launcher, const QString& own, const QStringList& names)
{
    const auto carries = [&own](const QString& value) { return value.contains(u'"') && own.contains(value); };
    return own.count(u'"') % 2 == 0 && !carries(NativePath(launcher.launch.SelectedIwadPath)) &&
           !carries(NativePath(launcher.settings.TexturePath)) &&
           !carries(BaseNameOf(launcher.settings.PlaylistName)) &&
           std::ranges::none_of(names, [](const QString& name) { return name.contains(u'"'); });
}

} // namespace

void PrepareLaunch(Launcher& launcher)
{
    ReadControlsToSettings(launcher.settings, launcher.controls);
    CheckGraphicsPacks(launcher);
    DetectModelPacks(launcher);
    CheckSoundPack(launcher);
    launcher.launch.RicochetOn =
        launcher.controls.chkSound[2].ticked() && !launcher.controls.chkMain[0].ticked();
    if (!launcher.controls.chkMain[1].enabled)
        launcher.settings.HighResTextures = false;
}

void CheckKelspackWad(Launcher& launcher, LaunchPlan& plan)
{
    Settings& settings = launcher.settings;
    if ((!settings.KelspackWeapons && !settings.KelspackAlternative) || settings.CoreEffects ||
        launcher.files.fileExists(launcher.paths.RootPath + u"/md2/Kelspack/kelspack.wad"_s))
        return;
    plan.notices << LaunchMessage{u" Unable to use kelspack as the kelspack.wad was not found.  "_s,
                                  u" Launch error"_s};
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

LaunchPlan FinishPlan(Launcher& launcher, LaunchPlan plan, const QString& commandLine,
                      const QStringList& names)
{
    const QString own = commandLine + StartSwitches(launcher);
    if (canBeQuoted(launcher, own, names))
        plan.commandLine = own + CustomText(launcher);
    else
        plan.refusal =
            LaunchMessage{u"A file or folder name holds a double quote, which the engine's command "
                          "line cannot carry.    \r\nRename it and try again.    "_s,
                          u" Launch error"_s};
    return plan;
}
