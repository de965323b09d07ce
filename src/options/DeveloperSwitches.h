#pragma once

#include "app/Launcher.h"

// The hidden spots that show what only developers need: "Development mode" and the launch mode "Normal".
void ConnectDeveloperSwitches(Launcher& launcher);
