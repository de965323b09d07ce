#pragma once

#include "app/Launcher.h"

// The path of the WAD with the most maps in a game's folder (ending in '/'), between equals the last in text
// order without regard to case; empty when there is none.
QString MainWadOf(Launcher& launcher, const QString& folder);

// Selects a game's main WAD in PwadShowlist, which fills the map list; without one, or for a Gwad game,
// nothing is chosen and Launch is off where no WAD is.
void ChooseMainWad(Launcher& launcher, const QString& folder);

// Sets WarpArgument and SelectedIwadPath from the chosen map. A game without maps, or whose first map's
// name begins with neither E nor M, leaves both as they are.
void UpdateWarp(Launcher& launcher);
