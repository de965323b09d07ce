#pragma once

#include "platform/FileSystem.h"

#include <QStringList>
#include <functional>

// True for the files of a game's folder that count as its own. On the way the folder is tidied: nodes
// that the engine built (…VYKgwa) are deleted and a backup it left (…VYKbak) becomes the WAD again.
//   folder        the game's folder, ending in '/'
//   wadFilesOnly  whether texts, patches and definitions are left out
bool IsGameFile(FileSystem& files, const QString& folder, const QString& name, bool wadFilesOnly);

// The names of a folder's game files, ascending without regard to case.
QStringList GameFilesOf(FileSystem& files, const QString& folder, bool wadFilesOnly);

struct GatheredFiles
{
    bool inGameFolder = false; // the main WAD lies in a folder named Pwads, Gwads or Zips
    bool isArchive = false;    // ... named Zips
    QString userDir;           // GameUserDir
    QStringList StoredFiles; // full paths: the main WAD, WADs with maps, other WADs, patches and definitions
};

// The files that go on the command line with a main WAD; `countMaps` is CountWadMaps of a path.
GatheredFiles GatherGameFiles(const FileSystem& files, const QString& mainWad,
                              const std::function<int(const QString&)>& countMaps);
