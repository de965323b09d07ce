#pragma once

#include "state/InstallationPaths.h"
#include "state/Truth.h"

// The small files under GameInfo that remember, for each game, what was chosen last: of the selected game,
// where nothing else is said. A record that cannot be read is an empty value; one that cannot be written is
// given up without a message.
class GameRecords
{
public:
    GameRecords(FileSystem& files, const InstallationPaths& paths, const Truth& truth);

    // The map chosen last; for a Gwad game that of the chosen file.
    QString map() const;

    // The chosen map. For a Gwad game also the chosen file; its map only while maps are remembered.
    void SaveLastMap();
    void SaveGwadSelection();

    // The file chosen last in a Gwad game.
    QString gwadFile() const;

    // The last savegame's slot: one digit, or empty.
    QString LastSavegame() const;
    void SaveLastSavegame();
    void ForgetLastSavegame();

private:
    QString mapRecord() const;
    QString savegameRecord() const;

    FileSystem& m_files;
    QString m_info; // the folder of all records
    const Truth& m_truth;
};
