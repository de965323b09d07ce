#pragma once

#include <QString>

// Gives the file or folder `from` the name `to`, where a file may stand that it replaces, in one step: never
// by copying. Both are spelled as on disk. False when it cannot; SystemError says why.
bool Rename(const QString& from, const QString& to);
