#pragma once

#include "platform/FileSystem.h"

#include <QProcessEnvironment>
#include <QStringList>

// Starts a Doom engine for the launcher's command line, waits for its end, and keeps the savegames
// where the launcher lists them. `root` is the installation's folder. Returns the engine's exit status,
// or 1 when it could not be started or crashed; the reason then stands on standard error.
//
// Keldrax.out in the root tells what was given, started and left out, followed by what the engine
// itself printed and by its exit status.
//
// "--engine NAME" among the arguments chooses the engine before the player's choice does; "--can" alone
// prints what the engine makes of each switch, and starts nothing.
int RunEngineAdapter(FileSystem& files, const QString& root, const QStringList& arguments,
                     const QProcessEnvironment& environment);
