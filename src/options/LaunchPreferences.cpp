#include "options/LaunchPreferences.h"

#include "catalogue/RecordRemoval.h"

namespace {

constexpr int greyed = 2; // changes nothing

const struct
{
    size_t box; // chkLaunchPrefs
    bool Settings::*setting;
    void (*cleared)(Launcher&);
} preferences[] = {
    {0, &Settings::RememberLastMap, ClearRememberedMaps},
    {1, &Settings::RememberLastSavegame, ClearRememberedSavegames},
    {2, &Settings::ShortcutCreation, nullptr},
    {3, &Settings::DisableToolTips, nullptr},
    {4, &Settings::WadFilesOnly, nullptr},
    {5, &Settings::ShowTipsAtStartup, nullptr},
};

} // namespace

void ConnectLaunchPreferences(Launcher& launcher)
{
    for (const auto& preference : preferences) {
        CheckBox& box = launcher.controls.chkLaunchPrefs[preference.box];
        box.clicked = [&launcher, &box, &preference] {
            if (box.value() == greyed)
                return;
            launcher.settings.*preference.setting = box.ticked();
            if (!box.ticked() && preference.cleared)
                preference.cleared(launcher);
        };
    }
}
