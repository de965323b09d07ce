#pragma once

#include "app/Launcher.h"

// The options of sound, and which of them silence the others.

void ConnectSoundOptions(Launcher& launcher);

// Greys the playlist controls while there is no sound or no music, or gives them back.
void DisableMusic(Launcher& launcher);
