#pragma once

#include "music/PlaylistLayout.h"

// The same music for the other game.

// The list for the other game: each map's music goes to its counterpart, each piece of intermission music to
// the one in the same place. E4M6 to E4M9 and D_VICTOR have no counterpart: from Doom their music is
// dropped, to Doom they come without any.
QStringList Toggled(const QStringList& lines, MusicGame from);

// The list with a section for the other game added, which plays the same music.
QStringList Cloned(const QStringList& lines, MusicGame from);
