#pragma once

#include "platform/FileSystem.h"

#include <QString>

// The zip whose files lie extracted in the zip folder, and the state that both were in.
struct OpenedArchive
{
    QString path;
    FileStamp archive;
    FileStamp folder;
    bool operator==(const OpenedArchive&) const = default;
};

// What is selected in the games list and in the lists beside it. The names selected in each view are
// settings; the list that is shown is Settings::ListMode.
struct Selection
{
    QString SelectedPwadGame;
    QString SelectedGwadGame;
    QString SelectedGameFolder; // ends in '/'
    QString SelectedGameFile;   // the main WAD's path; empty when none is chosen
    QString SelectedWadPath;    // the WAD whose maps are shown: for a Doom game its IWAD
    QString GameUserDir;        // the game's own folder name; for a zip the folder of its files

    // At most one is set.
    bool DoomGameSelected = false;
    bool PwadSelected = false;
    bool GwadSelected = false;
    bool ArchiveSelected = false;

    // One of the engine maker's scripted maps, with all that it needs, or the engine's own add-on.
    bool ScriptedMap = false;

    bool gamesChanged = false; // the games tab shows the selected game anew when it comes back

    QString SaveGameFolder; // of the selected game

    QString LastInstallFolder; // of the file installed last

    OpenedArchive opened;
    bool passwordsDeclined = false; // the player has none: no zip asks for one again

    bool ignoreScriptedMapClick = false; // the next click on the scripted-map switch does nothing
};
