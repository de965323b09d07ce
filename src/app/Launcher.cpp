#include "app/Launcher.h"

#include "app/SettingsFile.h"
#include "app/Themes.h"
#include "app/Toolbar.h"
#include "app/WebLinks.h"
#include "catalogue/GameLists.h"
#include "catalogue/ScriptedMapMode.h"
#include "launch/LaunchButton.h"
#include "options/DeveloperSwitches.h"
#include "options/DisplayMode.h"
#include "options/OptionTabs.h"
#include "options/Skills.h"
#include "savegames/SaveGames.h"
#include "wad/MapList.h"

Launcher::Launcher(FileSystem& disk, Processes& programs, Prompts& questions, MainWindowHost& host,
                   const QString& rootPath)
    : files(disk),
      processes(programs),
      prompts(questions),
      window(host),
      paths(rootPath),
      environment(IwadEnvironment::ofProcess()),
      settings(DefaultSettings())
{
    ConnectThemes(*this);
    ConnectWebLinks(*this);
    ConnectToolbar(*this);
    ConnectGameLists(*this);
    ConnectScriptedMapMode(*this);
    ConnectMapList(*this);
    ConnectSaveGames(*this);
    ConnectSkills(*this);
    ConnectOptionTabs(*this);
    ConnectDisplayMode(*this);
    ConnectDeveloperSwitches(*this);
    ConnectLaunchButton(*this);
}
