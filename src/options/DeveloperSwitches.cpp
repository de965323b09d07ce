#include "options/DeveloperSwitches.h"

namespace {

void showDevelopmentMode(Launcher& launcher, bool shown)
{
    CheckBox& box = launcher.controls.chkTesting;
    box.visible = shown;
    if (!shown)
        box.setTicked(false);
}

} // namespace

void ConnectDeveloperSwitches(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    controls.chkTesting.clicked = [&launcher, &controls] {
        launcher.settings.DevelopmentMode = controls.chkTesting.ticked();
    };
    controls.ImageDG[2].clicked = [&launcher, &controls] {
        controls.ImageDG[5].visible = true;
        controls.ImageDG[2].visible = false;
        showDevelopmentMode(launcher, !controls.chkTesting.visible);
    };
    controls.ImageDG[3].clicked = [&controls] {
        controls.ImageDG[6].visible = true;
        controls.ImageDG[3].visible = false;
        controls.ExitOption[0].visible = !controls.ExitOption[0].visible;
    };
    controls.DevMode.clicked = [&launcher, &controls] { // a double-click
        showDevelopmentMode(launcher, !controls.chkTesting.visible);
        controls.ExitOption[0].visible = controls.chkTesting.visible;
    };
}
