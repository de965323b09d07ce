#include "platform/Text.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace {

// What the bytes 0x80 to 0x9F stand for; every other byte stands for the character of its own number.
// The five bytes without a character keep their control character, so that every byte comes back.
constexpr std::array<char16_t, 32> upperControls{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, // 80
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F, // 88
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, // 90
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178, // 98
};
constexpr unsigned char firstControl = 0x80;

const QByteArray utf8Mark = QByteArrayLiteral("\xEF\xBB\xBF");

QChar FromByte(char byte)
{
    const auto code = static_cast<unsigned char>(byte);
    const std::size_t index = code - firstControl;
    return code >= firstControl && index < upperControls.size() ? QChar(upperControls[index])
                                                                : QChar(char16_t{code});
}

// The character's byte, or -1 when it has none.
int ToByte(QChar character)
{
    const char16_t code = character.unicode();
    if (const auto found = std::ranges::find(upperControls, code); found != upperControls.end())
        return firstControl + static_cast<int>(std::distance(upperControls.begin(), found));
    const bool taken = code >= firstControl && code < firstControl + upperControls.size();
    return code > 0xFF || taken ? -1 : code;
}

bool IsBlank(QChar character)
{
    return character == u' ' || character == u'\t';
}

// QString::trimmed would take no-break spaces too, which are part of a name.
QString WithoutOuterBlanks(const QString& text)
{
    const auto first = std::find_if_not(text.begin(), text.end(), IsBlank);
    const auto last = std::find_if_not(text.rbegin(), std::make_reverse_iterator(first), IsBlank).base();
    return QString(first, last - first);
}

QString Plain(const QString& field)
{
    const QString text = WithoutOuterBlanks(field);
    const bool quoted = text.size() >= 2 && text.startsWith(u'"') && text.endsWith(u'"');
    return quoted ? text.sliced(1, text.size() - 2) : text;
}

// Where the field that begins at `start` ends: at a comma outside of its quotes, or with the line.
qsizetype EndOfField(const QString& line, qsizetype start)
{
    qsizetype at = start;
    while (at < line.size() && IsBlank(line[at]))
        ++at;
    if (at < line.size() && line[at] == u'"') {
        at = line.indexOf(u'"', at + 1);
        if (at < 0)
            return line.size();
    }
    const auto comma = line.indexOf(u',', at);
    return comma < 0 ? line.size() : comma;
}

} // namespace

QString FromAnsi(const QByteArray& bytes)
{
    if (bytes.startsWith(utf8Mark))
        return QString::fromUtf8(bytes); // drops the mark
    QString text(bytes.size(), Qt::Uninitialized);
    std::ranges::transform(bytes, text.begin(), FromByte);
    return text;
}

QByteArray ToAnsi(const QString& text)
{
    QByteArray bytes;
    bytes.reserve(text.size());
    for (const QChar character : text) {
        const int byte = ToByte(character);
        if (byte < 0)
            return utf8Mark + text.toUtf8();
        bytes += static_cast<char>(byte);
    }
    // The three characters that look like the mark would be read as one.
    return bytes.startsWith(utf8Mark) ? utf8Mark + text.toUtf8() : bytes;
}

QStringList LinesOf(const QString& text)
{
    QStringList lines;
    qsizetype start = 0;
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (text[at] != u'\r' && text[at] != u'\n')
            continue;
        lines += text.sliced(start, at - start);
        if (text[at] == u'\r' && at + 1 < text.size() && text[at + 1] == u'\n')
            ++at;
        start = at + 1;
    }
    if (start < text.size())
        lines += text.sliced(start);
    return lines;
}

QStringList FieldsOf(const QString& text)
{
    QStringList fields;
    const QStringList lines = LinesOf(text);
    for (const QString& line : lines) {
        if (std::ranges::all_of(line, IsBlank))
            continue;
        for (qsizetype start = 0; start <= line.size();) {
            const qsizetype end = EndOfField(line, start);
            fields += Plain(line.sliced(start, end - start));
            start = end + 1;
        }
    }
    return fields;
}

QString FirstField(const QString& line)
{
    return Plain(line.first(EndOfField(line, 0)));
}

QString AsField(const QString& text)
{
    return text.contains(u',') ? u'"' + text + u'"' : text;
}

QStringList ReadLines(const FileSystem& files, const QString& path)
{
    constexpr qint64 largest = 1024 * 1024; // bytes: the launcher's own files are much smaller
    return LinesOf(FromAnsi(files.read(path, largest)));
}

void WriteLines(FileSystem& files, const QString& path, const QStringList& lines)
{
    QString text;
    for (const QString& line : lines)
        text += line + QStringLiteral("\r\n");
    files.write(path, ToAnsi(text));
}
