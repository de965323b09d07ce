#include "app/Connect.h"

#include "app/ShowAll.h"
#include "app/Themes.h"
#include "app/Toolbar.h"
#include "app/WebLinks.h"
#include "catalogue/ConvertGame.h"
#include "catalogue/GameLists.h"
#include "catalogue/GameSelection.h"
#include "catalogue/InstallArchive.h"
#include "catalogue/RemoveGame.h"
#include "catalogue/RenameGame.h"
#include "catalogue/ScriptedMapMode.h"
#include "catalogue/TaskMenus.h"
#include "launch/LaunchButton.h"
#include "music/Playlists.h"
#include "options/CleanUpModels.h"
#include "options/EngineList.h"
#include "options/OptionEvents.h"
#include "options/PurgeNodes.h"
#include "options/TexturePath.h"
#include "savegames/DeleteSaveGames.h"
#include "savegames/SaveGames.h"
#include "shortcuts/MakeShortcut.h"
#include "start/Start.h"
#include "state/VisitControls.h"

namespace {

// Lets the window be computed after a handler.
struct ThenShow
{
    Launcher& launcher;

    template <class... Arguments>
    void operator()(std::function<void(Arguments...)>& handler) const
    {
        if (handler)
            handler = [handler, &launcher = launcher](Arguments... arguments) {
                launcher.session.toolFailed = false;
                handler(arguments...);
                ShowWindow(launcher);
            };
    }
};

void showAfterEach(Launcher& launcher)
{
    const ThenShow then{launcher};
    VisitControls(launcher.controls, [&then](QStringView, int, auto& control) {
        if constexpr (requires { control.clicked; })
            then(control.clicked);
        if constexpr (requires { control.doubleClicked; })
            then(control.doubleClicked);
        if constexpr (requires { control.typed; })
            then(control.typed);
        if constexpr (requires { control.filesDropped; })
            then(control.filesDropped);
    });
    Controls& controls = launcher.controls;
    for (const Menu* menu :
         std::initializer_list<const Menu*>{&controls.mPopup3, &controls.mPopup5, &controls.mPopup6,
                                            &controls.mPopup7, &controls.mcAuto.items})
        for (MenuItem* item : *menu)
            then(item->clicked);
}

} // namespace

void ConnectControls(Launcher& launcher)
{
    ConnectOptions(launcher);
    ConnectThemes(launcher);
    ConnectWebLinks(launcher);
    ConnectToolbar(launcher);
    ConnectGameLists(launcher);
    ConnectGameSelection(launcher);
    ConnectStart(launcher);
    ConnectSaveGames(launcher);
    ConnectDeleteSaveGames(launcher);
    ConnectScriptedMapMode(launcher);
    ConnectTaskMenus(launcher);
    ConnectArchiveInstallation(launcher);
    ConnectConversion(launcher);
    ConnectRenaming(launcher);
    ConnectRemoval(launcher);
    ConnectEngineList(launcher);
    ConnectTexturePath(launcher);
    ConnectModelCleanup(launcher);
    ConnectNodePurge(launcher);
    ConnectPlaylists(launcher);
    ConnectShortcuts(launcher);
    ConnectLaunchButton(launcher);
    showAfterEach(launcher);
    ShowWindow(launcher);
}
