#include "platform/MenuEntry.h"

#include "platform/Shortcuts.h"
#include "platform/SpecialFolders.h"

MenuFolders MenuFolders::ofUser()
{
    return {ProgramsFolder(), {}};
}

bool AddToMenu(FileSystem& files, const MenuFolders& folders, const DesktopEntry& entry,
               const QString& /*pictureFolder: the program has its picture in itself*/)
{
    files.createFolder(folders.programs);
    WriteShortcut(files, {.folder = folders.programs,
                          .name = entry.name,
                          .arguments = {},
                          .target = entry.program,
                          .workingDirectory = entry.folder,
                          .program = {},
                          .launchFolder = {},
                          .icon = {}});
    return true;
}

void RemoveFromMenu(FileSystem& files, const MenuFolders& folders, const QString& name,
                    const QString& /*icon*/)
{
    files.remove(folders.programs + u'/' + name + QStringLiteral(".lnk"));
}
