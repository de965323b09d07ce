#pragma once

#include "state/Launcher.h"

// The events of the option tabs that do more than set a setting.

void ConnectOptions(Launcher& launcher);

// "Advanced options" was ticked, or unticked: without it there is one tab and no zip library.
void AdvancedMode(Launcher& launcher);
void DefaultMode(Launcher& launcher);

// Looks anew which packs are installed, as every visit of a tab does.
void VisitTab(Launcher& launcher, Tab tab);
