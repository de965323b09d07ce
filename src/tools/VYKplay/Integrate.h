#pragma once

#include "platform/MenuEntry.h"
#include "state/InstallationPaths.h"

#include <QTextStream>

// Puts the installation's launcher with its icon into the menu. Returns false, with a message on `err`, when
// the installation has no launcher or no icon. Throws FileError.
bool AddLauncherToMenu(FileSystem& files, const MenuFolders& folders, const InstallationPaths& paths,
                       QTextStream& err);

// Takes it out again, whichever installation's it is; none there is no failure. Throws FileError.
void RemoveLauncherFromMenu(FileSystem& files, const MenuFolders& folders);
