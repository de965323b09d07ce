#include "options/ModelPacks.h"

#include "app/Launcher.h"
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

} // namespace

ModelPacks FindModelPacks(const FileSystem& files, const InstallationPaths& paths)
{
    const QString kelspack = paths.Md2Path + u"Kelspack/"_s;
    return {.ModelPacksMissing =
                !files.fileExists(paths.Md2Path + u"HudWeapons/SuperShotgun/db-shells.md2"_s),
            .ModelPack2Installed = files.fileExists(paths.Md2Path + u"Tovrens/Gore/Gore6.dmd"_s),
            .KelspackInstalled = files.fileExists(kelspack + u"AK47/AK47.md2"_s) &&
                                 files.fileExists(kelspack + u"kelspack.wad"_s)};
}

void DetectModelPacks(Launcher& launcher)
{
    launcher.modelPacks = FindModelPacks(launcher.files, launcher.paths);
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
