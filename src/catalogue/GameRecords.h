#pragma once

#include "app/Launcher.h"

// The small files under GameInfo that remember, for each game, what was chosen last. A record that
// cannot be read is an empty value; one that cannot be written is given up without a message.

// The name under which the selected game keeps its records, as listed.
QString SelectedRecordName(const Launcher& launcher);

// The last map of a Doom game (by title), a PWAD game or a zip (by name); the kind is the selected one's.
void SaveLastMap(Launcher& launcher, const QString& name);

// Selects the remembered map in MapList, or the first one.
void RestoreLastMap(Launcher& launcher, const QString& name);

// The file chosen last in a Gwad game, and the map chosen last for each of its files. The map is written
// only while maps are remembered.
void SaveGwadSelection(Launcher& launcher, const QString& name);

// Selects the remembered file of a Gwad game in PwadShowlist, or none; false when there is none.
bool RestoreGwadFile(Launcher& launcher, const QString& name);

// Selects the map remembered for the chosen file of a Gwad game, or the first one.
void RestoreGwadMap(Launcher& launcher, const QString& name);

// The last savegame's slot of the selected game: one digit, or empty.
void SaveLastSavegame(Launcher& launcher);
void ForgetLastSavegame(Launcher& launcher);
QString LastSavegame(const Launcher& launcher);
