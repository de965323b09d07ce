#include "options/PackFacts.h"

using namespace Qt::StringLiterals;

ModelPacks FindModelPacks(const FileSystem& files, const InstallationPaths& paths)
{
    const QString kelspack = paths.Md2Path + u"Kelspack/"_s;
    return {.ModelPacksMissing =
                !files.fileExists(paths.Md2Path + u"HudWeapons/SuperShotgun/db-shells.md2"_s),
            .ModelPack2Installed = files.fileExists(paths.Md2Path + u"Tovrens/Gore/Gore6.dmd"_s),
            .KelspackInstalled = files.fileExists(kelspack + u"AK47/AK47.md2"_s) &&
                                 files.fileExists(kelspack + u"kelspack.wad"_s),
            .CoreEffectsInstalled = files.folderExists(paths.Md2Path + u"CoreEffects"_s) &&
                                    files.fileExists(paths.BaseDefsPath + u"CoreEffects.ded"_s)};
}
