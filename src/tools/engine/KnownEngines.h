#pragma once

#include <QProcessEnvironment>
#include <QString>

// What differs between the Doom engines that the adapter can start.
struct KnownEngine
{
    QStringView program;
    QStringView saveFolderSwitch; // followed by the folder that the engine keeps its savegames in
    QStringView savegame;         // the file name of a slot's savegame there, %1 being the slot
    QStringView quietSwitch;      // an error is printed and not shown in a window that waits; may be empty
};

// The conventions of the engine at `program`, by its base name; those of crispy-doom for an unknown one.
const KnownEngine& ConventionsOf(const QString& program);

// The engine to start: the program that KELDRAX_ENGINE names (a path, or a name that is looked for like the
// others), else the first known one in the folder "Engine" of the installation at `root`, in PATH or in the
// folders for games. Throws EngineFailure.
QString FindEngine(const QString& root, const QProcessEnvironment& environment);
