#pragma once

#include "app/Launcher.h"

// What choosing a savegame does: it replaces a chosen map, and one that the player picks is remembered
// and brings the remembered skill back.
void ConnectSaveGames(Launcher& launcher);

// Fills SaveGameList from the selected game's savegame folder.
// False when the game-file tool could not be started.
bool ListSaveGames(Launcher& launcher);

// Lists the savegames again after a game, keeping the chosen one chosen. False when the game-file tool
// could not be started.
bool RefreshSaveGames(Launcher& launcher);

// Chooses the remembered savegame, when savegames are remembered and a game is not to start from new.
void RestoreLastSavegame(Launcher& launcher);
