#include "options/EffectModes.h"

#include "options/GraphicsOptions.h"
#include "options/ModelPacks.h"
#include "options/Spinners.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int fxBox = 2; // ChkModelOpts
constexpr int coreBox = 3;

bool hasModels(const Launcher& launcher)
{
    return launcher.files.folderExists(launcher.paths.Md2Path);
}

void allowScaling(Controls& controls, bool on)
{
    controls.GraphicFrames[1].enabled = on;
    controls.cbScaler.enabled = on;
    controls.TexLabel[0].enabled = on;
}

void allowSmoke(Controls& controls, bool on)
{
    controls.FrameModel[1].enabled = on;
    controls.Smoke[0].enabled = controls.Smoke[1].enabled = on;
    controls.GunSmoke.enabled = on;
}

void greyReplacements(Controls& controls)
{
    controls.FrameModel[0].enabled = false;
    for (CheckBox& box : controls.chkAltModels)
        box.enabled = false;
}

// The boxes of the replacements whose definitions are there.
void allowInstalledReplacements(Launcher& launcher, bool zombiesAllowed)
{
    Controls& controls = launcher.controls;
    const FileSystem& files = launcher.files;
    const bool forced = !controls.ChkModelOpts[1].ticked();
    if (files.fileExists(launcher.paths.Md2Path + u"Tovrens/Gore/hang1.jpg"_s))
        controls.chkAltModels[3].enabled = controls.chkAltModels[0].enabled = true;
    if (forced && files.fileExists(launcher.paths.KelspackDefsPath + u"Fullpack.ded"_s))
        controls.chkAltModels[1].enabled = true;
    if (forced && files.fileExists(launcher.paths.KelspackDefsPath + u"Alternative.ded"_s))
        controls.chkAltModels[2].enabled = true;
    if (zombiesAllowed && files.folderExists(launcher.paths.Md2Path + u"Monsters/Imp"_s))
        controls.chkAltModels[0].enabled = true;
}

void basicDoomOn(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    greyReplacements(controls);
    allowSmoke(controls, false);
    controls.chkEffects[3].enabled = false;
    controls.ChkModelOpts[1].enabled = false;
    controls.ChkModelOpts[coreBox].setTicked(false);
    controls.ChkModelOpts[coreBox].enabled = false;
    controls.chkSound[2].enabled = controls.chkSound[7].enabled = false;
    AllowRicochetSpinner(controls, false);
    allowScaling(controls, false);
    if (!FxInForce(launcher))
        AllowLighting(controls, false);
}

void basicDoomOff(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    const Settings& settings = launcher.settings;
    const bool packs = !launcher.modelPacks.ModelPacksMissing;
    AllowLighting(controls, true);
    if (packs && !settings.CoreEffects) {
        allowSmoke(controls, true);
        allowScaling(controls, true);
        controls.chkEffects[3].enabled = true;
    }
    allowInstalledReplacements(launcher,
                               !FxInForce(launcher) && !settings.NoMonsters && !settings.CoreEffects);
    if (packs)
        controls.FrameModel[0].enabled = true;
    controls.ChkModelOpts[fxBox].enabled = true;
    if (settings.CoreEffects)
        DisableModels(launcher);
    else
        controls.ChkModelOpts[1].enabled = true;
    controls.ChkModelOpts[coreBox].enabled = true;
    if (FxInForce(launcher))
        CoreEffects(launcher);
    if (!controls.chkSound[0].ticked()) {
        if (!FxInForce(launcher))
            controls.chkSound[7].enabled = true;
        controls.chkSound[2].enabled = true;
        if (controls.chkSound[2].ticked())
            AllowRicochetSpinner(controls, true);
    }
    controls.ChkModelOpts[fxBox].setTicked(false);
}

void basicDoomClicked(Launcher& launcher)
{
    launcher.settings.BasicDoom = launcher.controls.chkMain[0].ticked();
    BasicDoom(launcher);
    DetectModelPacks(launcher);
}

void fxClicked(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    launcher.settings.Fx = controls.ChkModelOpts[fxBox].ticked();
    if (launcher.settings.Fx) {
        controls.chkMain[0].setTicked(true);
        controls.ChkModelOpts[coreBox].setTicked(false);
    }
    if (launcher.settings.BasicDoom)
        AllowLighting(controls, FxInForce(launcher));
    BasicDoomGrey(launcher);
}

void coreEffectsOn(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    controls.chkMain[0].setTicked(false);
    controls.chkMain[0].enabled = false;
    allowScaling(controls, false);
    controls.ChkModelOpts[1].enabled = false;
    controls.ChkModelOpts[fxBox].enabled = false;
    controls.ChkModelOpts[fxBox].setTicked(false);
    controls.chkEffects[3].enabled = false;
    launcher.settings.CoreEffects = true;
}

void coreEffectsOff(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    controls.chkMain[0].enabled = true;
    controls.ChkModelOpts[1].enabled = true;
    controls.ChkModelOpts[fxBox].enabled = true;
    if (!launcher.modelPacks.ModelPacksMissing) {
        allowScaling(controls, true);
        controls.chkEffects[3].enabled = true;
    }
    launcher.settings.CoreEffects = false;
}

void coreEffectsClicked(Launcher& launcher)
{
    launcher.controls.ChkModelOpts[coreBox].ticked() ? coreEffectsOn(launcher) : coreEffectsOff(launcher);
    DisableModels(launcher);
    DetectModelPacks(launcher);
}

} // namespace

void ConnectEffectModes(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    controls.chkMain[0].clicked = [&launcher] { basicDoomClicked(launcher); };
    controls.ChkModelOpts[fxBox].clicked = [&launcher] { fxClicked(launcher); };
    controls.ChkModelOpts[coreBox].clicked = [&launcher] { coreEffectsClicked(launcher); };
}

bool FxInForce(const Launcher& launcher)
{
    return launcher.settings.Fx || !launcher.modelPacks.CoreEffectsInstalled;
}

void AllowLighting(Controls& controls, bool on)
{
    controls.GraphicFrames[4].enabled = on;
    controls.chkEffects[0].enabled = controls.chkEffects[2].enabled = on;
}

void DisableModels(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    if (!hasModels(launcher))
        return;
    if (launcher.settings.CoreEffects) {
        greyReplacements(controls);
        allowSmoke(controls, false);
        return;
    }
    if (!launcher.modelPacks.ModelPacksMissing) {
        allowSmoke(controls, true);
        controls.chkEffects[3].enabled = true;
    }
    allowInstalledReplacements(launcher, !launcher.settings.NoMonsters);
    controls.FrameModel[0].enabled = true;
    for (const size_t option : {3U, 1U, 2U})
        controls.ChkModelOpts[option].enabled = true;
}

void BasicDoom(Launcher& launcher)
{
    if (!hasModels(launcher) || !launcher.controls.chkMain[0].enabled)
        return;
    launcher.settings.BasicDoom ? basicDoomOn(launcher) : basicDoomOff(launcher);
    BasicDoomGrey(launcher);
}

void CoreEffects(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    const Settings& settings = launcher.settings;
    if (!hasModels(launcher) || !controls.ChkModelOpts[fxBox].enabled)
        return;
    if (FxInForce(launcher)) {
        AllowRicochetSpinner(controls, false);
        controls.chkSound[2].enabled = false;
        allowScaling(controls, false);
        greyReplacements(controls);
        return;
    }
    AllowRicochetSpinner(controls, true);
    controls.chkSound[2].enabled = true;
    if (settings.CoreEffects || launcher.modelPacks.ModelPacksMissing) {
        allowSmoke(controls, false);
        allowScaling(controls, false);
    } else {
        allowScaling(controls, true);
    }
    controls.ChkModelOpts[coreBox].enabled = true;
    if (!settings.CoreEffects) {
        controls.ChkModelOpts[1].enabled = true;
        allowInstalledReplacements(launcher, !settings.NoMonsters);
    }
}
