#pragma once

#include "app/Launcher.h"

// What choosing a map does: it replaces a chosen savegame, and a map that the player picks (not one that
// is restored) is remembered and brings the remembered skill back.
void ConnectMapList(Launcher& launcher);

// Chooses the map to start with when the player has chosen none: the remembered one, else the first.
void SelectStartMap(Launcher& launcher);
