#pragma once

#include "launch/LaunchPlan.h"
#include "state/Launcher.h"

enum class LaunchResult {
    Started,
    Refused, // with a message
};

void ConnectLaunchButton(Launcher& launcher);

// Reads anew what a launch depends on: packs, IWADs, the selected game, its savegames, playlists.
void ReadBeforeLaunch(Launcher& launcher);

// Shows the plan's notices, after which what they say is switched off, and its refusal. True when the plan is
// to be carried out.
bool ShowMessages(Launcher& launcher, const LaunchPlan& plan);

// Works out the plan of what is selected and starts the engine, unless it is refused. Leaves the launcher as
// the launch mode says.
LaunchResult LaunchSelectedGame(Launcher& launcher);

// What the Launch button, the preview and the shortcut's button show of a plan.
void ShowLaunch(const Truth& truth, const LaunchPlan& plan, Controls& controls);
