#include "savegames/SaveGames.h"

#include "records/GameRecords.h"
#include "start/Start.h"
#include "wad/ToolBridge.h"

namespace {

// A savegame takes the place of a map.
void saveGameClicked(Launcher& launcher)
{
    launcher.selection.SaveSlot = launcher.controls.SaveGameList.selectedName();
    launcher.selection.map.clear();
    RestoreRememberedSkill(launcher.settings);
    if (launcher.settings.RememberLastSavegame)
        GameRecords(launcher.files, launcher.paths, launcher).SaveLastSavegame();
}

} // namespace

void ConnectSaveGames(Launcher& launcher)
{
    launcher.controls.SaveGameList.clicked = [&launcher] { saveGameClicked(launcher); };
}

QString SaveGameFolder(const Launcher& launcher)
{
    const QString folder = launcher.saveGameFolder();
    return folder.isEmpty() ? QString() : launcher.paths.RootPath + u'/' + folder;
}

bool ListSaveGames(Launcher& launcher)
{
    launcher.facts.file.savegames.clear();
    const QString folder = SaveGameFolder(launcher);
    if (!launcher.files.folderExists(folder))
        return true;
    const auto savegames = ListSavegameHeaders(launcher, folder);
    launcher.facts.file.savegames = savegames.value_or(QList<SaveGame>());
    return savegames.has_value();
}

bool RefreshSaveGames(Launcher& launcher)
{
    const bool listed = ListSaveGames(launcher);
    if (!launcher.selection.SaveSlot.isEmpty() && launcher.chosenSlot().isEmpty()) {
        launcher.selection.SaveSlot.clear();
        SetMapFocus(launcher);
    }
    return listed;
}

void RestoreLastSavegame(Launcher& launcher)
{
    if (!launcher.settings.RememberLastSavegame || launcher.settings.Skill == 0)
        return;
    const QString map = std::exchange(launcher.selection.map, {});
    launcher.selection.SaveSlot = GameRecords(launcher.files, launcher.paths, launcher).LastSavegame();
    if (launcher.chosenSlot().isEmpty()) {
        launcher.selection.SaveSlot.clear();
        launcher.selection.map = map;
    }
}
