#pragma once

#include "engines/KnownEngines.h"
#include "platform/FileSystem.h"
#include "tools/engine/GameFiles.h"

#include <QProcessEnvironment>
#include <QStringList>

// The launcher's command line turned into a Doom engine's.

struct EngineRequest
{
    QString root; // the installation's folder: absolute, without a separator at its end
    QStringList arguments;
    QProcessEnvironment environment;
    KnownEngine engine;
    CountMaps countMaps;
};

struct EnginePlan
{
    QStringList arguments; // what the engine is started with
    QString saveFolder;    // where the launcher expects this game's savegames; need not exist yet
    QStringList leftOut;   // one switch each, with its values
};

// Starts nothing and changes nothing. Throws EngineFailure when there is no IWAD, no such game or no
// such file.
EnginePlan TranslateCommandLine(const FileSystem& files, const EngineRequest& request);

// Arguments as one readable line: what holds a blank, or nothing, stands in double quotes.
QString AsLine(const QStringList& arguments);
