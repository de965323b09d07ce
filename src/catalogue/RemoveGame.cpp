#include "catalogue/RemoveGame.h"

#include "catalogue/GameLists.h"
#include "catalogue/GameSelection.h"
#include "catalogue/Leftovers.h"
#include "catalogue/ZipLibrary.h"
#include "platform/FileLock.h"
#include "platform/FileNames.h"
#include "platform/Paths.h"
#include "records/RecordRemoval.h"
#include "shell/DeleteShortcuts.h"
#include "shell/Trash.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString accessError = u" Access error"_s;

bool confirmed(Prompts& prompts, const QString& text, const QString& title)
{
    return prompts.MsgboxPos(text, Msg::YesNo + Msg::Question, title) == Msg::ResultYes;
}

void reportAccessError(Prompts& prompts, const QString& text)
{
    prompts.MsgboxPos(text, Msg::Ok + Msg::Exclamation, accessError);
}

void reportPartlyRemoved(Prompts& prompts)
{
    reportAccessError(prompts, u"Unable to fully remove the selected item from the games list,       \r\n"
                               "associated files or folders may be in use by another program."_s);
}

bool isInUse(Prompts& prompts, const QString& path, const QString& text)
{
    if (path.isEmpty() || !IsFileLocked(path))
        return false;
    reportAccessError(prompts, text);
    return true;
}

// An installed game with this WAD has its savegames in the same folder.
bool isWadOfInstalledGame(const FileSystem& files, const InstallationPaths& paths, const QString& base)
{
    const QStringList kinds{u"Pwads"_s, u"Gwads"_s};
    const QStringList games = files.foldersHolding(paths.GamesPath, kinds);
    return std::ranges::any_of(games, [&](const QString& game) {
        return std::ranges::any_of(kinds, [&](const QString& kind) {
            return files.fileExists(paths.GamesPath + game + u'/' + kind + u'/' + base + u".wad"_s);
        });
    });
}

void removeGame(Launcher& launcher, Trash& trash, const QString& name, const QString& base)
{
    FileSystem& files = launcher.files;
    const QString game = launcher.paths.GamesPath + name;
    const bool isGwad = launcher.gameIs(GameKind::Gwad);
    if (!trash.discard(game)) // as a whole: of a linked folder the link goes, not what it leads to
        return;
    if (!isGwad)
        DeleteGameResources(files, trash, launcher.paths, base);
    if (!trash.keeps()) // the few bytes are of use again when the game comes back
        DeleteRecordsOfGame(files, launcher.paths, name, isGwad);
    DeleteFilesBeginningWith(files, launcher.paths, base, {u"VYKAnFiles", u"gwa"});
    DeleteShortcuts(files, launcher.shortcutFolders, name);
}

void removeArchive(Launcher& launcher, Trash& trash, const QString& name, const QString& base)
{
    FileSystem& files = launcher.files;
    if (!trash.discard(ArchivePath(launcher.paths, name)))
        return;
    files.remove(launcher.paths.LaunchPath + u"Zips/Checks/"_s + name + u".vykchk"_s);
    if (!trash.keeps())
        DeleteRecordsOfArchive(files, launcher.paths, name);
    if (IsUsableName(base) && !isWadOfInstalledGame(files, launcher.paths, base) &&
        files.folderExists(launcher.paths.RootPath + u"/UserSG/"_s + base))
        trash.discard(launcher.paths.RootPath + u"/UserSG/"_s + base);
}

} // namespace

void ConnectRemoval(Launcher& launcher)
{
    launcher.controls.mcDeleteFolder.clicked = [&launcher] { RemoveInstalledGame(launcher); };
    launcher.controls.mcDeleteFile.clicked = [&launcher] { DeleteGameFile(launcher); };
    launcher.controls.mcDeleteArchive.clicked = [&launcher] { DeleteArchive(launcher); };
}

void RemoveInstalledGame(Launcher& launcher)
{
    const QString name = launcher.facts.game.name;
    const QString file = launcher.SelectedGameFile();
    Trash trash(launcher.files, launcher.prompts);
    if (name.isEmpty() ||
        !confirmed(launcher.prompts,
                   u" Are you certain you wish to remove this game from the list?      "_s + trash.words(),
                   u" Remove selected game from list "_s) ||
        isInUse(launcher.prompts, file,
                u" Unable to remove the selected item from the games list,       \r\n"
                "associated files or folders are in use by another program."_s))
        return;
    try {
        removeGame(launcher, trash, name, launcher.chosenWadName());
    } catch (const FileError&) {
        reportPartlyRemoved(launcher.prompts);
    }
    SelectView(launcher, View::InstalledGames);
}

void DeleteGameFile(Launcher& launcher)
{
    FileSystem& files = launcher.files;
    const QString ChosenListFile = launcher.SelectedGameFile();
    const QString file = FileNameOf(ChosenListFile).toUpper();
    const QString base = BaseNameOf(ChosenListFile);
    const QString game = launcher.facts.game.name;
    Trash trash(files, launcher.prompts);
    if (ChosenListFile.isEmpty() ||
        !confirmed(launcher.prompts,
                   u"Are you certain you wish to delete "_s + file + u"?       "_s + trash.words(),
                   u" Delete selected file"_s) ||
        isInUse(launcher.prompts, ChosenListFile,
                u"Unable to delete the selected file, the file       \r\n"
                "  appears to be in use by another program."_s))
        return;
    try {
        // Only a WAD has anything of its own elsewhere.
        if (trash.discard(ChosenListFile) && EndsWith(ChosenListFile, u".wad"_s)) {
            DeleteShortcuts(files, launcher.shortcutFolders, game + u" - "_s + base);
            if (!trash.keeps())
                files.remove(launcher.paths.LaunchPath + u"GameInfo/Save/Gwads/"_s + game.toLower() + u'/' +
                             base.toLower() + u".vyks"_s);
            DeleteFilesBeginningWith(files, launcher.paths, base, {u"VYKAnFiles", u"gwa"});
        }
    } catch (const FileError&) {
        reportPartlyRemoved(launcher.prompts);
    }
    SelectGameAgain(launcher);
}

void DeleteArchive(Launcher& launcher)
{
    const QString name = launcher.facts.game.name;
    Trash trash(launcher.files, launcher.prompts);
    if (name.isEmpty() ||
        !confirmed(launcher.prompts, u"Are you certain you wish to delete this file?      "_s + trash.words(),
                   u" Delete selected archive"_s) ||
        isInUse(launcher.prompts, launcher.SelectedGameFile(),
                u"Unable to delete the selected file, the file       \r\n"
                "  appears to be in use by another program."_s))
        return;
    try {
        removeArchive(launcher, trash, name, launcher.chosenWadName());
    } catch (const FileError&) {
        reportAccessError(launcher.prompts, u"Unable to remove the selected item from this list,       \r\n"
                                            "   the file may be in use by another program."_s);
    }
    SelectView(launcher, View::ZipLibrary);
}
