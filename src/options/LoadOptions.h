#pragma once

#include "app/Launcher.h"

// The options' part of loading the launcher: before the stored settings go into the controls, and after.

// Looks for the packs; what needs one that is missing is greyed, and what it alone could do is off.
void PrepareOptions(Launcher& launcher);

// What the packs allow with the settings as they are.
void CheckOptions(Launcher& launcher);
