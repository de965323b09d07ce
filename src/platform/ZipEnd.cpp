#include "platform/ZipEnd.h"

#include <QtEndian>

namespace {

constexpr qsizetype recordSize = 22;
constexpr qint64 longestComment = 0xFFFF;
constexpr quint32 inLargeRecord = 0xFFFFFFFF; // the number stands in a record of the zip64 extension

QByteArray readAt(QIODevice& file, qint64 position, qint64 size)
{
    return position >= 0 && file.seek(position) ? file.read(size) : QByteArray();
}

template <class Number>
Number numberAt(const QByteArray& bytes, qsizetype position)
{
    return qFromLittleEndian<Number>(bytes.constData() + position);
}

// From where the zip64 extension says that the directory begins to its end.
qint64 largeDirectory(QIODevice& file, qint64 end)
{
    constexpr qsizetype locatorSize = 20, locatorOffset = 8, largeSize = 56, directoryOffset = 48;
    const QByteArray locator = readAt(file, end - locatorSize, locatorSize);
    if (locator.size() != locatorSize || !locator.startsWith("PK\6\7"))
        return 0;
    const QByteArray large = readAt(file, numberAt<qint64>(locator, locatorOffset), largeSize);
    if (large.size() != largeSize || !large.startsWith("PK\6\6"))
        return 0;
    const auto begin = numberAt<qint64>(large, directoryOffset);
    return begin < 0 || begin > end ? 0 : end - begin;
}

} // namespace

std::optional<ZipEnd> ReadZipEnd(QIODevice& file)
{
    constexpr qsizetype directorySize = 12, directoryOffset = 16;
    const qint64 size = file.size();
    const qint64 start = qMax(qint64(0), size - recordSize - longestComment);
    const QByteArray tail = readAt(file, start, size - start);
    const qsizetype at = tail.lastIndexOf("PK\5\6", tail.size() - recordSize);
    if (tail.size() < recordSize || at < 0)
        return std::nullopt;
    const QByteArray record = tail.sliced(at, recordSize);
    const bool isLarge = numberAt<quint32>(record, directorySize) == inLargeRecord ||
                         numberAt<quint32>(record, directoryOffset) == inLargeRecord;
    return ZipEnd{.bytesAfter = tail.size() - at,
                  .directory = isLarge ? largeDirectory(file, start + at)
                                       : qint64(numberAt<quint32>(record, directorySize))};
}
