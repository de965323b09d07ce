#pragma once

#include "launch/LaunchCommercialGame.h"

// Checks the selected installed game or zip, builds its command line and starts the engine with it, or
// hands its arguments over when ShortcutMode is set. A game that is not complete is refused with a message
// before anything is written.
LaunchResult LaunchInstalledGame(Launcher& launcher);
