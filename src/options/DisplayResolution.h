#pragma once

#include "app/Launcher.h"

// The display mode that the engine used last, as it wrote it down.

// Shows it; without a usable file "Default Resolution".
void GetCurrentRes(Launcher& launcher);

// The window is back after a game: the savegames may have changed, the chosen map and savegame stay chosen,
// and the resolution is read again when the engine wrote a newer one. Returns false when the savegames
// could not be listed.
bool Reset(Launcher& launcher);

// A screen of exactly 120 dots per inch has two parts of the window in other places.
void CheckDPISettings(Launcher& launcher);
