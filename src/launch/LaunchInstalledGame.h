#pragma once

#include "launch/LaunchPlan.h"

// The launch of the selected installed game or zip, as PlanCommercialGame is of a Doom game; a game that is
// not complete is refused. `countMaps` tells the WADs with maps from those without.
LaunchPlan PlanInstalledGame(Launcher& launcher, const MapCounter& countMaps);

// Works it out and runs it.
LaunchResult LaunchInstalledGame(Launcher& launcher);
