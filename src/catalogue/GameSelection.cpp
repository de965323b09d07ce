#include "catalogue/GameSelection.h"

#include "catalogue/ScriptedMaps.h"
#include "catalogue/ZipLibrary.h"
#include "platform/Paths.h"
#include "records/GameRecords.h"
#include "savegames/SaveGames.h"
#include "shell/ShellOpen.h"
#include "shell/TextEditor.h"
#include "start/Start.h"
#include "wad/GameFiles.h"
#include "wad/MainWad.h"
#include "wad/ToolBridge.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr const char16_t* textLumps[] = {u"sndinfo", u"dd_defns", u"scp_zoff", u"scp_defn"};

GameFacts doomGame(const Launcher& launcher, const QString& title)
{
    const std::optional<GameFamily> family = FamilyOfTitle(title);
    const QString iwad = family ? launcher.facts.iwads.of(*family) : QString();
    if (iwad.isEmpty())
        return {};
    return {.kind = GameKind::Doom,
            .name = title,
            .folder = FolderOf(iwad) + u'/',
            .files = {FileNameOf(iwad)},
            .mainWad = FileNameOf(iwad),
            .scriptedMap = {}};
}

GameFacts installedGame(Launcher& launcher, const QString& name)
{
    const QString game = launcher.paths.GamesPath + name;
    const bool isGwad = launcher.files.folderExists(game + u"/Gwads"_s);
    const QString folder = game + (isGwad ? u"/Gwads"_s : u"/Pwads"_s);
    const QString onDisk = launcher.files.actualPath(folder); // empty when it has gone meanwhile
    GameFacts facts{.kind = isGwad ? GameKind::Gwad : GameKind::Pwad,
                    .name = name,
                    .folder = (onDisk.isEmpty() ? folder : onDisk) + u'/',
                    .files = {},
                    .mainWad = {},
                    .scriptedMap = {}};
    facts.files = GameFilesOf(launcher.files, facts.folder);
    if (!isGwad) {
        facts.mainWad = ChooseMainWad(launcher, facts);
        facts.scriptedMap = IsScriptedMap(launcher.files, launcher.paths, name);
    }
    return facts;
}

GameFacts archive(Launcher& launcher, const QString& name)
{
    GameFacts facts{
        .kind = GameKind::Archive, .name = name, .folder = {}, .files = {}, .mainWad = {}, .scriptedMap = {}};
    if (!OpenArchive(launcher, name))
        return facts;
    facts.folder = launcher.facts.opened.folder;
    facts.files = GameFilesOf(launcher.files, facts.folder);
    facts.mainWad = ChooseMainWad(launcher, facts);
    return facts;
}

GameFacts readGame(Launcher& launcher, const QString& name)
{
    switch (launcher.view()) {
    case View::InstalledGames:
        return installedGame(launcher, name);
    case View::DoomGames:
        return doomGame(launcher, name);
    default:
        return archive(launcher, name);
    }
}

void readFile(Launcher& launcher)
{
    FileFacts& file = launcher.facts.file;
    file = {};
    const QString path = launcher.SelectedGameFile();
    if (path.isEmpty())
        return;
    file.maps = ListWadMaps(launcher, path);
    file.compatibility = CheckPwad(launcher.files, launcher.paths, path);
    file.isOutdated = CheckScriptedMapDate(launcher.files, path);
    ListSaveGames(launcher);
}

// The file that a game is selected with.
QString usualFile(Launcher& launcher)
{
    const GameFacts& game = launcher.facts.game;
    if (game.kind == GameKind::Gwad)
        return GameRecords(launcher.files, launcher.paths, launcher).gwadFile();
    return game.mainWad;
}

void gameFileClicked(Launcher& launcher)
{
    SelectFile(launcher, launcher.controls.PwadShowlist.selectedText());
    if (launcher.gameIs(GameKind::Gwad) && !launcher.chosenWadName().isEmpty())
        GameRecords(launcher.files, launcher.paths, launcher).SaveGwadSelection();
}

void gameFileDoubleClicked(Launcher& launcher)
{
    const QString name = launcher.chosenFile();
    if (name.isEmpty())
        return;
    // Texts without an ending, by which nothing but a text editor is found.
    const bool isText = std::ranges::any_of(
        textLumps, [&](const char16_t* lump) { return SameName(name, QString::fromUtf16(lump)); });
    if (isText)
        OpenInTextEditor(launcher, launcher.SelectedGameFile());
    else
        ShellOpen(launcher.prompts, launcher.SelectedGameFile());
}

} // namespace

void ConnectGameSelection(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    controls.PwadList.clicked = [&launcher] {
        SelectGame(launcher, launcher.controls.PwadList.selectedName());
    };
    controls.PwadShowlist.clicked = [&launcher] { gameFileClicked(launcher); };
    controls.PwadShowlist.doubleClicked = [&launcher] { gameFileDoubleClicked(launcher); };
}

void SelectGame(Launcher& launcher, const QString& name)
{
    SelectedNameOf(launcher.settings, launcher.view()) = name;
    if (launcher.settings.AutoSelect)
        launcher.settings.SelectedGameAutoOn = name;
    launcher.facts.game = readGame(launcher, name);
    SelectFile(launcher, usualFile(launcher));
    RestoreLastSavegame(launcher);
}

void SelectGameAgain(Launcher& launcher)
{
    if (!launcher.gameIs(GameKind::None))
        SelectGame(launcher, SelectedNameOf(launcher.settings, launcher.view()));
}

void DeselectGame(Launcher& launcher)
{
    launcher.facts.game = {};
    SelectFile(launcher, {});
}

void SelectFile(Launcher& launcher, const QString& name)
{
    Selection& selection = launcher.selection;
    selection.file = name;
    selection.map.clear();
    selection.SaveSlot.clear();
    readFile(launcher);
    SetMapFocus(launcher);
}

void ReadSelectedGame(Launcher& launcher)
{
    if (launcher.gameIs(GameKind::None))
        return;
    launcher.facts.game = readGame(launcher, launcher.facts.game.name);
    if (launcher.chosenFile().isEmpty() && !launcher.gameIs(GameKind::Gwad))
        launcher.selection.file = usualFile(launcher);
    readFile(launcher);
    RefreshSaveGames(launcher);
    SetMapFocus(launcher);
}

QString& SelectedNameOf(Settings& settings, View view)
{
    if (view == View::InstalledGames)
        return settings.SelectedGame;
    return view == View::DoomGames ? settings.SelectedDoomGame : settings.SelectedArchive;
}

const QString& SelectedNameOf(const Settings& settings, View view)
{
    return SelectedNameOf(const_cast<Settings&>(settings), view);
}
