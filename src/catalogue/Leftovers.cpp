#include "catalogue/Leftovers.h"

#include "platform/FileNames.h"

#include "platform/Paths.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// The folders of the model packs, which belong to no single game.
constexpr const char16_t* packFolders[] = {u"Decorations", u"Flames", u"HudWeapons", u"Items",  u"Kelspack",
                                           u"Lod",         u"Marine", u"Monsters",   u"Nature", u"Spheres",
                                           u"Splashes",    u"Tech",   u"Tovrens",    u"Weapons"};

bool isPackFolder(const QString& name)
{
    return std::ranges::any_of(
        packFolders, [&](const char16_t* folder) { return SameName(name, QString::fromUtf16(folder)); });
}

} // namespace

void DeleteFilesBeginningWith(FileSystem& files, const InstallationPaths& paths, const QString& base,
                              std::initializer_list<const char16_t*> folders)
{
    if (!IsUsableName(base))
        return;
    for (const char16_t* name : folders) {
        const QString folder = paths.RootPath + u'/' + QString::fromUtf16(name) + u'/';
        for (const QString& file : files.files(folder))
            if (file.startsWith(base, Qt::CaseInsensitive))
                files.remove(folder + file);
    }
}

void DeleteGameResources(FileSystem& files, Trash& trash, const InstallationPaths& paths, const QString& base)
{
    if (!IsUsableName(base))
        return;
    QStringList folders{u"/Data/Custom.hires/"_s, u"/Data/Custom.music/"_s};
    if (!isPackFolder(base))
        folders.prepend(u"/MD2/"_s);
    for (const QString& folder : folders)
        if (files.folderExists(paths.RootPath + folder + base))
            trash.discard(paths.RootPath + folder + base);
}
