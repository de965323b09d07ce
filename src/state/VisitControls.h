#pragma once

#include "state/Controls.h"

// Calls visit(name, index, control) for each control of the main window but the task menus, with the type
// that the control has; `index` is -1 for one that is in no array. Arrays of option buttons are one control.
template <class ControlsType, class Visit>
void VisitControls(ControlsType& controls, Visit visit)
{
    const auto one = [&visit](QStringView name, auto& control) { visit(name, -1, control); };
    const auto each = [&visit](QStringView name, auto& array) {
        int index = 0;
        for (auto& control : array)
            visit(name, index++, control);
    };

    one(u"MainForm", controls.MainForm);
    one(u"TitlePic", controls.TitlePic);
    each(u"Home", controls.Home);
    one(u"WineImage", controls.WineImage);
    one(u"ImageCM", controls.ImageCM);
    each(u"AuxButton", controls.AuxButton);

    one(u"OptionUdir", controls.OptionUdir);
    each(u"Auto", controls.Auto);
    one(u"edFilter", controls.edFilter);
    one(u"PwadList", controls.PwadList);
    one(u"PwadShowlist", controls.PwadShowlist);
    one(u"MapList", controls.MapList);
    one(u"SaveGameList", controls.SaveGameList);
    one(u"ChkCM", controls.ChkCM);
    one(u"chkAutoSelect", controls.chkAutoSelect);

    one(u"OptionTabs", controls.OptionTabs);
    each(u"TabFrame", controls.TabFrame);
    each(u"OptFrame", controls.OptFrame);
    each(u"GraphicFrames", controls.GraphicFrames);
    each(u"SoundFrame", controls.SoundFrame);
    each(u"FrameModel", controls.FrameModel);
    one(u"ModFrame", controls.ModFrame);

    each(u"chkMain", controls.chkMain);
    each(u"chkVYKOpts", controls.chkVYKOpts);
    each(u"chkLaunchPrefs", controls.chkLaunchPrefs);
    each(u"chkSound", controls.chkSound);
    each(u"chkGraphics", controls.chkGraphics);
    each(u"chkEffects", controls.chkEffects);
    each(u"ChkModelOpts", controls.ChkModelOpts);
    each(u"chkAltModels", controls.chkAltModels);
    one(u"chkTesting", controls.chkTesting);
    one(u"ChkGL", controls.ChkGL);
    one(u"GunSmoke", controls.GunSmoke);
    one(u"TexPathLabel", controls.TexPathLabel);

    one(u"ExitOption", controls.ExitOption);
    one(u"SkyOpt", controls.SkyOpt);
    one(u"Smoke", controls.Smoke);

    one(u"Corpse", controls.Corpse);
    one(u"Timeout", controls.Timeout);
    one(u"Ricotext", controls.Ricotext);
    one(u"butleft", controls.butleft);
    one(u"butRight", controls.butRight);
    one(u"butLeft2", controls.butLeft2);
    one(u"butRight2", controls.butRight2);
    each(u"RicoButton", controls.RicoButton);
    one(u"EngineLabel", controls.EngineLabel);
    one(u"EngineList", controls.EngineList);
    one(u"cbChannels", controls.cbChannels);
    one(u"cbScaler", controls.cbScaler);
    one(u"SelectionList", controls.SelectionList);
    each(u"butMusic", controls.butMusic);
    each(u"ButPurge", controls.ButPurge);
    each(u"DelLabel", controls.DelLabel);
    each(u"TexLabel", controls.TexLabel);
    each(u"ResLabel", controls.ResLabel);
    each(u"ModLabel", controls.ModLabel);
    one(u"ExpLabel", controls.ExpLabel);
    one(u"DevMode", controls.DevMode);
    each(u"ImageDG", controls.ImageDG);
    one(u"HiResText", controls.HiResText);

    each(u"SkillsLevel", controls.SkillsLevel);
    one(u"SkillFrame", controls.SkillFrame);
    one(u"StartFrame", controls.StartFrame);
    one(u"ChkFrame", controls.ChkFrame);
    one(u"VYKFrame", controls.VYKFrame);
    each(u"FrameGlobal", controls.FrameGlobal);
    one(u"SelButton", controls.SelButton);
    one(u"edCustom", controls.edCustom);
    one(u"LightText", controls.LightText);
    one(u"CommandPreview", controls.CommandPreview);
    one(u"CopyPreview", controls.CopyPreview);
    one(u"LaunchButton", controls.LaunchButton);
}
