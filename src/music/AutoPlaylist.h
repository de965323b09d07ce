#pragma once

#include "app/Launcher.h"

// Which playlist goes with which Doom game: auto-playlist.vyk.

bool HasAutoPlaylists(const Launcher& launcher);

// Reads the playlist of the selected IWAD into the music state, and whether it is among the playlists.
void GetAutoPlaylist(Launcher& launcher);

// The playlist for the next launch when the player lets the launcher choose; empty when there is none.
QString AutomaticPlaylist(Launcher& launcher);

// Makes the selected playlist that of a game: 0 Doom, 1 Doom II, 2 Plutonia, 3 TNT. Throws FileError.
void SetAutoPlaylist(Launcher& launcher, int game);
