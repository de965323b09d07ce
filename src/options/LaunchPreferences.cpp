#include "options/LaunchPreferences.h"

#include "app/ToolTips.h"
#include "catalogue/RecordRemoval.h"

namespace {

constexpr int greyed = 2;            // changes nothing
constexpr size_t shortcutButton = 2; // AuxButton

void forgetMaps(Launcher& launcher, bool on)
{
    if (!on)
        ClearRememberedMaps(launcher);
}

void forgetSavegames(Launcher& launcher, bool on)
{
    if (!on)
        ClearRememberedSavegames(launcher);
}

void showShortcutButton(Launcher& launcher, bool on)
{
    launcher.controls.AuxButton[shortcutButton].visible = on && launcher.settings.AdvancedOptions;
}

void showToolTips(Launcher& launcher, bool off)
{
    off ? KillToolTips(launcher) : ToolTipText(launcher);
}

void listFilesAnew(Launcher& launcher, bool)
{
    launcher.selection.gamesChanged = true;
}

const struct
{
    size_t box; // chkLaunchPrefs
    bool Settings::*setting;
    void (*changed)(Launcher&, bool on);
} preferences[] = {
    {0, &Settings::RememberLastMap, forgetMaps},
    {1, &Settings::RememberLastSavegame, forgetSavegames},
    {2, &Settings::ShortcutCreation, showShortcutButton},
    {3, &Settings::DisableToolTips, showToolTips},
    {4, &Settings::WadFilesOnly, listFilesAnew},
    {5, &Settings::ShowTipsAtStartup, nullptr},
};

} // namespace

void ConnectLaunchPreferences(Launcher& launcher)
{
    launcher.controls.ExitOption.clicked = [&launcher](int mode) { launcher.settings.LaunchMode = mode; };
    for (const auto& preference : preferences) {
        CheckBox& box = launcher.controls.chkLaunchPrefs[preference.box];
        box.clicked = [&launcher, &box, &preference] {
            if (box.value() == greyed)
                return;
            launcher.settings.*preference.setting = box.ticked();
            if (preference.changed)
                preference.changed(launcher, box.ticked());
        };
    }
}
