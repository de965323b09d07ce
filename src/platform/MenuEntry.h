#pragma once

#include "platform/DesktopEntry.h"

// Where the current user's menu entries and icons lie; absolute paths with '/'.
struct MenuFolders
{
    static MenuFolders ofUser();

    QString programs;
    QString icons; // of the theme that every other falls back to
};

// Puts a program into the user's menu under its name, with its icon: the pictures NAME-SIZE.png of
// `pictureFolder`, NAME being the entry's `icon` and SIZE a usual size in pixels. What is there is replaced.
// Returns false, and changes nothing, when the folder holds no such picture. Throws FileError.
bool AddToMenu(FileSystem& files, const MenuFolders& folders, const DesktopEntry& entry,
               const QString& pictureFolder);

// Takes the entry of that name and the icon out again; nothing there is no failure. Throws FileError.
void RemoveFromMenu(FileSystem& files, const MenuFolders& folders, const QString& name, const QString& icon);
