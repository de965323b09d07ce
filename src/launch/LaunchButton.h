#pragma once

#include "launch/LaunchPlan.h"
#include "state/Launcher.h"

enum class LaunchResult {
    Started, // whether the game goes on, too, is known a few seconds later
    Refused, // with a message
};

void ConnectLaunchButton(Launcher& launcher);

// Reads anew what a launch depends on: packs, IWADs, the selected game, its savegames, playlists.
void ReadBeforeLaunch(Launcher& launcher);

// Shows the plan's notices, after which what they say is switched off, and its refusal. True when the plan is
// to be carried out.
bool ShowMessages(Launcher& launcher, const LaunchPlan& plan);

// Works out the plan of what is selected and starts the engine, unless it is refused. Leaves the launcher as
// the launch mode says; a game that ends with an error brings the window back, with a message. `known` is
// called when the game has been running for a few seconds or has ended: whether it did without an error.
LaunchResult LaunchSelectedGame(Launcher& launcher, const std::function<void(bool played)>& known = {});

// What the Launch button, the preview and the shortcut's button show of a plan.
void ShowLaunch(const Truth& truth, const LaunchPlan& plan, Controls& controls);
