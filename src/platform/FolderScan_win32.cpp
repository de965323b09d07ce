#include "platform/FolderScan.h"

#include "platform/EntryStatus.h"
#include "platform/WidePath.h"

#include <algorithm>
#include <windows.h>

// What a folder says of its entries comes with their names, so that nothing has to be asked again.

QStringList EntriesOf(const QString& folder, EntryKind kind)
{
    QStringList names;
    if (folder.isEmpty())
        return names;
    WIN32_FIND_DATAW entry = {};
    const HANDLE search = FindFirstFileExW(WidePath(folder + QStringLiteral("/*")).c_str(), FindExInfoBasic,
                                           &entry, FindExSearchNameMatch, nullptr, FIND_FIRST_EX_LARGE_FETCH);
    if (search == INVALID_HANDLE_VALUE)
        return names;
    do {
        const QString name = QString::fromWCharArray(entry.cFileName);
        const bool isFolder = (entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
        const bool isWanted = kind == EntryKind::Any || isFolder == (kind == EntryKind::Folder);
        if (isWanted && name != QStringLiteral(".") && name != QStringLiteral(".."))
            names << name;
    } while (FindNextFileW(search, &entry));
    FindClose(search);
    return names;
}

QStringList FoldersHolding(const QString& folder, const QStringList& names)
{
    QStringList found = EntriesOf(folder, EntryKind::Folder);
    found.removeIf([&](const QString& game) {
        return std::ranges::none_of(names, [&](const QString& name) {
            return StatusOf(folder + u'/' + game + u'/' + name).isFolder;
        });
    });
    return found;
}
