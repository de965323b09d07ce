#pragma once

#include "app/Launcher.h"

// The two skill lists show the same skill; choosing one also decides how the game starts.
void ConnectSkills(Launcher& launcher);

// Skill 0 ("Start game from New") starts a new game and chooses neither map nor savegame; a skill above
// keeps what is chosen, else chooses the remembered or first map.
void SetMapFocus(Launcher& launcher);

// Choosing a map or savegame while the lists stand at "Start game from New" brings the last skill back.
void RestoreRememberedSkill(Launcher& launcher);
