#pragma once

#include "app/Launcher.h"

// The texts that explain the main window's controls; the lines of one are separated by CR LF.

void ToolTipText(Launcher& launcher);
void KillToolTips(Launcher& launcher);

// The heading of the maps is a switch in advanced mode only.
void ShowScriptedMapsTip(Launcher& launcher);
