#pragma once

#include "platform/FileSystem.h"

// Where the launcher's shortcuts lie.
struct ShortcutFolders
{
    // Those of the current user. Where the system has no desktop, or no menu, they lie in the installation.
    static ShortcutFolders ofUser(const QString& rootPath);

    QString desktop;  // "Keldrax Shortcuts" on the desktop
    QString programs; // ... in the start menu's programs
};

// Deletes the shortcuts whose names begin with `name`, without regard to case, also read-only ones: a Gwad
// game's are named after the game, " - " and a file, so its name alone takes all of them. An empty name
// deletes nothing. Throws FileError.
void DeleteShortcuts(FileSystem& files, const ShortcutFolders& folders, const QString& name);
