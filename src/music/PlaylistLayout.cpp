#include "music/PlaylistLayout.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int mapHeaderLine = 9;

bool startsWith(const QString& line, QStringView text)
{
    return line.startsWith(text, Qt::CaseInsensitive);
}

QStringView prefixOf(MusicGame game)
{
    return game == MusicGame::Doom ? QStringView(u"E") : QStringView(u"MAP");
}

QList<MusicGame> gamesOf(MapType type)
{
    switch (type) {
    case MapType::Doom:
        return {MusicGame::Doom};
    case MapType::Doom2:
        return {MusicGame::Doom2};
    case MapType::Mixed:
        break;
    }
    return {MusicGame::Doom, MusicGame::Doom2};
}

qsizetype firstMap(const QStringList& lines, MusicGame game)
{
    const auto found =
        std::ranges::find_if(lines, [&](const QString& line) { return startsWith(line, prefixOf(game)); });
    return found - lines.cbegin();
}

} // namespace

std::optional<MapType> MapTypeOf(const QStringList& lines)
{
    const auto any = [&](QStringView letter) {
        return std::ranges::any_of(lines, [&](const QString& line) { return startsWith(line, letter); });
    };
    const bool doom = any(u"E");
    const bool doom2 = any(u"M");
    if (doom && doom2)
        return MapType::Mixed;
    if (!doom && !doom2)
        return std::nullopt;
    return doom ? MapType::Doom : MapType::Doom2;
}

MusicGame GameOf(MapType type)
{
    return type == MapType::Doom ? MusicGame::Doom : MusicGame::Doom2;
}

QString IntermissionHeader(MusicGame game)
{
    return game == MusicGame::Doom ? u" # INTERMISSION MUSIC FOR DOOM"_s
                                   : u" # INTERMISSION MUSIC FOR DOOM II"_s;
}

QString MapHeader(MusicGame game)
{
    return game == MusicGame::Doom ? u" # MAP MUSIC FOR DOOM"_s : u" # MAP MUSIC FOR DOOM II"_s;
}

QStringList IntermissionBlock(MusicGame game, const QStringList& entries)
{
    QStringList lines{QString(), IntermissionHeader(game), QString()};
    for (const MusicKey& key : IntermissionKeys(game)) {
        const QString entry = ReplaceInterMusic(entries, key.key);
        lines << (entry.isEmpty() ? key.key.toString() : entry);
    }
    while (lines.size() < mapHeaderLine)
        lines << QString();
    return lines << MapHeader(game) << QString();
}

QStringList StandardLayout(MusicGame game)
{
    QStringList lines = IntermissionBlock(game, {});
    for (const MusicKey& map : MapKeys(game))
        lines << map.key.toString();
    return lines;
}

bool HasIntermission(const QStringList& lines)
{
    return std::ranges::any_of(lines, [](const QString& line) {
        return startsWith(line, u"D_DM2TTL") || startsWith(line, u"D_BUNNY");
    });
}

bool IsStandardFormat(const QStringList& lines, MapType type)
{
    const auto has = [&](int line, QStringView key) { return startsWith(lines.value(line), key); };
    switch (type) {
    case MapType::Doom:
        return has(38, u"E4M1");
    case MapType::Doom2:
        return has(42, u"MAP32");
    case MapType::Mixed:
        break;
    }
    return (has(42, u"E4M5") || has(42, u"MAP32")) && (has(81, u"MAP24") || has(81, u"E4M1"));
}

void CheckMapStructure(QStringList& lines, MapType type)
{
    QStringList further;
    for (const MusicGame game : gamesOf(type)) {
        const qsizetype start = firstMap(lines, game);
        QStringList found;
        lines.removeIf([&](const QString& line) {
            const bool isMap = startsWith(line, prefixOf(game));
            if (isMap)
                found << line;
            return isMap;
        });
        qsizetype at = start;
        for (const MusicKey& map : MapKeys(game)) {
            const auto own =
                std::ranges::find_if(found, [&](const QString& line) { return HasKey(line, map.key); });
            const bool isThere = own != found.end();
            lines.insert(at++, isThere ? *own : map.key.toString());
            if (isThere)
                found.erase(own);
        }
        further << found;
    }
    lines << further;
}

QStringList Converted(const QStringList& lines, MapType type)
{
    QStringList held;
    for (const QString& line : lines)
        if (!GetInterMusic(line).isEmpty())
            held << line;
    QStringList converted;
    for (const QString& line : lines)
        if (startsWith(line, prefixOf(MusicGame::Doom)) || startsWith(line, prefixOf(MusicGame::Doom2)))
            converted << line;
    CheckMapStructure(converted, type);
    for (const MusicGame game : gamesOf(type)) {
        qsizetype at = firstMap(converted, game);
        for (const QString& line : IntermissionBlock(game, held))
            converted.insert(at++, line);
    }
    return converted;
}
