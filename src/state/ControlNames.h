#pragma once

// What the controls of each array are, in the order of the array. The arrays keep their given names
// (Controls.h); these say what an element is to the player: controls.chkMain[Main::NoMonsters].

enum class Main { // chkMain: the strip, and one box of the graphics and of the options tab
    BasicDoom,    // no port enhancements, no models
    HighResTextures,
    AdvancedOptions,
    Light, // of the edit mode: one light level in all sectors
    NoObjects,
    EditMode,
    NoMonsters,
    Verbose,
    Count
};

enum class VYKOpts { // chkVYKOpts: the engine's options of the options tab, and the corpses'
    DisableMouse,
    DisableJoystick,
    AllowHiResRelocation,
    ResurrectCorpses,
    Spare,
    FastMonsters,
    NoSameTypeInfighting,
    NoLostSoulInfighting,
    MonsterRespawn,
    Count
};

enum class LaunchPrefs { // chkLaunchPrefs: the launcher's own preferences
    RememberLastMap,
    RememberLastSavegame,
    ShortcutCreation,
    DisableToolTips,
    WadFilesOnly,
    TipOfTheDay,
    Count
};

enum class Sound { // chkSound
    DisableSound,
    DisableMusic,
    Ricochets,
    Sound3D,
    AutoPlaylist,
    ManualPlaylist,
    SoundPack,
    Spare7,
    Spare8,
    FmodMidi,
    IgnorePlaylist, // where a WAD has music of its own
    Count
};

enum class Graphics { // chkGraphics
    Spare0,
    Spare1,
    DetailTextures,
    Skyboxes,
    HighResPatches,
    Count
};

enum class Effects { // chkEffects
    DynamicLighting,
    Spare,
    Splashes,
    ExtraFx, // smoke of torches and barrels
    Count
};

enum class ModelOpts { // ChkModelOpts
    Unused,
    NoForcedModels, // sprites that a WAD changed stay sprites
    Fx,             // Basic Doom with lighting and splashes
    CoreEffects,    // Basic Doom with particles and what else is optioned
    Count
};

enum class AltModels { // chkAltModels
    PistolZombies,
    Kelspack,
    KelspackAlternative,
    Replacements,
    Count
};

enum class Tool { // AuxButton: the toolbar, the last one on the options tab
    Install,
    Documentation,
    Shortcut,
    EditLog,
    EngineLog,
    Iwads,
    Font,
    ZipFolder,
    CleanUpModels,
    TextureFolder,
    Count
};

enum class View { InstalledGames, DoomGames, ZipLibrary, Count };     // OptionUdir
enum class Heading { Games, Files, Maps, SaveGames, Count };          // Auto
enum class Tab { Games, Options, Graphics, Sound, Models, Count };    // OptionTabs, TabFrame
enum class OptFrames { Game, Launcher, LaunchMode, Controls, Count }; // OptFrame
enum class GraphicsFrame {
    Resolution,
    SkinScaling,
    Unused,
    CorpseFade,
    Lighting,
    Graphics,
    Count
};                                                                           // GraphicFrames
enum class SoundFrames { Options, Playlists, Count };                        // SoundFrame
enum class ModelsFrame { Packs, Effects, Count };                            // FrameModel
enum class Panel { Whole, CommandLine, EditMode, Count };                    // FrameGlobal
enum class Link { Website, Unused1, Unused2, Downloads, Count };             // Home
enum class Purge { SaveGames, Nodes, Models, Count };                        // ButPurge
enum class Deletion { Nodes, SaveGames, Count };                             // DelLabel
enum class Texts { SkinScaling, CorpseFade, AudioChannels, Count };          // TexLabel
enum class ResolutionText { Hint, Resolution, Mode, RefreshRate, Count };    // ResLabel
enum class Advice { NewPacks, FromWebsite, CleanUpFirst, Downloads, Count }; // ModLabel
enum class SkillList { Advanced, Basic, Count };                             // SkillsLevel
enum class PlaylistCommand { New, Open, Delete, Count };                     // butMusic
enum class Step { Down, Up, Count };                                         // RicoButton
enum class AutoGame { Doom, Doom2, Plutonia, Tnt, Count };                   // mcAutoSelect
enum class LaunchMode { Normal, Minimised, Exit, Count };                    // ExitOption
enum class SkyMode { ReplaceMissing, Force, Count };                         // SkyOpt
enum class SmokeMode { More, Less, Count };                                  // Smoke

// ImageDG: two hidden pictures that a click changes into two others.
enum class DeveloperSpot {
    Unused0,
    Unused1,
    DevelopmentMode,
    NormalMode,
    Unused4,
    DevelopmentModeOn,
    NormalModeOn,
    Count
};
