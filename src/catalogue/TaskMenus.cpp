#include "catalogue/TaskMenus.h"

#include "catalogue/GameLists.h"
#include "catalogue/ScriptedMaps.h"
#include "platform/Paths.h"

namespace {

const Menu* installedGameMenu(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    const bool isGwad = launcher.selection.GwadSelected;
    const bool isScripted =
        !isGwad &&
        IsScriptedMap(launcher.files, launcher.paths, launcher.settings.SelectedGame).isScriptedMap;
    controls.mcRenameFolder.visible = !isScripted;
    const bool canConvert = !isScripted && controls.chkTesting.ticked();
    for (MenuItem* item : {&controls.Sep3, &controls.mcUdirConvert, &controls.mcGwadConvert})
        item->visible = canConvert;
    controls.mcUdirConvert.enabled = isGwad;
    controls.mcGwadConvert.enabled = !isGwad;
    return &controls.mPopup5;
}

const Menu* gameMenu(Launcher& launcher)
{
    const ListBox& games = launcher.controls.PwadList;
    if (games.selected() < 0 || launcher.settings.ListMode == doomGames ||
        SameName(games.selectedText(), FileNameOf(launcher.paths.RootPath)))
        return nullptr;
    return launcher.settings.ListMode == zipLibrary ? &launcher.controls.mPopup6
                                                    : installedGameMenu(launcher);
}

const Menu* gameFileMenu(const Launcher& launcher)
{
    const bool isGwadFile = launcher.settings.ListMode == installedGames && launcher.selection.GwadSelected &&
                            launcher.controls.PwadShowlist.selected() >= 0;
    return isGwadFile ? &launcher.controls.mPopup3 : nullptr;
}

const Menu* saveGameMenu(const Launcher& launcher)
{
    return launcher.controls.SaveGameList.selected() >= 0 ? &launcher.controls.mPopup7 : nullptr;
}

} // namespace

void ConnectTaskMenus(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    controls.PwadList.taskMenu = [&launcher] { return gameMenu(launcher); };
    controls.PwadShowlist.taskMenu = [&launcher] { return gameFileMenu(launcher); };
    controls.SaveGameList.taskMenu = [&launcher] { return saveGameMenu(launcher); };
}
