#pragma once

#include <QString>

// True when another program holds the file such that it cannot be opened alone: a sharing violation on
// Windows, a lock (fcntl or flock) elsewhere. Any other failure to open it gives false.
bool IsFileLocked(const QString& path);
