#include "tools/engine/GameFiles.h"

#include "engines/EngineFailure.h"
#include "platform/Paths.h"

#include <QDir>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QString Joined(const QString& folder, const QString& name)
{
    return QDir::cleanPath(QDir(folder).filePath(WithSlashes(name)));
}

// The folders that hold IWADs, in the launcher's order, which is another one for the shareware game.
QStringList IwadFolders(const QString& root, const QProcessEnvironment& environment, const QString& fileName)
{
    QStringList folders;
    for (const QString& variable : {u"$DOOMWADDIR"_s, u"DOOMWADDIR"_s}) {
        const QString folder = environment.value(variable);
        if (!folder.isEmpty())
            folders += Joined(root, folder);
    }
    const QString data = root + u"/Data"_s;
    const QString iwads = root + u"/Iwads"_s;
    return folders + (SameName(fileName, u"Doom1.wad"_s) ? QStringList{iwads, data, root}
                                                         : QStringList{root, data, iwads});
}

bool IsForeignWad(const QString& name)
{
    static const QStringList names{u"Doom.wad"_s, u"Doom1.wad"_s,    u"Doom2.wad"_s,
                                   u"Tnt.wad"_s,  u"Plutonia.wad"_s, u"kelspack.wad"_s};
    return names.contains(name, Qt::CaseInsensitive);
}

} // namespace

QString FindIwad(const FileSystem& files, const QString& root, const QProcessEnvironment& environment,
                 const QString& fileName)
{
    const QStringList folders = IwadFolders(root, environment, fileName);
    for (const QString& folder : folders)
        if (files.fileExists(folder + u'/' + fileName))
            return files.actualPath(folder + u'/' + fileName);
    throw EngineFailure(u"%1 was not found in %2."_s.arg(fileName, folders.join(u", "_s)));
}

GameFolder FindGameFolder(const FileSystem& files, const QString& root, const QString& game)
{
    if (game.isEmpty() || game == u"."_s || game == u".."_s || game.contains(u'/') || game.contains(u'\\'))
        throw EngineFailure(u"\"%1\" is no name of an installed game."_s.arg(game));
    const QString folder = root + u"/VYKGames/"_s + game;
    for (const auto& [name, autoLoading] : {std::pair{u"/Gwads"_s, true}, std::pair{u"/Pwads"_s, false}})
        if (files.folderExists(folder + name))
            return {files.actualPath(folder + name), autoLoading};
    throw EngineFailure(
        u"The game \"%1\" is not installed: %2 holds no folder Pwads or Gwads."_s.arg(game, folder));
}

QStringList WadsOf(const FileSystem& files, const QString& folder, const CountMaps& countMaps)
{
    struct Wad
    {
        QString path;
        int maps;
    };
    QList<Wad> wads;
    for (const QString& name : files.files(folder))
        if (EndsWith(name, u".wad"_s) && !IsForeignWad(name))
            wads.append({folder + u'/' + name, countMaps(folder + u'/' + name)});
    if (wads.isEmpty())
        return {};

    // The names come in ascending order: the last of the largest is wanted, and at the front.
    const auto fewer = [](const Wad& a, const Wad& b) { return a.maps <= b.maps; };
    const auto main = std::max_element(wads.begin(), wads.end(), fewer);
    std::rotate(wads.begin(), main, main + 1);
    std::stable_partition(wads.begin() + 1, wads.end(), [](const Wad& wad) { return wad.maps > 0; });

    QStringList paths;
    for (const Wad& wad : wads)
        paths += wad.path;
    return paths;
}

QStringList PatchesOf(const FileSystem& files, const QString& folder)
{
    QStringList paths;
    for (const QString& name : files.files(folder))
        if (EndsWith(name, u".deh"_s) || EndsWith(name, u".bex"_s))
            paths += folder + u'/' + name;
    return paths;
}

QString FindNamedFile(const FileSystem& files, const QString& root, const QString& folder,
                      const QString& name)
{
    for (const QString& base : {folder, root})
        if (!base.isEmpty() && files.fileExists(Joined(base, name)))
            return files.actualPath(Joined(base, name));
    throw EngineFailure(u"The file \"%1\" was not found."_s.arg(name));
}
