#include "shell/TextEditor.h"

#include "platform/Paths.h"
#include "shell/ShellOpen.h"

using namespace Qt::StringLiterals;

void OpenInTextEditor(Launcher& launcher, const QString& path)
{
    const QString commandLine = u"notepad.exe "_s + u'"' + NativePath(path) + u'"';
    if (!launcher.processes.start(commandLine, launcher.paths.RootPath))
        ShellOpen(launcher.prompts, path);
}
