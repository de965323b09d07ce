#pragma once

#include "launch/LaunchPlan.h"

// The launch of the selected Doom game. The options are read from the controls and the packs looked for
// again; an option that cannot be used is switched off for this launch, with a notice.
LaunchPlan PlanCommercialGame(Launcher& launcher);

// Works it out and runs it.
LaunchResult LaunchCommercialGame(Launcher& launcher);
