#pragma once

#include "options/OptionsInForce.h"

// What stands in place of the folder of textures when there is none.
inline const QString NoTextures = QStringLiteral("Not installed or the specified path is invalid");

// The graphics that Basic Doom does without, and a scripted map brings itself.
bool BasicDoomGrey(Now now);
