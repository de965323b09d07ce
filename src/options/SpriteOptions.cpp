#include "options/SpriteOptions.h"

#include "options/EffectModes.h"

using namespace Qt::StringLiterals;

void KillSpriteOptions(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    CheckBox& basicDoom = controls.chkMain[0];
    CheckBox& fx = controls.ChkModelOpts[2];
    const bool basicDoomTicked = basicDoom.ticked();
    const bool fxTicked = fx.ticked();
    basicDoom.setTicked(false);
    fx.setTicked(false);
    basicDoom.enabled = false;
    for (CheckBox& box : controls.ChkModelOpts)
        box.enabled = false;
    AllowLighting(controls, false);
    basicDoom.setTicked(basicDoomTicked);
    fx.setTicked(fxTicked);
}

void RestoreSpriteOptions(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    auto& modes = controls.ChkModelOpts;
    CheckBox& basicDoom = controls.chkMain[0];
    if (!launcher.files.fileExists(launcher.paths.ModelDefsPath + u"FlameModels.ded"_s)) {
        basicDoom.enabled = true;
        return;
    }
    if (!modes[3].ticked() && !modes[2].ticked())
        basicDoom.enabled = true;
    modes[3].enabled = true;
    if (launcher.settings.BasicDoom) {
        BasicDoom(launcher);
        return;
    }
    if (!modes[3].ticked()) {
        modes[1].enabled = true;
        modes[2].enabled = launcher.modelPacks.CoreEffectsInstalled;
    }
    if (modes[2].ticked())
        CoreEffects(launcher);
    AllowLighting(controls, true);
}
