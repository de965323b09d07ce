#pragma once

#include "state/Launcher.h"

// Opens a text file (path with '/') in "notepad.exe" or, where there is no such program, in what the system
// opens it with; where there is nothing at all the player is told.
void OpenInTextEditor(Launcher& launcher, const QString& path);
