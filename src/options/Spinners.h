#pragma once

#include "state/Controls.h"
#include "state/Settings.h"

// The three numbers that only their two buttons change: the seconds before corpses fade, the grenades'
// delay, and the interval of ricochets.
void ConnectSpinners(Settings& settings, Controls& controls);
