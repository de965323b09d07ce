#include "options/ModelOptions.h"

#include "options/EffectModes.h"
#include "options/ModelPacks.h"

using namespace Qt::StringLiterals;

namespace {

enum Replacement : size_t { Zombies, Kelspack, KelspackAlternative, Replacements }; // chkAltModels
constexpr size_t noForcedModels = 1;                                                // ChkModelOpts

void kelspackClicked(Launcher& launcher, Replacement clicked, bool Settings::*setting)
{
    Controls& controls = launcher.controls;
    launcher.settings.*setting = controls.chkAltModels[clicked].ticked();
    if (!controls.chkAltModels[clicked].ticked())
        return;
    controls.chkAltModels[clicked == Kelspack ? KelspackAlternative : Kelspack].setTicked(false);
    controls.ChkModelOpts[noForcedModels].setTicked(false);
}

void noForcedModelsClicked(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    launcher.settings.NoForcedModels = controls.ChkModelOpts[noForcedModels].ticked();
    if (launcher.settings.NoForcedModels)
        for (const Replacement box : {Kelspack, KelspackAlternative})
            controls.chkAltModels[box].setTicked(false);
}

void replacementsClicked(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    const bool on = controls.chkAltModels[Replacements].ticked();
    launcher.settings.TovrensReplacements = on;
    if (!on)
        controls.chkAltModels[Zombies].enabled = false;
    else if (!launcher.settings.BasicDoom && !FxInForce(launcher) && ZombiesInstalled(launcher))
        controls.chkAltModels[Zombies].enabled = true;
}

void gunSmokeClicked(Launcher& launcher)
{
    if (launcher.settings.BasicDoom || launcher.modelPacks.ModelPacksMissing)
        return;
    Controls& controls = launcher.controls;
    launcher.settings.GunSmoke = controls.GunSmoke.ticked();
    controls.Smoke[0].enabled = controls.Smoke[1].enabled = launcher.settings.GunSmoke;
}

void scalingClicked(Launcher& launcher)
{
    constexpr const char16_t* meanings[] = {u"No scaling - best quality", u"Minimum scaling", u"", u"",
                                            u"Maximum scaling"};
    const int level = launcher.controls.cbScaler.selected();
    launcher.settings.SkinScaling = level;
    launcher.controls.TexLabel[0].caption = QString::fromUtf16(meanings[level]);
}

} // namespace

void ConnectModelOptions(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    Settings& settings = launcher.settings;
    controls.chkAltModels[Zombies].clicked = [&controls, &settings] {
        settings.PistolZombies = controls.chkAltModels[Zombies].ticked();
    };
    controls.chkAltModels[Kelspack].clicked = [&launcher] {
        kelspackClicked(launcher, Kelspack, &Settings::KelspackWeapons);
    };
    controls.chkAltModels[KelspackAlternative].clicked = [&launcher] {
        kelspackClicked(launcher, KelspackAlternative, &Settings::KelspackAlternative);
    };
    controls.chkAltModels[Replacements].clicked = [&launcher] { replacementsClicked(launcher); };
    controls.ChkModelOpts[noForcedModels].clicked = [&launcher] { noForcedModelsClicked(launcher); };
    controls.GunSmoke.clicked = [&launcher] { gunSmokeClicked(launcher); };
    controls.Smoke.clicked = [&settings](int mode) { settings.SmokeMode = mode; };
    controls.cbScaler.clicked = [&launcher] { scalingClicked(launcher); };
}
