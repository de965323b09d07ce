#include "music/MapConversion.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

MapType typeOf(MusicGame game)
{
    return game == MusicGame::Doom ? MapType::Doom : MapType::Doom2;
}

bool isMapOf(const QString& line, MusicGame game)
{
    return std::ranges::any_of(MapKeys(game), [&](const MusicKey& map) { return HasKey(line, map.key); });
}

bool isIntermissionOf(const QString& line, MusicGame game)
{
    return std::ranges::any_of(IntermissionKeys(game),
                               [&](const MusicKey& key) { return HasKey(line, key.key); });
}

// The other game's intermission entries with the music of `from`'s, in order.
QStringList intermissionFor(const QStringList& lines, MusicGame from)
{
    const auto own = IntermissionKeys(from);
    const auto others = IntermissionKeys(OtherGame(from));
    QStringList entries;
    for (size_t i = 0; i < others.size(); ++i) {
        const QString music =
            i < own.size() ? GetMusicString(ReplaceInterMusic(lines, own[i].key)) : QString();
        entries << others[i].key.toString() + music;
    }
    return entries;
}

// The headers are comments: only the launcher's own are exchanged.
QString headerFor(const QString& header, MusicGame to)
{
    if (header.contains(u"INTERMISSION MUSIC"_s))
        return IntermissionHeader(to);
    return header.contains(u"MAP MUSIC"_s) ? MapHeader(to) : header;
}

} // namespace

QStringList Toggled(const QStringList& lines, MusicGame from)
{
    const MusicGame to = OtherGame(from);
    QStringList list = lines;
    CheckMapStructure(list, typeOf(from));

    QStringList toggled;
    bool intermissionDone = false;
    for (const QString& line : list) {
        if (line.startsWith(u" #"_s)) {
            toggled << headerFor(line, to);
        } else if (isIntermissionOf(line, from)) {
            if (!std::exchange(intermissionDone, true))
                toggled << intermissionFor(list, from);
        } else if (isMapOf(line, from)) {
            const QString map = GetNewMap(KeyOf(line));
            if (!map.isEmpty())
                toggled << map + GetMusicString(line);
        } else {
            toggled << line;
        }
    }

    // Doom has a piece of intermission music more than Doom II, which has a blank line in its place.
    const auto place =
        std::ranges::find_if(toggled, [&](const QString& line) { return HasKey(line, u"D_EVIL"); });
    const auto victor =
        std::ranges::find_if(toggled, [&](const QString& line) { return HasKey(line, u"D_VICTOR"); });
    if (to == MusicGame::Doom2 && place != toggled.end())
        toggled.insert(place - toggled.begin() + 1, QString());
    else if (to == MusicGame::Doom && victor != toggled.end() &&
             toggled.value(victor - toggled.begin() + 1).isEmpty())
        toggled.removeAt(victor - toggled.begin() + 1);
    CheckMapStructure(toggled, typeOf(to)); // adds E4M6 to E4M9
    return toggled;
}

QStringList Cloned(const QStringList& lines, MusicGame from)
{
    const MusicGame to = OtherGame(from);
    QStringList cloned = lines;
    CheckMapStructure(cloned, typeOf(from));

    QStringList section = IntermissionBlock(to, intermissionFor(cloned, from));
    QStringList maps;
    for (const QString& line : cloned)
        if (const QString map = GetNewMap(KeyOf(line)); isMapOf(line, from) && !map.isEmpty())
            maps << map + GetMusicString(line);
    section << maps;

    const QStringView lastMap = MapKeys(from).back().key;
    const auto last =
        std::ranges::find_if(cloned, [&](const QString& line) { return HasKey(line, lastMap); });
    qsizetype at = last - cloned.begin() + 1;
    for (const QString& line : section)
        cloned.insert(at++, line);
    CheckMapStructure(cloned, MapType::Mixed); // adds E4M6 to E4M9; a map's second line goes to the end
    return cloned;
}
