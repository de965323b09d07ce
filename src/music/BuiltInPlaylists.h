#pragma once

#include "state/Launcher.h"

// The playlists that come with the music packs, as long as the pack is installed.

// Whether a playlist is one of them, by its name.
bool IsBuiltInPlaylist(const QString& name);

// The folder with the music of the playlist of this name, with '/'; empty when its name is not that of a
// pack's.
QString GetListPath(const InstallationPaths& paths, const QString& name);

// Each writes the playlists of its pack that are missing and retires those of a pack that is gone: one that
// the player has changed is kept beside them as ".old". A playlist that cannot be written or removed stays
// as it is.
void MakeFennicPlaylists(Launcher& launcher);
void MakeTavroPlaylists(Launcher& launcher);
void MakeDunhelmPlaylists(Launcher& launcher);
void MakeKTorPlaylists(Launcher& launcher);
