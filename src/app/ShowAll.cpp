#include "app/ShowAll.h"

#include "catalogue/GamesTab.h"
#include "launch/LaunchButton.h"
#include "options/DisplayResolution.h"
#include "options/OptionValues.h"
#include "options/Tabs.h"
#include "state/ControlTable.h"
#include "state/OptionTable.h"

namespace {

// "Disable tooltip text" takes every tip.
void showToolTips(const Settings& settings, Controls& controls)
{
    const auto tip = [&settings](const char16_t* text) {
        return settings.DisableToolTips || !text ? QString() : QString::fromUtf16(text);
    };
    for (const OptionRow& row : OptionTable())
        if (Control* control = ControlOf(row, controls))
            control->toolTip = tip(row.tip);
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
    ShowGraphicsTab(truth, controls);
    ShowSoundTab(truth, controls);
    ShowModelsTab(truth, controls);
    ShowStrip(truth, controls);
    ShowLaunch(truth, PlanLaunch(truth), controls);
    showToolTips(truth.settings, controls);
}

void ShowWindow(Launcher& launcher)
{
    launcher.controls.MainForm.caption = launcher.startUp.WindowCaption;
    ShowWindow(launcher, launcher.controls);
}
