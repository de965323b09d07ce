#pragma once

#include "platform/FileSystem.h"
#include "state/ShortcutFolders.h"

// The name of a shortcut's file, without an extension: only its first letter is a capital, and the M of a
// map (" - " and the map; empty for none).
QString ShortcutFileName(const QString& name, const QString& mapSuffix);

// Deletes the shortcuts whose names begin with `name`, without regard to case, also read-only ones: a Gwad
// game's are named after the game, " - " and a file, so its name alone takes all of them. An empty name
// deletes nothing. They go to the trash, as their game does. Throws FileError.
void DeleteShortcuts(FileSystem& files, const ShortcutFolders& folders, const QString& name);
