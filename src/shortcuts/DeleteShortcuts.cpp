#include "shortcuts/DeleteShortcuts.h"

#include "platform/Paths.h"
#include "platform/SpecialFolders.h"

using namespace Qt::StringLiterals;

namespace {

QString shortcutsIn(const QString& folder)
{
    return folder.isEmpty() ? QString() : folder + u"/Keldrax Shortcuts"_s;
}

} // namespace

ShortcutFolders ShortcutFolders::ofUser()
{
    return {shortcutsIn(DesktopFolder()), shortcutsIn(ProgramsFolder())};
}

void DeleteShortcuts(FileSystem& files, const ShortcutFolders& folders, const QString& name)
{
    if (name.isEmpty())
        return;
    for (const QString& folder : {folders.desktop, folders.programs})
        for (const QString& file : files.files(folder))
            if (BaseNameOf(file).startsWith(name, Qt::CaseInsensitive))
                files.remove(folder + u'/' + file);
}
