#pragma once

#include "platform/FileSystem.h"

#include <QStringList>

// A playlist's file: one line of text for each entry, in Windows-1252 or, with a byte order mark, UTF-8.

struct PlaylistText
{
    QStringList lines;
    bool isUtf8 = false;
    bool isWhole = true; // the lines are all that the file holds; otherwise it must not be written from them
};

// At most 301 lines, each of at most 1000 characters. Throws FileError.
PlaylistText ReadPlaylist(const FileSystem& files, const QString& path);

// Writes the lines, each followed by CR LF, atomically. Throws FileError.
void WritePlaylist(FileSystem& files, const QString& path, const PlaylistText& playlist);
