#include "catalogue/TaskMenus.h"

#include "platform/Paths.h"

namespace {

const Menu* installedGameMenu(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    const bool isGwad = launcher.gameIs(GameKind::Gwad);
    const bool isScripted = launcher.facts.game.scriptedMap.isScriptedMap;
    controls.mcRenameFolder.visible = !isScripted;
    const bool canConvert = !isScripted && launcher.settings.DevelopmentMode;
    for (MenuItem* item : {&controls.Sep3, &controls.mcUdirConvert, &controls.mcGwadConvert})
        item->visible = canConvert;
    controls.mcUdirConvert.enabled = isGwad;
    controls.mcGwadConvert.enabled = !isGwad;
    return &controls.mPopup5;
}

const Menu* gameMenu(Launcher& launcher)
{
    const ListBox& games = launcher.controls.PwadList;
    if (games.selected() < 0 || launcher.view() == View::DoomGames ||
        SameName(games.selectedText(), FileNameOf(launcher.paths.RootPath)))
        return nullptr;
    return launcher.view() == View::ZipLibrary ? &launcher.controls.mPopup6 : installedGameMenu(launcher);
}

const Menu* gameFileMenu(const Launcher& launcher)
{
    return launcher.gameIs(GameKind::Gwad) && !launcher.chosenFile().isEmpty() ? &launcher.controls.mPopup3
                                                                               : nullptr;
}

const Menu* saveGameMenu(const Launcher& launcher)
{
    return !launcher.chosenSlot().isEmpty() ? &launcher.controls.mPopup7 : nullptr;
}

} // namespace

void ConnectTaskMenus(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    controls.PwadList.taskMenu = [&launcher] { return gameMenu(launcher); };
    controls.PwadShowlist.taskMenu = [&launcher] { return gameFileMenu(launcher); };
    controls.SaveGameList.taskMenu = [&launcher] { return saveGameMenu(launcher); };
}
