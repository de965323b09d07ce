#pragma once

#include "state/Launcher.h"

// The games list with its three views and its filter.
void ConnectGameLists(Launcher& launcher);

// Switches the games list to a view and selects the game remembered for it, else the first; also the way
// to list a view again after the catalogue changed.
void SelectView(Launcher& launcher, View view);

// Shows the installed games with `name` selected, whatever the filter hid.
void ShowInstalledGame(Launcher& launcher, const QString& name);

// Reads the games of a view, without regard to what is selected.
QList<ListEntry> GamesOf(Launcher& launcher, View view);
QList<ListEntry> FillInstalledGamesList(const Launcher& launcher);
QList<ListEntry> FillDoomGamesList(const IwadPaths& iwads, bool customFontOn);
QList<ListEntry> FillArchiveList(FileSystem& files, const QString& folder, bool customFontOn);

// The entry of a list with this name, else with this text, without regard to case; an empty one when there
// is none.
ListEntry FindGame(const QList<ListEntry>& games, const QString& name);
