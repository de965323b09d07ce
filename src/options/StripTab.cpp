#include "options/OptionsInForce.h"
#include "options/Tabs.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int editPanel = 2; // CommandPanelMode

bool editing(Now now)
{
    return now.on.EditMode;
}

constexpr OptionRule rules[] = {
    {&Settings::BasicDoom, [](Now now) { return !now.coreEffects && !now.scriptedMap; }},
    {&Settings::Fx,
     [](Now now) { return now.models.CoreEffectsInstalled && !now.coreEffects && !now.scriptedMap; }},
    {&Settings::CoreEffects,
     [](Now now) { return now.models.CoreEffectsInstalled && !now.basicDoom && !now.scriptedMap; }},
    {&Settings::NoObjects, editing},
    {&Settings::Light, editing},
};

// What only the advanced mode shows, and the default mode in its place.
void showMode(bool advanced, Controls& controls)
{
    for (Control* part : std::initializer_list<Control*>{
             &controls.SkillsLevel[SkillList::Advanced], &controls.ChkModelOpts[ModelOpts::Fx],
             &controls.ChkModelOpts[ModelOpts::CoreEffects], &controls.FrameGlobal[Panel::Whole],
             &controls.OptionUdir[View::ZipLibrary], &controls.chkMain[Main::NoMonsters]})
        part->visible = advanced;
    for (const Tool tool : {Tool::EngineLog, Tool::Iwads, Tool::Font})
        controls.AuxButton[tool].visible = advanced;
    controls.SkillFrame.visible = controls.StartFrame.visible = !advanced;
    controls.MainForm.compact = !advanced;
}

void showTabs(const Truth& truth, Controls& controls)
{
    controls.OptionTabs.startAs(static_cast<int>(truth.selection.tab));
    for (int i = 0; i < controls.OptionTabs.count(); ++i) {
        const auto tab = static_cast<Tab>(i);
        const bool chosen = tab == truth.selection.tab;
        controls.OptionTabs[tab].colour = chosen ? Colour::Accent : Colour::Normal;
        controls.OptionTabs[tab].visible = tab == Tab::Games || truth.settings.AdvancedOptions;
        controls.TabFrame[tab].visible = chosen;
    }
    controls.OptionTabs[Tab::Games].enabled = truth.settings.AdvancedOptions;
}

} // namespace

std::span<const OptionRule> StripRules()
{
    return rules;
}

void ShowStrip(const Truth& truth, Controls& controls)
{
    const Settings& settings = truth.settings;
    const bool advanced = settings.AdvancedOptions;
    GreyOptions(rules, Circumstances(truth), controls);
    showMode(advanced, controls);
    showTabs(truth, controls);
    controls.SkillsLevel[SkillList::Advanced].startAs(controls.SkillsLevel[SkillList::Basic].selected());
    controls.LightText.visible = settings.Light;
    controls.LightText.enabled = settings.EditMode;

    const bool editPanelShown = settings.CommandPanelMode == editPanel && !truth.RunningUnderWine;
    controls.FrameGlobal[Panel::Whole].caption = editPanelShown ? u"  VYK Edit  "_s : u"  Command Line  "_s;
    controls.FrameGlobal[Panel::CommandLine].visible = !editPanelShown;
    controls.FrameGlobal[Panel::EditMode].visible = editPanelShown;

    controls.AuxButton[Tool::Shortcut].visible = advanced && settings.ShortcutCreation;
    controls.AuxButton[Tool::EditLog].visible = advanced && settings.EditMode;
    controls.AuxButton[Tool::ZipFolder].visible = advanced && truth.view() == View::ZipLibrary;
    controls.AuxButton[Tool::CleanUpModels].visible = truth.selection.tab == Tab::Models;
    controls.WineImage.visible = truth.RunningUnderWine && !settings.EditMode;
}
