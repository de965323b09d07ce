#pragma once

#include "launch/LaunchPlan.h"

// The steps that both kinds of launch share, in their order.

// How a command line begins; relative to the installation root, with a '\' on every system.
inline const QString Engine = QStringLiteral("Bin\\Keldrax");

// The options go into the settings; the packs that the switches depend on are looked for again.
void PrepareLaunch(Launcher& launcher);

// The Kelspack weapons need their WAD; without it they are switched off, with a notice.
void CheckKelspackWad(Launcher& launcher, LaunchPlan& plan);

// " -Doom2 " for an IWAD that the engine finds by itself, else ` -iwad "path" `; `wad` is the game's WAD
// whose name is looked for in the standard places.
QString IwadArgument(const Launcher& launcher, const QString& wad);

// "-wp 07 " or "-loadgame 3 ", or nothing for a new game.
QString StartSwitches(const Launcher& launcher);

// The player's own parameters, as typed, and a blank.
QString CustomText(const Launcher& launcher);

// The plan of starting `commandLine`, to which the start switches and the custom text come. One of the
// names on it, of which `names` are some, may hold a double quote, which no command line can carry: refused.
LaunchPlan FinishPlan(Launcher& launcher, LaunchPlan plan, const QString& commandLine,
                      const QStringList& names = {});
