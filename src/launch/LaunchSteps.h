#pragma once

#include "app/Launcher.h"
#include "launch/LaunchCommercialGame.h"

// The steps that every launch shares, in their order.

// How a command line begins; relative to the installation root, with a '\' on every system.
inline const QString Engine = QStringLiteral("Bin\\Keldrax");

// The launch mode and the options go into the settings; what the switches depend on is looked at again.
void PrepareLaunch(Launcher& launcher);

// The Kelspack weapons need their WAD; without it they are switched off, with a message.
void CheckKelspackWad(Launcher& launcher);

// " -Doom2 " for an IWAD that the engine finds by itself, else ` -iwad "path" `; `wad` is the game's WAD
// whose name is looked for in the standard places.
QString IwadArgument(const Launcher& launcher, const QString& wad);

// "-wp 07 " or "-loadgame 3 ", or nothing for a new game.
QString StartSwitches(const Launcher& launcher);

// The player's own parameters, as typed, and a blank.
QString CustomText(const Launcher& launcher);

// Refuses a name that holds a double quote, with a message: no command line can carry it.
LaunchResult RefuseUnquotable(Launcher& launcher);

// Hands the arguments over in ShortcutMode; otherwise writes launch.log, starts the engine and leaves the
// launcher as the launch mode says. A start that fails is reported.
LaunchResult FinishLaunch(Launcher& launcher, const QString& commandLine);
