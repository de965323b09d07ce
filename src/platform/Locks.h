#pragma once

#include <QLockFile>

// Takes a lock at once when no living program holds it, whatever the lock file says: it may be empty, or from
// another machine. Otherwise waits up to `wait` milliseconds for its holder. False when it is still held, or,
// where error() is not LockFailedError, when no lock can be made there.
bool TakeLock(QLockFile& lock, int wait);

// The program that holds a lock that could not be taken, in words for the player; empty when it is not known.
QString HolderOf(const QLockFile& lock);
