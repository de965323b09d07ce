#pragma once

#include "app/Launcher.h"

// The folder of the player's own high-resolution textures, as its dialog shows and stores it.

void ConnectTexturePath(Launcher& launcher);

// What the dialog shows when it opens; a stored folder that is of no use any more is forgotten.
void ShowTexturePath(Launcher& launcher);

// Lets the player choose a folder; one that is chosen is kept.
void SetTexPath(Launcher& launcher);

// Keeps the folder that the dialog shows, if textures are there or in the installation's own folder; else
// the boxes of textures and patches are greyed. A folder that cannot be stored is reported.
void KeepTexturePath(Launcher& launcher);
