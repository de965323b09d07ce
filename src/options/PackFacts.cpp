#include "options/PackFacts.h"

#include "catalogue/ScriptedMaps.h"
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

// A folder of textures is called so, or holds one that is.
bool holdsTextures(const FileSystem& files, const QString& path)
{
    return !path.isEmpty() && (files.folderExists(path + u"/Textures"_s) ||
                               (SameName(FileNameOf(path), u"Textures"_s) && files.folderExists(path)));
}

// The player's patches lie beside the textures, in the same parent folder or in the folder itself.
bool holdsPatches(const FileSystem& files, const QString& path)
{
    return files.folderExists(path) &&
           (files.folderExists(path + u"/Patches"_s) || files.folderExists(FolderOf(path) + u"/Patches"_s));
}

} // namespace

void ReadPacks(Launcher& launcher)
{
    DetectModelPacks(launcher);
    CheckGraphicsPacks(launcher);
    CheckSoundPack(launcher);
}

void DetectModelPacks(Launcher& launcher)
{
    const FileSystem& files = launcher.files;
    const InstallationPaths& paths = launcher.paths;
    const QString kelspack = paths.Md2Path + u"Kelspack/"_s;
    const bool kelspackWad = files.fileExists(kelspack + u"kelspack.wad"_s);
    launcher.facts.modelPacks = {
        .ModelPacksMissing = !files.fileExists(paths.Md2Path + u"HudWeapons/SuperShotgun/db-shells.md2"_s),
        .ModelPack2Installed = files.fileExists(paths.Md2Path + u"Tovrens/Gore/Gore6.dmd"_s),
        .KelspackInstalled = kelspackWad && files.fileExists(kelspack + u"AK47/AK47.md2"_s),
        .CoreEffectsInstalled = files.folderExists(paths.Md2Path + u"CoreEffects"_s) &&
                                files.fileExists(paths.BaseDefsPath + u"CoreEffects.ded"_s),
        .zombies = files.fileExists(paths.Md2Path + u"Tovrens/Gore/Gore3.dmd"_s),
        .extraEffects = files.fileExists(paths.ModelDefsPath + u"ExtraFX.ded"_s),
        .gunSmoke = files.fileExists(paths.ModelDefsPath + u"WeapSmoke.ded"_s),
        .kelspackWad = kelspackWad,
        .hudWeaponsAgree = CheckHudWeaponsDefs(files, paths),
        .scriptedMapModels = ScriptedMapModelsPresent(files, paths),
        .vexAddonOutdated = CheckVexAddon(files, paths)};
}

void CheckGraphicsPacks(Launcher& launcher)
{
    const FileSystem& files = launcher.files;
    const QString data = launcher.paths.RootPath + u"/Data/"_s;
    const QString own = data + u"Textures"_s;
    const QString& chosen = launcher.settings.TexturePath;
    ResourcePacks& packs = launcher.facts.resources;
    packs.textures = holdsTextures(files, chosen) ? chosen : files.folderExists(own) ? own : QString();
    packs.texturesAreOwn = SameName(packs.textures, own);
    packs.patches = files.fileExists(data + u"patches/stbar.png"_s) ||
                    holdsPatches(files, packs.textures.isEmpty() ? chosen : packs.textures);
    packs.detailTextures = files.fileExists(data + u"dtex/detail.wad"_s);
    packs.skyboxes = files.folderExists(data + u"Skyboxes"_s);
}

void CheckSoundPack(Launcher& launcher)
{
    launcher.facts.resources.sounds =
        launcher.files.fileExists(launcher.paths.RootPath + u"/Data/hv_doom_sfx.wad"_s);
}

bool CheckHudWeaponsDefs(const FileSystem& files, const InstallationPaths& paths)
{
    const QString standard = paths.ModelDefsPath + u"hudweapons.ded"_s;
    const QString enhanced = paths.TovrensDefsPath + u"hudweapons.ded"_s;
    return !files.fileExists(standard) || !files.fileExists(enhanced) ||
           carriesCurrentHeader(files, standard) == carriesCurrentHeader(files, enhanced);
}
