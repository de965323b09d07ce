#pragma once

#include "app/Launcher.h"

// In advanced mode the window shows the command line that Launch would start with the options as they are.
// CommandPreview's text is that line; where nothing can be started it is empty and the tool tip says why.
void ConnectCommandPreview(Launcher& launcher);

// Builds the line anew, with the code of a launch; nothing else changes, and nothing is asked or written.
void UpdateCommandPreview(Launcher& launcher);
