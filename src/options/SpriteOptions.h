#pragma once

#include "app/Launcher.h"

// A scripted map brings its own sprites and models: the options that would change them are greyed while it
// is selected, and keep their ticks.
void KillSpriteOptions(Launcher& launcher);
void RestoreSpriteOptions(Launcher& launcher);
