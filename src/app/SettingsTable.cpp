#include "app/SettingsTable.h"

#include <algorithm>

namespace {

using enum LineKind;

// clang-format off
constexpr SettingRow rows[] = {
    {1, Text, &Settings::LauncherVersion, u"v9.1", NoMirror{}},
    {2, Number, &Settings::LastSkill, 2, NoMirror{}},
    {3, Number, &Settings::TitlePicIndex, 0, NoMirror{}},
    {4, LongNumber, &Settings::TipNumber, 0, NoMirror{}},
    {5, Number, &Settings::AudioChannels, 128, DropDownText{[](Controls& c) -> ListBox& { return c.cbChannels; }}},
    {6, Number, &Settings::SkinScaling, 0, DropDownText{[](Controls& c) -> ListBox& { return c.cbScaler; }}},
    {7, Flag, &Settings::HighResPatches, true, CheckMirror{[](Controls& c) -> CheckBox& { return c.chkGraphics[4]; }}},
    {8, Flag, &Settings::KelspackAlternative, false, CheckMirror{[](Controls& c) -> CheckBox& { return c.chkAltModels[2]; }}},
    {9, Flag, &Settings::Fx, false, CheckMirror{[](Controls& c) -> CheckBox& { return c.ChkModelOpts[2]; }}},
    {10, Flag, &Settings::KelspackWeapons, false, CheckMirror{[](Controls& c) -> CheckBox& { return c.chkAltModels[1]; }}},
    {11, Flag, &Settings::CoreEffects, false, CheckMirror{[](Controls& c) -> CheckBox& { return c.ChkModelOpts[3]; }}},
    {12, Flag, &Settings::NoForcedModels, false, CheckMirror{[](Controls& c) -> CheckBox& { return c.ChkModelOpts[1]; }}},
    {13, Flag, &Settings::GrenadeLauncher, false, CheckMirror{[](Controls& c) -> CheckBox& { return c.ChkGL; }}},
    {14, Flag, &Settings::DevelopmentMode, false, CheckMirror{[](Controls& c) -> CheckBox& { return c.chkTesting; }}},
    {15, Flag, &Settings::DisableSound, false, CheckMirror{[](Controls& c) -> CheckBox& { return c.chkSound[0]; }}},
    {16, Flag, &Settings::DisableMusic, false, CheckMirror{[](Controls& c) -> CheckBox& { return c.chkSound[1]; }}},
    {17, Flag, &Settings::RicochetSetting, true, ShownByCheck{[](Controls& c) -> CheckBox& { return c.chkSound[2]; }}},
    {18, Flag, &Settings::DisableMouse, false, CheckMirror{[](Controls& c) -> CheckBox& { return c.chkVYKOpts[0]; }}},
    {19, Flag, &Settings::MonsterRespawn, false, CheckMirror{[](Controls& c) -> CheckBox& { return c.chkVYKOpts[8]; }}},
    {20, Flag, &Settings::NoSameTypeInfighting, false, CheckMirror{[](Controls& c) -> CheckBox& { return c.chkVYKOpts[6]; }}},
    {21, Flag, &Settings::NoLostSoulInfighting, false, CheckMirror{[](Controls& c) -> CheckBox& { return c.chkVYKOpts[7]; }}},
    {22, Number, &Settings::LightLevel, 200, TextMirror{[](Controls& c) -> TextBox& { return c.LightText; }}},
    {23, Text, &Settings::CustomText, u"", TextMirror{[](Controls& c) -> TextBox& { return c.edCustom; }}},
    {24, Flag, &Settings::RememberLastMap, true, CheckMirror{[](Controls& c) -> CheckBox& { return c.chkLaunchPrefs[0]; }}},
    {25, Flag, &Settings::RememberLastSavegame, false, CheckMirror{[](Controls& c) -> CheckBox& { return c.chkLaunchPrefs[1]; }}},
    {26, Flag, &Settings::TovrensReplacements, true, CheckMirror{[](Controls& c) -> CheckBox& { return c.chkAltModels[3]; }}},
    {27, Flag, &Settings::PistolZombies, false, CheckMirror{[](Controls& c) -> CheckBox& { return c.chkAltModels[0]; }}},
    {28, Flag, &Settings::HighResTextures, true, CheckMirror{[](Controls& c) -> CheckBox& { return c.chkMain[1]; }}},
    {29, Flag, &Settings::NoMonsters, false, CheckMirror{[](Controls& c) -> CheckBox& { return c.chkMain[6]; }}},
    {30, Flag, &Settings::Verbose, false, CheckMirror{[](Controls& c) -> CheckBox& { return c.chkMain[7]; }}},
    {31, Flag, &Settings::Skyboxes, true, CheckMirror{[](Controls& c) -> CheckBox& { return c.chkGraphics[3]; }}},
    {32, Flag, &Settings::GunSmoke, true, CheckMirror{[](Controls& c) -> CheckBox& { return c.GunSmoke; }}},
    {33, Number, &Settings::SkyMode, 0, ButtonsMirror{[](Controls& c) -> OptionButtons& { return c.SkyOpt; }}},
    {34, Number, &Settings::SmokeMode, 0, ButtonsMirror{[](Controls& c) -> OptionButtons& { return c.Smoke; }}},
    {35, Flag, &Settings::AllowHiResRelocation, false, CheckMirror{[](Controls& c) -> CheckBox& { return c.chkVYKOpts[2]; }}},
    {36, Flag, &Settings::HiResSoundPack, true, CheckMirror{[](Controls& c) -> CheckBox& { return c.chkSound[6]; }}},
    {37, Flag, &Settings::AutoPlaylistsOn, false, CheckMirror{[](Controls& c) -> CheckBox& { return c.chkSound[4]; }}},
    {38, Flag, &Settings::ForceFmodMidi, false, CheckMirror{[](Controls& c) -> CheckBox& { return c.chkSound[9]; }}},
    {39, Flag, &Settings::IgnorePlaylistIfCustomMusic, true, CheckMirror{[](Controls& c) -> CheckBox& { return c.chkSound[10]; }}},
    {40, Flag, &Settings::ResurrectCorpses, true, CheckMirror{[](Controls& c) -> CheckBox& { return c.chkVYKOpts[3]; }}},
    {41, Flag, &Settings::DetailTextures, false, CheckMirror{[](Controls& c) -> CheckBox& { return c.chkGraphics[2]; }}},
    {42, Flag, &Settings::SpareEffect, true, CheckMirror{[](Controls& c) -> CheckBox& { return c.chkEffects[1]; }}},
    {43, Flag, &Settings::FastMonsters, false, CheckMirror{[](Controls& c) -> CheckBox& { return c.chkVYKOpts[5]; }}},
    {44, Flag, &Settings::BasicDoom, false, CheckMirror{[](Controls& c) -> CheckBox& { return c.chkMain[0]; }}},
    {45, Flag, &Settings::ScriptedMapMode, false, CheckMirror{[](Controls& c) -> CheckBox& { return c.ChkCM; }}},
    {46, Flag, &Settings::NoMonsters, false, CheckMirror{[](Controls& c) -> CheckBox& { return c.chkMain[6]; }}},
    {47, Flag, &Settings::AdvancedOptions, false, CheckMirror{[](Controls& c) -> CheckBox& { return c.chkMain[2]; }}},
    {48, Flag, &Settings::EditMode, false, CheckMirror{[](Controls& c) -> CheckBox& { return c.chkMain[5]; }}},
    {49, Flag, &Settings::Light, false, CheckMirror{[](Controls& c) -> CheckBox& { return c.chkMain[3]; }}},
    {50, Flag, &Settings::NoObjects, false, CheckMirror{[](Controls& c) -> CheckBox& { return c.chkMain[4]; }}},
    {51, Flag, &Settings::DisableJoystick, false, CheckMirror{[](Controls& c) -> CheckBox& { return c.chkVYKOpts[1]; }}},
    {52, Number, &Settings::Skill, 0, DropDownIndex{[](Controls& c) -> ListBox& { return c.SkillsLevel[1]; }}},
    {53, Number, &Settings::LaunchMode, 1, ButtonsMirror{[](Controls& c) -> OptionButtons& { return c.ExitOption; }}},
    {54, Text, &Settings::SelectedGameAutoOff, u"", NoMirror{}},
    {55, Text, &Settings::SelectedGameAutoOn, u"", NoMirror{}},
    {56, Text, &Settings::SelectedGame, u"", NoMirror{}},
    {57, Text, &Settings::SelectedDoomGame, u"", NoMirror{}},
    {58, Text, &Settings::SelectedArchive, u"", NoMirror{}},
    {59, Text, &Settings::ReservedText59, u"", NoMirror{}},
    {60, Number, &Settings::ListMode, 1, NoMirror{}},
    {61, Flag, &Settings::ShortcutCreation, false, CheckMirror{[](Controls& c) -> CheckBox& { return c.chkLaunchPrefs[2]; }}},
    {62, Flag, &Settings::ShowTipsAtStartup, true, CheckMirror{[](Controls& c) -> CheckBox& { return c.chkLaunchPrefs[5]; }}},
    {63, Flag, &Settings::WadFilesOnly, false, CheckMirror{[](Controls& c) -> CheckBox& { return c.chkLaunchPrefs[4]; }}},
    {64, Flag, &Settings::DisableToolTips, false, CheckMirror{[](Controls& c) -> CheckBox& { return c.chkLaunchPrefs[3]; }}},
    {65, Flag, &Settings::DynamicLighting, true, CheckMirror{[](Controls& c) -> CheckBox& { return c.chkEffects[0]; }}},
    {66, Flag, &Settings::ExtraFx, false, CheckMirror{[](Controls& c) -> CheckBox& { return c.chkEffects[3]; }}},
    {67, Flag, &Settings::ManualPlaylistOn, false, CheckMirror{[](Controls& c) -> CheckBox& { return c.chkSound[5]; }}},
    {68, Flag, &Settings::SpareSound7, true, CheckMirror{[](Controls& c) -> CheckBox& { return c.chkSound[7]; }}},
    {69, Flag, &Settings::AutoSelect, false, CheckMirror{[](Controls& c) -> CheckBox& { return c.chkAutoSelect; }}},
    {70, Number, &Settings::ReservedNumber70, 0, NoMirror{}},
    {71, Number, &Settings::LastLaunchMode, 0, NoMirror{}},
    {72, Number, &Settings::CommandPanelMode, 1, NoMirror{}},
    {73, Text, &Settings::PlaylistName, u"", NoMirror{}},
    {74, Number, &Settings::CorpseSeconds, 9, TextMirror{[](Controls& c) -> TextBox& { return c.Corpse; }}},
    {75, Number, &Settings::RicochetInterval, 4, TextMirror{[](Controls& c) -> TextBox& { return c.Ricotext; }}},
    {76, Number, &Settings::GrenadeTime, 2, TextMirror{[](Controls& c) -> TextBox& { return c.Timeout; }}},
    {77, Flag, &Settings::SplashEffects, true, CheckMirror{[](Controls& c) -> CheckBox& { return c.chkEffects[2]; }}},
    {78, Flag, &Settings::Sound3D, true, CheckMirror{[](Controls& c) -> CheckBox& { return c.chkSound[3]; }}},
    {79, Flag, &Settings::SpareSound8, false, CheckMirror{[](Controls& c) -> CheckBox& { return c.chkSound[8]; }}},
    {80, Flag, &Settings::PlaylistFrameHidden, true, NoMirror{}},
    {81, Text, &Settings::ReservedText81, u"", NoMirror{}},
    {82, LongNumber, &Settings::WindowTop, Settings::unknownPosition, NoMirror{}},
    {83, LongNumber, &Settings::WindowLeft, Settings::unknownPosition, NoMirror{}},
};
// clang-format on

constexpr bool numberedFromOne()
{
    int line = 0;
    return std::ranges::all_of(rows, [&line](const SettingRow& row) { return row.line == ++line; });
}
static_assert(numberedFromOne(), "the rows are the lines of config.vyk, in order");
static_assert(std::size(rows) == 83);

} // namespace

std::span<const SettingRow> SettingsTable()
{
    return rows;
}
