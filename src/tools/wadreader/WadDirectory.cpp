#include "tools/wadreader/WadDirectory.h"

#include "tools/wadreader/AsciiCase.h"
#include "tools/wadreader/RegularFile.h"

#include <algorithm>
#include <array>
#include <bitset>
#include <cstddef>
#include <limits>
#include <span>

namespace {

constexpr std::size_t headerSize = 12;
constexpr std::size_t entrySize = 16;
constexpr std::size_t nameStart = 8;
constexpr std::size_t entriesPerBlock = 2048;
constexpr std::size_t episodeMaps = 81;
constexpr std::size_t numberedMaps = 100;

bool readExactly(const RegularFile& file, std::span<char> bytes)
{
    return std::fread(bytes.data(), 1, bytes.size(), file.stream.get()) == bytes.size();
}

std::int32_t littleEndian(std::span<const char, 4> bytes)
{
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < bytes.size(); ++i)
        value |= std::uint32_t{static_cast<unsigned char>(bytes[i])} << (8 * i);
    return static_cast<std::int32_t>(value);
}

// The header, with the file standing at the start of a directory that lies wholly inside it.
std::optional<WadHeader> readHeader(const RegularFile& file)
{
    std::array<char, headerSize> bytes{};
    if (!file || !readExactly(file, bytes))
        return {};
    const std::span all(bytes);
    const std::string type(bytes.data(), 4);
    const std::int64_t lumps = littleEndian(all.subspan<4, 4>());
    const std::int64_t offset = littleEndian(all.subspan<8, 4>());
    if ((type != "IWAD" && type != "PWAD") || lumps < 0 || offset < 0)
        return {};
    // The format's offsets end at 2 GiB, so a directory beyond that is no honest one: this also
    // bounds the time a sparse file can cost.
    const std::int64_t end = offset + lumps * static_cast<std::int64_t>(entrySize);
    if (end > std::numeric_limits<std::int32_t>::max() || static_cast<std::uintmax_t>(end) > file.size)
        return {};
    if (std::fseek(file.stream.get(), static_cast<long>(offset), SEEK_SET) != 0)
        return {};
    return WadHeader{type, static_cast<std::uint32_t>(lumps)};
}

// A number of its own for every possible map name, nothing for other names.
std::optional<std::size_t> mapNumber(std::string_view name)
{
    const auto digit = [&](std::size_t at) { return static_cast<std::size_t>(name[at] - '0'); };
    const auto oneToNine = [&](std::size_t at) { return name[at] >= '1' && name[at] <= '9'; };
    if (name.size() == 4 && name[0] == 'E' && oneToNine(1) && name[2] == 'M' && oneToNine(3))
        return (digit(1) - 1) * 9 + digit(3) - 1;
    if (name.size() == 5 && name.starts_with("MAP") && isAsciiDigit(name[3]) && isAsciiDigit(name[4]))
        return episodeMaps + digit(3) * 10 + digit(4);
    return {};
}

} // namespace

std::optional<WadHeader> visitLumpNames(const std::filesystem::path& path, const LumpVisitor& visit)
{
    const RegularFile file = openRegularFile(path);
    auto header = readHeader(file);
    if (!header)
        return {};
    std::array<char, entriesPerBlock * entrySize> block;
    for (std::size_t left = header->lumps; left > 0;) {
        const std::size_t entries = std::min(left, entriesPerBlock);
        if (!readExactly(file, std::span(block).first(entries * entrySize)))
            return {};
        for (std::size_t entry = 0; entry < entries; ++entry) {
            std::array<char, entrySize - nameStart> name;
            std::transform(&block[entry * entrySize + nameStart],
                           &block[entry * entrySize + nameStart] + name.size(), name.begin(), asciiUpper);
            visit({name.begin(), std::find(name.begin(), name.end(), '\0')});
        }
        left -= entries;
    }
    return header;
}

std::optional<WadDirectory> readWadDirectory(const std::filesystem::path& path)
{
    WadDirectory directory;
    std::bitset<episodeMaps + numberedMaps> seen;
    auto header = visitLumpNames(path, [&](std::string_view name) {
        const auto number = mapNumber(name);
        if (!number || seen.test(*number))
            return;
        seen.set(*number);
        directory.maps.emplace_back(name);
    });
    if (!header)
        return {};
    directory.header = *std::move(header);
    return directory;
}
