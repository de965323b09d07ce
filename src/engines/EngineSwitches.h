#pragma once

#include "engines/KnownEngines.h"

#include <array>
#include <span>

// The switches that the launcher writes on the engine's command line.

// What follows a switch.
enum class SwitchValues {
    None,
    One,
    Number, // one number, handed on without leading zeros
    Map,    // the number of a map, or of an episode and a map
    Many    // everything up to the next switch
};

// What becomes of a switch.
enum class SwitchUse {
    LeaveOut,   // nothing of it in other engines
    Pass,       // handed on, with its values, as what it is in the engine
    Load,       // the same, and a game that it is missing from would not be the chosen one
    NamedIwad,  // names one of the commercial games' IWADs
    IwadFile,   // -iwad
    GameFolder, // -udir
    GameFiles,  // -f
    Patches,    // -deh
    DataFiles,  // -data: loaded before the game's own files
    Playlist,   // -extmus: the music of maps and intermissions
    OwnMusic,   // -upm: what a game brings itself comes before the playlist
    ExtraFiles  // -file: typed by the player, loaded after the others, but for the WAD that is played
};

// What a switch is in each engine, in the order of EngineId; empty where the engine has nothing of the kind.
// Without a "-" it is a setting of its configuration file and the value.
using InEngines = std::array<QStringView, static_cast<size_t>(EngineId::Count)>;

struct EngineSwitch
{
    QStringView text; // compared without regard to case
    SwitchUse use;
    SwitchValues values;
    InEngines engines{}; // of Pass and Load
    QStringView iwad{};  // of NamedIwad: its file name
};

std::span<const EngineSwitch> EngineSwitches();

// What `engine` is started with in place of the switch; empty when it does nothing with it.
QString InEngine(const EngineSwitch& known, const KnownEngine& engine);

// The row of `argument`; nullptr when it is no switch of the launcher's.
const EngineSwitch* FindEngineSwitch(QStringView argument);
