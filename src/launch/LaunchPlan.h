#pragma once

#include "state/Truth.h"

#include <optional>

struct LaunchMessage
{
    QString text;
    QString title;
};

// What a launch would do with what is true now, before anything is asked, written or started.
struct LaunchPlan
{
    QString commandLine;                  // empty when there is nothing to start
    QList<LaunchMessage> notices;         // shown before the game starts
    std::optional<LaunchMessage> refusal; // why it does not
    bool iwadGone = false;                // after the refusal the IWADs' locations are shown

    // What a notice says to be switched off, the player's tick included.
    QList<bool Settings::*> switchedOff;
};

// A plan without a game.
LaunchPlan Refused(const LaunchMessage& message);

// The launch of what is selected: the one answer to the Launch button, its preview, shortcuts and a
// console.
LaunchPlan PlanLaunch(const Truth& truth);

// Its two kinds: of a Doom game, and of an installed game or a zip.
LaunchPlan PlanCommercialGame(const Truth& truth);
LaunchPlan PlanInstalledGame(const Truth& truth);
