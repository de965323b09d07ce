#pragma once

#include "app/Controls.h"
#include "app/FontSetting.h"
#include "app/InstallationPaths.h"
#include "app/MainWindowHost.h"
#include "app/Settings.h"
#include "catalogue/Selection.h"
#include "iwads/IwadPaths.h"
#include "launch/LaunchState.h"
#include "music/MusicState.h"
#include "options/PackFacts.h"
#include "platform/FileSystem.h"
#include "platform/Processes.h"
#include "shortcuts/DeleteShortcuts.h"
#include "ui/Prompts.h"
#include "wad/WadReport.h"

#include <QDateTime>
#include <QHash>

struct StartUpState
{
    QString LauncherVersion;
    QString EngineVersion;
    QString WindowCaption;
    bool VersionUpdate = false;   // the settings were reset
    bool ConfigReadError = false; // ... because the first line could not be read
    bool RunningUnderWine = false;
    bool ShuttingDown = false; // nothing is saved any more
    bool RestartRequested = false;
};

// Everything the launcher knows, and the services it works with, which must outlive it.
struct Launcher
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
    FontSetting font;
    Settings settings;
    Controls controls;
    IwadPaths iwads;
    QHash<QString, WadReport> wadReports; // by path
    Selection selection;
    LaunchState launch;
    ModelPacks modelPacks;
    ResourcePacks resources;
    MusicState music;
    QString documentationFolder; // of the documentation opened last, with '/'; empty at first
    QDateTime resolutionRead;    // when the engine had written the resolution that is shown
};
