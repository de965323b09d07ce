#include "savegames/DeleteSaveGames.h"

#include "savegames/SaveGames.h"
#include "shell/Trash.h"
#include "start/Start.h"

using namespace Qt::StringLiterals;

namespace {

void deleteAll(Launcher& launcher, Trash& trash)
{
    FileSystem& files = launcher.files;
    const InstallationPaths& paths = launcher.paths;
    const QString saves = paths.RootPath + u"/UserSG/"_s;
    QStringList folders;
    for (const QString& folder : files.folders(saves))
        folders << saves + folder;
    for (const QString& game : files.foldersHolding(paths.GamesPath, {u"savegame"_s}))
        folders << paths.GamesPath + game + u"/savegame"_s;
    for (const QString& folder : folders)
        if (!trash.discard(folder))
            return;
    files.removeTree(paths.RootPath + u"/VYKanfiles"_s);
    trash.discard(paths.LaunchPath + u"GameInfo/Save"_s); // Gwads and Zip lie in it
}

void purgeClicked(Launcher& launcher)
{
    const QString question =
        u"  This is a quick method of removing all previously saved games.        \r\n\r\n"
        "                          Do you wish to continue?"_s;
    const Trash trash(launcher.files, launcher.prompts);
    if (launcher.prompts.MsgboxPos(question + trash.words(), Msg::YesNo + Msg::Question,
                                   u" Purge all savegames "_s) != Msg::ResultYes)
        return;
    PurgeSaveGames(launcher);
    RefreshSaveGames(launcher); // those that could not be deleted are still there
}

} // namespace

void ConnectDeleteSaveGames(Launcher& launcher)
{
    launcher.controls.mcDelSaveGame.clicked = [&launcher] { DeleteSaveGame(launcher); };
    launcher.controls.ButPurge[Purge::SaveGames].clicked = [&launcher] { purgeClicked(launcher); };
}

void DeleteSaveGame(Launcher& launcher)
{
    const QString slot = launcher.chosenSlot();
    Trash trash(launcher.files, launcher.prompts);
    if (slot.isEmpty() || launcher.prompts.MsgboxPos(
                              u"Are you certain you wish to delete this savegame?     "_s + trash.words(),
                              Msg::YesNo + Msg::Question, u" Delete selected savegame"_s) != Msg::ResultYes)
        return;
    try {
        if (!trash.discard(SaveGameFolder(launcher) + u"/KeldraxSav"_s + slot + u".vyksg"_s))
            return;
    } catch (const FileError&) {
        return;
    }
    ListSaveGames(launcher);
    launcher.selection.SaveSlot.clear();
    launcher.selection.map = launcher.facts.file.maps.value(0);
}

void PurgeSaveGames(Launcher& launcher)
{
    try {
        Trash trash(launcher.files, launcher.prompts);
        deleteAll(launcher, trash);
    } catch (const FileError&) {
        launcher.prompts.MsgboxPos(u"Access denied - file or folder already in use.    "_s,
                                   Msg::Ok + Msg::Exclamation, u" Access error "_s);
    }
}
