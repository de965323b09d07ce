#pragma once

#include "state/ControlNames.h"

#include <QString>

// What the player picked. The view and the game picked in each view are settings, since they are kept
// from run to run; whether what is picked here is still there is for the facts to say.
struct Selection
{
    Tab tab = Tab::Games;
    QString filter;   // what the games in sight have in their names
    QString file;     // the chosen one of the game's files; empty when none is
    QString map;      // to start at; empty while a savegame, or a new game, is chosen
    QString engine;   // for this start alone: its program's path; empty for the player's usual one
    QString SaveSlot; // one digit; empty when no savegame is chosen

    // What only developers need was asked for by a click on a hidden spot.
    bool developmentModeShown = false;
    bool normalModeShown = false;
};

// How the game starts.
enum class StartChoice {
    Undecided = 0,
    ChosenMap = 1,
    ChosenSavegame = 2,
    NewGame = 3,
};
