#pragma once

#include <QString>

#include <limits>

// Everything the player set, as config.vyk stores it (SettingsTable.h has the lines and the defaults).
// Most fields mirror one option control; `on` in the rules means the field, `ticked` the control.
struct Settings
{
    // No position was saved: the window is centred.
    static constexpr int unknownPosition = std::numeric_limits<int>::min();

    QString LauncherVersion;
    int LastSkill = 0;
    int TitlePicIndex = 0;
    int TipNumber = 0;
    int AudioChannels = 0;
    int SkinScaling = 0;
    bool HighResPatches = false;
    bool KelspackAlternative = false;
    bool Fx = false;
    bool KelspackWeapons = false;
    bool CoreEffects = false;
    bool NoForcedModels = false;
    bool GrenadeLauncher = false;
    bool DevelopmentMode = false;
    bool DisableSound = false;
    bool DisableMusic = false;
    bool RicochetSetting = false;
    bool DisableMouse = false;
    bool MonsterRespawn = false;
    bool NoSameTypeInfighting = false;
    bool NoLostSoulInfighting = false;
    int LightLevel = 0;
    QString CustomText;
    bool RememberLastMap = false;
    bool RememberLastSavegame = false;
    bool TovrensReplacements = false;
    bool PistolZombies = false;
    bool HighResTextures = false;
    bool NoMonsters = false;
    bool Verbose = false;
    bool Skyboxes = false;
    bool GunSmoke = false;
    int SkyMode = 0;
    int SmokeMode = 0;
    bool AllowHiResRelocation = false;
    bool HiResSoundPack = false;
    bool AutoPlaylistsOn = false;
    bool ForceFmodMidi = false;
    bool IgnorePlaylistIfCustomMusic = false;
    bool ResurrectCorpses = false;
    bool DetailTextures = false;
    bool SpareEffect = false;
    bool FastMonsters = false;
    bool BasicDoom = false;
    bool ScriptedMapMode = false;
    bool AdvancedOptions = false;
    bool EditMode = false;
    bool Light = false;
    bool NoObjects = false;
    bool DisableJoystick = false;
    int Skill = 0;
    int LaunchMode = 0;
    QString SelectedGameAutoOff;
    QString SelectedGameAutoOn;
    QString SelectedGame;
    QString SelectedDoomGame;
    QString SelectedArchive;
    QString ReservedText59;
    int ListMode = 0; // 0 installed games, 1 Doom games, 2 zip library
    bool ShortcutCreation = false;
    bool ShowTipsAtStartup = false;
    bool WadFilesOnly = false;
    bool DisableToolTips = false;
    bool DynamicLighting = false;
    bool ExtraFx = false;
    bool ManualPlaylistOn = false;
    bool SpareSound7 = false;
    bool AutoSelect = false;
    int ReservedNumber70 = 0;
    int LastLaunchMode = 0;
    int CommandPanelMode = 0;
    QString PlaylistName;
    int CorpseSeconds = 0;
    int RicochetInterval = 0;
    int GrenadeTime = 0;
    bool SplashEffects = false;
    bool Sound3D = false;
    bool SpareSound8 = false;
    bool PlaylistFrameHidden = false;
    QString ReservedText81;
    int WindowTop = unknownPosition; // layout units
    int WindowLeft = unknownPosition;

    // Not in config.vyk: the folder of the player's high-resolution textures (texpath.vyk).
    QString TexturePath;
    // Nor is this: the engine that starts the games (engine.vyk); empty for the first that is found.
    QString Engine;
};
