#include "start/Start.h"

#include "records/GameRecords.h"

#include <algorithm>

namespace {

void skillClicked(Launcher& launcher, SkillList list)
{
    const int skill = launcher.controls.SkillsLevel[list].selected();
    launcher.settings.Skill = skill;
    if (skill != 0)
        launcher.settings.LastSkill = skill;
    SetMapFocus(launcher);
}

// A map takes the place of a savegame, also of the one that is remembered.
void mapClicked(Launcher& launcher)
{
    launcher.selection.map = launcher.controls.MapList.selectedText();
    launcher.selection.SaveSlot.clear();
    RestoreRememberedSkill(launcher.settings);
    GameRecords records(launcher.files, launcher.paths, launcher);
    if (launcher.settings.RememberLastMap)
        launcher.gameIs(GameKind::Gwad) ? records.SaveGwadSelection() : records.SaveLastMap();
    records.ForgetLastSavegame();
}

} // namespace

void ConnectStart(Launcher& launcher)
{
    for (const SkillList list : {SkillList::Advanced, SkillList::Basic})
        launcher.controls.SkillsLevel[list].clicked = [&launcher, list] { skillClicked(launcher, list); };
    launcher.controls.MapList.clicked = [&launcher] { mapClicked(launcher); };
}

void SelectStartMap(Launcher& launcher)
{
    const QStringList& maps = launcher.facts.file.maps;
    const QString remembered = launcher.settings.RememberLastMap
                                   ? GameRecords(launcher.files, launcher.paths, launcher).map()
                                   : QString();
    const auto found = std::ranges::find_if(
        maps, [&](const QString& map) { return map.compare(remembered, Qt::CaseInsensitive) == 0; });
    launcher.selection.map = found == maps.end() ? maps.value(0) : *found;
    launcher.selection.SaveSlot.clear();
}

void SetMapFocus(Launcher& launcher)
{
    if (launcher.settings.Skill == 0) {
        launcher.selection.map.clear();
        launcher.selection.SaveSlot.clear();
    } else if (launcher.chosenMap().isEmpty() && launcher.chosenSlot().isEmpty()) {
        SelectStartMap(launcher);
    }
}

void RestoreRememberedSkill(Settings& settings)
{
    if (settings.Skill == 0)
        settings.Skill = settings.LastSkill;
}
