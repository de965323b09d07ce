#pragma once

#include "music/PlaylistEntries.h"

#include <optional>

// The lines of a playlist as a whole: which games it is for, how it is laid out, and how a list in another
// layout gets into the standard one. Line numbers count from 0.

// Which games' maps a playlist names.
enum class MapType { Doom, Doom2, Mixed };

// Nothing for a list that names no map.
std::optional<MapType> MapTypeOf(const QStringList& lines);

// The game of a list that names the maps of one game, which `type` must not be Mixed for.
MusicGame GameOf(MapType type);

// " # INTERMISSION MUSIC FOR DOOM" and " # MAP MUSIC FOR DOOM", or those of Doom II.
QString IntermissionHeader(MusicGame game);
QString MapHeader(MusicGame game);

// The intermission entries, each as given or as its bare key, under their header: the 11 lines before the
// maps.
QStringList IntermissionBlock(MusicGame game, const QStringList& entries);

// A playlist of bare keys: 47 lines for Doom, 43 for Doom II.
QStringList StandardLayout(MusicGame game);

// Whether there is intermission music; a list without any is of the older layout.
bool HasIntermission(const QStringList& lines);

// Whether the lines by which the layout is told stand where they should.
bool IsStandardFormat(const QStringList& lines, MapType type);

// Gives every map of the list's games its own line, in the order of the maps, where the game's first map
// stands. What a map has stays with it; a further line for the same map goes to the end of the list.
void CheckMapStructure(QStringList& lines, MapType type);

// The list in the standard layout. Lines that are no entries are dropped, and so is intermission music of a
// game that the list has no maps of.
QStringList Converted(const QStringList& lines, MapType type);
