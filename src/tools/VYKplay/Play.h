#pragma once

#include "tools/VYKplay/Arguments.h"

#include <QTextStream>

// Does what the arguments ask in the installation at `root`; games and command lines go to `out`,
// messages to `err`. Returns the exit status: 0 done, 1 refused with a message, 2 wrong usage.
int RunVYKplay(const Arguments& arguments, const QString& root, QTextStream& out, QTextStream& err);
