#include "music/BuiltInPlaylists.h"

#include "music/PlaylistFile.h"
#include "music/PlaylistLayout.h"
#include "platform/Paths.h"
#include "platform/Text.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// What a part of a playlist is for. The two games of Final Doom have the maps of Doom II and music of their
// own, for which their packs have files of their own.
struct Section
{
    QStringView title; // in its headers
    MusicGame game;
    QStringView ownPrefix; // of the files with the music of the game alone; else it is Doom II's
};

constexpr Section doom{u"DOOM", MusicGame::Doom, {}};
constexpr Section doom2{u"DOOM II", MusicGame::Doom2, {}};
constexpr Section plutonia{u"PLUTONIA", MusicGame::Doom2, {}};
constexpr Section tnt{u"TNT", MusicGame::Doom2, u"tnt_"};

struct BuiltIn
{
    QString pack;
    QString name;
    QList<Section> sections;
};

const BuiltIn builtIns[] = {
    {u"Fennic"_s, u"Fennic - TNT"_s, {tnt}},
    {u"Tavro"_s, u"Tavro - Doom & Doom2"_s, {doom, doom2}},
    {u"Tavro"_s, u"Tavro - Plutonia"_s, {plutonia}},
    {u"Tavro"_s, u"Tavro - TNT"_s, {tnt}},
    {u"Dunhelm"_s, u"Dunhelm - Doom & Doom2"_s, {doom, doom2}},
    {u"Dunhelm"_s, u"Dunhelm - Plutonia"_s, {plutonia}},
    {u"Dunhelm"_s, u"Dunhelm - TNT"_s, {tnt}},
    {u"K-Tor"_s, u"K-Tor - Doom2"_s, {doom2}},
};

QString packFolder(const InstallationPaths& paths, const QString& pack)
{
    return paths.RootPath + u"/OGGVorbis/"_s + pack;
}

class Entries
{
public:
    Entries(const QString& pack, const QStringList& packFiles) : m_pack(pack), m_files(packFiles) {}

    // `usual` is the file's name when the pack has none of the two.
    QString entry(const MusicKey& key, QStringView ownPrefix, bool ownIsUsual) const
    {
        const QString shared = key.lump.toString() + u".ogg"_s;
        const QString own = ownPrefix.toString() + key.lump.mid(2).toString() + u".ogg"_s;
        const bool takeOwn = !ownPrefix.isEmpty() && (has(own) || (ownIsUsual && !has(shared)));
        return key.key.toString() + u" \\OggVorbis\\"_s + m_pack + u'\\' + (takeOwn ? own : shared);
    }

private:
    bool has(const QString& name) const { return m_files.contains(name, Qt::CaseInsensitive); }

    QString m_pack;
    QStringList m_files;
};

// In the standard layout, with the headers of the packs.
QStringList linesOf(const BuiltIn& playlist, const QStringList& packFiles)
{
    const Entries entries(playlist.pack, packFiles);
    QStringList lines;
    for (const Section& section : playlist.sections) {
        QStringList intermission;
        for (const MusicKey& key : IntermissionKeys(section.game))
            intermission << entries.entry(key, section.ownPrefix, true);
        for (QString line : IntermissionBlock(section.game, intermission)) {
            if (line == IntermissionHeader(section.game))
                line = u" # -  INTERMISSION MUSIC FOR "_s + section.title.toString();
            else if (line == MapHeader(section.game))
                line = u" # -  MAP MUSIC FOR "_s + section.title.toString();
            lines << line;
        }
        for (const MusicKey& map : MapKeys(section.game))
            lines << entries.entry(map, section.ownPrefix, false);
    }
    return lines;
}

enum class Files { Own, Shared };

// The names that a pack's files can have.
QStringList possibleFiles(const BuiltIn& playlist, Files which)
{
    QStringList names;
    for (const Section& section : playlist.sections)
        for (const std::span<const MusicKey> keys : {IntermissionKeys(section.game), MapKeys(section.game)})
            for (const MusicKey& key : keys)
                names << (which == Files::Shared
                              ? key.lump.toString()
                              : section.ownPrefix.toString() + key.lump.mid(2).toString()) +
                             u".ogg"_s;
    return names;
}

// Whether the lines are those that were made, whichever files the pack had then.
bool isAsMade(const BuiltIn& playlist, const QStringList& lines)
{
    const QStringList without = linesOf(playlist, {});
    const QStringList with = linesOf(playlist, possibleFiles(playlist, Files::Own));
    const QStringList shared = linesOf(playlist, possibleFiles(playlist, Files::Shared));
    if (lines.size() != without.size())
        return false;
    for (qsizetype i = 0; i < lines.size(); ++i)
        if (lines.at(i) != without.at(i) && lines.at(i) != with.at(i) && lines.at(i) != shared.at(i))
            return false;
    return true;
}

// A playlist that the player has changed cannot be made again.
void retire(Launcher& launcher, const BuiltIn& playlist, const QString& path)
{
    FileSystem& files = launcher.files;
    if (isAsMade(playlist, ReadPlaylist(files, path).lines)) {
        files.remove(path);
        return;
    }
    const QString base = launcher.paths.MusicLaunchPath + playlist.name + u".old"_s;
    QString old = base;
    for (int number = 2; files.fileExists(old); ++number)
        old = base + QString::number(number);
    files.move(path, old);
}

void makePlaylists(Launcher& launcher, const QString& pack)
{
    const QString folder = packFolder(launcher.paths, pack);
    const bool isInstalled = launcher.files.folderExists(folder);
    for (const BuiltIn& playlist : builtIns) {
        const QString path = launcher.paths.MusicLaunchPath + playlist.name + u".vym"_s;
        if (playlist.pack != pack || launcher.files.fileExists(path) == isInstalled)
            continue;
        try {
            if (!isInstalled) {
                retire(launcher, playlist, path);
                continue;
            }
            launcher.files.createFolder(launcher.paths.MusicLaunchPath);
            WritePlaylist(launcher.files, path, {.lines = linesOf(playlist, launcher.files.files(folder))});
        } catch (const FileError&) {
            // Without it there is one playlist less to choose from, or one more.
        }
    }
}

void renameIfThere(FileSystem& files, const QString& from, const QString& to)
{
    try {
        if (files.fileExists(from))
            files.move(from, to);
    } catch (const FileError&) {
        // It keeps its former name.
    }
}

} // namespace

bool IsBuiltInPlaylist(const QString& name)
{
    return std::ranges::any_of(builtIns,
                               [&](const BuiltIn& playlist) { return SameName(name, playlist.name); });
}

QString GetListPath(const InstallationPaths& paths, const QString& name)
{
    constexpr int compared = 4; // characters
    for (const QString& pack : {u"Tavro"_s, u"Dunhelm"_s, u"Fennic"_s, u"K-Tor"_s})
        if (name.left(compared) == pack.left(compared))
            return packFolder(paths, pack);
    return {};
}

void MakeFennicPlaylists(Launcher& launcher)
{
    // The list names the file by its new name.
    const QString folder = packFolder(launcher.paths, u"Fennic"_s);
    renameIfThere(launcher.files, folder + u"/tnt_stalks2.ogg"_s, folder + u"/tnt_stlks2.ogg"_s);
    makePlaylists(launcher, u"Fennic"_s);
    const QString music = launcher.paths.MusicLaunchPath;
    renameIfThere(launcher.files, music + u"Fennic.vym"_s, music + u"Fennic.old"_s);
}

void MakeTavroPlaylists(Launcher& launcher)
{
    makePlaylists(launcher, u"Tavro"_s);
}

void MakeDunhelmPlaylists(Launcher& launcher)
{
    makePlaylists(launcher, u"Dunhelm"_s);
}

void MakeKTorPlaylists(Launcher& launcher)
{
    makePlaylists(launcher, u"K-Tor"_s);
}
