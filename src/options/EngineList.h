#pragma once

#include "state/Launcher.h"

// The list of engines: its choice is kept at once, since shortcuts start games without the launcher.
void ConnectEngineList(Launcher& launcher);

// Which engines there are, and which was chosen. Versions are read from the programs only when they are to be
// seen.
void ReadEngines(Launcher& launcher, bool withVersions);

// There is no list where the installation has an engine of its own.
void ShowEngineList(const Truth& truth, Controls& controls);
