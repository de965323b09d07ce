#pragma once

#include "state/Launcher.h"

// The commands that give the selected installed game, or the selected zip, another name.
void ConnectRenaming(Launcher& launcher);

void RenameInstalledGame(Launcher& launcher); // mcRenameFolder
void RenameArchive(Launcher& launcher);       // mcRenameArchive
