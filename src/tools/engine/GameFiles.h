#pragma once

#include "platform/FileSystem.h"

#include <QProcessEnvironment>
#include <QStringList>
#include <functional>

// Which files a game consists of. `root` is the installation's folder; all paths returned are absolute
// and spelled as on disk.

// The number of maps in the WAD at a path; 0 when it is no WAD.
using CountMaps = std::function<int(const QString& path)>;

// The IWAD of that file name in the standard places: the folders that the variables "$DOOMWADDIR" and
// "DOOMWADDIR" name, then those of the installation. Throws EngineFailure when it lies in none.
QString FindIwad(const FileSystem& files, const QString& root, const QProcessEnvironment& environment,
                 const QString& fileName);

// The folder of an installed game's files.
struct GameFolder
{
    QString path;
    bool autoLoading; // its files belong together: all are loaded whatever is named
};

// Throws EngineFailure when no such game is installed or `game` is no plain folder name.
GameFolder FindGameFolder(const FileSystem& files, const QString& root, const QString& game);

// The WADs of a folder, the main one first: the one with the most maps, the last by name among equals.
// The others with maps follow, then those without. IWADs are no game's own files.
QStringList WadsOf(const FileSystem& files, const QString& folder, const CountMaps& countMaps);

// The DeHackEd patches of a folder.
QStringList PatchesOf(const FileSystem& files, const QString& folder);

// A file that the command line names: a full path, or relative to `folder` (when not empty) or `root`.
// Throws EngineFailure when there is none.
QString FindNamedFile(const FileSystem& files, const QString& root, const QString& folder,
                      const QString& name);
