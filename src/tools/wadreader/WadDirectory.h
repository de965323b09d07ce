// Reads the header and the directory of a WAD, never its lumps. Follows the published WAD format:
// a 12-byte header (id, number of lumps, offset of the directory) and 16 bytes per directory entry
// (offset, size, name of 8 bytes padded with NUL), all numbers 32-bit little-endian and signed.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

struct WadHeader
{
    std::string type; // "IWAD" or "PWAD"
    std::uint32_t lumps = 0;
};

struct WadDirectory
{
    WadHeader header;
    std::vector<std::string> maps; // E1M1 to E9M9 and MAP00 to MAP99, in directory order, each once
};

// A lump's name: up to its first NUL, the letters a to z in upper case, other bytes as they are.
using LumpVisitor = std::function<void(std::string_view name)>;

// Calls `visit` with every lump name in directory order; memory use does not grow with the directory.
// Returns nothing when `path` is missing, no regular file, no
// WAD, or does not hold its whole directory. Throws nothing of its own.
std::optional<WadHeader> visitLumpNames(const std::filesystem::path& path, const LumpVisitor& visit);

// The same, keeping the names of the maps.
std::optional<WadDirectory> readWadDirectory(const std::filesystem::path& path);
