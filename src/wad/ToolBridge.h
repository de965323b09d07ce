#pragma once

#include "state/Launcher.h"

#include <optional>

// The game-file tool: the launcher opens no WAD and no savegame itself. A tool that cannot be started
// gives a message and counts as an empty report. A WAD is
// reported on once, and again only when its file has changed.

// Orders WADs by their number of maps: 100 plus that number; 10 without a report.
int CountWadMaps(Launcher& launcher, const QString& path);

// The map names of a WAD, in the order of its directory.
QStringList ListWadMaps(Launcher& launcher, const QString& path);

// The savegames of a folder that have a description; nothing when the tool could not be started.
std::optional<QList<SaveGame>> ListSavegameHeaders(Launcher& launcher, const QString& folder);

// The section (1 to 7) of checkpwad.vyk that names the file of `path` first; 0 when none does.
int CheckPwad(const FileSystem& files, const InstallationPaths& paths, const QString& path);
