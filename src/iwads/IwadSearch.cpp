#include "iwads/IwadSearch.h"

#include "platform/Paths.h"
#include "platform/Text.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

// The TNT file is looked for under this name; names compare without regard to case.
const QStringList fullGames = {u"Doom2.wad"_s, u"Doom.wad"_s, u"TnT.wad"_s, u"Plutonia.wad"_s};
const QString shareware = u"Doom1.wad"_s;

QString listPath(const InstallationPaths& paths)
{
    return paths.LaunchDataPath + u"iwads.cfg"_s;
}

constexpr qsizetype mostLines = 16;

// None of a list that cannot be read.
QStringList listLines(const FileSystem& files, const InstallationPaths& paths)
{
    try {
        const QString path = listPath(paths);
        return files.fileExists(path) ? ReadLines(files, path).mid(0, mostLines) : QStringList();
    } catch (const FileError&) {
        return {};
    }
}

QString wadFolder(const FileSystem& files, const IwadEnvironment& environment)
{
    if (!environment.dollarDoomWadDir.isEmpty() && files.folderExists(environment.dollarDoomWadDir))
        return environment.dollarDoomWadDir;
    return environment.doomWadDir;
}

} // namespace

void AddIwad(IwadPaths& iwads, QStringList& storedFiles, const QString& path)
{
    const std::optional<GameFamily> family = FamilyOfIwad(path);
    if (!family || !iwads.of(*family).isEmpty())
        return;
    storedFiles << path;
    iwads.of(*family) = path;
}

void SearchIwads(IwadPaths& iwads, QStringList& storedFiles, const FileSystem& files,
                 const InstallationPaths& paths, const IwadEnvironment& environment)
{
    const auto probe = [&](const QString& folder, const QString& name) {
        if (folder.isEmpty())
            return;
        const QString path = files.actualPath(folder + u'/' + name);
        if (!path.isEmpty() && files.fileExists(path))
            AddIwad(iwads, storedFiles, path);
    };
    const QString environmentFolder = wadFolder(files, environment);
    const QString root = paths.RootPath;
    const QString data = root + u"/Data"_s;
    const QString iwadsFolder = root + u"/Iwads"_s;

    for (const QString& name : fullGames)
        probe(environmentFolder, name);
    if (!iwads.ShowIwads.back().isEmpty()) // the player's list is full
        return;
    for (const QString& folder : {root, data, iwadsFolder})
        for (const QString& name : fullGames)
            probe(folder, name);
    for (const QString& folder : {environmentFolder, iwadsFolder, data, root})
        probe(folder, shareware);
}

void LoadIwadList(IwadPaths& iwads, QStringList& storedFiles, const FileSystem& files,
                  const InstallationPaths& paths)
{
    std::array<bool, 5> listed{};
    const QStringList lines = listLines(files, paths);
    iwads.IwadFolder = FolderOf(WithSlashes(lines.value(0)));
    for (const QString& line : lines) {
        const QString iwad = files.actualPath(WithSlashes(line));
        const std::optional<GameFamily> family = FamilyOfIwad(iwad);
        if (!family || !files.fileExists(iwad))
            continue;
        // Of two for one game the player added the later one, and wants it.
        QString& known = iwads.of(*family);
        if (std::exchange(listed[static_cast<size_t>(*family)], true) && !known.isEmpty()) {
            storedFiles.replace(storedFiles.indexOf(known), iwad);
            known = iwad;
        }
        AddIwad(iwads, storedFiles, iwad);
    }
}

void SaveIwadList(const IwadPaths& iwads, FileSystem& files, const InstallationPaths& paths)
{
    QStringList lines;
    for (const QString& box : iwads.ShowIwads)
        lines << NativePath(box);
    // What lies on a disk that is not there today.
    for (const QString& line : listLines(files, paths))
        if (!line.trimmed().isEmpty() && files.actualPath(WithSlashes(line)).isEmpty() &&
            lines.size() < mostLines && !lines.contains(line, Qt::CaseInsensitive))
            lines << line;
    WriteLines(files, listPath(paths), lines);
}

void BuildIwadList(IwadPaths& iwads, FileSystem& files, const InstallationPaths& paths,
                   const IwadEnvironment& environment)
{
    QStringList storedFiles;
    SearchIwads(iwads, storedFiles, files, paths, environment);
    LoadIwadList(iwads, storedFiles, files, paths);
    for (qsizetype i = 0; i < std::min<qsizetype>(storedFiles.size(), 4); ++i) {
        const QString& iwad = storedFiles.at(i);
        iwads.ShowIwads[static_cast<size_t>(i)] = iwad;
        try {
            files.remove(iwad.chopped(3) + u"VYKgwa"_s);
        } catch (const FileError&) {
            // Nodes that cannot be deleted are the engine's to rebuild.
        }
    }
}

std::array<IwadOnDisk, 5> ReadIwadFacts(const IwadPaths& iwads, const FileSystem& files,
                                        const InstallationPaths& paths, const IwadEnvironment& environment)
{
    const QStringList standardPlaces{environment.doomWadDir, environment.dollarDoomWadDir, paths.RootPath,
                                     paths.RootPath + u"/Data"_s, paths.RootPath + u"/Iwads"_s};
    std::array<IwadOnDisk, 5> onDisk;
    for (const GameFamilyRow& row : GameFamilies) {
        const QString& path = iwads.of(row.family);
        if (path.isEmpty())
            continue;
        const QString name = BaseNameOf(path) + u".wad"_s;
        onDisk[static_cast<size_t>(row.family)] = {
            .exists = files.fileExists(path),
            .foundByEngine = std::ranges::any_of(standardPlaces, [&](const QString& folder) {
                return !folder.isEmpty() && files.fileExists(folder + u'/' + name);
            })};
    }
    return onDisk;
}
