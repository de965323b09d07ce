#pragma once

#include "app/Launcher.h"

// The music playlists of the "Sound" tab: which there are, which one is played, and the commands over them.

void ConnectPlaylists(Launcher& launcher);

// Lists the playlists and selects the one that PlaylistName names. Without any, nothing can be opened,
// deleted or chosen.
void FillPlaylistList(Launcher& launcher);

// At start-up: writes the playlists of the music packs that are missing, and lists them all.
void LoadPlaylists(Launcher& launcher);

// The file of a playlist, with '/'.
QString PlaylistPath(const InstallationPaths& paths, const QString& name);
