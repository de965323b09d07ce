#pragma once

#include "app/Launcher.h"

// The switch by which the installed games list shows the scripted maps only: a picture beside the list's
// heading, and the heading itself.
void ConnectScriptedMapMode(Launcher& launcher);

// Whether the switch is there: advanced mode, the installed games shown, and a scripted map's models there.
bool ScriptedMapSwitchShown(const Launcher& launcher);

// The last steps of the window's load: shows the switch and ignores its next click, so that a mode that
// was restored is not toggled; then the click itself when the mode selects a game of its own.
void RestoreScriptedMapMode(Launcher& launcher);
