#include "platform/RemovalRights.h"

#include <windows.h>

void AllowRemoval(const std::filesystem::path& entry)
{
    const DWORD attributes = GetFileAttributesW(entry.c_str());
    const bool isLink = (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
    if (attributes != INVALID_FILE_ATTRIBUTES && !isLink && (attributes & FILE_ATTRIBUTE_READONLY) != 0)
        SetFileAttributesW(entry.c_str(), attributes & ~DWORD{FILE_ATTRIBUTE_READONLY});
}
