#include "wad/GameFiles.h"

#include "platform/Paths.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr const char16_t* neverGameFiles[] = {u"Doom2.wad", u"Doom.wad", u"Plutonia.wad",
                                              u"Doom1.wad", u"Tnt.wad",  u"kelspack.wad"};
constexpr const char16_t* lumpFiles[] = {u"dd_defns", u"scp_defn", u"scp_zoff", u"sndinfo"};
constexpr const char16_t* sideFileEndings[] = {u".txt", u".htm", u"html", u".doc",
                                               u".deh", u".bex", u".ded", u".lmp"};

const QString builtNodes = u"VYKgwa"_s;
const QString engineBackup = u"VYKbak"_s;

template <class Table>
bool names(const Table& table, const QString& name)
{
    return std::ranges::any_of(
        table, [&](const char16_t* entry) { return SameName(name, QString::fromUtf16(entry)); });
}

void tidy(FileSystem& files, const QString& path)
{
    try {
        if (EndsWith(path, builtNodes)) {
            files.remove(path);
        } else if (EndsWith(path, engineBackup)) {
            files.copy(path, path.chopped(engineBackup.size()) + u"wad"_s);
            files.remove(path);
        }
    } catch (const FileError&) {
        // What cannot be tidied stays, and is no game file either way.
    }
}

} // namespace

bool IsGameFile(FileSystem& files, const QString& folder, const QString& name, bool wadFilesOnly)
{
    if (names(neverGameFiles, name))
        return false;
    if (names(lumpFiles, name) || EndsWith(name, u".wad"_s))
        return true;
    if (std::ranges::any_of(sideFileEndings, [&](const char16_t* ending) {
            return EndsWith(name, QString::fromUtf16(ending));
        }))
        return !wadFilesOnly;
    tidy(files, folder + name);
    return false;
}

QStringList GameFilesOf(FileSystem& files, const QString& folder, bool wadFilesOnly)
{
    // A backup that becomes its WAD again is listed as that WAD: tidying goes first.
    for (const QString& name : files.files(folder))
        IsGameFile(files, folder, name, wadFilesOnly);
    QStringList names = files.files(folder);
    names.removeIf([&](const QString& name) { return !IsGameFile(files, folder, name, wadFilesOnly); });
    return names;
}

GatheredFiles GatherGameFiles(const FileSystem& files, const QString& mainWad,
                              const std::function<int(const QString&)>& countMaps)
{
    const QString folder = FolderOf(mainWad);
    const QString kind = FileNameOf(folder);
    GatheredFiles gathered;
    gathered.isArchive = SameName(kind, u"ZIPS"_s);
    const bool isGwads = SameName(kind, u"GWADS"_s);
    if (!gathered.isArchive && !isGwads && !SameName(kind, u"PWADS"_s))
        return gathered;

    gathered.inGameFolder = true;
    gathered.userDir = gathered.isArchive ? folder : FileNameOf(FolderOf(folder));
    if (isGwads)
        return gathered; // the engine finds the files itself

    QStringList withMaps, withoutMaps, patches;
    for (const QString& name : files.files(folder)) {
        const QString path = folder + u'/' + name;
        if (EndsWith(name, u".wad"_s)) {
            if (path != mainWad)
                (countMaps(path) > 0 ? withMaps : withoutMaps) << path;
        } else if (EndsWith(name, u".deh"_s) || EndsWith(name, u".ded"_s)) {
            patches << path;
        }
    }
    gathered.StoredFiles = QStringList{mainWad} + withMaps + withoutMaps + patches;
    return gathered;
}
