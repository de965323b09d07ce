#pragma once

#include "shell/Trash.h"
#include "state/InstallationPaths.h"

#include <initializer_list>

// What the engine and the installation keep for a WAD outside its game, under the WAD's base name. A base
// name that no file can have on every system names nothing. Each throws FileError.

// Deletes the files whose names begin with `base`, without regard to case, in some folders of the root.
void DeleteFilesBeginningWith(FileSystem& files, const InstallationPaths& paths, const QString& base,
                              std::initializer_list<const char16_t*> folders);

// Discards the models, textures and music that an installed PWAD game brought; the model packs' own folders
// stay, whatever a WAD is called.
void DeleteGameResources(FileSystem& files, Trash& trash, const InstallationPaths& paths,
                         const QString& base);
