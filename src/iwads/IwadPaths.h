#pragma once

#include "app/InstallationPaths.h"
#include "iwads/GameFamily.h"
#include "platform/FileSystem.h"

#include <QStringList>

// Where the IWADs lie: at most one path for each family.
struct IwadPaths
{
    std::array<QString, 5> Path;      // by family; empty when none is known
    std::array<QString, 4> ShowIwads; // the boxes of the dialog, which are what iwads.cfg remembers
    QString IwadFolder;               // where the dialog starts to look

    QString& of(GameFamily family) { return Path[static_cast<size_t>(family)]; }
    const QString& of(GameFamily family) const { return Path[static_cast<size_t>(family)]; }
    bool anyKnown() const;
};

// The environment's two folders for IWADs; an empty one is not looked in.
struct IwadEnvironment
{
    QString dollarDoomWadDir; // the variable that is literally named "$DOOMWADDIR"
    QString doomWadDir;

    static IwadEnvironment ofProcess();
};

// Records `path` for the family of its file name and appends it to `storedFiles`, unless the name is no
// IWAD's or the family has a path already.
void AddIwad(IwadPaths& iwads, QStringList& storedFiles, const QString& path);

// Looks in the standard places. Each IWAD found is recorded as it is spelled on disk.
void SearchIwads(IwadPaths& iwads, QStringList& storedFiles, const FileSystem& files,
                 const InstallationPaths& paths, const IwadEnvironment& environment);

// Adds what iwads.cfg names, and deletes the file when it names no file that exists.
void LoadIwadList(IwadPaths& iwads, QStringList& storedFiles, FileSystem& files,
                  const InstallationPaths& paths);

// Writes the four boxes to iwads.cfg. Throws FileError.
void SaveIwadList(const IwadPaths& iwads, FileSystem& files, const InstallationPaths& paths);

// Both of the above at start-up: fills the boxes with the first four paths and deletes stale node files
// beside them.
void BuildIwadList(IwadPaths& iwads, FileSystem& files, const InstallationPaths& paths,
                   const IwadEnvironment& environment);

// True when the engine would not find the IWAD by itself: the file name of `fileName` lies in none of the
// standard places.
bool IsIwadMissing(const QString& fileName, const FileSystem& files, const InstallationPaths& paths,
                   const IwadEnvironment& environment);

// The path recorded for the family of `fileName`; `otherwise` when that is no IWAD's name.
QString IwadPathFor(const IwadPaths& iwads, const QString& fileName, const QString& otherwise);

// The titles of the known families, in the order in which the Doom games view adds them.
QStringList DoomGameTitles(const IwadPaths& iwads, bool customFontOn);
