#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>

// Reads a ".desktop" file as a desktop does that starts it, by the Desktop Entry Specification.
struct DesktopEntryReader
{
    explicit DesktopEntryReader(const QByteArray& bytes)
    {
        for (const QString& line : QString::fromUtf8(bytes).split(u'\n')) {
            const auto equals = line.indexOf(u'=');
            if (equals > 0)
                values[line.first(equals)] = unescaped(line.sliced(equals + 1).trimmed());
        }
    }

    // The program and its arguments; none when Exec is not well-formed.
    QStringList command() const
    {
        QStringList arguments;
        QString argument;
        bool begun = false, quoted = false;
        const QString exec = values.value(QStringLiteral("Exec"));
        for (qsizetype i = 0; i < exec.size(); ++i) {
            QChar character = exec.at(i);
            if (character == u'"') {
                quoted = !quoted;
                begun = true;
                continue;
            }
            if (character == u' ' && !quoted) {
                if (begun)
                    arguments += argument;
                argument.clear();
                begun = false;
                continue;
            }
            const bool isReserved = QStringLiteral("\t\n'\\><~|&;$*?#()`").contains(character);
            if (isReserved && !quoted)
                return {};
            if (character == u'\\' || character == u'%') { // escapes the next one, or is a field code
                const QChar next = ++i < exec.size() ? exec.at(i) : QChar();
                if (!(character == u'%' ? QStringLiteral("%") : QStringLiteral("\"`$\\")).contains(next))
                    return {};
                character = next;
            } else if (quoted && (character == u'$' || character == u'`')) {
                return {};
            }
            argument += character;
            begun = true;
        }
        if (begun)
            arguments += argument;
        return quoted ? QStringList() : arguments;
    }

    QHash<QString, QString> values;

private:
    static QString unescaped(const QString& value)
    {
        const QHash<QChar, QChar> meanings{{u's', u' '}, {u'n', u'\n'}, {u't', u'\t'}, {u'r', u'\r'}};
        QString text;
        for (qsizetype i = 0; i < value.size(); ++i) {
            const bool escapes = value.at(i) == u'\\' && i + 1 < value.size();
            const QChar character = value.at(escapes ? ++i : i);
            text += escapes ? meanings.value(character, character) : character;
        }
        return text;
    }
};
