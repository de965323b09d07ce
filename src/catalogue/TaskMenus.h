#pragma once

#include "state/Launcher.h"

// Which task menu the selected entry of the games, game files and savegames lists has.
void ConnectTaskMenus(Launcher& launcher);
