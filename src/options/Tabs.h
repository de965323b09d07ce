#pragma once

#include "state/Controls.h"
#include "state/Truth.h"

// What the controls of each tab show: which are greyed, hidden and captioned how. Functions of the truth
// alone; they touch no disk. The values are shown elsewhere, all alike.
void ShowStrip(const Truth& truth, Controls& controls); // the strip below the tabs, and the tabs themselves
void ShowOptionsTab(const Truth& truth, Controls& controls);
void ShowGraphicsTab(const Truth& truth, Controls& controls);
void ShowSoundTab(const Truth& truth, Controls& controls);
void ShowModelsTab(const Truth& truth, Controls& controls);
