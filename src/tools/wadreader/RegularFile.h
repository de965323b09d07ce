// Opening a file of unknown origin for reading.
#pragma once

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <memory>

struct CloseFile
{
    void operator()(std::FILE* file) const { std::fclose(file); }
};

struct RegularFile
{
    std::unique_ptr<std::FILE, CloseFile> stream; // unbuffered: it reads what it is asked for, no more
    std::uintmax_t size = 0;                      // in bytes

    explicit operator bool() const { return stream != nullptr; }
};

// Opens `path`. What is missing, unreadable or no regular file
// gives an empty RegularFile; a pipe or a device is never opened, as that could wait for ever.
RegularFile openRegularFile(const std::filesystem::path& path);

// The system's own opening of a file for reading its bytes; nullptr on failure.
std::FILE* openForReading(const std::filesystem::path& path);
