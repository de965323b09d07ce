#include "catalogue/GameLists.h"

#include "catalogue/GameRecords.h"
#include "catalogue/ScriptedMapMode.h"
#include "catalogue/ScriptedMaps.h"
#include "options/Skills.h"
#include "platform/Paths.h"
#include "savegames/SaveGames.h"
#include "wad/GameFiles.h"
#include "wad/MainWad.h"
#include "wad/MapList.h"
#include "wad/ToolBridge.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int installedGames = 0;
constexpr int doomGames = 1;
constexpr int zipLibrary = 2;
constexpr int zipLibraryButton = 7; // AuxButton
constexpr int shortcutButton = 2;

QString heading(const Launcher& launcher, int view)
{
    if (view == installedGames)
        return u"INSTALLED GAMES LIST"_s;
    if (view == doomGames)
        return u"COMMERCIAL DOOM LIST"_s;
    const bool custom = launcher.files.fileExists(launcher.paths.LaunchDataPath + u"archives.vyk"_s) &&
                        launcher.files.folderExists(launcher.paths.ArchivesPath);
    return custom ? u"CUSTOM ZIP LIBRARY"_s : u"ZIP LIBRARY"_s;
}

void listFiles(Launcher& launcher, const QStringList& names)
{
    launcher.selection.SelectedGameFile.clear();
    launcher.controls.PwadShowlist.clear();
    for (const QString& name : names)
        launcher.controls.PwadShowlist.add(name);
}

void doomGameClicked(Launcher& launcher, const QString& title)
{
    const std::optional<GameFamily> family = FamilyOfTitle(title);
    if (!family)
        return;
    Selection& selection = launcher.selection;
    const QString iwad = launcher.iwads.of(*family);
    selection.DoomGameSelected = true;
    launcher.controls.MainForm.saveGamesTall = true;
    launcher.settings.SelectedDoomGame = title;
    selection.SaveGameFolder =
        launcher.paths.RootPath + u"/UserSG/"_s + QString::fromUtf16(RowOf(*family).key) + u"/savegame"_s;
    selection.SelectedWadPath = iwad;
    selection.SelectedGameFolder = FolderOf(iwad) + u'/';
    listFiles(launcher, {FileNameOf(iwad)});
    launcher.controls.PwadShowlist.select(0);
}

void installedGameClicked(Launcher& launcher, const QString& name)
{
    constexpr int manyFiles = 5;
    Selection& selection = launcher.selection;
    ClassifySelectedGame(launcher, name);
    const bool scripted =
        selection.PwadSelected && IsScriptedMap(launcher.files, launcher.paths, name).isScriptedMap;
    launcher.controls.Auto[0].caption =
        scripted ? u"KELDRAX SCRIPTED MAP"_s : heading(launcher, installedGames);
    launcher.settings.SelectedGame = name;
    (selection.GwadSelected ? selection.SelectedGwadGame : selection.SelectedPwadGame) = name;
    const QString folder = launcher.files.actualPath(launcher.paths.GamesPath + name +
                                                     (selection.GwadSelected ? u"/Gwads"_s : u"/Pwads"_s));
    selection.SelectedGameFolder = folder + u'/';
    listFiles(launcher,
              GameFilesOf(launcher.files, selection.SelectedGameFolder, launcher.settings.WadFilesOnly));
    launcher.controls.MainForm.saveGamesTall =
        !selection.GwadSelected && launcher.controls.PwadShowlist.count() < manyFiles;
    launcher.controls.MapList.clear();
    selection.SaveGameFolder.clear();
    if (selection.GwadSelected)
        RestoreGwadFile(launcher, name);
    else
        ChooseMainWad(launcher, selection.SelectedGameFolder);
}

void gameClicked(Launcher& launcher)
{
    const QString name = launcher.controls.PwadList.selectedText();
    if (launcher.controls.chkAutoSelect.ticked())
        launcher.settings.SelectedGameAutoOn = name;
    switch (launcher.settings.ListMode) {
    case installedGames:
        installedGameClicked(launcher, name);
        break;
    case doomGames:
        doomGameClicked(launcher, name);
        break;
    default:
        launcher.settings.SelectedArchive = name;
        break;
    }
    RestoreLastSavegame(launcher);
    launcher.controls.LaunchButton.enabled = CanLaunchSelection(launcher);
}

void gameFileClicked(Launcher& launcher)
{
    Selection& selection = launcher.selection;
    selection.SelectedGameFile = selection.SelectedGameFolder + launcher.controls.PwadShowlist.selectedText();
    if (!selection.DoomGameSelected)
        selection.SaveGameFolder =
            launcher.paths.RootPath + u"/UserSG/"_s + BaseNameOf(selection.SelectedGameFile) + u"/savegame"_s;
    ListWadMaps(launcher, selection.SelectedGameFile);
    ListSaveGames(launcher);
    if (launcher.launch.StartChoice != StartChoice::NewGame)
        SelectStartMap(launcher);
    launcher.controls.LaunchButton.enabled = CanLaunchSelection(launcher);
}

void gameFilePicked(Launcher& launcher)
{
    if (launcher.selection.GwadSelected && EndsWith(launcher.controls.PwadShowlist.selectedText(), u".wad"_s))
        SaveGwadSelection(launcher, launcher.selection.SelectedGwadGame);
}

QString rememberedGame(const Launcher& launcher, int view)
{
    if (view == installedGames)
        return launcher.settings.SelectedGame;
    return view == doomGames ? launcher.settings.SelectedDoomGame : launcher.settings.SelectedArchive;
}

} // namespace

void ConnectGameLists(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    controls.OptionUdir.clicked = [&launcher](int view) { OptionUdirClick(launcher, view); };
    controls.PwadList.clicked = [&launcher] { gameClicked(launcher); };
    controls.edFilter.typed = [&controls] { controls.PwadList.setFilter(controls.edFilter.text); };
    controls.PwadShowlist.clicked = [&launcher] { gameFileClicked(launcher); };
    controls.PwadShowlist.chosen = [&launcher] { gameFilePicked(launcher); };
}

void OptionUdirClick(Launcher& launcher, int view)
{
    Controls& controls = launcher.controls;
    Selection& selection = launcher.selection;
    selection.GwadSelected = selection.PwadSelected = false;
    selection.DoomGameSelected = view == doomGames;
    selection.ArchiveSelected = view == zipLibrary;
    for (ListBox* list : {&controls.SaveGameList, &controls.PwadShowlist, &controls.MapList})
        list->clear();

    controls.OptionUdir.startAs(view);
    for (int i = 0; i < controls.OptionUdir.count(); ++i)
        controls.OptionUdir[i].colour = i == view ? Colour::Accent : Colour::Normal;
    controls.PwadList.toolTip =
        controls.chkLaunchPrefs[3].ticked() ? QString() : u" Right click on selected game for tasks menu. "_s;

    launcher.settings.ListMode = view;
    controls.ImageCM.visible = ScriptedMapSwitchShown(launcher);
    controls.AuxButton[zipLibraryButton].visible = view == zipLibrary;
    controls.AuxButton[shortcutButton].enabled = true;
    FillGamesList(launcher, view);
    controls.Auto[0].caption = heading(launcher, view);

    controls.PwadList.select(std::max(controls.PwadList.find(rememberedGame(launcher, view)), 0));
    controls.LaunchButton.enabled = CanLaunchSelection(launcher);
    if (controls.PwadShowlist.isEmpty())
        controls.AuxButton[shortcutButton].enabled = false;
}

void FillGamesList(Launcher& launcher, int view)
{
    if (view == installedGames)
        FillInstalledGamesList(launcher);
    else if (view == doomGames)
        FillDoomGamesList(launcher);
    else
        FillArchiveList(launcher, launcher.paths.ArchivesPath);
}

void FillInstalledGamesList(Launcher& launcher)
{
    ListBox& list = launcher.controls.PwadList;
    list.clear();
    const QString games = launcher.paths.GamesPath;
    // Without the maps' models there is no switch to leave the mode by.
    const bool scriptedOnly =
        launcher.settings.ScriptedMapMode && ScriptedMapModelsPresent(launcher.files, launcher.paths);
    for (const QString& name : launcher.files.folders(games)) {
        const bool isGame = launcher.files.folderExists(games + name + u"/Pwads"_s) ||
                            launcher.files.folderExists(games + name + u"/Gwads"_s);
        if (isGame && (!scriptedOnly || IsScriptedMap(launcher.files, launcher.paths, name).isScriptedMap))
            list.add(launcher.font.CustomFontOn ? name : name.toUpper());
    }
}

void FillDoomGamesList(Launcher& launcher)
{
    launcher.controls.PwadList.clear();
    for (const QString& title : DoomGameTitles(launcher.iwads, launcher.font.CustomFontOn))
        launcher.controls.PwadList.add(title);
}

void FillArchiveList(Launcher& launcher, const QString& folder)
{
    ListBox& list = launcher.controls.PwadList;
    try {
        launcher.files.createFolder(folder);
    } catch (const FileError&) {
        // A library that cannot be there lists nothing.
    }
    list.clear();
    for (const QString& name : launcher.files.files(folder)) {
        if (!EndsWith(name, u".zip"_s))
            continue;
        const QString game = BaseNameOf(name);
        list.add(launcher.font.CustomFontOn ? game.left(1).toUpper() + game.mid(1) : game.toUpper());
    }
}

void ClassifySelectedGame(Launcher& launcher, const QString& name)
{
    launcher.selection.GwadSelected =
        launcher.files.folderExists(launcher.paths.GamesPath + name + u"/Gwads"_s);
    launcher.selection.PwadSelected = !launcher.selection.GwadSelected;
}

bool CanLaunchSelection(const Launcher& launcher)
{
    const bool isOpen = launcher.settings.ListMode != zipLibrary; // a zip is not extracted yet
    return isOpen && launcher.controls.PwadShowlist.selected() >= 0 &&
           launcher.controls.OptionTabs.selected() == 0;
}
