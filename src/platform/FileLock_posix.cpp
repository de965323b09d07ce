#include "platform/DiskFileSystem.h"
#include "platform/FileLock.h"

#include <QFile>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace {

bool HasRecordLock(int file)
{
    struct flock lock = {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET; // with the length 0: the whole file
    return fcntl(file, F_GETLK, &lock) == 0 && lock.l_type != F_UNLCK;
}

bool HasWholeFileLock(int file)
{
    return flock(file, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

} // namespace

bool IsFileLocked(const QString& path)
{
    const QString actual = DiskFileSystem().actualPath(path);
    if (actual.isEmpty())
        return false;
    // Non-blocking, since opening a pipe would wait for its other end.
    const int file = open(QFile::encodeName(actual).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (file < 0)
        return false;
    const bool locked = HasRecordLock(file) || HasWholeFileLock(file);
    close(file); // and with it the lock that the test may have got
    return locked;
}
