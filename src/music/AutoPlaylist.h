#pragma once

#include "state/ControlNames.h"
#include "state/Facts.h"
#include "state/InstallationPaths.h"

// Which playlist goes with which Doom game: auto-playlist.vyk.

// The playlists of Doom, Doom II, Plutonia and TNT; none without the file.
QStringList ReadAutoPlaylists(const FileSystem& files, const InstallationPaths& paths);

// The playlist of a family; empty without the file.
QString GetAutoPlaylist(const Facts& facts, GameFamily family);

// Makes the playlist `name` that of a game. Throws FileError.
void SetAutoPlaylist(FileSystem& files, const InstallationPaths& paths, const QString& name, AutoGame game);
