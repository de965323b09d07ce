#include "platform/Processes.h"

QStringList SplitCommandLine(const QString& commandLine)
{
    QStringList arguments;
    QString argument;
    bool begun = false;
    bool quoted = false;
    const auto end = [&] {
        if (begun)
            arguments += argument;
        argument.clear();
        begun = false;
    };
    for (const QChar character : commandLine) {
        if (character == u'"') {
            quoted = !quoted;
            begun = true;
        } else if (!quoted && (character == u' ' || character == u'\t')) {
            end();
        } else {
            argument += character;
            begun = true;
        }
    }
    end();
    return arguments;
}

QString LastWords(const QByteArray& output)
{
    constexpr qsizetype mostLines = 6, longestLine = 300;
    QStringList words;
    const QStringList lines = QString::fromLocal8Bit(output).split(u'\n');
    for (auto line = lines.crbegin(); line != lines.crend() && words.size() < mostLines; ++line)
        if (const QString text = line->simplified(); !text.isEmpty())
            words.prepend(text.left(longestLine));
    return words.join(u'\n');
}
