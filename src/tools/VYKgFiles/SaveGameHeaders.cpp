#include "tools/VYKgFiles/SaveGameHeaders.h"

#include "tools/wadreader/AsciiCase.h"
#include "tools/wadreader/RegularFile.h"

#include <array>
#include <map>
#include <optional>
#include <string_view>
#include <system_error>

namespace {

constexpr std::string_view namePrefix = "KeldraxSav";
constexpr std::string_view nameSuffix = ".vyksg";
constexpr std::size_t descriptionSize = 24;

std::optional<char> slotOf(std::string_view fileName)
{
    if (fileName.size() != namePrefix.size() + 1 + nameSuffix.size() ||
        !equalIgnoringCase(fileName.substr(0, namePrefix.size()), namePrefix) ||
        !equalIgnoringCase(fileName.substr(namePrefix.size() + 1), nameSuffix) ||
        !isAsciiDigit(fileName[namePrefix.size()]))
        return {};
    return fileName[namePrefix.size()];
}

char printable(char c)
{
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x20 || byte == 0x7f)
        return ' ';
    return c == '"' ? '\'' : c;
}

std::string readDescription(const RegularFile& file)
{
    std::array<char, descriptionSize> bytes;
    const std::size_t size = std::fread(bytes.data(), 1, bytes.size(), file.stream.get());
    std::string text;
    for (std::size_t i = 0; i < size && bytes[i] != '\0'; ++i)
        text += printable(bytes[i]);
    const auto start = text.find_first_not_of(' ');
    if (start == std::string::npos)
        return {};
    return text.substr(start, text.find_last_not_of(' ') - start + 1);
}

// The savegame's line of the report; empty where there is no such file.
std::string line(char slot, const std::filesystem::path& path)
{
    const RegularFile file = openRegularFile(path);
    if (!file)
        return {};
    const std::string field = slot + readDescription(file);
    return (field.contains(',') ? '"' + field + '"' : field) + "\r\n";
}

std::string folderReport(const std::filesystem::path& folder)
{
    namespace fs = std::filesystem;
    std::map<char, fs::path> paths;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
        const std::string name = entry->path().filename().string();
        const auto slot = slotOf(name);
        if (!slot)
            continue;
        // Of names that differ in case only, the one that the engine itself writes counts.
        const bool exact = name.starts_with(namePrefix) && name.ends_with(nameSuffix);
        if (exact || !paths.contains(*slot))
            paths[*slot] = entry->path();
    }
    std::string report;
    for (const auto& [slot, path] : paths)
        report += line(slot, path);
    return report;
}

} // namespace

std::string saveGameHeaders(const std::filesystem::path& target)
{
    std::error_code error;
    if (std::filesystem::is_directory(target, error))
        return folderReport(target);
    const auto slot = slotOf(target.filename().string());
    return slot ? line(*slot, target) : std::string();
}
