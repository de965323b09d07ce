#pragma once

#include "state/Launcher.h"

// The folder that holds the files of the zip in use, ending in '/'.
QString ZipFolder(const InstallationPaths& paths);

// The path of a zip of the library.
QString ArchivePath(const InstallationPaths& paths, const QString& name);

// Brings the files of a zip into the zip folder in place of what is there, unless they are there already
// and neither has changed. False, and the folder empty, when that was not possible: a message has said why,
// or the player cancelled.
bool OpenArchive(Launcher& launcher, const QString& name);

// Extracts ZipSourcePath into the existing folder ZipTargetFolder, with a message when it is no zip that can
// be read; false then and when the player cancelled. Throws FileError.
bool ExtractZip(Launcher& launcher, const QString& ZipSourcePath, const QString& ZipTargetFolder);
