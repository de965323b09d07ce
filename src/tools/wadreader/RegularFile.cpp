#include "tools/wadreader/RegularFile.h"

#include <system_error>

RegularFile openRegularFile(const std::filesystem::path& path)
{
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error))
        return {};
    RegularFile file;
    file.size = std::filesystem::file_size(path, error);
    if (error)
        return {};
    file.stream.reset(openForReading(path));
    if (file.stream)
        std::setvbuf(file.stream.get(), nullptr, _IONBF, 0);
    return file;
}
