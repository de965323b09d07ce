#pragma once

#include "options/ModelPackItems.h"
#include "state/Launcher.h"

// The model-pack cleanup tool: its button of the toolbar and that of the models tab.
void ConnectModelCleanup(Launcher& launcher);

// Says what removing every model pack would delete, asks, asks once more unless the player wants that no
// longer, and removes them.
void CleanUpModels(Launcher& launcher);

// Removes the chosen packs, also what is read-only, and sees again which are installed. What cannot be
// removed does not stop the rest. Returns the paths of what is left of them for that reason.
QStringList DeleteModelPacks(Launcher& launcher, const ModelCleanup& cleanup);
