#pragma once

#include "app/Launcher.h"

// What shortcuts are called.

// The name of a shortcut to what is selected: the game's, and of a Gwad game also the chosen file's; Doom
// games have short ones. Empty when nothing is selected.
QString ShortcutNameOf(const Launcher& launcher);

// What the dialog calls it.
QString GetShortcutName(const Launcher& launcher);

// " - " and the selected map; empty without one, and where the engine shows its menu first.
QString MapSuffixOf(const Launcher& launcher);

// The name of the shortcut's file, without an extension: only its first letter is a capital, and the M of a
// map.
QString ShortcutFileName(const QString& name, const QString& mapSuffix);
