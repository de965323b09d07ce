#pragma once

#include "app/Launcher.h"

// The options of the models page that are no mode: the replacements, which exclude one another, the gun
// smoke, and the scaling of skins.
void ConnectModelOptions(Launcher& launcher);
