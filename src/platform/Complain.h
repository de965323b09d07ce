#pragma once

#include <QString>

// Tells what went wrong in a program without a window of its own: on its standard error; where the system
// gave it none, in a message box, and returns when that is closed.
void Complain(const QString& program, const QString& message);
