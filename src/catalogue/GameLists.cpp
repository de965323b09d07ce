#include "catalogue/GameLists.h"

#include "catalogue/GameSelection.h"
#include "catalogue/ScriptedMapMode.h"
#include "catalogue/ScriptedMaps.h"
#include "options/SpriteOptions.h"
#include "platform/Paths.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int zipLibraryButton = 7; // AuxButton
constexpr int shortcutButton = 2;

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
    controls.edFilter.typed = [&controls] { controls.PwadList.setFilter(controls.edFilter.text); };
}

void OptionUdirClick(Launcher& launcher, int view)
{
    Controls& controls = launcher.controls;
    Selection& selection = launcher.selection;
    selection.GwadSelected = selection.PwadSelected = false;
    selection.DoomGameSelected = view == doomGames;
    selection.ArchiveSelected = view == zipLibrary;
    selection.ScriptedMap = false;
    if (controls.Auto[0].caption == u"KELDRAX SCRIPTED MAP"_s)
        RestoreSpriteOptions(launcher);
    for (ListBox* list : {&controls.SaveGameList, &controls.PwadShowlist, &controls.MapList})
        list->clear();

    controls.OptionUdir.startAs(view);
    for (int i = 0; i < controls.OptionUdir.count(); ++i)
        controls.OptionUdir[i].colour = i == view ? Colour::Accent : Colour::Normal;

    launcher.settings.ListMode = view;
    controls.ImageCM.visible = ScriptedMapSwitchShown(launcher);
    controls.AuxButton[zipLibraryButton].visible = view == zipLibrary;
    controls.AuxButton[shortcutButton].enabled = true;
    controls.Auto[0].caption = ListHeading(launcher, view);
    FillGamesList(launcher, view);

    controls.PwadList.select(std::max(controls.PwadList.find(rememberedGame(launcher, view)), 0));
    controls.LaunchButton.enabled = CanLaunchSelection(launcher);
    if (controls.PwadShowlist.isEmpty())
        controls.AuxButton[shortcutButton].enabled = false;
}

void ShowInstalledGame(Launcher& launcher, const QString& name)
{
    launcher.controls.edFilter.text.clear();
    launcher.controls.PwadList.setFilter({});
    launcher.settings.SelectedGame = name;
    OptionUdirClick(launcher, installedGames);
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
    // Without the maps' models there is no switch to leave the mode by.
    const bool scriptedOnly =
        launcher.settings.ScriptedMapMode && ScriptedMapModelsPresent(launcher.files, launcher.paths);
    QList<ListEntry> games;
    for (const QString& name :
         launcher.files.foldersHolding(launcher.paths.GamesPath, {u"Pwads"_s, u"Gwads"_s}))
        if (!scriptedOnly || IsScriptedMap(launcher.files, launcher.paths, name).isScriptedMap)
            games << ListEntry{ListedGameName(launcher, name), name};
    launcher.controls.PwadList.setEntries(games);
}

void FillDoomGamesList(Launcher& launcher)
{
    launcher.controls.PwadList.clear();
    for (const QString& title : DoomGameTitles(launcher.iwads, launcher.font.CustomFontOn))
        launcher.controls.PwadList.add(title);
}

void FillArchiveList(Launcher& launcher, const QString& folder)
{
    try {
        launcher.files.createFolder(folder);
    } catch (const FileError&) {
        // A library that cannot be there lists nothing.
    }
    QList<ListEntry> games;
    for (const QString& name : launcher.files.files(folder))
        if (EndsWith(name, u".zip"_s))
            games << ListEntry{ListedArchiveName(launcher, BaseNameOf(name)), BaseNameOf(name)};
    launcher.controls.PwadList.setEntries(games);
}

QString ListedGameName(const Launcher& launcher, const QString& name)
{
    return launcher.font.CustomFontOn ? name : name.toUpper();
}

QString ListedArchiveName(const Launcher& launcher, const QString& name)
{
    return launcher.font.CustomFontOn ? name.left(1).toUpper() + name.mid(1) : name.toUpper();
}

QString ListHeading(const Launcher& launcher, int view)
{
    if (view == installedGames)
        return u"INSTALLED GAMES LIST"_s;
    if (view == doomGames)
        return u"COMMERCIAL DOOM LIST"_s;
    const bool custom = launcher.files.fileExists(launcher.paths.LaunchDataPath + u"archives.vyk"_s) &&
                        launcher.files.folderExists(launcher.paths.ArchivesPath);
    return custom ? u"CUSTOM ZIP LIBRARY"_s : u"ZIP LIBRARY"_s;
}
