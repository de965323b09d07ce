#include "app/ToolTips.h"

namespace {

struct Tip
{
    Control& (*of)(Controls&);
    const char16_t* text;
};

// clang-format off
constexpr Tip tips[] = {
    {[](Controls& c) -> Control& { return c.chkSound[0]; },
     u"Disables all sound and music."},
    {[](Controls& c) -> Control& { return c.chkSound[1]; },
     u"Disables music only."},
    {[](Controls& c) -> Control& { return c.chkSound[2]; },
     u"Enables ricochet for bullet sounds."},
    {[](Controls& c) -> Control& { return c.chkSound[3]; },
     u"Enables DSound with EAX for reverb\r\n"
     "and positional audio sound effects."},
    {[](Controls& c) -> Control& { return c.chkSound[5]; },
     u"Manually load a selected playlist."},
    {[](Controls& c) -> Control& { return c.chkSound[4]; },
     u"Automatically load preselected playlists for different iwads, this\r\n"
     "also translates to any pwads that have no music replacements."},
    {[](Controls& c) -> Control& { return c.chkSound[6]; },
     u"Veldtmoren's SFX sound replacements for Doom.\r\n"
     "Web site: www.veldtmoren.example"},
    {[](Controls& c) -> Control& { return c.chkSound[7]; },
     u"Weapon switching sounds for HUD weapons."},
    {[](Controls& c) -> Control& { return c.chkSound[9]; },
     u"Force Fmod to play midi instead of Keldrax's internal midi sequencer."},
    {[](Controls& c) -> Control& { return c.chkSound[10]; },
     u"Custom map music in pwads will take\r\n"
     " precedence over any playlist settings."},
    {[](Controls& c) -> Control& { return c.Ricotext; },
     u"Interval rate in which you hear ricochets.\r\n"
     " 1 - being the most frequently heard. \r\n"
     " 9 - being the least frequently heard."},
    {[](Controls& c) -> Control& { return c.cbChannels; },
     u"Best left at the default value of 128, further\r\n"
     "information can be found in the VYK_sound.txt."},
    {[](Controls& c) -> Control& { return c.cbScaler; },
     u" Level at which model skins are scaled. Scaling down can give a \r\n"
     " substantial performance boost to users with older video cards  \r\n"
     " owing to memory constraints. This feature can be particularly\r\n"
     " useful when playing Keldrax's more demanding custom maps."},
    {[](Controls& c) -> Control& { return c.butMusic[0]; },
     u"Create a new playlist - new music for each map."},
    {[](Controls& c) -> Control& { return c.butMusic[1]; },
     u"Open an existing playlist for editing purposes."},
    {[](Controls& c) -> Control& { return c.butMusic[2]; },
     u"Delete a playlist."},
    {[](Controls& c) -> Control& { return c.chkGraphics[1]; },
     u"Texture detail is sharpened at a distance\r\n"
     "if your video card supports this feature."},
    {[](Controls& c) -> Control& { return c.chkGraphics[2]; },
     u"Enhances original textures if this pack is installed\r\n"
     "but does not apply if hires textures are to be used."},
    {[](Controls& c) -> Control& { return c.chkGraphics[3]; },
     u"Renders a high resolution 3D sky."},
    {[](Controls& c) -> Control& { return c.chkGraphics[4]; },
     u"Renders high resolution menu, titlepic,\r\n"
     "interpics, message text, and HUD."},
    {[](Controls& c) -> Control& { return c.SkyOpt[0]; },
     u"Replace sky with a skybox if a custom \r\n"
     "sky does not exist in the pwad."},
    {[](Controls& c) -> Control& { return c.SkyOpt[1]; },
     u"Force skybox if possible."},
    {[](Controls& c) -> Control& { return c.chkMain[1]; },
     u"Renders high resolution wall and flat textures."},
    {[](Controls& c) -> Control& { return c.Corpse; },
     u"Time in seconds before a corpse will fade.\r\n"
     " 9 - the longest duration before fading.\r\n"
     " 0 - no fade (not advisable with models)."},
    {[](Controls& c) -> Control& { return c.chkEffects[0]; },
     u"Lighting is cast from light sources."},
    {[](Controls& c) -> Control& { return c.chkEffects[1]; },
     u"Allows underwater colour effects."},
    {[](Controls& c) -> Control& { return c.chkEffects[2]; },
     u"Enables splash and burn effects with certain animated flats."},
    {[](Controls& c) -> Control& { return c.chkEffects[3]; },
     u"Smoke effects for torches and flaming barrel."},
    {[](Controls& c) -> Control& { return c.Smoke[0]; },
     u"More smoke."},
    {[](Controls& c) -> Control& { return c.Smoke[1]; },
     u"Less smoke."},
    {[](Controls& c) -> Control& { return c.GunSmoke; },
     u"Allows gunsmoke for hudweapon models."},
    {[](Controls& c) -> Control& { return c.AuxButton[0]; },
     u"Install a pwad to the games list, either\r\n"
     "zipped or unzipped files can be installed."},
    {[](Controls& c) -> Control& { return c.AuxButton[1]; },
     u"Keldrax documentation and help files.  "},
    {[](Controls& c) -> Control& { return c.AuxButton[2]; },
     u"Create a shortcut using the current launcher settings."},
    {[](Controls& c) -> Control& { return c.AuxButton[3]; },
     u"View edit.out file for amended texture offsets."},
    {[](Controls& c) -> Control& { return c.AuxButton[4]; },
     u"View Keldrax.out file."},
    {[](Controls& c) -> Control& { return c.AuxButton[5]; },
     u"Iwad locations used by Keldrax."},
    {[](Controls& c) -> Control& { return c.AuxButton[6]; },
     u"Change launcher font."},
    {[](Controls& c) -> Control& { return c.AuxButton[7]; },
     u"Specify the location of your zipped wad files."},
    {[](Controls& c) -> Control& { return c.AuxButton[8]; },
     u"Model pack cleanup tool."},
    {[](Controls& c) -> Control& { return c.LaunchButton; },
     u"Launch game selected in list."},
    {[](Controls& c) -> Control& { return c.SkillsLevel[0]; },
     u"Skill level - sets the degree of difficulty.\r\n"
     "Note: The 'Start game from new' option\r\n"
     "takes you to the default Doom startup."},
    {[](Controls& c) -> Control& { return c.SkillsLevel[1]; },
     u"Skill level - sets the degree of difficulty.\r\n"
     "Note: The 'Start game from new' option\r\n"
     "takes you to the default Doom startup."},
    {[](Controls& c) -> Control& { return c.chkMain[0]; },
     u"Switches off port enhancements, this\r\n"
     "is required for heavily dehacked pwads."},
    {[](Controls& c) -> Control& { return c.chkMain[2]; },
     u"Provides additional options for the advanced user."},
    {[](Controls& c) -> Control& { return c.chkMain[3]; },
     u"Set light level in all sectors - 0 to 255."},
    {[](Controls& c) -> Control& { return c.chkMain[4]; },
     u"Removes all game objects in edit mode."},
    {[](Controls& c) -> Control& { return c.chkMain[5]; },
     u"Keldrax is put into edit mode which is used for texture\r\n"
     "alignment, any changes to offsets can be saved on exit\r\n"
     "Note: This only applies to editing pwads - not iwads."},
    {[](Controls& c) -> Control& { return c.chkMain[6]; },
     u"Removes monsters in both game and VYK edit."},
    {[](Controls& c) -> Control& { return c.chkMain[7]; },
     u"Provides in-game messages to the console and a\r\n"
     "more detailed Keldrax.out as a troubleshooting aid."},
    {[](Controls& c) -> Control& { return c.OptionUdir[1]; },
     u"List of Doom iwads."},
    {[](Controls& c) -> Control& { return c.OptionUdir[0]; },
     u"List of user installed pwads."},
    {[](Controls& c) -> Control& { return c.OptionUdir[2]; },
     u"List of stored zips - location specified by user."},
    {[](Controls& c) -> Control& { return c.edCustom; },
     u"The majority of command line parameters are covered by\r\n"
     "launcher options, additional information can be found\r\n"
     "in the documentation under Help - VYK_Cmdline.txt."},
    {[](Controls& c) -> Control& { return c.SelButton; },
     u"Toggle between VYK edit and the command line."},
    {[](Controls& c) -> Control& { return c.chkVYKOpts[0]; },
     u"Prevents mouse being detected."},
    {[](Controls& c) -> Control& { return c.chkVYKOpts[1]; },
     u"Prevents joystick being detected."},
    {[](Controls& c) -> Control& { return c.AuxButton[9]; },
     u"Specify hi-res textures and patches location, only useful\r\n"
     "if multiple instances of Keldrax are used for one location."},
    {[](Controls& c) -> Control& { return c.TexPathLabel; },
     u"Specify hi-res textures and patches location, only useful\r\n"
     "if multiple instances of Keldrax are used for one location."},
    {[](Controls& c) -> Control& { return c.chkVYKOpts[3]; },
     u"When selected the archvile can resurrect corpses after\r\n"
     "they have disappeared if corpse time is not set to zero."},
    {[](Controls& c) -> Control& { return c.chkVYKOpts[5]; },
     u"Tougher monsters."},
    {[](Controls& c) -> Control& { return c.chkVYKOpts[8]; },
     u"Respawn Monsters after death."},
    {[](Controls& c) -> Control& { return c.chkVYKOpts[6]; },
     u"Prevent same type monsters from attacking each other."},
    {[](Controls& c) -> Control& { return c.chkVYKOpts[7]; },
     u"Prevent Lost Souls from inflicting damage on each other."},
    {[](Controls& c) -> Control& { return c.chkLaunchPrefs[0]; },
     u"Automatically select the last launched map."},
    {[](Controls& c) -> Control& { return c.chkLaunchPrefs[1]; },
     u"Automatically select the last launched savegame."},
    {[](Controls& c) -> Control& { return c.chkLaunchPrefs[3]; },
     u"Removes all the tooltip text from the launcher.\r\n"
     "Hint - this is what you are currently viewing."},
    {[](Controls& c) -> Control& { return c.chkLaunchPrefs[2]; },
     u"Provides a shortcut creation tool."},
    {[](Controls& c) -> Control& { return c.chkLaunchPrefs[4]; },
     u"Only display wads in the game file list, caution\r\n"
     "this option will hide the author's info files."},
    {[](Controls& c) -> Control& { return c.chkLaunchPrefs[5]; },
     u"Show tip of the day."},
    {[](Controls& c) -> Control& { return c.ChkGL; },
     u"Replaces the rocket launcher with either\r\n"
     "a grenade launcher or a pipebomb launcher\r\n"
     "if the delay timer is set to zero."},
    {[](Controls& c) -> Control& { return c.chkTesting; },
     u"If you have stumbled on this option by\r\n"
     "accident - ignore it (dev team only)."},
    {[](Controls& c) -> Control& { return c.Timeout; },
     u"Delay in seconds before grenade explodes."},
    {[](Controls& c) -> Control& { return c.ButPurge[0]; },
     u"Remove all previously saved games."},
    {[](Controls& c) -> Control& { return c.ButPurge[1]; },
     u"Remove all previously built nodes."},
    {[](Controls& c) -> Control& { return c.ButPurge[2]; },
     u"Model pack cleanup tool."},
    {[](Controls& c) -> Control& { return c.ExitOption[1]; },
     u"Minimise launcher after having launched a game."},
    {[](Controls& c) -> Control& { return c.ExitOption[2]; },
     u"Exit out of launcher after having launched a game."},
    {[](Controls& c) -> Control& { return c.ChkModelOpts[1]; },
     u"Don't use models if modified sprites look similar\r\n"
     "to the originals. This option is not foolproof but\r\n"
     "does seem to work in the majority of cases."},
    {[](Controls& c) -> Control& { return c.ChkModelOpts[2]; },
     u"Basic Doom with lighting, splashes and footsteps."},
    {[](Controls& c) -> Control& { return c.ChkModelOpts[3]; },
     u"Enhanced Basic Doom including particle effects\r\n"
     "and all other enhanced features if optioned."},
    {[](Controls& c) -> Control& { return c.chkAltModels[0]; },
     u"Pistol replaces the zombie's rifle."},
    {[](Controls& c) -> Control& { return c.chkAltModels[1]; },
     u"Modifies standard HUD weapon models."},
    {[](Controls& c) -> Control& { return c.chkAltModels[2]; },
     u"Modifies HUD weapon models with all new weapon types."},
    {[](Controls& c) -> Control& { return c.chkAltModels[3]; },
     u"Enhanced model replacements."},
    {[](Controls& c) -> Control& { return c.MapList; },
     u"  Select map for startup.  "},
    {[](Controls& c) -> Control& { return c.SaveGameList; },
     u"  Right click on savegame for tasks menu.  "},
    {[](Controls& c) -> Control& { return c.Home[0]; },
     u"  Keldrax Website.  "},
    {[](Controls& c) -> Control& { return c.Home[3]; },
     u"  Keldrax model pack downloads.  "},
    {[](Controls& c) -> Control& { return c.TitlePic; },
     u"  Double click to cycle through themes.  "},
    {[](Controls& c) -> Control& { return c.ImageCM; },
     u" Toggle Keldrax scripted maps if installed. "},
    {[](Controls& c) -> Control& { return c.PwadList; },
     u" Right click on selected game for tasks menu. "},
    {[](Controls& c) -> Control& { return c.ExpLabel; },
     u" Time it takes for grenade to explode in tics "},
    {[](Controls& c) -> Control& { return c.edFilter; },
     u"Find a game by a part of its name (Ctrl+F)."},
};
// clang-format on

} // namespace

void ToolTipText(Launcher& launcher)
{
    for (const Tip& tip : tips)
        tip.of(launcher.controls).toolTip = QString::fromUtf16(tip.text);
    ShowScriptedMapsTip(launcher);
}

void KillToolTips(Launcher& launcher)
{
    for (const Tip& tip : tips)
        tip.of(launcher.controls).toolTip.clear();
}

void ShowScriptedMapsTip(Launcher& launcher)
{
    const bool shown = launcher.settings.AdvancedOptions && !launcher.settings.DisableToolTips;
    launcher.controls.Auto[0].toolTip =
        shown ? QStringLiteral(" Toggle Keldrax scripted maps if installed. ") : QString();
}
