// VYKgFiles CHECKWAD <file> | GETSAVEHDRS <folder or file>: prints a report on standard output.
#pragma once

#include <filesystem>
#include <span>

// The program, given its arguments without its own name. Returns its exit status: 0 done, 1 the file is no
// WAD or the report could not be written, 2 wrong usage. Standard error stays empty, because the launcher
// takes both streams as the report.
int runCommand(std::span<const std::filesystem::path> arguments);
