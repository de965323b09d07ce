#include "state/Launcher.h"

#include "state/OptionTable.h"

Launcher::Launcher(FileSystem& disk, Processes& programs, Prompts& questions, MainWindowHost& host,
                   const QString& rootPath)
    : files(disk),
      processes(programs),
      prompts(questions),
      window(host),
      paths(rootPath),
      environment(IwadEnvironment::ofProcess()),
      shortcutFolders(ShortcutFolders::ofUser(paths.RootPath))
{
    settings = DefaultSettings();
}

void ShutDownLauncher(Launcher& launcher)
{
    launcher.startUp.ShuttingDown = true;
    launcher.window.hide();
    launcher.window.endProgram();
}
