#pragma once

#include "state/Launcher.h"

// The row of tool buttons.
void ConnectToolbar(Launcher& launcher);
