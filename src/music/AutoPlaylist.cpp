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

const struct
{
    QStringView iwad; // its base name
    int line;         // from 0
} lineOfIwad[] = {
    {u"Doom1", 1}, {u"Doom", 1}, {u"Doom2", 2}, {u"Plutonia", 3}, {u"Tnt", 4},
};

QString pathOf(const Launcher& launcher)
{
    return launcher.paths.LaunchPath + u"music/auto-playlist.vyk"_s;
}

// The lines, each as it stands; those that are missing, or all of a file that cannot be ours, are the initial
// ones.
QStringList readLines(const Launcher& launcher)
{
    const QByteArray bytes = launcher.files.read(pathOf(launcher), maximumBytes);
    QStringList lines = bytes.size() < maximumBytes ? LinesOf(FromAnsi(bytes)) : QStringList();
    while (lines.size() < initialLines.size())
        lines << initialLines.at(lines.size());
    return lines;
}

// A name with a comma is one field only in quotes.
QString asField(const QString& name)
{
    return name.contains(u',') ? u'"' + name + u'"' : name;
}

} // namespace

bool HasAutoPlaylists(const Launcher& launcher)
{
    return launcher.files.fileExists(pathOf(launcher));
}

void GetAutoPlaylist(Launcher& launcher)
{
    MusicState& music = launcher.music;
    const QString iwad = BaseNameOf(launcher.launch.SelectedIwadPath);
    const auto* const row = std::ranges::find_if(
        lineOfIwad, [&](const auto& known) { return SameName(iwad, known.iwad.toString()); });
    try {
        if (row != std::end(lineOfIwad) && HasAutoPlaylists(launcher))
            music.AutoPlaylistName = FieldsOf(readLines(launcher).at(row->line)).value(0);
    } catch (const FileError&) {
        // One that cannot be read is as good as none.
    }
    music.AutoPlaylistFound = !music.AutoPlaylistName.isEmpty() &&
                              launcher.controls.SelectionList.find(music.AutoPlaylistName) >= 0;
}

QString AutomaticPlaylist(Launcher& launcher)
{
    if (!launcher.settings.AutoPlaylistsOn)
        return {};
    GetAutoPlaylist(launcher);
    return launcher.music.AutoPlaylistFound ? launcher.music.AutoPlaylistName : QString();
}

void SetAutoPlaylist(Launcher& launcher, int game)
{
    QStringList lines = HasAutoPlaylists(launcher) ? readLines(launcher) : initialLines;
    lines[game + 1] = asField(launcher.settings.PlaylistName);
    launcher.files.createFolder(launcher.paths.MusicLaunchPath);
    WriteLines(launcher.files, pathOf(launcher), lines);
}
