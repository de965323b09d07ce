#include "wad/GameFiles.h"

#include "platform/Paths.h"
#include "state/Truth.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr const char16_t* neverGameFiles[] = {u"Doom2.wad", u"Doom.wad", u"Plutonia.wad",
                                              u"Doom1.wad", u"Tnt.wad",  u"kelspack.wad"};
constexpr const char16_t* lumpFiles[] = {u"dd_defns", u"scp_defn", u"scp_zoff", u"sndinfo"};

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

bool IsGameFile(FileSystem& files, const QString& folder, const QString& name)
{
    if (names(neverGameFiles, name))
        return false;
    const bool isSideFile = !IsShownFile(name, true);
    if (names(lumpFiles, name) || EndsWith(name, u".wad"_s) || isSideFile)
        return true;
    tidy(files, folder + name);
    return false;
}

QStringList GameFilesOf(FileSystem& files, const QString& folder)
{
    // A backup that becomes its WAD again is listed as that WAD: tidying goes first.
    for (const QString& name : files.files(folder))
        IsGameFile(files, folder, name);
    QStringList names = files.files(folder);
    names.removeIf([&](const QString& name) { return !IsGameFile(files, folder, name); });
    return names;
}

QStringList GatherGameFiles(const QStringList& names, const QString& mainWad)
{
    QStringList wads, patches;
    for (const QString& name : names) {
        if (EndsWith(name, u".deh"_s) || EndsWith(name, u".ded"_s))
            patches << name;
        else if (EndsWith(name, u".wad"_s) && !SameName(name, mainWad))
            wads << name;
    }
    return QStringList{mainWad} + wads + patches;
}
