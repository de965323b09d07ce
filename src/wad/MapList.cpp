#include "wad/MapList.h"

#include "catalogue/GameRecords.h"
#include "options/Skills.h"
#include "wad/MainWad.h"

namespace {

void mapClicked(Launcher& launcher)
{
    launcher.launch.SaveSlot.clear();
    launcher.launch.StartChoice = StartChoice::ChosenMap;
    launcher.controls.SaveGameList.deselect();
    ListBox& maps = launcher.controls.MapList;
    if (maps.entry(maps.count() - 1).isEmpty())
        maps.remove(maps.count() - 1);
    UpdateWarp(launcher);
}

void mapPicked(Launcher& launcher)
{
    if (launcher.settings.RememberLastMap) {
        launcher.selection.GwadSelected ? SaveGwadSelection(launcher, launcher.selection.SelectedGwadGame)
                                        : SaveLastMap(launcher, SelectedRecordName(launcher));
        if (launcher.settings.RememberLastSavegame)
            ForgetLastSavegame(launcher);
    }
    RestoreRememberedSkill(launcher);
}

} // namespace

void ConnectMapList(Launcher& launcher)
{
    launcher.controls.MapList.clicked = [&launcher] { mapClicked(launcher); };
    launcher.controls.MapList.chosen = [&launcher] { mapPicked(launcher); };
}

void SelectStartMap(Launcher& launcher)
{
    if (!launcher.settings.RememberLastMap)
        launcher.controls.MapList.select(0);
    else if (launcher.selection.GwadSelected)
        RestoreGwadMap(launcher, launcher.selection.SelectedGwadGame);
    else
        RestoreLastMap(launcher, SelectedRecordName(launcher));
}
