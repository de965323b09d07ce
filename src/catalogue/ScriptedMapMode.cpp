#include "catalogue/ScriptedMapMode.h"

#include "catalogue/GameLists.h"
#include "catalogue/ScriptedMaps.h"

#include <utility>

namespace {

void toggle(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    Settings& settings = launcher.settings;
    bool& ignoreOnce = launcher.selection.ignoreScriptedMapClick;
    if (!controls.ChkCM.ticked())
        ignoreOnce = false;
    if (settings.ListMode != installedGames || std::exchange(ignoreOnce, false))
        return;

    const bool on = !controls.ChkCM.ticked();
    controls.ChkCM.setTicked(on);
    controls.chkAutoSelect.setTicked(on);
    settings.ScriptedMapMode = settings.AutoSelect = on;
    if (!on)
        settings.SelectedGame = settings.SelectedGameAutoOff;
    else if (!settings.SelectedGameAutoOn.isEmpty())
        settings.SelectedGame = settings.SelectedGameAutoOn;
    OptionUdirClick(launcher, installedGames);
}

} // namespace

void ConnectScriptedMapMode(Launcher& launcher)
{
    launcher.controls.ImageCM.clicked = [&launcher] { toggle(launcher); };
    launcher.controls.Auto[0].clicked = [&launcher] {
        if (ScriptedMapSwitchShown(launcher))
            toggle(launcher);
    };
}

bool ScriptedMapSwitchShown(const Launcher& launcher)
{
    return launcher.settings.ListMode == installedGames && launcher.controls.chkMain[2].ticked() &&
           ScriptedMapModelsPresent(launcher.files, launcher.paths);
}

void RestoreScriptedMapMode(Launcher& launcher)
{
    launcher.selection.ignoreScriptedMapClick = true;
    launcher.controls.ImageCM.visible = ScriptedMapSwitchShown(launcher);
    if (launcher.controls.chkAutoSelect.ticked())
        launcher.controls.Auto[0].clicked();
}
