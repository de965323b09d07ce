#include "options/PresenceChecks.h"

#include "platform/Paths.h"

using namespace Qt::StringLiterals;

namespace {

constexpr size_t highResTextures = 1; // chkMain
constexpr size_t detailTextures = 2;  // chkGraphics
constexpr size_t skyboxes = 3;
constexpr size_t highResPatches = 4;
constexpr size_t soundPack = 6; // chkSound

// The player's patches lie beside the textures, in the same parent folder or in the folder itself.
bool patchesBesideTextures(const Launcher& launcher)
{
    const QString path = launcher.settings.TexturePath;
    return launcher.files.folderExists(path) && (launcher.files.folderExists(path + u"/Patches"_s) ||
                                                 launcher.files.folderExists(FolderOf(path) + u"/Patches"_s));
}

} // namespace

bool TexturePathValid(Launcher& launcher)
{
    const FileSystem& files = launcher.files;
    QString& path = launcher.settings.TexturePath;
    if (!files.folderExists(path))
        path = WithSlashes(launcher.controls.HiResText.text);
    if (!path.isEmpty() && (files.folderExists(path + u"/Textures"_s) ||
                            (SameName(FileNameOf(path), u"Textures"_s) && files.folderExists(path))))
        return true;
    const QString own = launcher.paths.RootPath + u"/Data/Textures"_s;
    if (!files.folderExists(own))
        return false;
    path = own;
    launcher.controls.HiResText.text = NativePath(own);
    return true;
}

bool HighResTexturesUsed(const Launcher& launcher)
{
    return launcher.settings.HighResTextures && launcher.resources.textures;
}

bool SoundPackInstalled(const Launcher& launcher)
{
    return launcher.files.fileExists(launcher.paths.RootPath + u"/Data/hv_doom_sfx.wad"_s);
}

void FindResourcePacks(Launcher& launcher)
{
    const QString data = launcher.paths.RootPath + u"/Data/"_s;
    const FileSystem& files = launcher.files;
    launcher.resources.textures = TexturePathValid(launcher);
    launcher.resources.patches =
        files.fileExists(data + u"patches/stbar.png"_s) || patchesBesideTextures(launcher);
    launcher.resources.detailTextures = files.fileExists(data + u"dtex/detail.wad"_s);
    launcher.resources.skyboxes = files.folderExists(data + u"Skyboxes"_s);
}

void CheckGraphicsPacks(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    FindResourcePacks(launcher);
    const ResourcePacks& packs = launcher.resources;
    if (controls.chkMain[0].ticked() || launcher.selection.ScriptedMap)
        return;
    CheckBox& patches = controls.chkGraphics[highResPatches];
    patches.enabled = packs.patches;
    if (packs.patches)
        launcher.settings.HighResPatches = patches.ticked();
    CheckBox& textures = controls.chkMain[highResTextures];
    textures.enabled = packs.textures;
    if (!packs.textures) {
        controls.HiResText.text = NoTextures;
    } else if (textures.ticked()) {
        controls.HiResText.text = NativePath(launcher.settings.TexturePath);
        launcher.settings.HighResTextures = true;
    }
    controls.chkGraphics[detailTextures].enabled = packs.detailTextures && !HighResTexturesUsed(launcher);
    CheckBox& skies = controls.chkGraphics[skyboxes];
    skies.enabled = packs.skyboxes;
    controls.SkyOpt[0].enabled = controls.SkyOpt[1].enabled = packs.skyboxes && skies.ticked();
}

void CheckSoundPack(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    if (!SoundPackInstalled(launcher))
        controls.chkSound[soundPack].enabled = false;
    else if (!controls.chkMain[0].ticked() && !controls.chkSound[0].ticked())
        controls.chkSound[soundPack].enabled = true;
}

void CheckPacksAtLoad(Launcher& launcher)
{
    CheckGraphicsPacks(launcher);
    if (!launcher.controls.chkMain[0].ticked() && launcher.resources.textures)
        launcher.controls.HiResText.text = NativePath(launcher.settings.TexturePath);
}
