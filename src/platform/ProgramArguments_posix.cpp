#include "platform/ProgramArguments.h"

void SetArguments(QProcess& process, const QStringList& arguments, const QString& /*commandLine*/)
{
    process.setArguments(arguments);
}
