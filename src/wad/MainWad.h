#pragma once

#include "state/Launcher.h"

#include <optional>

// The WAD of a game that has the most maps, between equals the last in text order without regard to case:
// its name; empty when there is none.
QString ChooseMainWad(Launcher& launcher, const GameFacts& game);

// What the maps of the chosen file say about its start.
struct Warp
{
    QString WarpArgument;             // of the chosen map: "07" or "2 5"; empty without one
    std::optional<GameFamily> family; // whose IWAD the maps need: the chosen map's, else the first one's
};
Warp UpdateWarp(const Truth& truth);
