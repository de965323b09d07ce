#pragma once

#include "engines/FoundEngines.h"
#include "platform/FileSystem.h"
#include "state/IwadPaths.h"
#include "ui/Control.h"

#include <QHash>
#include <QStringList>

#include <array>

// What the disk holds, as it was read last. Nothing else stands here: what follows from it is computed.

// The optional model packs, and what else is looked for among the models and their definitions.
struct ModelPacks
{
    bool ModelPacksMissing = true;     // the base pack is not there
    bool ModelPack2Installed = false;  // the Tovrens pack
    bool KelspackInstalled = false;    // the optional weapons
    bool CoreEffectsInstalled = false; // without them the game runs in FX mode, whatever its box shows
    bool zombies = false;              // the model of the zombies with pistols
    bool extraEffects = false;         // definitions of the base pack
    bool gunSmoke = false;
    bool kelspackWad = false;
    bool hudWeaponsAgree = true;    // the two definition files of HUD weapons are of one version
    bool scriptedMapModels = false; // at least one of the scripted maps' model folders
    bool vexAddonOutdated = false;  // or missing
    bool operator==(const ModelPacks&) const = default;
};

// The packs of graphics and sound.
struct ResourcePacks
{
    bool patches = false;
    bool detailTextures = false;
    bool skyboxes = false;
    bool sounds = false;
    QString textures;            // the folder of high-resolution textures that is there; empty when none is
    bool texturesAreOwn = false; // ... the installation's own
    bool operator==(const ResourcePacks&) const = default;
};

// What is known of the IWAD of a family.
struct IwadOnDisk
{
    bool exists = false;
    bool foundByEngine = false; // in a standard place, without being told
};

enum class GameKind { None, Doom, Pwad, Gwad, Archive };

struct ScriptedMapCheck
{
    bool isScriptedMap = false;
    bool isComplete = false; // its WAD, its models and its textures are there
};

// The selected game.
struct GameFacts
{
    GameKind kind = GameKind::None;
    QString name;      // on disk; a Doom game's title
    QString folder;    // of its files; ends in '/'
    QStringList files; // the names of its game files, ascending, of every kind
    QString mainWad; // the one it starts with unless another is chosen; a game that loads its files has none
    ScriptedMapCheck scriptedMap;
};

struct SaveGame
{
    QString slot; // one digit
    QString description;
};

// The chosen file of the selected game.
struct FileFacts
{
    QStringList maps;        // in the order of its directory
    int compatibility = 0;   // the entry, 1 to 7, of checkpwad.vyk that names it; 0 none
    bool isOutdated = false; // a scripted map older than this version of the engine takes
    QList<SaveGame> savegames;
};

struct ResolutionFacts
{
    QString resolution; // empty when the engine has written none
    QString mode;
    QString refreshRate;
};

// The zip whose files lie extracted in a folder of their own, and the state that both were in.
struct OpenedArchive
{
    QString path;
    QString folder; // ends in '/'
    FileStamp archiveStamp;
    FileStamp folderStamp;
    bool operator==(const OpenedArchive&) const = default;
};

// What the game-file tool said of a WAD, and which state of the file it said it of.
struct KnownReport
{
    FileStamp stamp;
    QString text;
    bool isKnown = false;
};

struct Facts
{
    ModelPacks modelPacks;
    ResourcePacks resources;
    IwadPaths iwads;
    std::array<IwadOnDisk, 5> iwadsOnDisk; // by family
    QList<ListEntry> games;                // of the view, sorted as they are listed
    bool customZipLibrary = false;         // the player chose its folder
    GameFacts game;
    FileFacts file;
    QStringList playlists;
    QStringList autoPlaylists;       // of Doom, Doom II, Plutonia and TNT; empty without auto-playlist.vyk
    bool startsOtherEngines = false; // or Bin/Keldrax is the engine itself
    QList<FoundEngine> engines;      // ... that it can start
    ResolutionFacts resolution;
    QStringList titlePictures; // the first is the standard one
    int logicalDpi = 96;       // horizontal, of the screen

    // What need not be read again while its files are as they were.
    QHash<QString, KnownReport> wadReports; // by path
    OpenedArchive opened;

    const IwadOnDisk& onDisk(GameFamily family) const { return iwadsOnDisk[static_cast<size_t>(family)]; }
};
