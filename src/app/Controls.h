#pragma once

#include "ui/Control.h"

#include <array>

// The main window itself. Layout units are device-independent pixels.
struct WindowControl : Control
{
    bool compact = false;      // default mode: without the command panel and its height
    bool saveGamesTall = true; // the boundary between the game files and the savegames

    // Where a screen of 120 dots per inch has two of its parts, in 1/1440 inch; 0 where the layout has them.
    int topOfVYKFrame = 0;
    int leftOfImageCM = 0;

    // The player dropped files on the window, one of them at least a WAD or a zip: their paths, with '/'.
    std::function<void(const QStringList& paths)> filesDropped;
};

// Every control of the main window, under its given name, as the window is built: captions, start values
// and what is disabled or hidden. The settings and the rules change them from there.
struct Controls
{
    Controls();
    Controls(const Controls&) = delete;
    Controls& operator=(const Controls&) = delete;

    WindowControl MainForm;
    Button TitlePic;            // `text` is the path of the picture
    std::array<Button, 4> Home; // 0 the engine's web site, 3 its downloads page
    Control WineImage;
    Button ImageCM;
    std::array<Button, 10> AuxButton;

    // The games tab
    OptionButtons OptionUdir{3, 1};               // the games list's views
    std::array<Button, 4> Auto;                   // the headings
    TextBox edFilter;                             // what the games in sight have in their names
    ListBox PwadList{ListBox::Order::Sorted};     // the games
    ListBox PwadShowlist{ListBox::Order::Sorted}; // the files of the selected game
    ListBox MapList;
    ListBox SaveGameList{ListBox::Order::Sorted};
    // The task menus: of a Gwad game's files, of an installed game, of a zip, of a savegame
    MenuItem mcDeleteFile;
    MenuItem mcDeleteFolder, mcRenameFolder, Sep3, mcUdirConvert, mcGwadConvert;
    MenuItem mcUdirUnZip, sep1, mcRenameArchive, mcDeleteArchive, mcGwadUnZip;
    MenuItem mcDelSaveGame;
    const Menu mPopup3{&mcDeleteFile};
    const Menu mPopup5{&mcDeleteFolder, &mcRenameFolder, &Sep3, &mcUdirConvert, &mcGwadConvert};
    const Menu mPopup6{&mcUdirUnZip, &sep1, &mcRenameArchive, &mcDeleteArchive, &mcGwadUnZip};
    const Menu mPopup7{&mcDelSaveGame};
    // ... and of a playlist
    std::array<MenuItem, 4> mcAutoSelect;
    MenuItem mcAuto;
    const Menu mPopup8{&mcAuto};
    CheckBox ChkCM;
    CheckBox chkAutoSelect;

    // The tabs
    OptionButtons OptionTabs{5, 0};
    std::array<Control, 5> TabFrame;
    std::array<Control, 4> OptFrame;
    std::array<Control, 6> GraphicFrames;
    std::array<Control, 2> SoundFrame;
    std::array<Control, 2> FrameModel;
    Control ModFrame;

    std::array<CheckBox, 8> chkMain;
    std::array<CheckBox, 9> chkVYKOpts;
    std::array<CheckBox, 6> chkLaunchPrefs;
    std::array<CheckBox, 11> chkSound;
    std::array<CheckBox, 5> chkGraphics;
    std::array<CheckBox, 4> chkEffects;
    std::array<CheckBox, 4> ChkModelOpts; // 0 has no place in the window
    std::array<CheckBox, 4> chkAltModels;
    CheckBox chkTesting;
    CheckBox ChkGL;
    CheckBox GunSmoke;
    CheckBox TexPathLabel;

    OptionButtons ExitOption{3, 1};
    OptionButtons SkyOpt{2, 0};
    OptionButtons Smoke{2, 0};

    TextBox Corpse, Timeout, Ricotext;
    Button butleft, butRight, butLeft2, butRight2;
    std::array<Button, 2> RicoButton;
    ListBox cbChannels, cbScaler;
    ListBox SelectionList{ListBox::Order::Sorted}; // the playlists
    std::array<Button, 3> butMusic;
    std::array<Button, 3> ButPurge;
    std::array<Control, 2> DelLabel;
    std::array<Control, 3> TexLabel;
    std::array<Control, 4> ResLabel;
    std::array<Control, 4> ModLabel;
    Control ExpLabel;
    Button DevMode;
    std::array<Button, 7> ImageDG;
    TextBox HiResText; // the texture-path dialog's location

    // The strip below the tabs
    std::array<ListBox, 2> SkillsLevel;
    Control SkillFrame, StartFrame, ChkFrame, VYKFrame;
    std::array<Control, 3> FrameGlobal; // 0 the panel, 1 the command line, 2 the edit mode
    Button SelButton;
    TextBox edCustom, LightText;
    TextBox CommandPreview; // the command line that Launch would start, or why there is none
    Button CopyPreview;
    Button LaunchButton;
};
