#pragma once

#include "platform/FileSystem.h"

#include <QStringList>

// True for the files of a game's folder that count as its own. On the way the folder is tidied: nodes
// that the engine built (…VYKgwa) are deleted and a backup it left (…VYKbak) becomes the WAD again.
//   folder  the game's folder, ending in '/'
bool IsGameFile(FileSystem& files, const QString& folder, const QString& name);

// The names of a folder's game files, ascending without regard to case.
QStringList GameFilesOf(FileSystem& files, const QString& folder);

// The game files of a folder that go on the command line with a main WAD: that one first, the other WADs,
// then patches and definitions. Names, as `names` are.
QStringList GatherGameFiles(const QStringList& names, const QString& mainWad);
