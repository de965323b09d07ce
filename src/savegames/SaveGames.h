#pragma once

#include "state/Launcher.h"

// The savegames of what is chosen.
void ConnectSaveGames(Launcher& launcher);

// The folder of the savegames of what is chosen; empty when nothing is.
QString SaveGameFolder(const Launcher& launcher);

// Reads which there are. False when the game-file tool could not be started.
bool ListSaveGames(Launcher& launcher);

// The same after a game or a deletion: a chosen one that is gone gives way to a map.
bool RefreshSaveGames(Launcher& launcher);

// Chooses the remembered savegame, when savegames are remembered and a game is not to start from new.
void RestoreLastSavegame(Launcher& launcher);
