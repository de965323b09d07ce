#include "app/Controls.h"

using namespace Qt::StringLiterals;

namespace {

enum Look { Shown, Hidden, Disabled };

void place(Control& control, const QString& caption, Look look)
{
    control.caption = caption;
    control.visible = look != Hidden;
    control.enabled = look != Disabled;
}

} // namespace

Controls::Controls()
{
    const struct
    {
        CheckBox& box;
        QString caption;
        int value;
        Look look;
    } boxes[] = {
        {chkMain[0], u"Basic Doom"_s, 0, Shown},
        {chkMain[1], u"High resolution textures"_s, 1, Disabled},
        {chkMain[2], u"Advanced options"_s, 0, Shown},
        {chkMain[3], u"Light"_s, 0, Disabled},
        {chkMain[4], u"No objects"_s, 0, Disabled},
        {chkMain[5], u"Edit  mode"_s, 0, Shown},
        {chkMain[6], u"No monsters"_s, 0, Hidden},
        {chkMain[7], u"Verbose"_s, 0, Shown},
        {chkVYKOpts[0], u"Disable mouse"_s, 0, Shown},
        {chkVYKOpts[1], u"Disable joystick"_s, 0, Shown},
        {chkVYKOpts[2], u"Allow hi-res relocation"_s, 0, Shown},
        {chkVYKOpts[3], u"Resurrect corpses with fade"_s, 1, Shown},
        {chkVYKOpts[4], u"Spare"_s, 0, Hidden},
        {chkVYKOpts[5], u"Fast monsters"_s, 0, Shown},
        {chkVYKOpts[6], u"No same type in-fighting"_s, 0, Shown},
        {chkVYKOpts[7], u"No lost soul in-fighting"_s, 0, Shown},
        {chkVYKOpts[8], u"Monster respawn"_s, 0, Shown},
        {chkLaunchPrefs[0], u"Remember last map"_s, 1, Shown},
        {chkLaunchPrefs[1], u"Remember last savegame"_s, 0, Shown},
        {chkLaunchPrefs[2], u"Shortcut creation"_s, 1, Shown},
        {chkLaunchPrefs[3], u"Disable tooltip text"_s, 0, Shown},
        {chkLaunchPrefs[4], u"Display wad files only"_s, 1, Shown},
        {chkLaunchPrefs[5], u"Display tip of the day"_s, 1, Shown},
        {chkSound[0], u"Disable sound"_s, 0, Shown},
        {chkSound[1], u"Disable music"_s, 0, Shown},
        {chkSound[2], u" Enable ricochets"_s, 1, Shown},
        {chkSound[3], u"3DSound"_s, 0, Shown},
        {chkSound[4], u"Auto"_s, 0, Shown},
        {chkSound[5], u"Manual"_s, 0, Shown},
        {chkSound[6], u"Hi-Res sound pack "_s, 1, Disabled},
        {chkSound[7], u"Spare"_s, 0, Hidden},
        {chkSound[8], u"Spare"_s, 0, Hidden},
        {chkSound[9], u"Force Fmod midi"_s, 0, Shown},
        {chkSound[10], u"Ignore playlist if custom music"_s, 1, Shown},
        {chkGraphics[0], u"Spare"_s, 0, Hidden},
        {chkGraphics[1], u"Spare"_s, 0, Hidden},
        {chkGraphics[2], u"Detail textures"_s, 0, Disabled},
        {chkGraphics[3], u"Skyboxes"_s, 1, Disabled},
        {chkGraphics[4], u"High resolution patches"_s, 1, Disabled},
        {chkEffects[0], u"Dynamic lighting"_s, 1, Shown},
        {chkEffects[1], u"Spare"_s, 1, Hidden},
        {chkEffects[2], u"Splash effects"_s, 1, Hidden},
        {chkEffects[3], u"Extra FX"_s, 0, Disabled},
        {ChkModelOpts[1], u"No forced models"_s, 0, Shown},
        {ChkModelOpts[2], u"FX"_s, 0, Hidden},
        {ChkModelOpts[3], u"Core Effects"_s, 0, Hidden},
        {chkAltModels[0], u"Tovrens pistol packing zombies"_s, 0, Disabled},
        {chkAltModels[1], u"Kelspack weapons MOD"_s, 0, Disabled},
        {chkAltModels[2], u"Kelspack alternative weapons MOD"_s, 0, Disabled},
        {chkAltModels[3], u"Tovrens and Kels model replacements"_s, 0, Disabled},
        {chkTesting, u"Development mode"_s, 0, Hidden},
        {ChkGL, u"Grenade launcher"_s, 0, Shown},
        {GunSmoke, u"Gun smoke"_s, 0, Shown},
        {TexPathLabel, u" Hi-res location"_s, 0, Hidden},
        {ChkCM, QString(), 0, Hidden},
        {chkAutoSelect, QString(), 0, Hidden},
    };
    for (const auto& row : boxes) {
        place(row.box, row.caption, row.look);
        row.box.startAs(row.value);
    }

    const struct
    {
        Control& control;
        QString caption;
        Look look;
    } others[] = {
        {OptionUdir[0], u"Installed games"_s, Shown},
        {OptionUdir[1], u"Doom games"_s, Shown},
        {OptionUdir[2], u"Zip Library"_s, Shown},
        {Auto[0], u"INSTALLED GAMES LIST"_s, Shown},
        {Auto[1], u"GAME FILES"_s, Shown},
        {Auto[2], u"MAPS"_s, Shown},
        {Auto[3], u"SAVEGAMES"_s, Shown},
        {OptionTabs[0], u"Games"_s, Shown},
        {OptionTabs[1], u"Options"_s, Hidden},
        {OptionTabs[2], u"Graphics"_s, Hidden},
        {OptionTabs[3], u"Sound"_s, Hidden},
        {OptionTabs[4], u"Models"_s, Hidden},
        {TabFrame[0], QString(), Shown},
        {TabFrame[1], QString(), Hidden},
        {TabFrame[2], QString(), Hidden},
        {TabFrame[3], QString(), Hidden},
        {TabFrame[4], QString(), Hidden},
        {OptFrame[0], u" Game "_s, Shown},
        {OptFrame[1], u" Launcher "_s, Shown},
        {OptFrame[2], u" Launch Mode "_s, Shown},
        {OptFrame[3], u" Controls "_s, Shown},
        {GraphicFrames[0], u" Current Resolution "_s, Shown},
        {GraphicFrames[1], u" Model Skin Scaling Levels "_s, Disabled},
        {GraphicFrames[3], u" Corpse Fade "_s, Shown},
        {GraphicFrames[4], u" Lighting Effects "_s, Shown},
        {GraphicFrames[5], u" Graphics Options "_s, Shown},
        {SoundFrame[0], u" Sound Options "_s, Shown},
        {SoundFrame[1], u" Music Playlists "_s, Hidden},
        {FrameModel[0], u" Model Packs"_s, Shown},
        {FrameModel[1], u" Model Effects "_s, Shown},
        {ModFrame, QString(), Hidden},
        {ExitOption[0], u"Normal"_s, Hidden},
        {ExitOption[1], u"Minimised"_s, Shown},
        {ExitOption[2], u"Exit"_s, Shown},
        {SkyOpt[0], u"2"_s, Shown},
        {SkyOpt[1], u"1"_s, Shown},
        {Smoke[0], u"2"_s, Shown},
        {Smoke[1], u"1"_s, Shown},
        {ExpLabel, u"Explosion"_s, Shown},
        {DelLabel[0], u"Delete all prior built nodes"_s, Shown},
        {DelLabel[1], u"Delete all saved games"_s, Shown},
        {TexLabel[0], u"Model Scaling - best quality"_s, Shown},
        {TexLabel[1], u"Seconds before corpse fade"_s, Shown},
        {TexLabel[2], u"Audio channels"_s, Shown},
        {ResLabel[0], u"Make changes in-game via Options"_s, Shown},
        {ModLabel[0], u"Keldraxv35 requires the new v3 model packs"_s, Shown},
        {ModLabel[1], u"these can be obtained from the Website"_s, Shown},
        {ModLabel[2], u"Use the cleanup tool prior to installation"_s, Shown},
        {ModLabel[3], u"Website downloads"_s, Shown},
        {butleft, u"-"_s, Shown},
        {butRight, u"+"_s, Shown},
        {butLeft2, u"-"_s, Disabled},
        {butRight2, u"+"_s, Disabled},
        {RicoButton[0], u"-"_s, Shown},
        {RicoButton[1], u"+"_s, Shown},
        {Timeout, QString(), Disabled},
        {ButPurge[0], u"Delete"_s, Shown},
        {ButPurge[1], u"Delete"_s, Shown},
        {ButPurge[2], u"Clean up"_s, Shown},
        {butMusic[0], u"New"_s, Shown},
        {butMusic[1], u"Open"_s, Shown},
        {butMusic[2], u"Delete"_s, Shown},
        {mcDeleteFile, u"Delete file"_s, Shown},
        {mcDeleteFolder, u"Uninstall game from list"_s, Shown},
        {mcRenameFolder, u"Rename game in list"_s, Shown},
        {mcUdirConvert, u"Convert Udir to Pwads"_s, Shown},
        {mcGwadConvert, u"Convert  Udir to Gwads"_s, Shown},
        {mcUdirUnZip, u"Install to Games List"_s, Shown},
        {mcRenameArchive, u"Rename zip file"_s, Shown},
        {mcDeleteArchive, u"Delete zip file"_s, Shown},
        {mcGwadUnZip, u"Install  to Games List as Gwad"_s, Shown},
        {mcDelSaveGame, u"Delete savegame"_s, Shown},
        {AuxButton[0], u"Install"_s, Shown},
        {AuxButton[2], u"Shortcut"_s, Hidden},
        {AuxButton[3], QString(), Hidden},
        {AuxButton[5], u"IWADs"_s, Shown},
        {AuxButton[7], QString(), Hidden},
        {AuxButton[8], u"Clean up models"_s, Hidden},
        {AuxButton[9], u"Browse"_s, Hidden},
        {FrameGlobal[0], u"  Command Line  "_s, Hidden},
        {FrameGlobal[1], QString(), Shown},
        {FrameGlobal[2], QString(), Hidden},
        {LightText, QString(), Hidden},
        {CopyPreview, u"Copy"_s, Shown},
        {LaunchButton, u"Launch"_s, Shown},
        {WineImage, u"Wine"_s, Hidden},
        {ImageCM, u"Scripted maps"_s, Hidden},
        {Home[0], u"Website"_s, Shown},
        {Home[3], u"Model packs"_s, Shown},
    };
    for (const auto& row : others)
        place(row.control, row.caption, row.look);

    LightText.enabled = false; // the edit mode's
    SkyOpt[0].enabled = SkyOpt[1].enabled = false; // their pack has not been looked for yet
    Sep3.isSeparator = sep1.isSeparator = true;

    Corpse.text = u"9"_s;
    Timeout.text = u"2"_s;
    Ricotext.text = u"4"_s;
    LightText.text = u"200"_s;

    for (const QString& channels : {u"64"_s, u"128"_s})
        cbChannels.add(channels);
    for (int level = 0; level <= 4; ++level)
        cbScaler.add(QString::number(level));
    SkillsLevel[0].add(u" Start game from New"_s);
    SkillsLevel[1].add(u"Start game from New"_s);
    for (const QString& skill : {u"1 - I'm too young to die"_s, u"2 - Hey, not too rough"_s,
                                 u"3 - Hurt me plenty"_s, u"4 - Ultra-Violence"_s, u"5 - NIGHTMARE"_s})
        for (ListBox& list : SkillsLevel)
            list.add(skill);
    SkillsLevel[0].startAs(0);
    SkillsLevel[1].startAs(0);

    LaunchButton.colour = Colour::Accent;
}
