#include "app/Launcher.h"

#include "app/SettingsFile.h"
#include "app/Themes.h"
#include "app/Toolbar.h"
#include "app/WebLinks.h"
#include "catalogue/ConvertGame.h"
#include "catalogue/GameLists.h"
#include "catalogue/GameSelection.h"
#include "catalogue/InstallArchive.h"
#include "catalogue/InstallGame.h"
#include "catalogue/RemoveGame.h"
#include "catalogue/RenameGame.h"
#include "catalogue/ScriptedMapMode.h"
#include "catalogue/TaskMenus.h"
#include "launch/CommandPreview.h"
#include "launch/LaunchButton.h"
#include "music/Playlists.h"
#include "options/CleanUpModels.h"
#include "options/DeveloperSwitches.h"
#include "options/DisplayMode.h"
#include "options/EditMode.h"
#include "options/EffectModes.h"
#include "options/GraphicsOptions.h"
#include "options/LaunchPreferences.h"
#include "options/ModelOptions.h"
#include "options/NoMonsters.h"
#include "options/OptionTabs.h"
#include "options/PurgeNodes.h"
#include "options/Skills.h"
#include "options/SoundOptions.h"
#include "options/Spinners.h"
#include "options/TexturePath.h"
#include "savegames/DeleteSaveGames.h"
#include "savegames/SaveGames.h"
#include "shortcuts/MakeShortcut.h"
#include "wad/MapList.h"

Launcher::Launcher(FileSystem& disk, Processes& programs, Prompts& questions, MainWindowHost& host,
                   const QString& rootPath)
    : files(disk),
      processes(programs),
      prompts(questions),
      window(host),
      paths(rootPath),
      environment(IwadEnvironment::ofProcess()),
      shortcutFolders(ShortcutFolders::ofUser(paths.RootPath)),
      settings(DefaultSettings())
{
    ConnectThemes(*this);
    ConnectWebLinks(*this);
    ConnectToolbar(*this);
    ConnectGameLists(*this);
    ConnectGameSelection(*this);
    ConnectTaskMenus(*this);
    ConnectInstallation(*this);
    ConnectArchiveInstallation(*this);
    ConnectConversion(*this);
    ConnectRenaming(*this);
    ConnectRemoval(*this);
    ConnectLaunchPreferences(*this);
    ConnectScriptedMapMode(*this);
    ConnectMapList(*this);
    ConnectSaveGames(*this);
    ConnectDeleteSaveGames(*this);
    ConnectSkills(*this);
    ConnectOptionTabs(*this);
    ConnectDisplayMode(*this);
    ConnectDeveloperSwitches(*this);
    ConnectEffectModes(*this);
    ConnectGraphicsOptions(*this);
    ConnectTexturePath(*this);
    ConnectModelOptions(*this);
    ConnectSoundOptions(*this);
    ConnectPlaylists(*this);
    ConnectSpinners(*this);
    ConnectNoMonsters(*this);
    ConnectEditMode(*this);
    ConnectModelCleanup(*this);
    ConnectNodePurge(*this);
    ConnectShortcuts(*this);
    ConnectLaunchButton(*this);
    ConnectCommandPreview(*this);
}
