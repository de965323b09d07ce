#include "platform/SystemError.h"

#include <cerrno>

const int noSuchProgram = ENOENT;
const int noProgram = ENOEXEC;

int SystemError()
{
    return errno;
}

void ClearSystemError()
{
    errno = 0;
}

FileError::Kind KindOfSystemError(int number)
{
    using enum FileError::Kind;
    switch (number) {
    case EACCES:
    case EPERM:
    case EROFS:
        return PermissionDenied;
    case ENOENT:
        return NotFound;
    case EEXIST:
    case ENOTEMPTY:
        return Exists;
    case EBUSY:
    case ETXTBSY:
        return InUse;
    case ENOSPC:
    case EDQUOT:
        return DiskFull;
    default:
        return Other;
    }
}

FileError::Kind KindOfSystemError(const std::error_code& error)
{
    return KindOfSystemError(error.value());
}
