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
