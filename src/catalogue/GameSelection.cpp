#include "catalogue/GameSelection.h"

#include "catalogue/GameLists.h"
#include "catalogue/GameRecords.h"
#include "catalogue/ScriptedMaps.h"
#include "catalogue/ZipLibrary.h"
#include "launch/ShellOpen.h"
#include "launch/TextEditor.h"
#include "options/GraphicsOptions.h"
#include "options/SpriteOptions.h"
#include "platform/FileNames.h"
#include "platform/Paths.h"
#include "savegames/SaveGames.h"
#include "wad/GameFiles.h"
#include "wad/MainWad.h"
#include "wad/MapList.h"
#include "wad/ToolBridge.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr const char16_t* textLumps[] = {u"sndinfo", u"dd_defns", u"scp_zoff", u"scp_defn"};

// Where the engine keeps the savegames of a WAD, or of a family; empty for a name that would lead elsewhere.
QString savegameFolder(const Launcher& launcher, const QString& name)
{
    if (!IsUsableName(name))
        return {};
    return launcher.paths.RootPath + u"/UserSG/"_s + name + u"/savegame"_s;
}

void listFiles(Launcher& launcher, const QStringList& names)
{
    launcher.selection.SelectedGameFile.clear();
    launcher.controls.PwadShowlist.clear();
    for (const QString& name : names)
        launcher.controls.PwadShowlist.add(name);
}

// Lists a game's files; none is chosen yet.
void showGameFolder(Launcher& launcher, const QString& folder)
{
    launcher.selection.SelectedGameFolder = folder;
    launcher.selection.SaveGameFolder.clear();
    launcher.controls.MapList.clear();
    launcher.controls.SaveGameList.clear();
    listFiles(launcher, GameFilesOf(launcher.files, folder, launcher.settings.WadFilesOnly));
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
    selection.SaveGameFolder = savegameFolder(launcher, QString::fromUtf16(RowOf(*family).key));
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
        scripted ? u"KELDRAX SCRIPTED MAP"_s : ListHeading(launcher, installedGames);
    launcher.settings.SelectedGame = name;
    (selection.GwadSelected ? selection.SelectedGwadGame : selection.SelectedPwadGame) = name;
    const QString folder =
        launcher.paths.GamesPath + name + (selection.GwadSelected ? u"/Gwads"_s : u"/Pwads"_s);
    const QString onDisk = launcher.files.actualPath(folder); // empty when it has gone meanwhile
    showGameFolder(launcher, (onDisk.isEmpty() ? folder : onDisk) + u'/');
    launcher.controls.MainForm.saveGamesTall =
        !selection.GwadSelected && launcher.controls.PwadShowlist.count() < manyFiles;
    if (selection.GwadSelected)
        RestoreGwadFile(launcher, name);
    else
        ChooseMainWad(launcher, selection.SelectedGameFolder);
}

void archiveClicked(Launcher& launcher, const QString& name)
{
    launcher.controls.MainForm.saveGamesTall = false;
    launcher.settings.SelectedArchive = name;
    const bool opened = OpenArchive(launcher, name);
    showGameFolder(launcher, ZipFolder(launcher.paths));
    if (opened)
        ChooseMainWad(launcher, launcher.selection.SelectedGameFolder);
    else // whatever may be left there is not this zip's
        launcher.controls.PwadShowlist.clear();
}

void gameClicked(Launcher& launcher)
{
    const QString name = launcher.controls.PwadList.selectedName();
    if (name.isEmpty())
        return;
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
        archiveClicked(launcher, name);
        break;
    }
    RestoreLastSavegame(launcher);
    launcher.controls.LaunchButton.enabled = CanLaunchSelection(launcher);
}

// A scripted map brings its own sprites and graphics.
void allowOptions(Launcher& launcher)
{
    Selection& selection = launcher.selection;
    selection.ScriptedMap = false;
    if (launcher.settings.ListMode == installedGames) {
        const ScriptedMapCheck map = selection.PwadSelected ? IsScriptedMap(launcher.files, launcher.paths,
                                                                            launcher.settings.SelectedGame)
                                                            : ScriptedMapCheck();
        selection.ScriptedMap = map.isScriptedMap && map.isComplete;
        map.isScriptedMap ? KillSpriteOptions(launcher) : RestoreSpriteOptions(launcher);
    }
    GreyHiresFrame(launcher);
}

void gameFileClicked(Launcher& launcher)
{
    Selection& selection = launcher.selection;
    selection.SelectedGameFile = selection.SelectedGameFolder + launcher.controls.PwadShowlist.selectedText();
    if (!selection.DoomGameSelected)
        selection.SaveGameFolder = savegameFolder(launcher, BaseNameOf(selection.SelectedGameFile));
    allowOptions(launcher);
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

void gameFileDoubleClicked(Launcher& launcher)
{
    const QString name = launcher.controls.PwadShowlist.selectedText();
    const QString path = launcher.selection.SelectedGameFolder + name;
    if (name.isEmpty())
        return;
    // Texts without an ending, by which nothing but a text editor is found.
    const bool isText = std::ranges::any_of(
        textLumps, [&](const char16_t* lump) { return SameName(name, QString::fromUtf16(lump)); });
    if (isText)
        OpenInTextEditor(launcher, path);
    else
        ShellOpen(launcher.prompts, path);
}

} // namespace

void ConnectGameSelection(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    controls.PwadList.clicked = [&launcher] { gameClicked(launcher); };
    controls.PwadShowlist.clicked = [&launcher] { gameFileClicked(launcher); };
    controls.PwadShowlist.chosen = [&launcher] { gameFilePicked(launcher); };
    controls.PwadShowlist.doubleClicked = [&launcher] { gameFileDoubleClicked(launcher); };
}

void SelectGameAgain(Launcher& launcher)
{
    launcher.controls.PwadList.clicked();
}

void ShowSelectedGameAnew(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    if (controls.PwadList.selected() < 0)
        return;
    const QString file = controls.PwadShowlist.selectedText();
    const QString map = controls.MapList.selectedText();
    const QString savegame = controls.SaveGameList.selectedText();
    SelectGameAgain(launcher);
    controls.PwadShowlist.select(controls.PwadShowlist.find(file));
    controls.MapList.select(controls.MapList.find(map));
    controls.SaveGameList.select(controls.SaveGameList.find(savegame));
}

void ClassifySelectedGame(Launcher& launcher, const QString& name)
{
    launcher.selection.GwadSelected =
        launcher.files.folderExists(launcher.paths.GamesPath + name + u"/Gwads"_s);
    launcher.selection.PwadSelected = !launcher.selection.GwadSelected;
}

bool CanLaunchSelection(const Launcher& launcher)
{
    return launcher.controls.PwadShowlist.selected() >= 0 && launcher.controls.OptionTabs.selected() == 0;
}

QString ChosenWadName(const Launcher& launcher)
{
    const QString& file = launcher.selection.SelectedGameFile;
    return EndsWith(file, u".wad"_s) ? BaseNameOf(file) : QString();
}
