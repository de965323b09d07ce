#include "options/OptionTabs.h"

#include "catalogue/GameSelection.h"
#include "options/ModelPacks.h"
#include "options/PresenceChecks.h"

namespace {

enum Tab { Games, Options, Graphics, Sound, Models };
constexpr size_t cleanupButton = 8; // AuxButton
constexpr size_t shortcutButton = 2;

void showModels(Launcher& launcher)
{
    DetectModelPacks(launcher);
    if (launcher.modelPacks.ModelPacksMissing)
        ShowModelAdvice(launcher);
}

void tabClicked(Launcher& launcher, int tab)
{
    Controls& controls = launcher.controls;
    for (int i = 0; i < controls.OptionTabs.count(); ++i) {
        controls.OptionTabs[i].colour = i == tab ? Colour::Accent : Colour::Normal;
        controls.TabFrame[static_cast<size_t>(i)].visible = i == tab;
    }
    if (tab == Games && std::exchange(launcher.selection.gamesChanged, false))
        ShowSelectedGameAnew(launcher);
    else if (tab == Graphics)
        CheckGraphicsPacks(launcher);
    else if (tab == Sound)
        CheckSoundPack(launcher);
    else if (tab == Models)
        showModels(launcher);

    const bool canLaunch = CanLaunchSelection(launcher);
    controls.LaunchButton.enabled = canLaunch;
    controls.AuxButton[shortcutButton].enabled = canLaunch && launcher.settings.ShortcutCreation;
    controls.AuxButton[cleanupButton].visible = tab == Models;
    if (tab != Games)
        controls.chkMain[1].visible = true;
}

} // namespace

void ConnectOptionTabs(Launcher& launcher)
{
    launcher.controls.OptionTabs.clicked = [&launcher](int tab) { tabClicked(launcher, tab); };
    launcher.controls.OptionTabs[Games].colour = Colour::Accent;
}
