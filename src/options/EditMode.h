#pragma once

#include "app/Launcher.h"

// "Edit  mode" and what only it uses: no objects, and the light level.
void ConnectEditMode(Launcher& launcher);
