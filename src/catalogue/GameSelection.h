#pragma once

#include "app/Launcher.h"

// What selecting a game, and one of its files, does to the lists beside it.
void ConnectGameSelection(Launcher& launcher);

// Selects the selected game anew, after its files changed.
void SelectGameAgain(Launcher& launcher);

// Whether the installed game `name` loads its files itself (GwadSelected) or not (PwadSelected).
void ClassifySelectedGame(Launcher& launcher, const QString& name);

// Whether the current selection can be launched.
bool CanLaunchSelection(const Launcher& launcher);
