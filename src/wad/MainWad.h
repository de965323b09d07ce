#pragma once

#include "app/Launcher.h"

// Picks the main WAD among the WADs of a game's folder (ending in '/'): the one with the most maps,
// between equals the last in text order without regard to case. Selects it in PwadShowlist, which fills
// the map list; without one, or for a Gwad game, nothing is chosen and Launch is off where no WAD is.
void ChooseMainWad(Launcher& launcher, const QString& folder);

// Sets WarpArgument and SelectedIwadPath from the chosen map. A game without maps, or whose first map's
// name begins with neither E nor M, leaves both as they are.
void UpdateWarp(Launcher& launcher);
