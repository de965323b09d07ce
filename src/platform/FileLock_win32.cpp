#include "platform/DiskFileSystem.h"
#include "platform/FileLock.h"
#include "platform/WidePath.h"

#include <windows.h>

bool IsFileLocked(const QString& path)
{
    const QString actual = DiskFileSystem().actualPath(path);
    if (actual.isEmpty())
        return false;
    constexpr DWORD alone = 0;
    const HANDLE file = CreateFileW(WidePath(actual).c_str(), GENERIC_READ, alone, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return GetLastError() == ERROR_SHARING_VIOLATION;
    CloseHandle(file);
    return false;
}
