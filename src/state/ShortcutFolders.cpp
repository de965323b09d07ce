#include "state/ShortcutFolders.h"

#include "platform/SpecialFolders.h"

using namespace Qt::StringLiterals;

ShortcutFolders ShortcutFolders::ofUser(const QString& rootPath)
{
    const auto shortcutsIn = [&rootPath](const QString& folder) {
        return (folder.isEmpty() ? rootPath : folder) + u"/Keldrax Shortcuts"_s;
    };
    return {shortcutsIn(DesktopFolder()), shortcutsIn(ProgramsFolder())};
}
