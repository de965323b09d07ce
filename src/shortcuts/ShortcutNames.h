#pragma once

#include "state/Truth.h"

// What shortcuts are called.

// The name of a shortcut to what is selected: the game's, and of a Gwad game also the chosen file's; Doom
// games have short ones. Empty when nothing is selected.
QString ShortcutNameOf(const Truth& truth);

// What the dialog calls it.
QString GetShortcutName(const Truth& truth);

// " - " and the selected map; empty without one, and where the engine shows its menu first.
QString MapSuffixOf(const Truth& truth);
