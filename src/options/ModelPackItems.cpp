#include "options/ModelPackItems.h"

#include "platform/Paths.h"

#include <QLocale>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

enum Kind { File, Folder };

struct Group
{
    QString InstallationPaths::*place;
    Kind kind;
    QStringList names;
    QStringList onlyWithout; // folders of the same place
};

QList<Group> modelPack1()
{
    using Paths = InstallationPaths;
    return {
        {&Paths::Md2Path,
         Folder,
         {u"Decorations"_s, u"Flames"_s, u"HudWeapons"_s, u"Items"_s, u"Marine"_s, u"Nature"_s, u"Spheres"_s,
          u"Splashes"_s, u"Tech"_s, u"Weapons"_s, u"Lod/Common"_s, u"Lod/Standard"_s, u"Lod/Enhanced"_s},
         {}},
        {&Paths::Md2Path, Folder, {u"Lod"_s}, {u"Lod/Enhanced"_s}},
        {&Paths::Md2Path,
         Folder,
         {u"Monsters/ArchVile"_s, u"Monsters/BossBrain"_s, u"Monsters/BossCube"_s, u"Monsters/Bruiser"_s,
          u"Monsters/Caco"_s, u"Monsters/Cyberdemon"_s, u"Monsters/Demon"_s, u"Monsters/Imp"_s,
          u"Monsters/Keen"_s, u"Monsters/LostSoul"_s, u"Monsters/Mancubus"_s, u"Monsters/Pain"_s,
          u"Monsters/Revenant"_s, u"Monsters/Soldiers"_s, u"Monsters/Soldiers2"_s, u"Monsters/Spider"_s,
          u"Monsters/SSdude"_s, u"Monsters/Squished"_s},
         {}},
        {&Paths::ModelDefsPath,
         File,
         {u"Decorations.ded"_s, u"FlameModels.ded"_s, u"HudWeapons.ded"_s, u"Items.ded"_s, u"Lod.ded"_s,
          u"Monsters.ded"_s, u"Players.ded"_s, u"Splashes.ded"_s, u"Weapons.ded"_s, u"Grenade.ded"_s,
          u"ExtraFX.ded"_s, u"lod-grenade.ded"_s, u"WeapSmoke.ded"_s, u"WeapSmokeA.ded"_s},
         {}},
        {&Paths::CustomDefsPath,
         File,
         {u"Dorn's pistol packing zombies.ded"_s, u"Standard chaingun.ded"_s, u"Splash bubbles effect.ded"_s},
         {}},
        {&Paths::Md2Path, Folder, {u"Monsters"_s}, {u"Monsters/Soldiers2"_s}},
    };
}

QList<Group> tovrensPack()
{
    using Paths = InstallationPaths;
    return {
        {&Paths::Md2Path, Folder, {u"Tovrens"_s}, {}},
        {&Paths::ModelDefsPath, Folder, {u"Tovrens"_s}, {}},
        {&Paths::CustomDefsPath, File, {u"Tovrens pistol packing zombies.ded"_s}, {}},
        {&Paths::Md2Path, Folder, {u"Lod/Enhanced"_s, u"Lod/Standard"_s}, {}},
        {&Paths::Md2Path, Folder, {u"Lod"_s}, {u"Lod/Standard"_s}},
    };
}

QList<Group> kelspack()
{
    using Paths = InstallationPaths;
    return {{&Paths::Md2Path, Folder, {u"Kelspack"_s}, {}},
            {&Paths::ModelDefsPath, Folder, {u"Kelspack"_s}, {}}};
}

QList<Group> sharedSkins()
{
    return {{&InstallationPaths::Md2Path,
             File,
             {u"shiny.png"_s, u"metallic.png"_s},
             {u"Hudweapons"_s, u"Kelspack"_s, u"Tovrens"_s}}};
}

QList<Group> groupsOf(const ModelCleanup& cleanup)
{
    QList<Group> groups;
    if (cleanup.RemoveModelPack1)
        groups += modelPack1();
    if (cleanup.RemoveTovrensPack)
        groups += tovrensPack();
    if (cleanup.RemoveKelspack)
        groups += kelspack();
    return groups + sharedSkins();
}

// The entries of `folder` that are called `name`, if of the kind or links.
QStringList spellingsOf(const FileSystem& files, const QString& folder, const QString& name, Kind kind,
                        bool withLinks)
{
    const FolderEntry::Kind wanted = kind == Folder ? FolderEntry::Kind::Folder : FolderEntry::Kind::File;
    QStringList found;
    for (const FolderEntry& entry : files.entries(folder)) // none of an empty path
        if (SameName(entry.name, name) &&
            (entry.kind == wanted || (withLinks && entry.kind == FolderEntry::Kind::Link)))
            found << folder + u'/' + entry.name;
    return found;
}

// What `name`, which may have folders in it, stands for below `place`. Only its last part may be a link.
QStringList pathsOf(const FileSystem& files, const QString& place, const QString& name, Kind kind)
{
    QStringList found{files.actualPath(place)};
    const QStringList parts = name.split(u'/');
    for (qsizetype i = 0; i < parts.size(); ++i) {
        const bool last = i == parts.size() - 1;
        QStringList below;
        for (const QString& folder : found)
            below += spellingsOf(files, folder, parts[i], last ? kind : Folder, last);
        found = below;
    }
    return found;
}

QString counted(qint64 number, const QString& what)
{
    return u"%1 %2%3"_s.arg(number).arg(what, number == 1 ? u""_s : u"s"_s);
}

} // namespace

QList<ModelPackItem> FindModelPackItems(const FileSystem& files, const InstallationPaths& paths,
                                        const ModelCleanup& cleanup)
{
    QList<ModelPackItem> items;
    const auto goes = [&items](const QString& path) {
        return std::ranges::find(items, path, &ModelPackItem::path) != items.end();
    };
    for (const Group& group : groupsOf(cleanup)) {
        const QString& place = paths.*group.place;
        QStringList onlyWithout;
        for (const QString& name : group.onlyWithout)
            onlyWithout += pathsOf(files, place, name, Folder);
        if (!std::ranges::all_of(onlyWithout, goes))
            continue;
        for (const QString& name : group.names)
            for (const QString& path : pathsOf(files, place, name, group.kind))
                items.append({path, group.kind == Folder, onlyWithout});
    }
    return items;
}

QStringList OutermostPaths(const QStringList& paths)
{
    QStringList outermost;
    for (const QString& path : paths) {
        const auto holdsIt = [&path](const QString& other) { return path.startsWith(other + u'/'); };
        if (!outermost.contains(path) && std::ranges::none_of(paths, holdsIt))
            outermost << path;
    }
    return outermost;
}

QString ModelPackContents(const FileSystem& files, const QList<ModelPackItem>& items)
{
    QStringList paths;
    for (const ModelPackItem& item : items)
        paths << item.path;
    TreeContents sum;
    for (const QString& path : OutermostPaths(paths)) {
        const TreeContents contents = files.contents(path);
        sum.folders += contents.folders;
        sum.files += contents.files;
        sum.bytes += contents.bytes;
    }
    return u"%1 and %2, %3"_s.arg(
        counted(sum.folders, u"folder"_s), counted(sum.files, u"file"_s),
        QLocale::c().formattedDataSize(sum.bytes, 1, QLocale::DataSizeTraditionalFormat));
}
