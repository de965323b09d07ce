#pragma once

#include "platform/FileSystem.h"
#include "state/Facts.h"
#include "state/InstallationPaths.h"

#include <QStringList>

// Records `path` for the family of its file name and appends it to `storedFiles`, unless the name is no
// IWAD's or the family has a path already.
void AddIwad(IwadPaths& iwads, QStringList& storedFiles, const QString& path);

// Looks in the standard places. Each IWAD found is recorded as it is spelled on disk.
void SearchIwads(IwadPaths& iwads, QStringList& storedFiles, const FileSystem& files,
                 const InstallationPaths& paths, const IwadEnvironment& environment);

// Adds what iwads.cfg names; of two for one game the later one. What is not there today stays in the file.
void LoadIwadList(IwadPaths& iwads, QStringList& storedFiles, const FileSystem& files,
                  const InstallationPaths& paths);

// Writes the four boxes to iwads.cfg, and after them what it named that is not there today. Throws FileError.
void SaveIwadList(const IwadPaths& iwads, FileSystem& files, const InstallationPaths& paths);

// Both of the above at start-up: fills the boxes with the first four paths and deletes stale node files
// beside them.
void BuildIwadList(IwadPaths& iwads, FileSystem& files, const InstallationPaths& paths,
                   const IwadEnvironment& environment);

// What the disk holds of the IWADs: whether each is still there, and whether the engine would find it by
// itself, for its name lies in one of the standard places.
std::array<IwadOnDisk, 5> ReadIwadFacts(const IwadPaths& iwads, const FileSystem& files,
                                        const InstallationPaths& paths, const IwadEnvironment& environment);
