#pragma once

#include <QStringList>

// Reading folders of many thousands of entries, with as few system calls as each system needs. `folder` is
// spelled as on disk. Names come in the order of the disk; none when the folder cannot be read. What a link
// leads to counts. Hidden entries are included; "." and ".." are not, nor are names that no path can carry
// here: with a '\', which means '/', or with bytes that are no text.

enum class EntryKind { Any, File, Folder };
QStringList EntriesOf(const QString& folder, EntryKind kind);

// The folders in `folder` that hold a folder with one of the names, without regard to case.
QStringList FoldersHolding(const QString& folder, const QStringList& names);
