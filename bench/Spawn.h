// Starting the program that is measured.
#pragma once

#include <chrono>
#include <fcntl.h>
#include <spawn.h>
#include <sys/types.h>
#include <unistd.h>

using Clock = std::chrono::steady_clock;

inline double millisecondsSince(Clock::time_point start)
{
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

// Starts the program `arguments[0]` (a path; the list ends with a null pointer) with its standard
// output discarded. Returns its process id, or -1 when it cannot be started.
inline pid_t spawn(char** arguments)
{
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    pid_t child = -1;
    if (posix_spawn(&child, arguments[0], &actions, nullptr, arguments, environ) != 0)
        child = -1;
    posix_spawn_file_actions_destroy(&actions);
    return child;
}
