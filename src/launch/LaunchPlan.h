#pragma once

#include "app/Launcher.h"

#include <functional>
#include <optional>

enum class LaunchResult {
    Started,
    Refused,    // with a message
    HandedOver, // the arguments are in LaunchState::ShortcutArguments; nothing was written or started
};

struct LaunchMessage
{
    QString text;
    QString title;
};

// What a launch would do, worked out before anything is asked, written or started.
struct LaunchPlan
{
    QString commandLine;                  // empty when the launch is refused
    QList<LaunchMessage> notices;         // shown before the game starts
    std::optional<LaunchMessage> refusal; // why it does not
    bool iwadGone = false;                // after the refusal the IWADs' locations are shown
};

// How many maps a WAD has (its path with '/'), in the game-file tool's sense.
using MapCounter = std::function<int(const QString& path)>;

// A plan without a game.
LaunchPlan Refused(const LaunchMessage& message);

// Shows the plan's messages and, unless it is refused, starts the engine, or hands the arguments over in
// ShortcutMode. Leaves the launcher as the launch mode says.
LaunchResult RunPlan(Launcher& launcher, const LaunchPlan& plan);
