#pragma once

#include "state/Launcher.h"

// The display mode that the engine used last, as it wrote it down.

// Reads it; without a usable file there is none.
ResolutionFacts GetCurrentRes(const FileSystem& files, const InstallationPaths& paths);

// The window is back after a game: the savegames and the resolution may have changed. Returns false when the
// savegames could not be listed.
bool Reset(Launcher& launcher);

// A screen of exactly 120 dots per inch has two parts of the window in other places.
void CheckDPISettings(int logicalDpi, WindowControl& form);
