#include "catalogue/ScriptedMapMode.h"

#include "catalogue/GameLists.h"

namespace {

void toggle(Launcher& launcher)
{
    Settings& settings = launcher.settings;
    if (!ScriptedMapSwitchShown(launcher))
        return;
    const bool on = !settings.ScriptedMapMode;
    settings.ScriptedMapMode = settings.AutoSelect = on;
    (on ? settings.SelectedGameAutoOff : settings.SelectedGameAutoOn) = settings.SelectedGame;
    if (!on)
        settings.SelectedGame = settings.SelectedGameAutoOff;
    else if (!settings.SelectedGameAutoOn.isEmpty())
        settings.SelectedGame = settings.SelectedGameAutoOn;
    SelectView(launcher, View::InstalledGames);
}

} // namespace

void ConnectScriptedMapMode(Launcher& launcher)
{
    launcher.controls.ImageCM.clicked = [&launcher] { toggle(launcher); };
    launcher.controls.Auto[Heading::Games].clicked = [&launcher] { toggle(launcher); };
}

bool ScriptedMapSwitchShown(const Truth& truth)
{
    return truth.view() == View::InstalledGames && truth.settings.AdvancedOptions &&
           truth.facts.modelPacks.scriptedMapModels;
}
