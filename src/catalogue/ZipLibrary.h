#pragma once

#include "state/Launcher.h"

// The path of a zip of the library.
QString ArchivePath(const InstallationPaths& paths, const QString& name);

// Brings the files of a zip into a folder of their own, unless they are there already and neither has
// changed; the folder is this launcher's alone and stands in the facts. False, and there is none, when that
// was not possible: a message has said why, or the player cancelled.
bool OpenArchive(Launcher& launcher, const QString& name);

// Deletes what the opening of zips has left, but for what some launcher works with, and the files that lie
// beside it.
void EmptyZipFolder(Launcher& launcher);

// True for a folder that cannot be the zip library: the folder in which zips are opened, another of the
// installation's own, or one above those.
bool IsFolderOfInstallation(const FileSystem& files, const InstallationPaths& paths, const QString& folder);

// Extracts ZipSourcePath into the existing folder ZipTargetFolder, with a message when it is no zip that can
// be read; false then and when the player cancelled. Throws FileError.
bool ExtractZip(Launcher& launcher, const QString& ZipSourcePath, const QString& ZipTargetFolder);
