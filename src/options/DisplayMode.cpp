#include "options/DisplayMode.h"

#include "app/ToolTips.h"
#include "catalogue/ScriptedMapMode.h"

using namespace Qt::StringLiterals;

namespace {

constexpr size_t advancedBox = 2; // chkMain
constexpr size_t noMonsters = 6;
constexpr int doomGames = 1; // OptionUdir
constexpr int zipLibrary = 2;
constexpr int commandLinePanel = 1;
constexpr int editPanel = 2;

void setShownInBoth(Controls& controls, bool advanced)
{
    controls.SkillFrame.visible = controls.StartFrame.visible = !advanced;
    controls.SkillsLevel[0].visible = advanced;
    for (int tab = 1; tab < controls.OptionTabs.count(); ++tab)
        controls.OptionTabs[tab].visible = advanced;
    controls.ChkModelOpts[2].visible = controls.ChkModelOpts[3].visible = advanced;
    controls.FrameGlobal[0].visible = advanced;
    controls.OptionUdir[zipLibrary].visible = advanced;
    controls.chkMain[noMonsters].visible = advanced;
    for (const size_t button : {4U, 5U, 6U})
        controls.AuxButton[button].visible = advanced;
    controls.OptionTabs[0].enabled = advanced;
    controls.MainForm.compact = !advanced;
}

void advancedClicked(Launcher& launcher)
{
    const bool advanced = launcher.controls.chkMain[advancedBox].ticked();
    launcher.settings.AdvancedOptions = advanced;
    ShowScriptedMapsTip(launcher);
    advanced ? AdvancedMode(launcher) : DefaultMode(launcher);
}

} // namespace

void ConnectDisplayMode(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    controls.chkMain[advancedBox].clicked = [&launcher] { advancedClicked(launcher); };
    controls.SelButton.clicked = [&launcher] {
        const bool toEdit =
            launcher.settings.CommandPanelMode == commandLinePanel && !launcher.startUp.RunningUnderWine;
        launcher.settings.CommandPanelMode = toEdit ? editPanel : commandLinePanel;
        SelectStartupOptions(launcher);
    };
}

void AdvancedMode(Launcher& launcher)
{
    setShownInBoth(launcher.controls, true);
    launcher.controls.AuxButton[2].visible = launcher.settings.ShortcutCreation;
    launcher.controls.ImageCM.visible = ScriptedMapSwitchShown(launcher);
}

void DefaultMode(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    setShownInBoth(controls, false);
    for (const size_t button : {2U, 3U, 7U})
        controls.AuxButton[button].visible = false;
    controls.ImageCM.visible = false;
    controls.OptionTabs.select(0);
    if (controls.OptionUdir.selected() == zipLibrary)
        controls.OptionUdir.select(doomGames);
}

void SelectStartupOptions(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    const bool editing =
        launcher.settings.CommandPanelMode == editPanel && !launcher.startUp.RunningUnderWine;
    controls.FrameGlobal[0].caption = editing ? u"  VYK Edit  "_s : u"  Command Line  "_s;
    controls.FrameGlobal[1].visible = !editing;
    controls.FrameGlobal[2].visible = editing;
}
