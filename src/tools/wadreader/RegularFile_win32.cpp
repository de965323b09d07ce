#include "tools/wadreader/RegularFile.h"

std::FILE* openForReading(const std::filesystem::path& path)
{
    return _wfopen(path.c_str(), L"rb"); // a name of any characters
}
