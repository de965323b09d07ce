#pragma once

#include "state/Launcher.h"

// The main window's load: reads the settings, finds the IWADs, fills the lists and sets the controls.
// Afterwards ShuttingDown is set when the launcher ended on the way.
void LoadMainWindow(Launcher& launcher);

// The part of it that reads everything from the disk, with the settings as they are, and selects the view and
// its game.
void ReadFacts(Launcher& launcher);

// The user closes the main window: records its position and saves the settings, unless the launcher is
// shutting down. A save that fails is reported; the old settings file is then still there.
void UnloadMainWindow(Launcher& launcher);

// The window became the active one.
void ActivateMainWindow(Launcher& launcher);

// The window is back in its normal state after a game.
void ResizeMainWindow(Launcher& launcher);

// True when the Enter key pressed Launch.
bool EnterPressed(Launcher& launcher);
