#pragma once

#include "state/Launcher.h"

// The commands that delete the selected installed game, the chosen file of a Gwad game, or the selected zip.
void ConnectRemoval(Launcher& launcher);

void RemoveInstalledGame(Launcher& launcher); // mcDeleteFolder
void DeleteGameFile(Launcher& launcher);      // mcDeleteFile
void DeleteArchive(Launcher& launcher);       // mcDeleteArchive
