#include "platform/MenuEntry.h"

#include "platform/Paths.h"
#include "platform/SpecialFolders.h"

#include <QDir>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

constexpr int sizes[] = {16, 32, 48, 64, 128, 256};

QString entryPath(const MenuFolders& folders, const QString& name)
{
    return folders.programs + u'/' + name + u".desktop"_s;
}

QString iconPath(const MenuFolders& folders, const QString& icon, int size)
{
    return folders.icons + u"/%1x%1/apps/"_s.arg(size) + icon + u".png"_s;
}

} // namespace

MenuFolders MenuFolders::ofUser()
{
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return {ProgramsFolder(), QDir::cleanPath(data + u"/icons/hicolor"_s)};
}

bool AddToMenu(FileSystem& files, const MenuFolders& folders, const DesktopEntry& entry,
               const QString& pictureFolder)
{
    bool hasIcon = false;
    for (const int size : sizes) {
        const QString picture = pictureFolder + u"/%1-%2.png"_s.arg(entry.icon).arg(size);
        if (!files.fileExists(picture))
            continue;
        const QString target = iconPath(folders, entry.icon, size);
        files.createFolder(FolderOf(target));
        files.copy(picture, target);
        hasIcon = true;
    }
    if (!hasIcon)
        return false;
    files.createFolder(folders.programs);
    WriteDesktopEntry(files, entryPath(folders, entry.name), entry);
    return true;
}

void RemoveFromMenu(FileSystem& files, const MenuFolders& folders, const QString& name, const QString& icon)
{
    files.remove(entryPath(folders, name));
    for (const int size : sizes)
        files.remove(iconPath(folders, icon, size));
}
