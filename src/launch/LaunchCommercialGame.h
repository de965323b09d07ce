#pragma once

#include "app/Launcher.h"

enum class LaunchResult {
    Started,
    Refused,    // with a message
    HandedOver, // the arguments are in LaunchState::ShortcutArguments; nothing was written or started
};

// Builds the command line of the selected Doom game and starts the engine with it, or hands its arguments
// over when ShortcutMode is set.
LaunchResult LaunchCommercialGame(Launcher& launcher);
