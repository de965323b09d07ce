#include "options/ModelPacks.h"

#include "options/EffectModes.h"
#include "platform/Paths.h"
#include "platform/Text.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 headerBytes = 256;

bool carriesCurrentHeader(const FileSystem& files, const QString& path)
{
    try {
        const QString line = LinesOf(FromAnsi(files.read(path, headerBytes))).value(0);
        return FirstField(line).compare(u"# hweapons version 10 - Do not edit this line"_s,
                                        Qt::CaseInsensitive) == 0;
    } catch (const FileError&) {
        return false;
    }
}

QString installedPacks(const ModelPacks& packs)
{
    if (packs.ModelPacksMissing)
        return u" Model packs "_s;
    if (packs.ModelPack2Installed)
        return packs.KelspackInstalled ? u" All model packs installed "_s
                                       : u" Model packs 1 and 2 installed "_s;
    return packs.KelspackInstalled ? u" Model pack 1 and Kelspack installed "_s
                                   : u" Model pack 1 installed "_s;
}

// A box that can be ticked but is not says no.
void allow(CheckBox& box, bool allowed, bool& setting)
{
    box.enabled = allowed;
    if (allowed && !box.ticked())
        setting = false;
}

void allowReplacements(Launcher& launcher)
{
    Settings& settings = launcher.settings;
    const ModelPacks& packs = launcher.modelPacks;
    auto& alternatives = launcher.controls.chkAltModels;
    const bool kelspack = packs.KelspackInstalled && !packs.ModelPacksMissing;
    allow(alternatives[3],
          packs.ModelPack2Installed && !packs.ModelPacksMissing && !launcher.selection.ScriptedMap,
          settings.TovrensReplacements);
    allow(alternatives[1], kelspack, settings.KelspackWeapons);
    allow(alternatives[2], kelspack, settings.KelspackAlternative);
}

void allowZombies(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    const ModelPacks& packs = launcher.modelPacks;
    CheckBox& zombies = controls.chkAltModels[0];
    if (packs.ModelPacksMissing) {
        zombies.setTicked(false);
        zombies.enabled = false;
        if (!packs.ModelPack2Installed && !packs.KelspackInstalled)
            controls.FrameModel[0].enabled = false;
        return;
    }
    controls.FrameModel[0].enabled = true;
    if (!ZombiesInstalled(launcher))
        zombies.enabled = false;
    else if (!launcher.settings.NoMonsters)
        zombies.enabled = true;
}

} // namespace

void DetectModelPacks(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    Settings& settings = launcher.settings;
    const bool baseMissing = launcher.modelPacks.ModelPacksMissing;
    launcher.modelPacks = FindModelPacks(launcher.files, launcher.paths);
    launcher.modelPacks.ModelPacksMissing = baseMissing;

    CheckBox& fx = controls.ChkModelOpts[2];
    if (!launcher.modelPacks.CoreEffectsInstalled)
        fx.enabled = false;
    else if (!launcher.selection.ScriptedMap && !settings.BasicDoom && controls.ChkModelOpts[3].enabled)
        fx.enabled = true;
    controls.FrameModel[0].caption = installedPacks(launcher.modelPacks);
    controls.ModFrame.visible = false;
    if (SameName(BaseNameOf(launcher.selection.SelectedGameFile), u"vexlev"_s))
        launcher.selection.ScriptedMap = true;
    if (!settings.BasicDoom && !FxInForce(launcher) && !settings.CoreEffects)
        allowReplacements(launcher);
    allowZombies(launcher);
    if (launcher.selection.ScriptedMap) {
        controls.FrameModel[0].enabled = false;
        controls.chkAltModels[2].enabled = false;
    }
}

bool ZombiesInstalled(const Launcher& launcher)
{
    return !launcher.modelPacks.ModelPacksMissing &&
           launcher.files.fileExists(launcher.paths.Md2Path + u"Tovrens/Gore/Gore3.dmd"_s);
}

void ShowModelAdvice(Launcher& launcher)
{
    launcher.controls.ModFrame.visible = true;
}

bool CheckHudWeaponsDefs(Settings& settings, const FileSystem& files, const InstallationPaths& paths)
{
    const QString standard = paths.ModelDefsPath + u"hudweapons.ded"_s;
    const QString enhanced = paths.TovrensDefsPath + u"hudweapons.ded"_s;
    if (settings.BasicDoom || settings.CoreEffects || !settings.TovrensReplacements ||
        !files.fileExists(standard) || !files.fileExists(enhanced))
        return true;
    if (carriesCurrentHeader(files, standard) == carriesCurrentHeader(files, enhanced))
        return true;
    settings.TovrensReplacements = false;
    return false;
}
