#include "platform/Locks.h"

using namespace Qt::StringLiterals;

bool TakeLock(QLockFile& lock, int wait)
{
    lock.setStaleLockTime(0); // a holder may take as long as it likes
    if (lock.tryLock(0))
        return true;
    // The file of a living holder cannot be removed: it keeps it open and locked.
    if (lock.error() == QLockFile::LockFailedError && lock.removeStaleLockFile() && lock.tryLock(0))
        return true;
    return lock.error() == QLockFile::LockFailedError && lock.tryLock(wait);
}

QString HolderOf(const QLockFile& lock)
{
    qint64 process = 0;
    QString machine, program;
    return lock.getLockInfo(&process, &machine, &program)
               ? u"%1 (process %2 on %3)"_s.arg(program).arg(process).arg(machine)
               : QString();
}
