#include "savegames/SaveGames.h"

#include "catalogue/GameRecords.h"
#include "options/Skills.h"
#include "wad/ToolBridge.h"

namespace {

void saveGameClicked(Launcher& launcher)
{
    launcher.launch.SaveSlot = launcher.controls.SaveGameList.selectedText().left(1);
    launcher.launch.StartChoice = StartChoice::ChosenSavegame;
    launcher.controls.MapList.deselect();
}

void saveGamePicked(Launcher& launcher)
{
    if (launcher.settings.RememberLastSavegame)
        SaveLastSavegame(launcher);
    RestoreRememberedSkill(launcher);
}

int entryOfSlot(const ListBox& list, const QString& slot)
{
    for (int i = 0; i < list.count(); ++i)
        if (!slot.isEmpty() && list.entry(i).startsWith(slot))
            return i;
    return -1;
}

} // namespace

void ConnectSaveGames(Launcher& launcher)
{
    launcher.controls.SaveGameList.clicked = [&launcher] { saveGameClicked(launcher); };
    launcher.controls.SaveGameList.chosen = [&launcher] { saveGamePicked(launcher); };
}

bool ListSaveGames(Launcher& launcher)
{
    launcher.controls.SaveGameList.clear();
    return !launcher.files.folderExists(launcher.selection.SaveGameFolder) ||
           ListSavegameHeaders(launcher, launcher.selection.SaveGameFolder);
}

bool RefreshSaveGames(Launcher& launcher)
{
    ListBox& list = launcher.controls.SaveGameList;
    const bool wasChosen = list.selected() >= 0;
    const bool listed = ListSaveGames(launcher);
    if (!wasChosen)
        return listed;
    list.startAs(entryOfSlot(list, launcher.launch.SaveSlot));
    if (list.selected() < 0) { // it is gone: start from a map again
        launcher.launch.SaveSlot.clear();
        SetMapFocus(launcher);
    }
    return listed;
}

void RestoreLastSavegame(Launcher& launcher)
{
    if (!launcher.settings.RememberLastSavegame || launcher.launch.StartChoice == StartChoice::NewGame)
        return;
    ListBox& list = launcher.controls.SaveGameList;
    list.select(entryOfSlot(list, LastSavegame(launcher)));
}
