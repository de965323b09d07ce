#pragma once

#include "catalogue/GameStaging.h"
#include "state/Launcher.h"

#include <QStringList>

// Installing games: each is built beside the catalogue and put into it whole, or not at all.

enum class Installed {
    Done,
    Refused,  // a message has said why, or the player cancelled
    NotAGame, // neither a .wad nor a .zip
};

// The toolbar's command: asks for a .wad or .zip file and installs it as a PWAD game. False when that was
// refused.
bool InstallGameFromFile(Launcher& launcher);

// What is dropped on the window; files that are no game are left out. False when nothing was installed.
bool InstallDroppedFiles(Launcher& launcher, const QStringList& paths);

// Installs one file under its base name: as a PWAD game, which must be new, or as a Gwad game, to which the
// files are added when there is one. Selects nothing.
Installed InstallPwadGame(Launcher& launcher, const QString& path);
Installed InstallGwadGame(Launcher& launcher, const QString& path);

// Installs what `fill` brings as the Gwad game `name`, or adds it to that game, and says so. `fill` returns
// false when the player cancelled or a message has told what is wrong. Selects nothing.
Installed InstallAsGwad(Launcher& launcher, const QString& name,
                        const std::function<bool(GameStaging&)>& fill);

// Reads the folder of the file installed last; empty when there is none.
QString LoadLastInstallFolder(const FileSystem& files, const InstallationPaths& paths);
