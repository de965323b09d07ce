#include "platform/Rename.h"

#include "platform/WidePath.h"

#include <windows.h>

bool Rename(const QString& from, const QString& to)
{
    return MoveFileExW(WidePath(from).c_str(), WidePath(to).c_str(), MOVEFILE_REPLACE_EXISTING) != 0;
}
