#pragma once

#include "launch/LaunchPlan.h"

void ConnectLaunchButton(Launcher& launcher);

// The launch of what is selected in the view that is shown; a WAD without maps is refused.
LaunchPlan PlanSelectedGame(Launcher& launcher, const MapCounter& countMaps);

// Works it out and runs it.
LaunchResult LaunchSelectedGame(Launcher& launcher);
