#pragma once

#include "engines/KnownEngines.h"
#include "platform/FileSystem.h"

#include <QStringList>

// A playlist as other engines can play it: a WAD whose lumps stand in the place of the game's music.
//
// An engine that plays music files out of lumps gets the files themselves. One with music packs gets silent
// placeholders, each unlike any other, and a list that names the file for each by the SHA-1 of its bytes; the
// placeholder follows from the file's path, so that lists of several playlists agree.

struct MusicLump
{
    QString name;
    QString file;      // its music; empty for silence
    qint64 size = 0;   // of that file, in bytes
    QByteArray silent; // what stands in its place where the file itself cannot: a Standard MIDI File
};

struct MusicPack
{
    QString wad;           // the path of the WAD, in MusicFolder; empty when there is no music
    bool ownFiles = false; // its lumps are the files themselves
    QList<MusicLump> lumps;
    QStringList silences; // why a piece of the playlist stays silent, in words for the player
};

// Below the installation; with music packs it is what the engine is told.
inline const QString MusicPackFolder = QStringLiteral("VYKLaunch/Engines/Music");

// The pack for the playlist of that name; reads, and changes nothing. A playlist that cannot be read makes a
// pack without music.
MusicPack PlanMusicPack(const FileSystem& files, const QString& root, const QString& playlist, MusicWay way);

// Makes what is not there yet; all but the packs made last go. Throws FileError.
void WriteMusicPack(FileSystem& files, const QString& root, const MusicPack& pack);
