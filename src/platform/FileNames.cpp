#include "platform/FileNames.h"

#include "platform/Paths.h"

#include <QStringDecoder>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestName = 255; // bytes of UTF-8

// IBM's code page 437 from 0x80 on.
constexpr QStringView codePage437 =
    u"ÇüéâäàåçêëèïîìÄÅÉæÆôöòûùÿÖÜ¢£¥₧ƒáíóúñÑªº¿⌐¬½¼¡«»░▒▓│┤╡╢╖╕╣║╗╝╜╛┐└┴┬├─┼╞╟╚╔╩╦╠═╬╧"
    "╨╤╥╙╘╒╓╫╪┘┌█▄▌▐▀αßΓπΣσµτΦΘΩδ∞φε∩≡±≥≤⌠⌡÷≈°∙·√ⁿ²■\u00a0";
static_assert(codePage437.size() == 128);

bool isForbidden(QChar c)
{
    constexpr char16_t firstPrintable = 0x20, lastControl = 0x7f;
    return c.unicode() < firstPrintable || c.unicode() == lastControl ||
           QStringView(u"<>:\"/\\|?*").contains(c);
}

// CON, AUX.txt, com1 and the like open a device on some systems, in any folder.
bool isDevice(const QString& name)
{
    const QString base = name.section(u'.', 0, 0).trimmed().toUpper();
    if (base == u"CON" || base == u"PRN" || base == u"AUX" || base == u"NUL")
        return true;
    return base.size() == 4 && (base.startsWith(u"COM"_s) || base.startsWith(u"LPT"_s)) &&
           base.at(3) >= u'1' && base.at(3) <= u'9';
}

bool endsBadly(const QString& name)
{
    return name.endsWith(u'.') || name.endsWith(u' ');
}

QString shortened(QString name)
{
    const QString ending = name.mid(BaseNameOf(name).size());
    QString base = name.chopped(ending.size());
    while (!base.isEmpty() && (base + ending).toUtf8().size() > longestName)
        base.chop(base.back().isLowSurrogate() ? 2 : 1);
    return base + ending;
}

} // namespace

bool IsUsableName(const QString& name)
{
    return !name.trimmed().isEmpty() && !name.startsWith(u'-') && !endsBadly(name) && !isDevice(name) &&
           std::ranges::none_of(name, isForbidden) && name.toUtf8().size() <= longestName;
}

QString UsableNameOf(const QString& memberName)
{
    const QString path = WithSlashes(memberName);
    QString name = path.sliced(path.lastIndexOf(u'/') + 1);
    if (name.size() > 1 && name.at(0).isLetter() && name.at(1) == u':')
        name.remove(0, 2); // a drive
    std::ranges::replace_if(name, isForbidden, QChar(u'_'));
    while (endsBadly(name))
        name.chop(1);
    if (name.trimmed().isEmpty())
        return {};
    name = shortened(isDevice(name) || name.startsWith(u'-') ? u'_' + name : name);
    return IsUsableName(name) ? name : QString();
}

QString DecodedMemberName(const QByteArray& bytes)
{
    QStringDecoder utf8(QStringDecoder::Utf8);
    QString name = utf8(bytes);
    if (!utf8.hasError())
        return name;
    name.clear();
    for (const char byte : bytes) {
        const auto code = static_cast<unsigned char>(byte);
        constexpr unsigned char firstOther = 0x80;
        name += code < firstOther ? QChar(char16_t{code}) : codePage437.at(code - firstOther);
    }
    return name;
}

std::optional<QByteArray> CodePage437Of(const QString& name)
{
    constexpr char16_t firstOther = 0x80;
    QByteArray bytes;
    for (const QChar character : name) {
        const auto other = codePage437.indexOf(character);
        if (character.unicode() >= firstOther && other < 0)
            return std::nullopt;
        bytes +=
            static_cast<char>(character.unicode() < firstOther ? character.unicode() : firstOther + other);
    }
    return bytes;
}
