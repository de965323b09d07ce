#pragma once

#include "state/Launcher.h"

// From the process's start to the shown window.

// What the program needs from outside the launcher at its start.
struct StartUpServices
{
    // Takes the place of the one running launcher: false when another one holds it.
    std::function<bool()> claimInstance;
    std::function<bool()> activateRunningInstance; // false when it does not answer
    std::function<void()> claimInstanceWhenFree;   // a restart: the old launcher is just ending
    std::function<bool()> componentsPresent;       // what the program needs of its libraries at run time
    std::function<void()> showTips;
};

enum class StartResult {
    Running, // the main window is shown: the event loop takes over
    Ended,   // a message told why, or a running launcher was activated
};

// The start-up sequence. `arguments` is the launcher's own command line, as one text.
StartResult Main(Launcher& launcher, const QString& arguments, const StartUpServices& services);

// The engine's version text from version.vyk's first line.
QString ReadEngineVersion(const FileSystem& files, const InstallationPaths& paths);

// The name of the first required file that is missing; empty when all are there.
QString CheckRequiredFiles(const FileSystem& files, const InstallationPaths& paths);

// Starts the launcher anew, past the question whether one is running. When it cannot be started there is a
// message.
void RestartLauncher(Launcher& launcher);
