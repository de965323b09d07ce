#pragma once

#include "state/Launcher.h"

// Definition files that the player adds.

// True for the path of a file that an option switches on already: "Alternative.ded", "Fullpack.ded" or
// "kelspack.wad", without regard to case.
bool IsKelspackDef(const QString& path);

// Lets the player choose a definition file and adds it to `list` as its last entry, selected: the base name
// of a file in the folder of custom definitions, the path of another. A Kelspack definition has its message
// instead; what is no definition file adds nothing. `list` keeps the order of adding.
void ChooseCustomDefs(Launcher& launcher, ListBox& list);
