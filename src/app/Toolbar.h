#pragma once

#include "app/Launcher.h"

// The row of tool buttons.
void ConnectToolbar(Launcher& launcher);
