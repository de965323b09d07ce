#pragma once

#include "state/Launcher.h"

// The folder of the player's own high-resolution textures, as its dialog shows and stores it.

void ConnectTexturePath(Launcher& launcher);

// What the dialog shows when it opens; a stored folder that is of no use any more is forgotten.
QString ShowTexturePath(Launcher& launcher);

// Lets the player choose a folder in place of `shown`; it is kept. Returns what the dialog shows then.
QString SetTexPath(Launcher& launcher, const QString& shown);

// Keeps the folder that the dialog shows, if textures are there; else the installation's own, or none, is
// used. A folder that cannot be stored is reported. Returns what the dialog shows then.
QString KeepTexturePath(Launcher& launcher, const QString& shown);
