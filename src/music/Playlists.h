#pragma once

#include "state/Launcher.h"

// The music playlists of the "Sound" tab: which there are, which one is played, and the commands over them.

void ConnectPlaylists(Launcher& launcher);

// The names of the playlists, ascending.
QStringList FillPlaylistList(FileSystem& files, const InstallationPaths& paths);

// Reads which there are, and which is whose.
void ReadPlaylists(Launcher& launcher);

// At start-up: writes the playlists of the music packs that are missing, and reads them all.
void LoadPlaylists(Launcher& launcher);

// The file of a playlist, with '/'.
QString PlaylistPath(const InstallationPaths& paths, const QString& name);
