#include "options/GraphicsOptions.h"

#include "options/EffectModes.h"
#include "options/PresenceChecks.h"

namespace {

constexpr size_t highResTextures = 1; // chkMain
constexpr size_t detailTextures = 2;  // chkGraphics
constexpr size_t skyboxes = 3;
constexpr size_t highResPatches = 4;

void allowSkies(Controls& controls, bool on)
{
    controls.SkyOpt[0].enabled = controls.SkyOpt[1].enabled = on;
}

// The boxes whose packs are there.
void allowInstalled(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    const ResourcePacks& packs = launcher.resources;
    controls.chkGraphics[detailTextures].enabled = packs.detailTextures && !HighResTexturesUsed(launcher);
    controls.chkGraphics[highResPatches].enabled = packs.patches;
    controls.chkMain[highResTextures].enabled = packs.textures;
    controls.chkGraphics[skyboxes].enabled = packs.skyboxes;
    allowSkies(controls, packs.skyboxes && controls.chkGraphics[skyboxes].ticked());
}

void greyBoxes(Controls& controls)
{
    controls.chkGraphics[skyboxes].enabled = controls.chkGraphics[highResPatches].enabled = false;
    controls.chkMain[highResTextures].enabled = false;
    allowSkies(controls, false);
}

void texturesClicked(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    const bool on = controls.chkMain[highResTextures].ticked();
    launcher.settings.HighResTextures = on;
    controls.chkGraphics[detailTextures].enabled = !on && launcher.resources.detailTextures;
}

void detailsClicked(Launcher& launcher)
{
    const CheckBox& box = launcher.controls.chkGraphics[detailTextures];
    if (!box.ticked() || box.enabled)
        launcher.settings.DetailTextures = box.ticked();
}

void skyboxesClicked(Launcher& launcher)
{
    const bool on = launcher.controls.chkGraphics[skyboxes].ticked();
    launcher.settings.Skyboxes = on;
    allowSkies(launcher.controls, on && launcher.resources.skyboxes);
}

} // namespace

void ConnectGraphicsOptions(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    Settings& settings = launcher.settings;
    controls.chkMain[highResTextures].clicked = [&launcher] { texturesClicked(launcher); };
    controls.chkGraphics[detailTextures].clicked = [&launcher] { detailsClicked(launcher); };
    controls.chkGraphics[skyboxes].clicked = [&launcher] { skyboxesClicked(launcher); };
    controls.chkGraphics[highResPatches].clicked = [&controls, &settings] {
        settings.HighResPatches = controls.chkGraphics[highResPatches].ticked();
    };
    controls.SkyOpt.clicked = [&settings](int mode) { settings.SkyMode = mode; };
    controls.chkVYKOpts[2].clicked = [&controls, &settings] {
        settings.AllowHiResRelocation = controls.chkVYKOpts[2].ticked();
        controls.TexPathLabel.visible = controls.AuxButton[9].visible = settings.AllowHiResRelocation;
    };
}

void BasicDoomGrey(Launcher& launcher)
{
    if (!launcher.settings.BasicDoom || FxInForce(launcher)) {
        allowInstalled(launcher);
        return;
    }
    if (launcher.resources.detailTextures)
        launcher.controls.chkGraphics[detailTextures].enabled = true;
    greyBoxes(launcher.controls);
}

void GreyHiresFrame(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    if (launcher.settings.BasicDoom)
        return;
    const bool own = launcher.selection.ScriptedMap;
    controls.GraphicFrames[5].enabled = !own;
    if (!own) {
        allowInstalled(launcher);
        return;
    }
    controls.chkGraphics[detailTextures].enabled = false;
    greyBoxes(controls);
}
