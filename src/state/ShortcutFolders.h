#pragma once

#include <QString>

// Where the launcher's shortcuts lie.
struct ShortcutFolders
{
    // Those of the current user. Where the system has no desktop, or no menu, they lie in the installation.
    static ShortcutFolders ofUser(const QString& rootPath);

    QString desktop;  // "Keldrax Shortcuts" on the desktop
    QString programs; // ... in the start menu's programs
};
