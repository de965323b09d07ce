#include "platform/FolderScan.h"

#include "platform/Paths.h"

#include <QDirIterator>
#include <algorithm>

// What a folder says of its entries comes with their names, so that nothing has to be asked again.

QStringList EntriesOf(const QString& folder, EntryKind kind)
{
    QStringList names;
    if (folder.isEmpty())
        return names;
    QDir::Filters wanted = QDir::NoDotAndDotDot | QDir::Hidden | QDir::System;
    if (kind != EntryKind::Folder)
        wanted |= QDir::Files;
    if (kind != EntryKind::File)
        wanted |= QDir::Dirs;
    QDirIterator entries(folder, wanted);
    while (entries.hasNext()) {
        entries.next();
        names << entries.fileName();
    }
    return names;
}

QStringList FoldersHolding(const QString& folder, const QStringList& names)
{
    QStringList found = EntriesOf(folder, EntryKind::Folder);
    found.removeIf([&](const QString& game) {
        return std::ranges::none_of(names, [&](const QString& name) {
            return QFileInfo(folder + u'/' + game + u'/' + name).isDir();
        });
    });
    return found;
}
