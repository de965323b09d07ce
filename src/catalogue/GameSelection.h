#pragma once

#include "app/Launcher.h"

// What selecting a game, and one of its files, does to the lists beside it.
void ConnectGameSelection(Launcher& launcher);

// Selects the selected game anew, after its files changed.
void SelectGameAgain(Launcher& launcher);

// The same, with the file, map and savegame that were chosen, as far as they are still there.
void ShowSelectedGameAnew(Launcher& launcher);

// Whether the installed game `name` loads its files itself (GwadSelected) or not (PwadSelected).
void ClassifySelectedGame(Launcher& launcher, const QString& name);

// Whether the current selection can be launched.
bool CanLaunchSelection(const Launcher& launcher);

// The base name of the selected game's chosen WAD, under which the engine and the installation keep what
// belongs to it; empty when no WAD is chosen: a text that happens to have another WAD's name is none.
QString ChosenWadName(const Launcher& launcher);
