#include "tools/wadreader/RegularFile.h"

std::FILE* openForReading(const std::filesystem::path& path)
{
    return std::fopen(path.c_str(), "rb");
}
