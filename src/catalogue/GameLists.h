#pragma once

#include "app/Launcher.h"

// The games list with its three views and its filter.

constexpr int installedGames = 0; // Settings::ListMode
constexpr int doomGames = 1;
constexpr int zipLibrary = 2;

void ConnectGameLists(Launcher& launcher);

// Switches the games list to a view and selects the game remembered for it, else the first; also the way
// to list a view again after the catalogue changed.
void OptionUdirClick(Launcher& launcher, int view);

// Shows the installed games with `name` selected, whatever the filter hid.
void ShowInstalledGame(Launcher& launcher, const QString& name);

// PwadList's entries for a view, without regard to what is selected.
void FillGamesList(Launcher& launcher, int view);
void FillInstalledGamesList(Launcher& launcher);
void FillDoomGamesList(Launcher& launcher);
void FillArchiveList(Launcher& launcher, const QString& folder);

// How the list shows an installed game or a zip whose name on disk is `name`.
QString ListedGameName(const Launcher& launcher, const QString& name);
QString ListedArchiveName(const Launcher& launcher, const QString& name);

// The text over the list of a view.
QString ListHeading(const Launcher& launcher, int view);
