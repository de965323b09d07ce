#pragma once

#include "platform/FileSystem.h"
#include "state/InstallationPaths.h"

// Deleting the records that GameRecords writes.

// The records of an installed game that is gone under this name, and of a zip. Each throws FileError.
void DeleteRecordsOfGame(FileSystem& files, const InstallationPaths& paths, const QString& name, bool isGwad);
void DeleteRecordsOfArchive(FileSystem& files, const InstallationPaths& paths, const QString& name);

// The maps of all games; the files chosen in Gwad games stay. What cannot be deleted stays too.
void ClearRememberedMaps(FileSystem& files, const InstallationPaths& paths);

// The savegames chosen in all games, not the savegames themselves.
void ClearRememberedSavegames(FileSystem& files, const InstallationPaths& paths);
