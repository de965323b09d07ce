#include "tools/VYKgFiles/CheckWad.h"

#include "tools/wadreader/WadDirectory.h"

#include <algorithm>

WadReport checkWad(const std::filesystem::path& path)
{
    const auto found = readWadDirectory(path);
    const WadDirectory wad = found.value_or(WadDirectory{{.type = "none", .lumps = 0}, {}});

    std::string text =
        "Number of maps: " + std::to_string(std::min<std::size_t>(wad.maps.size(), 99)) + "\r\n";
    text += "Type: " + wad.header.type + "\r\n";
    text += "Lumps: " + std::to_string(wad.header.lumps) + "\r\n";
    for (std::string field : wad.maps) {
        field.resize(5, ' ');
        text += field + " \r\n";
    }
    return {text, found.has_value()};
}
