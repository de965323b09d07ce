#pragma once

#include "engines/KnownEngines.h"
#include "platform/FileSystem.h"
#include "tools/engine/EngineConfig.h"
#include "tools/engine/GameFiles.h"
#include "tools/engine/MusicPack.h"

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
    bool withMusic = true; // or as if no playlist were named
};

struct EnginePlan
{
    QStringList arguments;         // what the engine is started with
    QString saveFolder;            // where the launcher expects this game's savegames; need not exist yet
    MusicPack music;               // to be made first
    QList<EngineSetting> settings; // which the engine's configuration needs
    QStringList leftOut;           // one switch each, with its values
};

// Starts nothing and changes nothing. Throws EngineFailure when there is no IWAD, no such game or no
// such file.
EnginePlan TranslateCommandLine(const FileSystem& files, const EngineRequest& request);

// Arguments as one readable line: what holds a blank, or nothing, stands in double quotes.
QString AsLine(const QStringList& arguments);
