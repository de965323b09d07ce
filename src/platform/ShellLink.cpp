#include "platform/ShellLink.h"

#include <limits>
#include <stdexcept>

namespace {

constexpr quint32 headerSize = 0x4C;
constexpr quint32 hasLinkInfo = 0x02, hasRelativePath = 0x08, hasWorkingDir = 0x10, hasArguments = 0x20,
                  hasIconLocation = 0x40, isUnicode = 0x80;
constexpr quint32 fileAttributeArchive = 0x20;
constexpr quint32 volumeIdAndLocalBasePath = 0x01;
constexpr quint32 driveFixed = 3;

// Little-endian numbers and texts, one after the other.
class Bytes
{
public:
    Bytes& u16(quint32 number) { return little(number, 2); }
    Bytes& u32(quint32 number) { return little(number, 4); }
    Bytes& zeros(int count) { return raw(QByteArray(count, '\0')); }
    Bytes& raw(const QByteArray& bytes)
    {
        m_bytes += bytes;
        return *this;
    }
    Bytes& utf16(const QString& text)
    {
        for (const QChar unit : text)
            u16(unit.unicode());
        return *this;
    }
    const QByteArray& bytes() const { return m_bytes; }
    quint32 size() const { return static_cast<quint32>(m_bytes.size()); }

private:
    Bytes& little(quint32 number, int count)
    {
        for (int i = 0; i < count; ++i)
            m_bytes += static_cast<char>(number >> 8 * i & 0xFF);
        return *this;
    }

    QByteArray m_bytes;
};

Bytes header(const ShellLink& link)
{
    const bool isKnown = link.windowStyle == 3 || link.windowStyle == 7;
    Bytes bytes;
    bytes.u32(headerSize)
        .raw(QByteArray::fromHex("0114020000000000C000000000000046")) // the class of shell links
        .u32(hasLinkInfo | hasRelativePath | hasWorkingDir | hasArguments | hasIconLocation | isUnicode)
        .u32(fileAttributeArchive)
        .zeros(3 * 8) // times of the target: not known
        .u32(0)       // its size
        .u32(0)       // index of its icon
        .u32(isKnown ? static_cast<quint32>(link.windowStyle) : 1)
        .zeros(2 + 2 + 4 + 4); // no hot key; reserved
    return bytes;
}

// Where the target lies, in 8 bits for programs that know no more, and in UTF-16.
Bytes linkInfo(const QString& target)
{
    constexpr quint32 infoHeaderSize = 0x24;
    constexpr quint32 volumeHeaderSize = 0x10;
    Bytes volume;
    volume.u32(volumeHeaderSize + 1).u32(driveFixed).u32(0).u32(volumeHeaderSize).zeros(1); // no serial,
                                                                                            // label

    const QByteArray path = target.toLatin1();
    const quint32 pathOffset = infoHeaderSize + volume.size();
    const quint32 suffixOffset = pathOffset + static_cast<quint32>(path.size()) + 1;
    const quint32 unicodePathOffset = suffixOffset + 1;
    const quint32 unicodeSuffixOffset = unicodePathOffset + 2 * (static_cast<quint32>(target.size()) + 1);
    Bytes info;
    info.u32(unicodeSuffixOffset + 2)
        .u32(infoHeaderSize)
        .u32(volumeIdAndLocalBasePath)
        .u32(infoHeaderSize) // the volume follows
        .u32(pathOffset)
        .u32(0) // on no network
        .u32(suffixOffset)
        .u32(unicodePathOffset)
        .u32(unicodeSuffixOffset)
        .raw(volume.bytes())
        .raw(path)
        .zeros(1 + 1)
        .utf16(target)
        .zeros(2 + 2);
    return info;
}

Bytes counted(const QString& text)
{
    if (text.size() > std::numeric_limits<quint16>::max())
        throw std::length_error("a shell link cannot hold so long a text");
    Bytes bytes;
    bytes.u16(static_cast<quint32>(text.size())).utf16(text);
    return bytes;
}

} // namespace

QByteArray ShellLinkBytes(const ShellLink& link)
{
    QByteArray bytes = header(link).bytes() + linkInfo(link.target).bytes();
    for (const QString& text :
         {link.relativeTarget, link.workingDirectory, link.arguments, link.iconLocation})
        bytes += counted(text).bytes();
    return bytes + Bytes().u32(0).bytes(); // no further data
}
