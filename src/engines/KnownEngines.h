#pragma once

#include <QString>

#include <span>

enum class EngineId { Crispy, Chocolate, Woof, Dsda, Count };

// How an engine plays music files: not at all as far as is known, by music packs, or out of a WAD's lumps.
enum class MusicWay { None, Packs, Lumps };

// What differs between the Doom engines that the adapter can start.
struct KnownEngine
{
    EngineId id;
    QStringView program;          // the base name of its file
    QStringView title;            // as players know it
    QStringView versionMark;      // what stands before the version in its program file
    QStringView fileSwitch;       // loads WADs, with their sprites and flats put into the IWAD's
    QStringView patchLumpsSwitch; // obeys the patches inside WADs; empty where it does so anyway
    QStringView
        saveFolderSwitch;    // one or more, followed by the folder that the engine keeps its savegames in
    QStringView savegame;    // the file name of a slot's savegame there, %1 being the slot
    QStringView quietSwitch; // an error is printed and not shown in a window that waits; may be empty
    MusicWay music;
    QStringView secondConfig; // beside default.cfg, where it can be told to use a pair of such files
};

// In the order in which one is chosen where the player did not.
std::span<const KnownEngine> KnownEngines();

// The row of the engine at `program`, by its base name; nullptr for an unknown one.
const KnownEngine* FindKnownEngine(const QString& program);

// The same, and for an unknown engine what most of them share.
const KnownEngine& ConventionsOf(const QString& program);
