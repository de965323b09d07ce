#include "platform/EntryStatus.h"

#include "platform/WidePath.h"

#include <QFileInfo>
#include <windows.h>

EntryStatus StatusOf(const QString& path)
{
    const QString whole = QFileInfo(path).absoluteFilePath();
    const DWORD attributes = GetFileAttributesW(WidePath(whole).c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES)
        return {};
    EntryStatus status;
    status.isThere = true;
    status.isFolder = (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    status.isFile = !status.isFolder && (attributes & FILE_ATTRIBUTE_DEVICE) == 0;
    if ((attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0) {
        // Not every reparse point is a link: a file that lies in the cloud is a file.
        const QFileInfo entry(whole);
        status.isLink = entry.isSymbolicLink() || entry.isJunction();
        if (status.isLink && !entry.exists())
            status.isFile = status.isFolder = false;
    }
    return status;
}
