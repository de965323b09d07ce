#include "platform/Console.h"
#include "state/InstallationPaths.h"
#include "tools/VYKplay/Play.h"
#include "tools/VYKplay/TerminalOutput.h"

#include <QCoreApplication>
#include <QDir>

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const Utf8Console console;
    const Arguments arguments = ParseArguments(QCoreApplication::arguments().mid(1));
    const QString root = arguments.root.isEmpty()
                             ? InstallationPaths::rootOf(QCoreApplication::applicationFilePath())
                             : QDir(arguments.root).absolutePath();
    TerminalOutput toOut(stdout), toErr(stderr);
    QTextStream out(&toOut);
    QTextStream err(&toErr);
    return RunVYKplay(arguments, root, out, err);
}
