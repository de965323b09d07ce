#include "shortcuts/DeleteShortcuts.h"

#include "platform/Paths.h"
#include "platform/Shortcuts.h"
#include "platform/SpecialFolders.h"
#include "shortcuts/ShortcutNames.h"

using namespace Qt::StringLiterals;

ShortcutFolders ShortcutFolders::ofUser(const QString& rootPath)
{
    const auto shortcutsIn = [&rootPath](const QString& folder) {
        return (folder.isEmpty() ? rootPath : folder) + u"/Keldrax Shortcuts"_s;
    };
    return {shortcutsIn(DesktopFolder()), shortcutsIn(ProgramsFolder())};
}

void DeleteShortcuts(FileSystem& files, const ShortcutFolders& folders, const QString& name)
{
    if (name.isEmpty())
        return;
    const QString written = ShortcutFileName(name, {}); // in some languages small letters are others
    bool found = false;
    for (const QString& folder : {folders.desktop, folders.programs}) {
        for (const QString& file : files.files(folder)) {
            if (!BaseNameOf(file).startsWith(written, Qt::CaseInsensitive))
                continue;
            files.remove(folder + u'/' + file);
            found = true;
        }
    }
    if (found)
        RefreshDesktop();
}
