#include "platform/DesktopEntry.h"

#include <QFile>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// A value of the type "string".
QString escapedValue(const QString& text)
{
    QString escaped;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar character = text.at(i);
        const bool atAnEnd = i == 0 || i == text.size() - 1; // where a blank would be trimmed
        switch (character.unicode()) {
        case u'\\':
            escaped += u"\\\\"_s;
            break;
        case u'\n':
            escaped += u"\\n"_s;
            break;
        case u'\t':
            escaped += u"\\t"_s;
            break;
        case u'\r':
            escaped += u"\\r"_s;
            break;
        case u' ':
            escaped += atAnEnd ? u"\\s"_s : u" "_s;
            break;
        default:
            escaped += character;
        }
    }
    return escaped;
}

bool needsNoQuotes(QChar character)
{
    const bool isAsciiLetterOrDigit = character.unicode() < 128 && character.isLetterOrNumber();
    return isAsciiLetterOrDigit || u"/._-+:,@%"_s.contains(character);
}

// An argument on the Exec line. A per cent sign begins a field code even within quotes.
QString quotedArgument(QString argument)
{
    const bool isPlain = !argument.isEmpty() && std::ranges::all_of(argument, needsNoQuotes);
    argument.replace(u'%', u"%%"_s);
    if (isPlain)
        return argument;
    QString quoted;
    for (const QChar character : argument) {
        if (u"\\\"`$"_s.contains(character))
            quoted += u'\\';
        quoted += character;
    }
    return u'"' + quoted + u'"';
}

// Desktops look for the program before they have expanded a per cent sign in its name, and an equals sign
// may not stand there at all: a shell, which is found, then starts it.
QStringList started(const DesktopEntry& entry)
{
    const QStringList command = QStringList(entry.program) + entry.arguments;
    if (!entry.program.contains(u'%') && !entry.program.contains(u'='))
        return command;
    return QStringList{u"/bin/sh"_s, u"-c"_s, u"exec \"$0\" \"$@\""_s} + command;
}

} // namespace

QByteArray DesktopEntryBytes(const DesktopEntry& entry)
{
    QStringList exec;
    for (const QString& argument : started(entry))
        exec += quotedArgument(argument);
    const struct
    {
        const char16_t* key;
        QString value;
    } lines[] = {
        {u"Type", u"Application"_s},
        {u"Name", entry.name},
        {u"Comment", entry.comment},
        {u"Exec", exec.join(u' ')},
        {u"Path", entry.folder},
        {u"Icon", entry.icon},
        {u"Terminal", u"false"_s},
        {u"Categories", u"Game;ActionGame;"_s},
        {u"StartupWMClass", entry.windowClass},
    };
    QString text = u"[Desktop Entry]\n"_s;
    for (const auto& line : lines)
        if (!line.value.isEmpty())
            text += QString::fromUtf16(line.key) + u'=' + escapedValue(line.value) + u'\n';
    return text.toUtf8();
}

void WriteDesktopEntry(FileSystem& files, const QString& path, const DesktopEntry& entry)
{
    files.write(path, DesktopEntryBytes(entry));
    const auto ours = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
    const auto everyones = QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther;
    QFile file(files.actualPath(path));
    if (!file.setPermissions(ours | everyones))
        throw FileError(FileError::Kind::PermissionDenied, path, file.errorString());
}
