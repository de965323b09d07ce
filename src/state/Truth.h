#pragma once

#include "state/Facts.h"
#include "state/FontSetting.h"
#include "state/Selection.h"
#include "state/Settings.h"

// All that is true: what the player set, what he picked, and what the disk holds. What the window shows and
// what a launch would do are functions of this alone.
struct Truth
{
    Settings settings;
    Selection selection;
    Facts facts;

    // As the launcher was started.
    FontSetting font;
    bool RunningUnderWine = false;

    View view() const { return static_cast<View>(settings.ListMode); }
    bool gameIs(GameKind kind) const { return facts.game.kind == kind; }

    // The game's files that the list shows.
    QStringList shownFiles() const;

    // The chosen one of them; empty when none is.
    QString chosenFile() const;

    // The path of the chosen file: of the main WAD, or of what was chosen in its place; empty when none is.
    QString SelectedGameFile() const;

    // The base name of the chosen WAD, under which the engine and the installation keep what belongs to it;
    // empty when no WAD is chosen: a text that happens to have another WAD's name is none.
    QString chosenWadName() const;

    // The chosen map and savegame, as far as they are there.
    QString chosenMap() const;
    QString chosenSlot() const;
    ::StartChoice startChoice() const;

    // One of the engine maker's scripted maps, or the engine's own add-on, is selected: it brings its own
    // sprites and graphics.
    bool isScriptedMap() const;

    // The engine that starts the games, of those that were found; nullptr when there is none, or no choice.
    const FoundEngine* engine() const;

    // Where the engine keeps the savegames of what is chosen, below the installation; empty when nothing is.
    QString saveGameFolder() const;
};

// Whether the files list shows a game file of this name while it is to show WADs only.
bool IsShownFile(const QString& name, bool wadFilesOnly);
