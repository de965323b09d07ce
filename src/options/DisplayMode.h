#pragma once

#include "app/Launcher.h"

// "Advanced options": the window with all its tabs and the command panel, or the short one.
void ConnectDisplayMode(Launcher& launcher);

void AdvancedMode(Launcher& launcher);
void DefaultMode(Launcher& launcher);

// The panel that SelButton toggles: 1 the command line, 2 the edit mode. Shows the one of the settings.
void SelectStartupOptions(Launcher& launcher);
