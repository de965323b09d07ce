#pragma once

#include "launch/LaunchPlan.h"
#include "launch/SwitchTable.h"

// The steps that both kinds of launch share, in their order.

// How a command line begins; relative to the installation root, with a '\' on every system.
inline const QString Engine = QStringLiteral("Bin\\Keldrax");

// Model packs that do not go together, or are not there: a notice each, and what it switches off goes from
// `truth` too. `compatibility` is the text about definition files of two versions.
void CheckModels(Truth& truth, const QString& compatibility, LaunchPlan& plan);

// " -Doom2 " for an IWAD that the engine finds by itself, else ` -iwad "path" `.
QString IwadArgument(const Facts& facts, GameFamily family);

// What the option table and the selection say to the switches of a launch with an IWAD.
SwitchInputs InputsOf(const Truth& truth, const Settings& inForce, LaunchPath path, GameFamily family);

// Why a name with a double quote stops a launch: no command line can carry it.
LaunchMessage DoubleQuoteMessage();

// The plan of starting `commandLine`, to which the start switches, with the warp argument of the chosen map,
// and the player's own parameters come. One of the names on it, of which `names` are some, may hold a double
// quote, which no command line can carry: refused.
LaunchPlan FinishPlan(const Truth& truth, LaunchPlan plan, const QString& commandLine, GameFamily family,
                      const QStringList& names = {});
