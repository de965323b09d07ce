#pragma once

#include "state/Selection.h"
#include "state/Settings.h"

// The engine's option switches: which text stands for which option, under which condition, with which
// value. Every text ends in one blank and so does every value that follows one; the texts simply join.

enum class LaunchPath { CommercialGame, InstalledGame };

struct SwitchInputs
{
    const Settings& on; // the options in force: what is greyed is off
    LaunchPath path;
    StartChoice startChoice = StartChoice::NewGame;
    QString textureFolder = {};     // with '/'; empty when it is the installation's own, or there is none
    QString manualPlaylist = {};    // empty when there is none, here as below
    QString automaticPlaylist = {}; // the one chosen for the IWAD

    // Of an installed game only.
    bool scriptedMap = false;
    bool scriptedMapModels = false; // the scripted maps' model pack is installed
    bool lateAlternativeWeapons = false;
    int wadCheckResult = 0; // the compatibility entry, 1 to 7, of the main WAD; 0 none
};

// The option switches in the order of the path; empty when no option asks for one.
QString OptionSwitches(const SwitchInputs& inputs);
