#pragma once

#include "state/Facts.h"

#include <QStringList>

// How an installed game's files reach the engine.
struct GameFileArguments
{
    QString text;      // every piece ends in one blank
    QStringList names; // what stands in quotes in it
};

// The file arguments of a game of which one file is to be played. `iwadMissing`: the engine does not find the
// IWAD by itself and then is told every file too.
GameFileArguments FileArgumentsOf(const GameFacts& game, const QString& chosenWad, bool iwadMissing);
