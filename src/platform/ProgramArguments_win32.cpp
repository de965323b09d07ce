#include "platform/ProgramArguments.h"

namespace {

// The text behind the program's name, whose quotes may stand anywhere in it.
QString behindProgram(const QString& commandLine)
{
    const QString line = commandLine.trimmed();
    bool quoted = false;
    qsizetype at = 0;
    for (; at < line.size() && (quoted || (line[at] != u' ' && line[at] != u'\t')); ++at)
        if (line[at] == u'"')
            quoted = !quoted;
    return line.sliced(at).trimmed();
}

} // namespace

void SetArguments(QProcess& process, const QStringList& /*arguments*/, const QString& commandLine)
{
    process.setNativeArguments(behindProgram(commandLine));
}

void Detach(QProcess&) {} // no program ends with another
