#include "launch/TextEditor.h"

#include "launch/ShellOpen.h"
#include "platform/Paths.h"

using namespace Qt::StringLiterals;

void OpenInTextEditor(Launcher& launcher, const QString& path)
{
    const QString commandLine = u"notepad.exe "_s + u'"' + NativePath(path) + u'"';
    if (!launcher.processes.start(commandLine, launcher.paths.RootPath))
        ShellOpen(launcher.prompts, path);
}
