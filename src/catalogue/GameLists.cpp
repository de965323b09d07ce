#include "catalogue/GameLists.h"

#include "catalogue/GameSelection.h"
#include "catalogue/ScriptedMaps.h"
#include "platform/Paths.h"

using namespace Qt::StringLiterals;

namespace {

bool hasCustomZipLibrary(const FileSystem& files, const InstallationPaths& paths)
{
    return files.fileExists(paths.LaunchDataPath + u"archives.vyk"_s) &&
           files.folderExists(paths.ArchivesPath);
}

// As the list does.
void sortByText(QList<ListEntry>& games)
{
    ListBox list(ListBox::Order::Sorted);
    list.setEntries(games);
    for (int i = 0; i < list.count(); ++i)
        games[i] = {list.entry(i), list.name(i)};
}

} // namespace

void ConnectGameLists(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    controls.OptionUdir.clicked = [&launcher](int view) { SelectView(launcher, static_cast<View>(view)); };
    controls.edFilter.typed = [&launcher] { launcher.selection.filter = launcher.controls.edFilter.text; };
}

void SelectView(Launcher& launcher, View view)
{
    launcher.settings.ListMode = static_cast<int>(view);
    launcher.facts.customZipLibrary = hasCustomZipLibrary(launcher.files, launcher.paths);
    launcher.facts.modelPacks.scriptedMapModels = ScriptedMapModelsPresent(launcher.files, launcher.paths);
    launcher.facts.games = GamesOf(launcher, view);
    const QList<ListEntry>& games = launcher.facts.games;
    const ListEntry remembered = FindGame(games, SelectedNameOf(launcher.settings, view));
    if (!remembered.name.isEmpty())
        SelectGame(launcher, remembered.name);
    else if (!games.isEmpty())
        SelectGame(launcher, games.first().name);
    else
        DeselectGame(launcher);
}

void ShowInstalledGame(Launcher& launcher, const QString& name)
{
    launcher.selection.filter.clear();
    launcher.settings.SelectedGame = name;
    SelectView(launcher, View::InstalledGames);
}

QList<ListEntry> GamesOf(Launcher& launcher, View view)
{
    if (view == View::InstalledGames)
        return FillInstalledGamesList(launcher);
    if (view == View::DoomGames)
        return FillDoomGamesList(launcher.facts.iwads, launcher.font.CustomFontOn);
    return FillArchiveList(launcher.files, launcher.paths.ArchivesPath, launcher.font.CustomFontOn);
}

QList<ListEntry> FillInstalledGamesList(const Launcher& launcher)
{
    // Without the maps' models there is no switch to leave the mode by.
    const bool scriptedOnly =
        launcher.settings.ScriptedMapMode && ScriptedMapModelsPresent(launcher.files, launcher.paths);
    QList<ListEntry> games;
    for (const QString& name :
         launcher.files.foldersHolding(launcher.paths.GamesPath, {u"Pwads"_s, u"Gwads"_s}))
        if (!scriptedOnly || IsScriptedMap(launcher.files, launcher.paths, name).isScriptedMap)
            games << ListEntry{launcher.font.CustomFontOn ? name : name.toUpper(), name};
    sortByText(games);
    return games;
}

QList<ListEntry> FillDoomGamesList(const IwadPaths& iwads, bool customFontOn)
{
    QList<ListEntry> games;
    for (const GameFamilyRow& row : GameFamilies)
        if (!iwads.of(row.family).isEmpty()) {
            const QString title = DisplayTitle(row.family, customFontOn);
            games << ListEntry{title, title};
        }
    sortByText(games);
    return games;
}

QList<ListEntry> FillArchiveList(FileSystem& files, const QString& folder, bool customFontOn)
{
    try {
        files.createFolder(folder);
    } catch (const FileError&) {
        // A library that cannot be there lists nothing.
    }
    QList<ListEntry> games;
    for (const QString& file : files.files(folder)) {
        const QString name = BaseNameOf(file);
        if (EndsWith(file, u".zip"_s))
            games << ListEntry{customFontOn ? name.left(1).toUpper() + name.mid(1) : name.toUpper(), name};
    }
    sortByText(games);
    return games;
}

ListEntry FindGame(const QList<ListEntry>& games, const QString& name)
{
    for (const auto part : {&ListEntry::name, &ListEntry::text})
        for (const ListEntry& game : games)
            if (SameName(game.*part, name))
                return game;
    return {};
}
