#include "tools/VYKplay/Integrate.h"

#include "platform/SystemProcesses.h"

using namespace Qt::StringLiterals;

namespace {

const QString launcherName = u"VYKLauncher"_s;

} // namespace

bool AddLauncherToMenu(FileSystem& files, const MenuFolders& folders, const InstallationPaths& paths,
                       QTextStream& err)
{
    const auto command = ResolveCommand(files, u"Bin\\VYKlauncher"_s, {}, paths.RootPath).command;
    if (!command) {
        err << "There is no launcher in " << paths.RootPath << "/Bin." << Qt::endl;
        return false;
    }
    const DesktopEntry entry{.name = launcherName,
                             .comment = u"Choose and start Doom games"_s,
                             .icon = LauncherIcon,
                             .program = command->program,
                             .arguments = command->arguments,
                             .folder = command->folder,
                             .windowClass = u"VYKlauncher"_s};
    if (AddToMenu(files, folders, entry, paths.IconsPath.chopped(1)))
        return true;
    err << "There is no icon in " << paths.IconsPath << '.' << Qt::endl;
    return false;
}

void RemoveLauncherFromMenu(FileSystem& files, const MenuFolders& folders)
{
    RemoveFromMenu(files, folders, launcherName, LauncherIcon);
}
