#include "catalogue/ScriptedMaps.h"

#include "platform/DateOrder.h"
#include "platform/Paths.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

enum Need { Nothing, AlternativeWeapons, CurrentFile };

// The first twelve have a folder of models named after their WAD; the last borrows from them.
const struct
{
    const char16_t* title;
    const char16_t* wad;
    Need need;
} scriptedMaps[] = {
    {u"Ashen Causeway", u"ashway.wad", AlternativeWeapons},
    {u"Blackwater Keep", u"blakeep.wad", CurrentFile},
    {u"Cinder Vault", u"cindvlt.wad", CurrentFile},
    {u"Drowned Foundry", u"drowned.wad", Nothing},
    {u"Ember Road", u"embroad.wad", Nothing},
    {u"Fathom Station", u"fathom.wad", Nothing},
    {u"Gallows Reach", u"gallows.wad", Nothing},
    {u"Hollow Spire", u"hollow.wad", Nothing},
    {u"Iron Tide", u"irontide.wad", Nothing},
    {u"Jade Reliquary", u"jaderel.wad", Nothing},
    {u"Kiln Yards", u"kilnyard.wad", Nothing},
    {u"Lantern Deep", u"lantern.wad", Nothing},
    {u"Meridian Fall", u"meridian.wad", Nothing},
};
constexpr size_t modelFolders = 12;
static_assert(std::size(scriptedMaps) == 13);

// Older files of the maps and of the add-on do not work with this version of the engine. The date is known as
// "10/08/2020", whatever that is to the user.
QDateTime oldestFile()
{
    const QDate date = IsDayBeforeMonth() ? QDate(2020, 8, 10) : QDate(2020, 10, 8);
    return {date, QTime(10, 10, 10)};
}

bool isMapWith(Need need, const QString& path)
{
    return std::ranges::any_of(scriptedMaps, [&](const auto& row) {
        return row.need == need && SameName(FileNameOf(path), QString::fromUtf16(row.wad));
    });
}

} // namespace

ScriptedMapCheck IsScriptedMap(const FileSystem& files, const InstallationPaths& paths, const QString& name)
{
    for (const auto& row : scriptedMaps) {
        if (!SameName(name, QString::fromUtf16(row.title)))
            continue;
        const QString wad = QString::fromUtf16(row.wad);
        const QString folder = BaseNameOf(wad);
        return {.isScriptedMap = true,
                .isComplete = files.fileExists(paths.GamesPath + name + u"/pwads/"_s + wad) &&
                              files.folderExists(paths.Md2Path + folder) &&
                              files.folderExists(paths.RootPath + u"/Data/custom.hires/"_s + folder)};
    }
    return {};
}

bool ScriptedMapModelsPresent(const FileSystem& files, const InstallationPaths& paths)
{
    return std::any_of(std::begin(scriptedMaps), std::begin(scriptedMaps) + modelFolders,
                       [&](const auto& row) {
                           return files.folderExists(paths.Md2Path + BaseNameOf(QString::fromUtf16(row.wad)));
                       });
}

bool NeedsAlternativeWeapons(const QString& path)
{
    return isMapWith(AlternativeWeapons, path);
}

bool CheckScriptedMapDate(const FileSystem& files, const QString& path)
{
    return isMapWith(CurrentFile, path) && files.modified(path) < oldestFile();
}

bool CheckVexAddon(const FileSystem& files, const InstallationPaths& paths)
{
    const QString addon = paths.RootPath + u"/Data/VYK_addon/Vexlev/vexlev_addon.wad"_s;
    return !files.fileExists(addon) || files.modified(addon) < oldestFile();
}
