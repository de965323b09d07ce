#include "options/Skills.h"

#include "wad/MapList.h"

namespace {

void skillClicked(Launcher& launcher, size_t list)
{
    auto& skills = launcher.controls.SkillsLevel;
    const int skill = skills[list].selected();
    skills[1 - list].startAs(skill);
    launcher.settings.Skill = skill;
    if (skill != 0)
        launcher.settings.LastSkill = skill;
    SetMapFocus(launcher);
}

} // namespace

void ConnectSkills(Launcher& launcher)
{
    for (const size_t list : {0U, 1U})
        launcher.controls.SkillsLevel[list].clicked = [&launcher, list] { skillClicked(launcher, list); };
}

void SetMapFocus(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    if (launcher.settings.Skill == 0) {
        launcher.launch.StartChoice = StartChoice::NewGame;
        controls.MapList.deselect();
        controls.SaveGameList.deselect();
    } else if (controls.MapList.selected() < 0 && controls.SaveGameList.selected() < 0) {
        launcher.launch.StartChoice = StartChoice::Undecided;
        SelectStartMap(launcher);
    }
}

void RestoreRememberedSkill(Launcher& launcher)
{
    if (launcher.controls.SkillsLevel[1].selected() == 0)
        launcher.controls.SkillsLevel[0].select(launcher.settings.LastSkill);
}
