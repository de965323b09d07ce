#pragma once

#include "launch/LaunchPlan.h"

#include <QStringList>

// How an installed game's files reach the engine.
struct GameFileArguments
{
    QString text;      // every piece ends in one blank
    QStringList names; // what stands in quotes in it
};

// The file arguments of the selected game. `iwadMissing`: the engine does not find the IWAD by itself and
// then is told every file too. `countMaps` tells the WADs with maps from those without.
GameFileArguments FileArgumentsOf(Launcher& launcher, bool iwadMissing, const MapCounter& countMaps);
