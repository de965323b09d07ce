#include "music/PlaylistEntries.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr MusicKey doomIntermission[] = {
    {u"D_BUNNY", u"d_bunny"}, {u"D_INTRO", u"d_intro"},   {u"D_INTROA", u"d_introa"},
    {u"D_INTER", u"d_inter"}, {u"D_VICTOR", u"d_victor"},
};

// The fourth episode plays music of the other three.
constexpr MusicKey doomMaps[] = {
    {u"E1M1", u"d_e1m1"}, {u"E1M2", u"d_e1m2"}, {u"E1M3", u"d_e1m3"}, {u"E1M4", u"d_e1m4"},
    {u"E1M5", u"d_e1m5"}, {u"E1M6", u"d_e1m6"}, {u"E1M7", u"d_e1m7"}, {u"E1M8", u"d_e1m8"},
    {u"E1M9", u"d_e1m9"}, {u"E2M1", u"d_e2m1"}, {u"E2M2", u"d_e2m2"}, {u"E2M3", u"d_e2m3"},
    {u"E2M4", u"d_e2m4"}, {u"E2M5", u"d_e2m5"}, {u"E2M6", u"d_e2m6"}, {u"E2M7", u"d_e2m7"},
    {u"E2M8", u"d_e2m8"}, {u"E2M9", u"d_e2m9"}, {u"E3M1", u"d_e3m1"}, {u"E3M2", u"d_e3m2"},
    {u"E3M3", u"d_e3m3"}, {u"E3M4", u"d_e3m4"}, {u"E3M5", u"d_e3m5"}, {u"E3M6", u"d_e3m6"},
    {u"E3M7", u"d_e3m7"}, {u"E3M8", u"d_e3m8"}, {u"E3M9", u"d_e3m9"}, {u"E4M1", u"d_e3m4"},
    {u"E4M2", u"d_e3m2"}, {u"E4M3", u"d_e3m3"}, {u"E4M4", u"d_e1m5"}, {u"E4M5", u"d_e2m7"},
    {u"E4M6", u"d_e2m4"}, {u"E4M7", u"d_e2m6"}, {u"E4M8", u"d_e2m5"}, {u"E4M9", u"d_e1m9"},
};

constexpr MusicKey doom2Intermission[] = {
    {u"D_DM2TTL", u"d_dm2ttl"},
    {u"D_DM2INT", u"d_dm2int"},
    {u"D_READ_M", u"d_read_m"},
    {u"D_EVIL", u"d_evil"},
};

constexpr MusicKey doom2Maps[] = {
    {u"MAP01", u"d_runnin"}, {u"MAP02", u"d_stalks"}, {u"MAP03", u"d_countd"}, {u"MAP04", u"d_betwee"},
    {u"MAP05", u"d_doom"},   {u"MAP06", u"d_the_da"}, {u"MAP07", u"d_shawn"},  {u"MAP08", u"d_ddtblu"},
    {u"MAP09", u"d_in_cit"}, {u"MAP10", u"d_dead"},   {u"MAP11", u"d_stlks2"}, {u"MAP12", u"d_theda2"},
    {u"MAP13", u"d_doom2"},  {u"MAP14", u"d_ddtbl2"}, {u"MAP15", u"d_runni2"}, {u"MAP16", u"d_dead2"},
    {u"MAP17", u"d_stlks3"}, {u"MAP18", u"d_romero"}, {u"MAP19", u"d_shawn2"}, {u"MAP20", u"d_messag"},
    {u"MAP21", u"d_count2"}, {u"MAP22", u"d_ddtbl3"}, {u"MAP23", u"d_ampie"},  {u"MAP24", u"d_theda3"},
    {u"MAP25", u"d_adrian"}, {u"MAP26", u"d_messg2"}, {u"MAP27", u"d_romer2"}, {u"MAP28", u"d_tense"},
    {u"MAP29", u"d_shawn3"}, {u"MAP30", u"d_openin"}, {u"MAP31", u"d_evil"},   {u"MAP32", u"d_ultima"},
};

constexpr std::array<QStringView, 8> musicKinds{u"mp3", u"mid", u"ogg", u"mod", u"rmi", u"it", u"xm", u"s3m"};

bool isBlank(QChar c)
{
    return c == u' ' || c == u'\t';
}

qsizetype firstBlank(const QString& line)
{
    return std::ranges::find_if(line, isBlank) - line.cbegin();
}

bool startsWith(const QString& line, QStringView text)
{
    return line.startsWith(text, Qt::CaseInsensitive);
}

} // namespace

MusicGame OtherGame(MusicGame game)
{
    return game == MusicGame::Doom ? MusicGame::Doom2 : MusicGame::Doom;
}

std::span<const MusicKey> IntermissionKeys(MusicGame game)
{
    if (game == MusicGame::Doom)
        return doomIntermission;
    return doom2Intermission;
}

std::span<const MusicKey> MapKeys(MusicGame game)
{
    if (game == MusicGame::Doom)
        return doomMaps;
    return doom2Maps;
}

bool IsEntry(const QString& line)
{
    return startsWith(line, u"D_") || startsWith(line, u"E") || startsWith(line, u"MAP");
}

QString KeyOf(const QString& line)
{
    return line.left(firstBlank(line));
}

bool HasKey(const QString& line, QStringView key)
{
    return startsWith(line, key) && firstBlank(line) == key.size();
}

QString GetInterMusic(const QString& line)
{
    for (const MusicGame game : {MusicGame::Doom, MusicGame::Doom2})
        for (const MusicKey& key : IntermissionKeys(game))
            if (startsWith(line, key.key))
                return line;
    return {};
}

QString ReplaceInterMusic(const QStringList& held, QStringView key)
{
    QString found;
    for (const QString& line : held)
        if (HasKey(line, key))
            found = line;
    return found;
}

QString GetMusicString(const QString& entry)
{
    constexpr int shortestWithMusic = 10;
    return entry.size() < shortestWithMusic ? QString() : entry.mid(firstBlank(entry));
}

bool CheckMusicExt(const QString& extension)
{
    return std::ranges::any_of(
        musicKinds, [&](QStringView kind) { return extension.compare(kind, Qt::CaseInsensitive) == 0; });
}

QString GetNewMap(const QString& map)
{
    for (const MusicGame game : {MusicGame::Doom, MusicGame::Doom2}) {
        const auto maps = MapKeys(game);
        const auto others = MapKeys(OtherGame(game));
        for (size_t i = 0; i < maps.size() && i < others.size(); ++i)
            if (map.compare(maps[i].key, Qt::CaseInsensitive) == 0)
                return others[i].key.toString();
    }
    return {};
}
