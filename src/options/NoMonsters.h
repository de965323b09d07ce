#pragma once

#include "app/Launcher.h"

// "No monsters", without which there are no fast ones, no corpses and no zombies with pistols.
void ConnectNoMonsters(Launcher& launcher);
