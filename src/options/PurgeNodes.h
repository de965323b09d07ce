#pragma once

#include "state/Launcher.h"

// The button that deletes all prior built nodes.
void ConnectNodePurge(Launcher& launcher);

// Deletes every file in the folders of built nodes, also read-only ones; the folders stay. A file that
// cannot be deleted does not stop the others. Returns the paths of those.
QStringList PurgeNodes(FileSystem& files, const InstallationPaths& paths);
