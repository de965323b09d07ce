#pragma once

#include <QString>

// How the game starts.
enum class StartChoice {
    Undecided = 0,
    ChosenMap = 1,
    ChosenSavegame = 2,
    NewGame = 3,
};

struct LaunchState
{
    ::StartChoice StartChoice = ::StartChoice::Undecided;
    QString WarpArgument; // "07" or "2 5"
    QString SaveSlot;     // one digit; empty when no savegame is chosen
    QString SelectedIwadPath;
    bool AfterLaunch = false;  // a game was started and the window has not been back since
    bool RicochetOn = false;   // for the launch under way
    bool ShortcutMode = false; // the launch under way hands its arguments over instead of starting
    QString ShortcutArguments; // what it handed over: the command line without the engine's name
};
