#include "music/AutoPlaylist.h"

#include "platform/Paths.h"
#include "platform/Text.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 maximumBytes = 64 * 1024; // a file of five names is far smaller

const QStringList initialLines{
    u"IMPORTANT: Do not manually edit or change the order of this list"_s,
    u"Doom/Ultimate Doom Placeholder"_s,
    u"Doom II - Placeholder"_s,
    u"Plutonia - Placeholder"_s,
    u"TNT - Placeholder"_s,
};

// By family; the shareware's is Doom's.
constexpr AutoGame gameOfFamily[] = {AutoGame::Doom, AutoGame::Doom, AutoGame::Doom2, AutoGame::Tnt,
                                     AutoGame::Plutonia};

QString pathOf(const InstallationPaths& paths)
{
    return paths.LaunchPath + u"music/auto-playlist.vyk"_s;
}

// The lines, each as it stands; those that are missing, or all of a file that cannot be ours, are the initial
// ones.
QStringList readLines(const FileSystem& files, const QString& path)
{
    const QByteArray bytes = files.read(path, maximumBytes);
    QStringList lines = bytes.size() < maximumBytes ? LinesOf(FromAnsi(bytes)) : QStringList();
    while (lines.size() < initialLines.size())
        lines << initialLines.at(lines.size());
    return lines;
}

} // namespace

QStringList ReadAutoPlaylists(const FileSystem& files, const InstallationPaths& paths)
{
    QStringList playlists;
    try {
        if (files.fileExists(pathOf(paths)))
            for (const QString& line : readLines(files, pathOf(paths)).mid(1, initialLines.size() - 1))
                playlists << FieldsOf(line).value(0);
    } catch (const FileError&) {
        // One that cannot be read is as good as none.
    }
    return playlists;
}

QString GetAutoPlaylist(const Facts& facts, GameFamily family)
{
    return facts.autoPlaylists.value(static_cast<int>(gameOfFamily[static_cast<size_t>(family)]));
}

void SetAutoPlaylist(FileSystem& files, const InstallationPaths& paths, const QString& name, AutoGame game)
{
    QStringList lines = files.fileExists(pathOf(paths)) ? readLines(files, pathOf(paths)) : initialLines;
    lines[static_cast<int>(game) + 1] = AsField(name);
    files.createFolder(paths.MusicLaunchPath);
    WriteLines(files, pathOf(paths), lines);
}
