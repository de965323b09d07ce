#pragma once

#include "app/Launcher.h"

// The engine's option switches: which text stands for which option, under which condition, with which
// value. Every text ends in one blank and so does every value that follows one; the texts simply join.

enum class LaunchPath { CommercialGame, InstalledGame };

struct SwitchInputs
{
    const Launcher& launcher;
    LaunchPath path;
    QString automaticPlaylist; // the playlist chosen for the IWAD; empty when none is

    // Of an installed game only.
    bool scriptedMap = false;
    bool scriptedMapModels = false; // the scripted maps' model pack is installed
    bool lateAlternativeWeapons = false;
    int wadCheckResult = 0; // the compatibility entry, 1 to 7, of the main WAD; 0 none
};

// The option switches in the order of the path; empty when no option asks for one.
QString OptionSwitches(const SwitchInputs& inputs);
