#include "platform/ProgramArguments.h"

#include <unistd.h>

void SetArguments(QProcess& process, const QStringList& arguments, const QString& /*commandLine*/)
{
    process.setArguments(arguments);
}

void Detach(QProcess& process)
{
    process.setChildProcessModifier([] { ::setsid(); });
}
