#pragma once

#include "state/Launcher.h"

// What selecting a game, and one of its files, means.
void ConnectGameSelection(Launcher& launcher);

// Selects a game of the view by its name on disk, with the main WAD of its files, or the file of a Gwad game
// that was chosen last; then with the map or savegame that is remembered.
void SelectGame(Launcher& launcher, const QString& name);

// The same with the selected game, after its files changed.
void SelectGameAgain(Launcher& launcher);

// Nothing is selected: the view has no game.
void DeselectGame(Launcher& launcher);

// Chooses one of the selected game's files, and the map to start at.
void SelectFile(Launcher& launcher, const QString& name);

// Reads the selected game and its chosen file anew; what was chosen stays chosen as far as it is there.
void ReadSelectedGame(Launcher& launcher);

// The name of the game that is, or was, selected in a view.
QString& SelectedNameOf(Settings& settings, View view);
const QString& SelectedNameOf(const Settings& settings, View view);
