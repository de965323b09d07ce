#pragma once

#include "platform/FileSystem.h"

// Where the launcher's shortcuts lie; each path empty when the system has no such folder.
struct ShortcutFolders
{
    static ShortcutFolders ofUser();

    QString desktop;  // "Keldrax Shortcuts" on the desktop
    QString programs; // ... in the start menu's programs
};

// Deletes the shortcuts whose names begin with `name`, without regard to case, also read-only ones: a Gwad
// game's are named after the game, " - " and a file, so its name alone takes all of them. An empty name
// deletes nothing. Throws FileError.
void DeleteShortcuts(FileSystem& files, const ShortcutFolders& folders, const QString& name);
