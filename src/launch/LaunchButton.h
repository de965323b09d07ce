#pragma once

#include "app/Launcher.h"
#include "launch/LaunchCommercialGame.h"

void ConnectLaunchButton(Launcher& launcher);

// Launches what is selected in the view that is shown; a WAD without maps is refused with a message.
LaunchResult LaunchSelectedGame(Launcher& launcher);
