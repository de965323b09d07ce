#include "options/EditMode.h"

namespace {

constexpr size_t light = 3; // chkMain
constexpr size_t noObjects = 4;
constexpr size_t editMode = 5;
constexpr size_t editLog = 3; // AuxButton

void lightClicked(Controls& controls)
{
    controls.LightText.visible = controls.chkMain[light].ticked();
    if (controls.LightText.visible && !controls.chkMain[editMode].ticked())
        controls.LightText.enabled = false;
}

void editModeClicked(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    const bool on = controls.chkMain[editMode].ticked();
    launcher.settings.EditMode = on;
    controls.WineImage.visible = !on && launcher.startUp.RunningUnderWine;
    controls.AuxButton[editLog].visible = on;
    controls.chkMain[noObjects].enabled = controls.chkMain[light].enabled = on;
    controls.LightText.enabled = on;
}

} // namespace

void ConnectEditMode(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    controls.chkMain[light].clicked = [&controls] { lightClicked(controls); };
    controls.chkMain[editMode].clicked = [&launcher] { editModeClicked(launcher); };
}
