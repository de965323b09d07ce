#include "platform/Spelling.h"

#include "platform/Paths.h"
#include "platform/WidePath.h"

#include <windows.h>

QString OtherSpelling(const QString& /*folder*/, const QString& /*name*/)
{
    return {};
}

QString SpelledAsOnDisk(const QString& path)
{
    const QString folder = FolderOf(path);
    if (folder.isEmpty() || path.endsWith(u'/'))
        return path; // a drive
    const QString parent = SpelledAsOnDisk(folder);
    const QString start = parent + (parent.endsWith(u'/') ? QString() : QStringLiteral("/"));
    const QString name = FileNameOf(path);
    if (name == QStringLiteral(".") || name == QStringLiteral(".."))
        return start + name;
    WIN32_FIND_DATAW entry = {};
    const HANDLE search =
        FindFirstFileExW(WidePath(path).c_str(), FindExInfoBasic, &entry, FindExSearchNameMatch, nullptr, 0);
    if (search == INVALID_HANDLE_VALUE) // a server's share
        return start + name;
    FindClose(search);
    return start + QString::fromWCharArray(entry.cFileName);
}
