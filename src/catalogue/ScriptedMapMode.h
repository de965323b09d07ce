#pragma once

#include "state/Launcher.h"

// The switch by which the installed games list shows the scripted maps only: a picture beside the list's
// heading, and the heading itself.
void ConnectScriptedMapMode(Launcher& launcher);

// Whether the switch is there: advanced mode, the installed games shown, and a scripted map's models there.
bool ScriptedMapSwitchShown(const Truth& truth);
