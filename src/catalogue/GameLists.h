#pragma once

#include "app/Launcher.h"

// The games list with its three views, and the list of the selected game's files.
void ConnectGameLists(Launcher& launcher);

// Switches the games list to a view (0 installed games, 1 Doom games, 2 zip library) and selects the game
// remembered for it, else the first; also the way to list a view again after the catalogue changed.
void OptionUdirClick(Launcher& launcher, int view);

// PwadList's entries for a view, without regard to what is selected.
void FillGamesList(Launcher& launcher, int view);
void FillInstalledGamesList(Launcher& launcher);
void FillDoomGamesList(Launcher& launcher);
void FillArchiveList(Launcher& launcher, const QString& folder);

// Whether the installed game `name` loads its files itself (GwadSelected) or not (PwadSelected).
void ClassifySelectedGame(Launcher& launcher, const QString& name);

// Whether the current selection can be launched.
bool CanLaunchSelection(const Launcher& launcher);
