#pragma once

#include "platform/FileSystem.h"

// An engine with its arguments that the player starts by a double-click. Paths are absolute, with '/'.
struct Shortcut
{
    QString folder;    // where it lies, which must exist
    QString name;      // its file's name, without an extension
    QString arguments; // as they follow the program's name on a command line

    // Of the shell link.
    QString target; // the program's path
    QString workingDirectory;
    int windowStyle = 1; // as in ShellLink

    // Of what this system's own desktop starts: as a launch does it.
    QString program; // as a command line names it (see Processes)
    QString launchFolder;
    QString icon; // a picture's path or a name in the icon theme
};

// Writes the shell link NAME.lnk and beside it what this system's own desktop starts, if that is another
// file; existing ones are replaced. Throws FileError, or std::length_error when the arguments are too long.
void WriteShortcut(FileSystem& files, const Shortcut& shortcut);

// Lets the desktop show what has come or gone, where it does not see that by itself.
void RefreshDesktop();
