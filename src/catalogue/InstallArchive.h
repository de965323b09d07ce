#pragma once

#include "state/Launcher.h"

// The commands by which the zip library's selected game becomes an installed one.
void ConnectArchiveInstallation(Launcher& launcher);

void InstallArchiveAsPwad(Launcher& launcher); // mcUdirUnZip
void InstallArchiveAsGwad(Launcher& launcher); // mcGwadUnZip
