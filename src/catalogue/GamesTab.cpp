#include "catalogue/GamesTab.h"

#include "catalogue/GameSelection.h"
#include "catalogue/ScriptedMapMode.h"

using namespace Qt::StringLiterals;

namespace {

QString headingOf(const Truth& truth)
{
    switch (truth.view()) {
    case View::InstalledGames:
        return truth.facts.game.scriptedMap.isScriptedMap ? u"KELDRAX SCRIPTED MAP"_s
                                                          : u"INSTALLED GAMES LIST"_s;
    case View::DoomGames:
        return u"COMMERCIAL DOOM LIST"_s;
    default:
        return truth.facts.customZipLibrary ? u"CUSTOM ZIP LIBRARY"_s : u"ZIP LIBRARY"_s;
    }
}

void showGames(const Truth& truth, Controls& controls)
{
    controls.OptionUdir.startAs(truth.settings.ListMode);
    for (int i = 0; i < controls.OptionUdir.count(); ++i)
        controls.OptionUdir.button(i).colour = i == truth.settings.ListMode ? Colour::Accent : Colour::Normal;
    controls.Auto[Heading::Games].caption = headingOf(truth);
    controls.ImageCM.visible = ScriptedMapSwitchShown(truth);
    controls.edFilter.text = truth.selection.filter;
    controls.PwadList.setFilter(truth.selection.filter);
    controls.PwadList.show(truth.facts.games);
    controls.PwadList.startAs(truth.gameIs(GameKind::None)
                                  ? -1
                                  : controls.PwadList.find(SelectedNameOf(truth.settings, truth.view())));
}

// Where the boundary between the files and the savegames lies: ShrinkGameList, ExpandGameList.
void showBoundary(const Truth& truth, Controls& controls)
{
    constexpr qsizetype manyFiles = 5;
    const bool fewFiles = truth.gameIs(GameKind::Pwad) && truth.shownFiles().size() < manyFiles;
    controls.MainForm.saveGamesTall = truth.view() == View::DoomGames || fewFiles;
}

} // namespace

void ShowGamesTab(const Truth& truth, Controls& controls)
{
    showGames(truth, controls);
    showBoundary(truth, controls);
    controls.PwadShowlist.show(truth.shownFiles());
    controls.PwadShowlist.startAs(controls.PwadShowlist.find(truth.chosenFile()));
    controls.MapList.show(truth.facts.file.maps);
    controls.MapList.startAs(controls.MapList.find(truth.chosenMap()));
    QList<ListEntry> savegames;
    for (const SaveGame& game : truth.facts.file.savegames)
        savegames << ListEntry{game.slot + u" - "_s + game.description, game.slot};
    controls.SaveGameList.show(savegames);
    controls.SaveGameList.startAs(controls.SaveGameList.find(truth.chosenSlot()));
}
