#pragma once

#include "state/Controls.h"
#include "state/Truth.h"

// What the games tab shows: the lists, what is chosen in them, and what stands above them. A function of the
// truth alone; it touches no disk.
void ShowGamesTab(const Truth& truth, Controls& controls);
