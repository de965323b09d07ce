#pragma once

#include "platform/FileSystem.h"
#include "state/Facts.h"
#include "state/InstallationPaths.h"

// The engine maker's scripted maps and the VEX add-on: installed games that need resources of their own.

// Whether the installed game `name` is one of the scripted maps.
ScriptedMapCheck IsScriptedMap(const FileSystem& files, const InstallationPaths& paths, const QString& name);

// True when at least one of the scripted maps' model folders is there.
bool ScriptedMapModelsPresent(const FileSystem& files, const InstallationPaths& paths);

// True when the WAD at `path` is the map that needs the alternative weapons.
bool NeedsAlternativeWeapons(const QString& path);

// True when the WAD at `path` is a scripted map whose file is older than this version of the engine takes.
bool CheckScriptedMapDate(const FileSystem& files, const QString& path);

// True when the VEX add-on is missing, or older than this version of the engine takes.
bool CheckVexAddon(const FileSystem& files, const InstallationPaths& paths);
