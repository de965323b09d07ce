#pragma once

#include <QString>

// How names stand on disk, where what finds them may be spelled in another case. Paths are with '/'.

// The name in `folder` that differs from `name` in case alone, the first in ascending order of several;
// empty when there is none, and where the system itself finds names in any case.
QString OtherSpelling(const QString& folder, const QString& name);

// The path of something that exists, as it is spelled on disk.
QString SpelledAsOnDisk(const QString& path);
