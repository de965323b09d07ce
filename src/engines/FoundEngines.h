#pragma once

#include "platform/FileSystem.h"

#include <QProcessEnvironment>

// An engine of this machine or of the installation.
struct FoundEngine
{
    QString program; // its path, with '/'
    QString title;   // as players know it; its base name where it is an unknown one
    QString version; // empty until it was asked for, and where its file does not tell
    bool operator==(const FoundEngine&) const = default;
};

// All that can be started: the program that KELDRAX_ENGINE names (a path, or a name that is looked for like
// the others), then the known ones in the folder "Engine" of the installation at `root` (a path), in PATH and
// in the folders for games. The first of them is the one to start where the player chose none.
QList<FoundEngine> FindEngines(const QString& root, const QProcessEnvironment& environment);

// The engine to start: `wanted` is a path (absolute), an engine's program name or its title,
// and where it is empty any will do. Throws EngineFailure when there is none, or when KELDRAX_ENGINE is to
// decide and names no program.
FoundEngine FindEngine(const QString& wanted, const QString& root, const QProcessEnvironment& environment);

// The version that a program tells of itself: the highest that stands in its file behind the mark of its row.
// Empty when none does or the file cannot be read. The program is not run.
QString VersionOf(const FileSystem& files, const QString& program);

// Whether the program Keldrax of the installation is the adapter that starts other engines, rather than an
// engine itself.
bool StartsOtherEngines(const FileSystem& files, const QString& root);

// What the adapter's file holds and no engine's does.
inline constexpr char AdapterMark[] = "Keldrax starts another Doom engine";

// The engine that the player chose ("VYKLaunch/engine.vyk": one line, the path of its program, relative to
// `root` where it lies below): an absolute path, or what else stands there; empty when he chose none or the
// file cannot be read.
QString LoadEngineChoice(const FileSystem& files, const QString& root);

// The one of `found` that `wanted` names: by its path, its program's name or its title; nullptr when none is.
const FoundEngine* EngineNamed(const QList<FoundEngine>& found, const QString& wanted);

// Remembers it; empty forgets it. Throws FileError.
void SaveEngineChoice(FileSystem& files, const QString& root, const QString& program);
