#pragma once

#include "platform/FileError.h"
#include "ui/Prompts.h"

// Tells the player when the failure has a cause that no message of a command names: the disk is full, or
// another launcher works there, and which. False, and nothing is said, for any other.
bool ReportCause(Prompts& prompts, const FileError& error);
