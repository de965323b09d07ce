#include "platform/EntryStatus.h"

#include <QFileInfo>

EntryStatus StatusOf(const QString& path)
{
    const QFileInfo entry(path);
    EntryStatus status;
    status.isThere = entry.exists() || entry.isSymLink();
    if (status.isThere) {
        status.isFile = entry.isFile();
        status.isFolder = entry.isDir();
        status.isLink = entry.isSymLink();
    }
    return status;
}
