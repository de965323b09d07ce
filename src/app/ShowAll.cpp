#include "app/ShowAll.h"

#include "catalogue/GamesTab.h"
#include "engines/EngineSwitches.h"
#include "launch/LaunchButton.h"
#include "options/DisplayResolution.h"
#include "options/EngineList.h"
#include "options/OptionValues.h"
#include "options/Tabs.h"
#include "state/ControlTable.h"
#include "state/OptionTable.h"

using namespace Qt::StringLiterals;

namespace {

// One more line for an option that the engine in use makes nothing of.
QString uselessHere(const Truth& truth, const OptionRow& row)
{
    const FoundEngine* engine = truth.engine();
    const KnownEngine* known = engine ? FindKnownEngine(engine->program) : nullptr;
    const EngineSwitch* option = row.engineSwitch ? FindEngineSwitch(row.engineSwitch) : nullptr;
    const bool useless = known && option && InEngine(*option, *known).isEmpty();
    return useless ? u"\r\n%1 does nothing with this."_s.arg(known->title) : QString();
}

// "Disable tooltip text" takes every tip.
void showToolTips(const Truth& truth, Controls& controls)
{
    const Settings& settings = truth.settings;
    const auto tip = [&settings](const char16_t* text) {
        return settings.DisableToolTips || !text ? QString() : QString::fromUtf16(text);
    };
    for (const OptionRow& row : OptionTable())
        if (Control* control = ControlOf(row, controls))
            control->toolTip =
                tip(row.tip) + (settings.DisableToolTips ? QString() : uselessHere(truth, row));
    for (const ControlRow& row : ControlTable())
        row.of(controls).toolTip = tip(row.tip);
    controls.SkillsLevel[SkillList::Advanced].toolTip = controls.SkillsLevel[SkillList::Basic].toolTip;
    controls.CommandPreview.toolTip =
        settings.DisableToolTips ? QString() : controls.CommandPreview.placeholder;
    controls.Auto[Heading::Games].toolTip = settings.AdvancedOptions ? controls.ImageCM.toolTip : QString();
}

} // namespace

void ShowWindow(const Truth& truth, Controls& controls)
{
    controls.TitlePic.text = truth.facts.titlePictures.value(truth.settings.TitlePicIndex);
    CheckDPISettings(truth.facts.logicalDpi, controls.MainForm);
    ShowOptionValues(truth.settings, controls);
    ShowGamesTab(truth, controls);
    ShowOptionsTab(truth, controls);
    ShowEngineList(truth, controls);
    ShowGraphicsTab(truth, controls);
    ShowSoundTab(truth, controls);
    ShowModelsTab(truth, controls);
    ShowStrip(truth, controls);
    ShowLaunch(truth, PlanLaunch(truth), controls);
    showToolTips(truth, controls);
}

void ShowWindow(Launcher& launcher)
{
    launcher.controls.MainForm.caption = launcher.startUp.WindowCaption;
    ShowWindow(launcher, launcher.controls);
}
