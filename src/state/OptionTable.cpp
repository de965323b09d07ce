#include "state/OptionTable.h"

#include <algorithm>

namespace {

using enum LineKind;

template <auto Member>
auto& of(Controls& controls)
{
    return controls.*Member;
}
template <auto Array, auto Name>
auto& of(Controls& controls)
{
    return (controls.*Array)[Name];
}
template <auto Member>
OptionButtons& buttons(Controls& controls)
{
    return controls.*Member;
}

// clang-format off
constexpr OptionRow rows[] = {
    {1, Text, &Settings::LauncherVersion, u"v9.1"},
    {2, Number, &Settings::LastSkill, 2},
    {3, Number, &Settings::TitlePicIndex, 0},
    {4, LongNumber, &Settings::TipNumber, 0},
    {5, Number, &Settings::AudioChannels, 128, DropDownText{of<&Controls::cbChannels>}, nullptr, 0,
     u"Best left at the default value of 128, further\r\n" "information can be found in the VYK_sound.txt.", u"-ch"},
    {6, Number, &Settings::SkinScaling, 0, DropDownText{of<&Controls::cbScaler>}, nullptr, 0,
     u" Level at which model skins are scaled. Scaling down can give a \r\n" " substantial performance boost to users with older video cards  \r\n" " owing to memory constraints. This feature can be particularly\r\n" " useful when playing Keldrax's more demanding custom maps.", u"-dsst"},
    {7, Flag, &Settings::HighResPatches, true, CheckMirror{of<&Controls::chkGraphics, Graphics::HighResPatches>}, u"High resolution patches", 1,
     u"Renders high resolution menu, titlepic,\r\n" "interpics, message text, and HUD.", u"-np"},
    {8, Flag, &Settings::KelspackAlternative, false, CheckMirror{of<&Controls::chkAltModels, AltModels::KelspackAlternative>}, u"Kelspack alternative weapons MOD", 0,
     u"Modifies HUD weapon models with all new weapon types.", u"-ap"},
    {9, Flag, &Settings::Fx, false, CheckMirror{of<&Controls::ChkModelOpts, ModelOpts::Fx>}, u"FX", 0,
     u"Basic Doom with lighting, splashes and footsteps.", u"-xa"},
    {10, Flag, &Settings::KelspackWeapons, false, CheckMirror{of<&Controls::chkAltModels, AltModels::Kelspack>}, u"Kelspack weapons MOD", 0,
     u"Modifies standard HUD weapon models.", u"-fp"},
    {11, Flag, &Settings::CoreEffects, false, CheckMirror{of<&Controls::ChkModelOpts, ModelOpts::CoreEffects>}, u"Core Effects", 0,
     u"Enhanced Basic Doom including particle effects\r\n" "and all other enhanced features if optioned.", u"-xa"},
    {12, Flag, &Settings::NoForcedModels, false, CheckMirror{of<&Controls::ChkModelOpts, ModelOpts::NoForcedModels>}, u"No forced models", 0,
     u"Don't use models if modified sprites look similar\r\n" "to the originals. This option is not foolproof but\r\n" "does seem to work in the majority of cases.", u"-noamwds"},
    {13, Flag, &Settings::GrenadeLauncher, false, CheckMirror{of<&Controls::ChkGL>}, u"Grenade launcher", 0,
     u"Replaces the rocket launcher with either\r\n" "a grenade launcher or a pipebomb launcher\r\n" "if the delay timer is set to zero.", u"-gnd"},
    {14, Flag, &Settings::DevelopmentMode, false, CheckMirror{of<&Controls::chkTesting>}, u"Development mode", 0,
     u"If you have stumbled on this option by\r\n" "accident - ignore it (dev team only)."},
    {15, Flag, &Settings::DisableSound, false, CheckMirror{of<&Controls::chkSound, Sound::DisableSound>}, u"Disable sound", 0,
     u"Disables all sound and music.", u"-nosound"},
    {16, Flag, &Settings::DisableMusic, false, CheckMirror{of<&Controls::chkSound, Sound::DisableMusic>}, u"Disable music", 0,
     u"Disables music only.", u"-nomusic"},
    {17, Flag, &Settings::RicochetSetting, true, CheckMirror{of<&Controls::chkSound, Sound::Ricochets>}, u" Enable ricochets", 1,
     u"Enables ricochet for bullet sounds.", u"-cmd"},
    {18, Flag, &Settings::DisableMouse, false, CheckMirror{of<&Controls::chkVYKOpts, VYKOpts::DisableMouse>}, u"Disable mouse", 0,
     u"Prevents mouse being detected.", u"-nomouse"},
    {19, Flag, &Settings::MonsterRespawn, false, CheckMirror{of<&Controls::chkVYKOpts, VYKOpts::MonsterRespawn>}, u"Monster respawn", 0,
     u"Respawn Monsters after death.", u"-respawn"},
    {20, Flag, &Settings::NoSameTypeInfighting, false, CheckMirror{of<&Controls::chkVYKOpts, VYKOpts::NoSameTypeInfighting>}, u"No same type in-fighting", 0,
     u"Prevent same type monsters from attacking each other.", u"-noif1"},
    {21, Flag, &Settings::NoLostSoulInfighting, false, CheckMirror{of<&Controls::chkVYKOpts, VYKOpts::NoLostSoulInfighting>}, u"No lost soul in-fighting", 0,
     u"Prevent Lost Souls from inflicting damage on each other.", u"-noif2"},
    {22, Number, &Settings::LightLevel, 200, TextMirror{of<&Controls::LightText>}},
    {23, Text, &Settings::CustomText, u"", TextMirror{of<&Controls::edCustom>}, nullptr, 0,
     u"The majority of command line parameters are covered by\r\n" "launcher options, additional information can be found\r\n" "in the documentation under Help - VYK_Cmdline.txt."},
    {24, Flag, &Settings::RememberLastMap, true, CheckMirror{of<&Controls::chkLaunchPrefs, LaunchPrefs::RememberLastMap>}, u"Remember last map", 1,
     u"Automatically select the last launched map."},
    {25, Flag, &Settings::RememberLastSavegame, false, CheckMirror{of<&Controls::chkLaunchPrefs, LaunchPrefs::RememberLastSavegame>}, u"Remember last savegame", 0,
     u"Automatically select the last launched savegame."},
    {26, Flag, &Settings::TovrensReplacements, true, CheckMirror{of<&Controls::chkAltModels, AltModels::Replacements>}, u"Tovrens and Kels model replacements", 0,
     u"Enhanced model replacements.", u"-am"},
    {27, Flag, &Settings::PistolZombies, false, CheckMirror{of<&Controls::chkAltModels, AltModels::PistolZombies>}, u"Tovrens pistol packing zombies", 0,
     u"Pistol replaces the zombie's rifle.", u"-spz"},
    {28, Flag, &Settings::HighResTextures, true, CheckMirror{of<&Controls::chkMain, Main::HighResTextures>}, u"High resolution textures", 1,
     u"Renders high resolution wall and flat textures.", u"-nht"},
    {29, Flag, &Settings::NoMonsters, false},
    {30, Flag, &Settings::Verbose, false, CheckMirror{of<&Controls::chkMain, Main::Verbose>}, u"Verbose", 0,
     u"Provides in-game messages to the console and a\r\n" "more detailed Keldrax.out as a troubleshooting aid.", u"-v"},
    {31, Flag, &Settings::Skyboxes, true, CheckMirror{of<&Controls::chkGraphics, Graphics::Skyboxes>}, u"Skyboxes", 1,
     u"Renders a high resolution 3D sky.", u"-usb"},
    {32, Flag, &Settings::GunSmoke, true, CheckMirror{of<&Controls::GunSmoke>}, u"Gun smoke", 0,
     u"Allows gunsmoke for hudweapon models.", u"-cmd"},
    {33, Number, &Settings::SkyMode, 0, ButtonsMirror{buttons<&Controls::SkyOpt>}},
    {34, Number, &Settings::SmokeMode, 0, ButtonsMirror{buttons<&Controls::Smoke>}},
    {35, Flag, &Settings::AllowHiResRelocation, false, CheckMirror{of<&Controls::chkVYKOpts, VYKOpts::AllowHiResRelocation>}, u"Allow hi-res relocation", 0},
    {36, Flag, &Settings::HiResSoundPack, true, CheckMirror{of<&Controls::chkSound, Sound::SoundPack>}, u"Hi-Res sound pack ", 1,
     u"Veldtmoren's SFX sound replacements for Doom.\r\n" "Web site: www.veldtmoren.example", u"-data"},
    {37, Flag, &Settings::AutoPlaylistsOn, false, CheckMirror{of<&Controls::chkSound, Sound::AutoPlaylist>}, u"Auto", 0,
     u"Automatically load preselected playlists for different iwads, this\r\n" "also translates to any pwads that have no music replacements.", u"-extmus"},
    {38, Flag, &Settings::ForceFmodMidi, false, CheckMirror{of<&Controls::chkSound, Sound::FmodMidi>}, u"Force Fmod midi", 0,
     u"Force Fmod to play midi instead of Keldrax's internal midi sequencer.", u"-fmodmidi"},
    {39, Flag, &Settings::IgnorePlaylistIfCustomMusic, true, CheckMirror{of<&Controls::chkSound, Sound::IgnorePlaylist>}, u"Ignore playlist if custom music", 1,
     u"Custom map music in pwads will take\r\n" " precedence over any playlist settings.", u"-upm"},
    {40, Flag, &Settings::ResurrectCorpses, true, CheckMirror{of<&Controls::chkVYKOpts, VYKOpts::ResurrectCorpses>}, u"Resurrect corpses with fade", 1,
     u"When selected the archvile can resurrect corpses after\r\n" "they have disappeared if corpse time is not set to zero.", u"-ro"},
    {41, Flag, &Settings::DetailTextures, false, CheckMirror{of<&Controls::chkGraphics, Graphics::DetailTextures>}, u"Detail textures", 0,
     u"Enhances original textures if this pack is installed\r\n" "but does not apply if hires textures are to be used.", u"-dt"},
    {42, Flag, &Settings::SpareEffect, true, CheckMirror{of<&Controls::chkEffects, Effects::Spare>}, u"Spare", 1,
     u"Allows underwater colour effects."},
    {43, Flag, &Settings::FastMonsters, false, CheckMirror{of<&Controls::chkVYKOpts, VYKOpts::FastMonsters>}, u"Fast monsters", 0,
     u"Tougher monsters.", u"-fast"},
    {44, Flag, &Settings::BasicDoom, false, CheckMirror{of<&Controls::chkMain, Main::BasicDoom>}, u"Basic Doom", 0,
     u"Switches off port enhancements, this\r\n" "is required for heavily dehacked pwads.", u"-nc"},
    {45, Flag, &Settings::ScriptedMapMode, false, CheckMirror{of<&Controls::ChkCM>}, u"", 0},
    {46, Flag, &Settings::NoMonsters, false, CheckMirror{of<&Controls::chkMain, Main::NoMonsters>}, u"No monsters", 0,
     u"Removes monsters in both game and VYK edit.", u"-nm"},
    {47, Flag, &Settings::AdvancedOptions, false, CheckMirror{of<&Controls::chkMain, Main::AdvancedOptions>}, u"Advanced options", 0,
     u"Provides additional options for the advanced user."},
    {48, Flag, &Settings::EditMode, false, CheckMirror{of<&Controls::chkMain, Main::EditMode>}, u"Edit  mode", 0,
     u"Keldrax is put into edit mode which is used for texture\r\n" "alignment, any changes to offsets can be saved on exit\r\n" "Note: This only applies to editing pwads - not iwads.", u"-txe"},
    {49, Flag, &Settings::Light, false, CheckMirror{of<&Controls::chkMain, Main::Light>}, u"Light", 0,
     u"Set light level in all sectors - 0 to 255.", u"-txa"},
    {50, Flag, &Settings::NoObjects, false, CheckMirror{of<&Controls::chkMain, Main::NoObjects>}, u"No objects", 0,
     u"Removes all game objects in edit mode.", u"-txn"},
    {51, Flag, &Settings::DisableJoystick, false, CheckMirror{of<&Controls::chkVYKOpts, VYKOpts::DisableJoystick>}, u"Disable joystick", 0,
     u"Prevents joystick being detected.", u"-nojoy"},
    {52, Number, &Settings::Skill, 0, DropDownIndex{of<&Controls::SkillsLevel, SkillList::Basic>}, nullptr, 0,
     u"Skill level - sets the degree of difficulty.\r\n" "Note: The 'Start game from new' option\r\n" "takes you to the default Doom startup."},
    {53, Number, &Settings::LaunchMode, 1, ButtonsMirror{buttons<&Controls::ExitOption>}},
    {54, Text, &Settings::SelectedGameAutoOff, u""},
    {55, Text, &Settings::SelectedGameAutoOn, u""},
    {56, Text, &Settings::SelectedGame, u""},
    {57, Text, &Settings::SelectedDoomGame, u""},
    {58, Text, &Settings::SelectedArchive, u""},
    {59, Text, &Settings::ReservedText59, u""},
    {60, Number, &Settings::ListMode, 1},
    {61, Flag, &Settings::ShortcutCreation, false, CheckMirror{of<&Controls::chkLaunchPrefs, LaunchPrefs::ShortcutCreation>}, u"Shortcut creation", 1,
     u"Provides a shortcut creation tool."},
    {62, Flag, &Settings::ShowTipsAtStartup, true, CheckMirror{of<&Controls::chkLaunchPrefs, LaunchPrefs::TipOfTheDay>}, u"Display tip of the day", 1,
     u"Show tip of the day."},
    {63, Flag, &Settings::WadFilesOnly, false, CheckMirror{of<&Controls::chkLaunchPrefs, LaunchPrefs::WadFilesOnly>}, u"Display wad files only", 1,
     u"Only display wads in the game file list, caution\r\n" "this option will hide the author's info files."},
    {64, Flag, &Settings::DisableToolTips, false, CheckMirror{of<&Controls::chkLaunchPrefs, LaunchPrefs::DisableToolTips>}, u"Disable tooltip text", 0,
     u"Removes all the tooltip text from the launcher.\r\n" "Hint - this is what you are currently viewing."},
    {65, Flag, &Settings::DynamicLighting, true, CheckMirror{of<&Controls::chkEffects, Effects::DynamicLighting>}, u"Dynamic lighting", 1,
     u"Lighting is cast from light sources.", u"-cmd"},
    {66, Flag, &Settings::ExtraFx, false, CheckMirror{of<&Controls::chkEffects, Effects::ExtraFx>}, u"Extra FX", 0,
     u"Smoke effects for torches and flaming barrel.", u"-fx"},
    {67, Flag, &Settings::ManualPlaylistOn, false, CheckMirror{of<&Controls::chkSound, Sound::ManualPlaylist>}, u"Manual", 0,
     u"Manually load a selected playlist.", u"-extmus"},
    {68, Flag, &Settings::SpareSound7, true, CheckMirror{of<&Controls::chkSound, Sound::Spare7>}, u"Spare", 0,
     u"Weapon switching sounds for HUD weapons."},
    {69, Flag, &Settings::AutoSelect, false, CheckMirror{of<&Controls::chkAutoSelect>}, u"", 0},
    {70, Number, &Settings::ReservedNumber70, 0},
    {71, Number, &Settings::LastLaunchMode, 0},
    {72, Number, &Settings::CommandPanelMode, 1},
    {73, Text, &Settings::PlaylistName, u""},
    {74, Number, &Settings::CorpseSeconds, 9, TextMirror{of<&Controls::Corpse>}, nullptr, 0,
     u"Time in seconds before a corpse will fade.\r\n" " 9 - the longest duration before fading.\r\n" " 0 - no fade (not advisable with models).", u"-ct"},
    {75, Number, &Settings::RicochetInterval, 4, TextMirror{of<&Controls::Ricotext>}, nullptr, 0,
     u"Interval rate in which you hear ricochets.\r\n" " 1 - being the most frequently heard. \r\n" " 9 - being the least frequently heard.", u"-cmd"},
    {76, Number, &Settings::GrenadeTime, 2, TextMirror{of<&Controls::Timeout>}, nullptr, 0,
     u"Delay in seconds before grenade explodes.", u"-gnd"},
    {77, Flag, &Settings::SplashEffects, true, CheckMirror{of<&Controls::chkEffects, Effects::Splashes>}, u"Splash effects", 1,
     u"Enables splash and burn effects with certain animated flats.", u"-spx"},
    {78, Flag, &Settings::Sound3D, true, CheckMirror{of<&Controls::chkSound, Sound::Sound3D>}, u"3DSound", 0,
     u"Enables DSound with EAX for reverb\r\n" "and positional audio sound effects.", u"-3d"},
    {79, Flag, &Settings::SpareSound8, false, CheckMirror{of<&Controls::chkSound, Sound::Spare8>}, u"Spare", 0},
    {80, Flag, &Settings::PlaylistFrameHidden, true},
    {81, Text, &Settings::ReservedText81, u""},
    {82, LongNumber, &Settings::WindowTop, Settings::unknownPosition},
    {83, LongNumber, &Settings::WindowLeft, Settings::unknownPosition},
};
// clang-format on

constexpr bool numberedFromOne()
{
    int line = 0;
    return std::ranges::all_of(rows, [&line](const OptionRow& row) { return row.line == ++line; });
}
static_assert(numberedFromOne(), "the rows are the lines of config.vyk, in order");
static_assert(std::size(rows) == 83);

} // namespace

std::span<const OptionRow> OptionTable()
{
    return rows;
}

Settings DefaultSettings()
{
    Settings settings;
    for (const OptionRow& row : rows) {
        if (const auto* flag = std::get_if<bool Settings::*>(&row.member))
            settings.** flag = std::get<bool>(row.start);
        else if (const auto* number = std::get_if<int Settings::*>(&row.member))
            settings.** number = std::get<int>(row.start);
        else
            settings.*std::get<QString Settings::*>(row.member) =
                QString::fromUtf16(std::get<const char16_t*>(row.start));
    }
    return settings;
}

Control* ControlOf(const OptionRow& row, Controls& controls)
{
    return std::visit(
        [&controls](const auto& mirror) -> Control* {
            using Type = std::decay_t<decltype(mirror)>;
            if constexpr (std::is_same_v<Type, NoMirror> || std::is_same_v<Type, ButtonsMirror>)
                return nullptr;
            else
                return &mirror.of(controls);
        },
        row.mirror);
}
