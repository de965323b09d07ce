#pragma once

#include "state/Launcher.h"

// How a game starts: at a map, from a savegame, or as a new game, with which skill. The savegames' part is
// theirs.

// The map list and the two skill lists, which show the same skill.
void ConnectStart(Launcher& launcher);

// Chooses the map to start with: the remembered one, else the first; no savegame.
void SelectStartMap(Launcher& launcher);

// Skill 0 ("Start game from New") starts a new game and chooses neither map nor savegame; a skill above
// keeps what is chosen, else chooses the remembered or first map.
void SetMapFocus(Launcher& launcher);

// Choosing a map or savegame while the lists stand at "Start game from New" brings the last skill back.
void RestoreRememberedSkill(Settings& settings);
