#pragma once

#include "platform/FileSystem.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

// A program to start as the Desktop Entry Specification has it.
struct DesktopEntry
{
    QString name;    // what the player reads
    QString comment; // may be empty
    QString icon;    // a file's path, or a name in the icon theme
    QString program; // its path
    QStringList arguments;
    QString folder;      // the working folder
    QString windowClass; // by which its window is known; may be empty
};

// The text of the ".desktop" file, in UTF-8: its Exec gives the program exactly these arguments.
QByteArray DesktopEntryBytes(const DesktopEntry& entry);

// Writes it to `path` and lets it be started by a double-click. Throws FileError.
void WriteDesktopEntry(FileSystem& files, const QString& path, const DesktopEntry& entry);
