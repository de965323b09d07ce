#pragma once

#include "state/Launcher.h"

// Deleting savegames: the chosen one by its task menu, all of them by the purge button.
void ConnectDeleteSaveGames(Launcher& launcher);

void DeleteSaveGame(Launcher& launcher); // mcDelSaveGame

// Deletes every savegame and every record of one. What cannot be deleted has its message and ends it; what
// was deleted before stays deleted.
void PurgeSaveGames(Launcher& launcher);
