#pragma once

#include "ui/Prompts.h"

// Opens a file (path with '/') or a web address with the system's program for it; a target that none
// opens gives a message and false.
bool ShellOpen(Prompts& prompts, const QString& target);
