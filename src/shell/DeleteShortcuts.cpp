#include "shell/DeleteShortcuts.h"

#include "platform/Paths.h"
#include "platform/Shortcuts.h"

using namespace Qt::StringLiterals;

QString ShortcutFileName(const QString& name, const QString& mapSuffix)
{
    constexpr int mapBeginning = 4; // " - M"
    const QString fileName = name.isEmpty() ? QString() : name.at(0).toUpper() + name.sliced(1).toLower();
    if (!mapSuffix.startsWith(u" - M"_s, Qt::CaseInsensitive))
        return fileName + mapSuffix;
    return fileName + mapSuffix.first(mapBeginning).toUpper() + mapSuffix.sliced(mapBeginning).toLower();
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
            if (!files.hasTrash() || !files.moveToTrash(folder + u'/' + file))
                files.remove(folder + u'/' + file);
            found = true;
        }
    }
    if (found)
        RefreshDesktop();
}
