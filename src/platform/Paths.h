#pragma once

#include <QString>

// Paths as texts; nothing here touches the disk. A '\' counts as a separator like '/'.

// The last component: "c:/a/Doom2.wad" gives "Doom2.wad"; a path that ends in a separator gives the
// folder's name.
QString FileNameOf(const QString& path);

// The last component without its last extension: "a/b.c.wad" gives "b.c".
QString BaseNameOf(const QString& path);

// The path without its last component and without a separator at its end; empty when there is no folder.
// "/a" gives "/".
QString FolderOf(const QString& path);

// With '/' in place of '\'.
QString WithSlashes(const QString& path);

// With the system's own separators: what stands on a command line and in a text box.
QString NativePath(const QString& path);

bool SameName(const QString& a, const QString& b);         // without regard to case
bool EndsWith(const QString& name, const QString& ending); // without regard to case
