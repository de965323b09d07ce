#pragma once

#include "state/ControlNames.h"
#include "ui/Control.h"

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

// Every control of the main window, under its given name. The arrays' elements are named in ControlNames.h.
// What the controls show is computed from the truth after every event; a rule asks the truth, not these.
struct Controls
{
    // As the window is built: with captions and start values, and with what drop-down lists offer.
    Controls();
    Controls(const Controls&) = delete;
    Controls& operator=(const Controls&) = delete;

    WindowControl MainForm;
    Button TitlePic; // the theme: `text` is the path of the picture
    ControlArray<Button, Link> Home;
    Control WineImage; // says that the launcher runs under "/WINE"
    Button ImageCM;    // shows the scripted maps alone
    ControlArray<Button, Tool> AuxButton;

    // The games tab
    OptionButtonArray<View> OptionUdir;
    ControlArray<Button, Heading> Auto;
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
    ControlArray<MenuItem, AutoGame> mcAutoSelect;
    MenuItem mcAuto;
    const Menu mPopup8{&mcAuto};
    CheckBox ChkCM;         // the scripted maps alone are listed; has no place in the window
    CheckBox chkAutoSelect; // ... and have a selected game of their own; neither has this

    // The tabs
    OptionButtonArray<Tab> OptionTabs;
    ControlArray<Control, Tab> TabFrame;
    ControlArray<Control, OptFrames> OptFrame;
    ControlArray<Control, GraphicsFrame> GraphicFrames;
    ControlArray<Control, SoundFrames> SoundFrame;
    ControlArray<Control, ModelsFrame> FrameModel;
    Control ModFrame; // where model packs come from

    ControlArray<CheckBox, Main> chkMain;
    ControlArray<CheckBox, VYKOpts> chkVYKOpts;
    ControlArray<CheckBox, LaunchPrefs> chkLaunchPrefs;
    ControlArray<CheckBox, Sound> chkSound;
    ControlArray<CheckBox, Graphics> chkGraphics;
    ControlArray<CheckBox, Effects> chkEffects;
    ControlArray<CheckBox, ModelOpts> ChkModelOpts;
    ControlArray<CheckBox, AltModels> chkAltModels;
    CheckBox chkTesting; // the development mode
    CheckBox ChkGL;      // grenades in place of rockets
    CheckBox GunSmoke;
    CheckBox TexPathLabel; // says what AuxButton's folder button is for

    OptionButtonArray<LaunchMode> ExitOption; // what becomes of the launcher when a game starts
    OptionButtonArray<SkyMode> SkyOpt;
    OptionButtonArray<SmokeMode> Smoke;

    // Three numbers with a button to lower and one to raise each
    TextBox Corpse;           // seconds until corpses fade
    Button butleft, butRight; // ... down, up
    TextBox Timeout;          // the grenades' delay
    Button butLeft2, butRight2;
    TextBox Ricotext; // the interval of ricochets
    ControlArray<Button, Step> RicoButton;

    Control EngineLabel;
    ListBox EngineList;                            // the engines that can start the games
    ListBox cbChannels;                            // of the sound
    ListBox cbScaler;                              // how far model skins are scaled down
    ListBox SelectionList{ListBox::Order::Sorted}; // the playlists
    ControlArray<Button, PlaylistCommand> butMusic;
    ControlArray<Button, Purge> ButPurge;
    ControlArray<Control, Deletion> DelLabel;
    ControlArray<Control, Texts> TexLabel;
    ControlArray<Control, ResolutionText> ResLabel;
    ControlArray<Control, Advice> ModLabel;
    Control ExpLabel; // of Timeout
    Button DevMode;   // a hidden spot for developers, and two more:
    ControlArray<Button, DeveloperSpot> ImageDG;
    TextBox HiResText; // the texture folder that is used, or that there is none

    // The strip below the tabs
    ControlArray<ListBox, SkillList> SkillsLevel;
    Control SkillFrame, StartFrame, ChkFrame, VYKFrame;
    ControlArray<Control, Panel> FrameGlobal;
    Button SelButton;       // toggles the panels of FrameGlobal
    TextBox edCustom;       // the player's own engine parameters
    TextBox LightText;      // the edit mode's light level
    TextBox CommandPreview; // the command line that Launch would start, or why there is none
    Button CopyPreview;
    Button LaunchButton;
};
