#include "platform/SystemError.h"

#include <windows.h>

const int noSuchProgram = ERROR_FILE_NOT_FOUND;
const int noProgram = ERROR_BAD_EXE_FORMAT;

int SystemError()
{
    return static_cast<int>(GetLastError());
}

void ClearSystemError()
{
    SetLastError(ERROR_SUCCESS);
}

FileError::Kind KindOfSystemError(int number)
{
    using enum FileError::Kind;
    switch (number) {
    case ERROR_ACCESS_DENIED:
    case ERROR_WRITE_PROTECT:
        return PermissionDenied;
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
        return NotFound;
    case ERROR_FILE_EXISTS:
    case ERROR_ALREADY_EXISTS:
    case ERROR_DIR_NOT_EMPTY:
        return Exists;
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_USER_MAPPED_FILE:
        return InUse;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
        return DiskFull;
    default:
        return Other;
    }
}

FileError::Kind KindOfSystemError(const std::error_code& error)
{
    using enum FileError::Kind;
    if (error.category() == std::system_category())
        return KindOfSystemError(error.value());
    // The C runtime's numbers.
    if (error == std::errc::permission_denied || error == std::errc::operation_not_permitted)
        return PermissionDenied;
    if (error == std::errc::no_such_file_or_directory)
        return NotFound;
    if (error == std::errc::file_exists || error == std::errc::directory_not_empty)
        return Exists;
    if (error == std::errc::device_or_resource_busy || error == std::errc::text_file_busy)
        return InUse;
    return error == std::errc::no_space_on_device ? DiskFull : Other;
}
