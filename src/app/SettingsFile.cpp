#include "app/SettingsFile.h"

#include "state/OptionTable.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

std::span<const OptionRow> rowsOfFile(bool withPosition)
{
    const auto rows = OptionTable();
    return withPosition ? rows : rows.first(rows.size() - WinePositionLines);
}

// A decimal number with the blanks ignored and the fraction dropped toward negative infinity.
std::optional<double> numberOf(QString line)
{
    line.remove(u' ').remove(u'\t');
    for (const QChar c : line)
        if (!u"0123456789+-.eE"_s.contains(c))
            return std::nullopt;
    bool isNumber = false;
    const double number = line.toDouble(&isNumber);
    const bool tooLarge = std::isinf(number); // a decimal number all the same
    return isNumber || tooLarge ? std::optional(std::floor(number)) : std::nullopt;
}

bool fits(double number, LineKind kind)
{
    if (kind == LineKind::LongNumber)
        return number >= std::numeric_limits<qint32>::min() && number <= std::numeric_limits<qint32>::max();
    return number >= std::numeric_limits<qint16>::min() && number <= std::numeric_limits<qint16>::max();
}

// What fits into the line: a number that the reader finds too large would hide all lines below.
QString formatted(int number, LineKind kind)
{
    using Short = std::numeric_limits<qint16>;
    if (kind != LineKind::LongNumber)
        number = std::clamp<int>(number, Short::min(), Short::max());
    return (number < 0 ? QString() : u" "_s) + QString::number(number) + u" "_s;
}

// A line end in a pasted text or in a folder's name would shift all lines below.
QString inOneLine(QString text)
{
    return text.replace(u'\r', u' ').replace(u'\n', u' ');
}

} // namespace

ReadResult ReadSettings(Settings& settings, const QStringList& lines, bool withPosition)
{
    ReadResult result = ReadResult::Complete;
    for (const OptionRow& row : rowsOfFile(withPosition)) {
        if (row.line > lines.size())
            return result == ReadResult::Faulty ? result : ReadResult::Stopped;
        const QString& line = lines.at(row.line - 1);
        if (const auto* text = std::get_if<QString Settings::*>(&row.member)) {
            settings.** text = line;
            continue;
        }
        const std::optional<double> number = numberOf(line);
        if (!number)
            return ReadResult::Corrupt;
        if (!fits(*number, row.kind)) {
            result = ReadResult::Faulty;
            continue;
        }
        if (const auto* flag = std::get_if<bool Settings::*>(&row.member))
            settings.** flag = *number != 0;
        else
            settings.*std::get<int Settings::*>(row.member) = static_cast<int>(*number);
    }
    return result;
}

QStringList SettingsLines(const Settings& settings, bool withPosition)
{
    QStringList lines;
    for (const OptionRow& row : rowsOfFile(withPosition)) {
        if (const auto* text = std::get_if<QString Settings::*>(&row.member))
            lines << inOneLine(settings.**text);
        else if (const auto* flag = std::get_if<bool Settings::*>(&row.member))
            lines << formatted(settings.**flag ? 1 : 0, row.kind);
        else
            lines << formatted(settings.*std::get<int Settings::*>(row.member), row.kind);
    }
    return lines;
}
