#include "options/OptionEvents.h"

#include "catalogue/GameLists.h"
#include "options/EngineList.h"
#include "options/Modes.h"
#include "options/OptionValues.h"
#include "options/PackFacts.h"
#include "options/Spinners.h"
#include "records/RecordRemoval.h"

namespace {

constexpr int commandLinePanel = 1; // CommandPanelMode
constexpr int editPanel = 2;

void togglePanel(Launcher& launcher)
{
    const bool toEdit = launcher.settings.CommandPanelMode == commandLinePanel && !launcher.RunningUnderWine;
    launcher.settings.CommandPanelMode = toEdit ? editPanel : commandLinePanel;
}

void connectDeveloperSpots(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    const auto toggleDevelopmentMode = [&launcher] {
        bool& shown = launcher.selection.developmentModeShown;
        shown = !(shown || launcher.settings.DevelopmentMode);
        launcher.settings.DevelopmentMode = false;
    };
    for (const auto spot : {DeveloperSpot::DevelopmentMode, DeveloperSpot::DevelopmentModeOn})
        controls.ImageDG[spot].clicked = toggleDevelopmentMode;
    for (const auto spot : {DeveloperSpot::NormalMode, DeveloperSpot::NormalModeOn})
        controls.ImageDG[spot].clicked = [&launcher] {
            bool& shown = launcher.selection.normalModeShown;
            shown = !shown;
        };
    controls.DevMode.clicked = [&launcher, toggleDevelopmentMode] { // a double-click
        toggleDevelopmentMode();
        launcher.selection.normalModeShown = launcher.selection.developmentModeShown;
    };
}

} // namespace

void ConnectOptions(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    ConnectOptionValues(launcher.settings, controls);
    ConnectModes(launcher);
    ConnectSpinners(launcher.settings, controls);
    connectDeveloperSpots(launcher);
    controls.OptionTabs.clicked = [&launcher](int tab) { VisitTab(launcher, static_cast<Tab>(tab)); };
    controls.SelButton.clicked = [&launcher] { togglePanel(launcher); };
    controls.TexPathLabel.clicked = [&launcher] { launcher.window.showTexForm(); };
    Then(controls.chkMain[Main::AdvancedOptions],
         [&launcher] { launcher.settings.AdvancedOptions ? AdvancedMode(launcher) : DefaultMode(launcher); });
    Then(controls.chkLaunchPrefs[LaunchPrefs::RememberLastMap], [&launcher] {
        if (!launcher.settings.RememberLastMap)
            ClearRememberedMaps(launcher.files, launcher.paths);
    });
    Then(controls.chkLaunchPrefs[LaunchPrefs::RememberLastSavegame], [&launcher] {
        if (!launcher.settings.RememberLastSavegame)
            ClearRememberedSavegames(launcher.files, launcher.paths);
    });
}

void AdvancedMode(Launcher& launcher)
{
    ReadPacks(launcher);
}

void DefaultMode(Launcher& launcher)
{
    launcher.selection.tab = Tab::Games;
    if (launcher.view() == View::ZipLibrary)
        SelectView(launcher, View::DoomGames);
}

void VisitTab(Launcher& launcher, Tab tab)
{
    launcher.selection.tab = tab;
    ReadPacks(launcher);
    ReadEngines(launcher, tab == Tab::Options);
}
