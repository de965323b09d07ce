#pragma once

#include "platform/FileError.h"

#include <system_error>

// Why a call of the system failed, for classes that keep little of it.

// The number of the last failure on this thread, as the system counts them; 0 after ClearSystemError and
// nothing but successes.
int SystemError();
void ClearSystemError();

FileError::Kind KindOfSystemError(int number);
FileError::Kind KindOfSystemError(const std::error_code& error);

// What starting a program gives that does not exist, and one that is none.
extern const int noSuchProgram;
extern const int noProgram;
