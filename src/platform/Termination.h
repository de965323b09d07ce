#pragma once

#include <functional>

// Runs `end` in the event loop when the system, or a user, asks the program to end: SIGTERM, SIGINT and
// SIGHUP. On Windows nothing: there the windows are closed instead. Once in a program, after its
// QCoreApplication is made.
void OnTermination(const std::function<void()>& end);
