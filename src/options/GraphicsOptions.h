#pragma once

#include "app/Launcher.h"

// The options of textures, patches and skies; each needs its pack, and Basic Doom does without most.

void ConnectGraphicsOptions(Launcher& launcher);

// Which of the boxes the mode leaves enabled.
void BasicDoomGrey(Launcher& launcher);

// The same for a scripted map, which brings its own graphics. Nothing in Basic Doom.
void GreyHiresFrame(Launcher& launcher);
