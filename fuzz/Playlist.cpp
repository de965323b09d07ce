#include "fuzz/Fuzz.h"
#include "music/MapConversion.h"
#include "music/PlaylistFile.h"
#include "music/PlaylistLayout.h"

// A playlist of any bytes can be looked at, and one that was put right needs that no more.
void Try(const QByteArray& bytes)
{
    const OneFile files(bytes);
    const PlaylistText playlist = ReadPlaylist(files, QStringLiteral("/a.vym"));
    const std::optional<MapType> type = MapTypeOf(playlist.lines);
    if (!type)
        return;
    const QStringList converted = Converted(playlist.lines, *type);
    Require(MapTypeOf(converted).has_value());
    if (*type == MapType::Mixed)
        return;
    Toggled(converted, GameOf(*type));
    Cloned(converted, GameOf(*type));
}
