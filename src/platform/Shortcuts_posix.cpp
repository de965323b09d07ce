#include "platform/DesktopEntry.h"
#include "platform/Paths.h"
#include "platform/ShellLink.h"
#include "platform/Shortcuts.h"
#include "platform/SystemProcesses.h"

#include <QDir>

using namespace Qt::StringLiterals;

void WriteShortcut(FileSystem& files, const Shortcut& shortcut)
{
    const QString path = shortcut.folder + u'/' + shortcut.name;
    files.write(path + u".lnk"_s,
                ShellLinkBytes({
                    .target = NativePath(shortcut.target),
                    .relativeTarget = NativePath(QDir(shortcut.folder).relativeFilePath(shortcut.target)),
                    .workingDirectory = NativePath(shortcut.workingDirectory),
                    .arguments = shortcut.arguments,
                    .iconLocation = NativePath(shortcut.target),
                    .windowStyle = shortcut.windowStyle,
                }));

    // What a launch would start; where it cannot be started now, the program as it is named.
    const QStringList arguments = SplitCommandLine(shortcut.arguments);
    const Command command = ResolveCommand(files, shortcut.program, arguments, shortcut.launchFolder)
                                .command.value_or(Command{shortcut.target, arguments, shortcut.launchFolder});
    WriteDesktopEntry(files, path + u".desktop"_s,
                      {.name = shortcut.name,
                       .comment = {},
                       .icon = shortcut.icon,
                       .program = command.program,
                       .arguments = command.arguments,
                       .folder = command.folder,
                       .windowClass = {}});
}

void RefreshDesktop()
{
    // The desktops watch their folders.
}
