#pragma once

#include "state/Launcher.h"

// Which ticks bring which ticks. Each function is called when its option was ticked or unticked.

void ConnectModes(Launcher& launcher);

// The three modes of effects exclude one another: Basic Doom (no models), FX (Basic Doom with lighting and
// splashes) and Core Effects.
void BasicDoom(Settings& settings);
void FxEffects(Settings& settings);
void CoreEffects(Settings& settings);

// The modes of a file that another hand has written.
void SettleModes(Settings& settings);
