#include "options/LoadOptions.h"

#include "options/ModelPacks.h"
#include "options/PresenceChecks.h"
#include "options/Spinners.h"

using namespace Qt::StringLiterals;

namespace {

// The modes exclude one another; a file written by another hand may say otherwise.
void settleModes(Settings& settings)
{
    if (settings.CoreEffects)
        settings.BasicDoom = settings.Fx = false;
    else if (settings.Fx)
        settings.BasicDoom = true;
}

void checkKelspack(Launcher& launcher)
{
    if (launcher.modelPacks.KelspackInstalled)
        return;
    launcher.settings.KelspackWeapons = launcher.settings.KelspackAlternative = false;
    launcher.controls.chkAltModels[1].setTicked(false);
    launcher.controls.chkAltModels[2].setTicked(false);
}

// The effects of the base pack, each with its definitions.
void checkEffects(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    const bool packs = !launcher.modelPacks.ModelPacksMissing;
    const auto defined = [&](const QString& name) {
        return packs && launcher.files.fileExists(launcher.paths.ModelDefsPath + name);
    };
    const bool smoke = defined(u"WeapSmoke.ded"_s);
    controls.chkEffects[3].enabled = defined(u"ExtraFX.ded"_s);
    controls.FrameModel[1].enabled = controls.GunSmoke.enabled = smoke;
    controls.Smoke[0].enabled = controls.Smoke[1].enabled =
        smoke && launcher.settings.GunSmoke && !launcher.settings.BasicDoom;
    controls.GraphicFrames[1].enabled = controls.cbScaler.enabled = controls.TexLabel[0].enabled = packs;
}

} // namespace

void PrepareOptions(Launcher& launcher)
{
    FindResourcePacks(launcher);
    launcher.modelPacks = FindModelPacks(launcher.files, launcher.paths);
    settleModes(launcher.settings);
    checkKelspack(launcher);
    checkEffects(launcher);
}

void CheckOptions(Launcher& launcher)
{
    CheckPacksAtLoad(launcher);
    ShowZeroTimes(launcher);
    DetectModelPacks(launcher);
}
