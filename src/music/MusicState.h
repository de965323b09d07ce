#pragma once

#include <QString>

struct MusicState
{
    QString AutoPlaylistName;       // chosen for the selected IWAD
    bool AutoPlaylistFound = false; // ... and among the playlists
    QString MusicFolder;            // where music was added from last; with '/'
};
