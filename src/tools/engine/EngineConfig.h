#pragma once

#include "engines/KnownEngines.h"
#include "platform/FileSystem.h"

#include <QProcessEnvironment>
#include <QStringList>

// The configuration files of an engine that is told by them what its command line cannot say: a pair of the
// installation's own, "VYKLaunch/Engines/<program>/", which the engine reads and writes as its player changes
// its settings. Each begins as a copy of the player's own.

// A setting that a game needs, by its name and its value as the engine's files have them.
struct EngineSetting
{
    QString name;
    QByteArray value;
};

// Prepares the pair and returns the switches that name it; none for an engine without a pair. `needed` are
// all the settings that this game needs: what was changed for another game gets back the value that the
// player had given it. `program` is the engine's path. Throws FileError.
QStringList PrepareEngineConfig(FileSystem& files, const QString& root, const QString& program,
                                const KnownEngine& engine, const QProcessEnvironment& environment,
                                const QList<EngineSetting>& needed);
