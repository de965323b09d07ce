#pragma once

#include "app/Launcher.h"

// The three numbers that only their two buttons change: the seconds before corpses fade, the grenades'
// delay, and the interval of ricochets; and the grenade launcher's box.

void ConnectSpinners(Launcher& launcher);

// Shows what a time of 0 means, for the values that were loaded.
void ShowZeroTimes(Launcher& launcher);

// The ricochets' buttons and number.
void AllowRicochetSpinner(Controls& controls, bool on);
