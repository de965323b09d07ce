#pragma once

#include "platform/FileSystem.h"
#include "platform/Processes.h"
#include "state/Controls.h"
#include "state/InstallationPaths.h"
#include "state/MainWindowHost.h"
#include "state/ShortcutFolders.h"
#include "state/Truth.h"
#include "ui/Prompts.h"

#include <QLockFile>

struct StartUpState
{
    QString LauncherVersion;
    QString EngineVersion;
    QString WindowCaption;
    bool VersionUpdate = false;   // the settings were reset
    bool ConfigReadError = false; // ... because the first line could not be read
    bool ShuttingDown = false;    // nothing is saved any more
    bool RestartRequested = false;
};

struct OpenedFolder
{
    QString path; // without '/' at its end
    std::shared_ptr<QLockFile> lock;
};

// What makes a dialog start where the last one ended. Nothing that is shown or launched depends on it.
struct Session
{
    QString documentationFolder; // of the documentation opened last, with '/'
    QString LastInstallFolder;   // of the file installed last
    QString MusicFolder;         // where music was added from last
    // The folders of the two zips opened last, the newest first: while their locks are held, no launcher
    // deletes what is in them.
    QList<OpenedFolder> openedFolders;
    bool passwordsDeclined = false; // the player has none: no zip asks for one again
    bool toolFailed = false;        // the game-file tool could not be started, and a message has said so
    bool AfterLaunch = false;       // a game was started and the window has not been back since
};

// All that is true, the controls that show it, and the services that the launcher works with, which must
// outlive it.
struct Launcher : Truth
{
    Launcher(FileSystem& files, Processes& processes, Prompts& prompts, MainWindowHost& window,
             const QString& rootPath);
    Launcher(const Launcher&) = delete;
    Launcher& operator=(const Launcher&) = delete;

    FileSystem& files;
    Processes& processes;
    Prompts& prompts;
    MainWindowHost& window;

    InstallationPaths paths;
    IwadEnvironment environment;
    ShortcutFolders shortcutFolders;
    StartUpState startUp;
    Session session;
    Controls controls;
};

// Ends the launcher without saving.
void ShutDownLauncher(Launcher& launcher);
