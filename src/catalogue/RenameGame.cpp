#include "catalogue/RenameGame.h"

#include "catalogue/GameLists.h"
#include "catalogue/GameNames.h"
#include "catalogue/Leftovers.h"
#include "catalogue/ZipLibrary.h"
#include "platform/FileLock.h"
#include "platform/Paths.h"
#include "records/RecordRemoval.h"
#include "shell/DeleteShortcuts.h"

using namespace Qt::StringLiterals;

namespace {

const QString renamingError = u" Renaming error"_s;
const QString accessError = u" Access error"_s;
const IllegalName illegalArchiveName{.title = renamingError,
                                     .text = u" Illegal naming convention detected. "_s};

} // namespace

void ConnectRenaming(Launcher& launcher)
{
    launcher.controls.mcRenameFolder.clicked = [&launcher] { RenameInstalledGame(launcher); };
    launcher.controls.mcRenameArchive.clicked = [&launcher] { RenameArchive(launcher); };
}

void RenameInstalledGame(Launcher& launcher)
{
    FileSystem& files = launcher.files;
    const QString old = launcher.facts.game.name;
    if (old.isEmpty())
        return;
    const QString base = launcher.chosenWadName();
    const std::optional<QString> name =
        AskGameName(launcher.prompts,
                    {.caption = u" Rename Game"_s, .frame = u" Name "_s, .button = u"Cancel"_s, .name = old},
                    {.title = renamingError});
    if (!name)
        return;
    const QString games = launcher.paths.GamesPath;
    if (!files.actualPath(games + *name).isEmpty()) {
        launcher.prompts.MsgboxPos(u"  WARNING: '"_s + *name + u"' already exists  \r\n"_s +
                                       u"  choose another name for renaming."_s,
                                   Msg::Ok, u" Duplicate name error"_s);
        return;
    }
    try {
        files.move(games + old, games + *name);
        launcher.settings.SelectedGame = *name;
        DeleteRecordsOfGame(files, launcher.paths, old, launcher.gameIs(GameKind::Gwad));
        DeleteShortcuts(files, launcher.shortcutFolders, old);
        if (!base.isEmpty())
            DeleteFilesBeginningWith(files, launcher.paths, base, {u"VYKAnFiles"});
    } catch (const FileError& error) {
        if (error.isDenied())
            launcher.prompts.MsgboxPos(u"Unable to rename the selected item in this list,       \r\n"
                                       "  the item may be in use by another program."_s,
                                       Msg::Ok + Msg::Exclamation, accessError);
        else
            ReportIllegalName(launcher.prompts, {.title = renamingError});
    }
    SelectView(launcher, View::InstalledGames);
}

void RenameArchive(Launcher& launcher)
{
    FileSystem& files = launcher.files;
    const QString old = launcher.facts.game.name;
    if (old.isEmpty())
        return;
    const std::optional<QString> name =
        AskGameName(launcher.prompts,
                    {.caption = u" Rename Zip"_s, .frame = u" Name "_s, .button = u"Cancel"_s, .name = old},
                    illegalArchiveName);
    if (!name)
        return;
    const QString from = ArchivePath(launcher.paths, old);
    const QString to = ArchivePath(launcher.paths, *name);
    // Asked before, not after: what is in use is left as it is.
    if (IsFileLocked(from)) {
        launcher.prompts.MsgboxPos(u"Unable to rename the selected file, the file       \r\n"
                                   "  appears to be in use by another program."_s,
                                   Msg::Ok + Msg::Exclamation, accessError);
        return;
    }
    try {
        // A zip that has the name stays; the selected one may get another spelling.
        if (const QString taken = files.actualPath(to); !taken.isEmpty() && taken != files.actualPath(from))
            throw FileError(FileError::Kind::Exists, to, u"the name is taken"_s);
        files.move(from, to);
        launcher.settings.SelectedArchive = *name;
        if (!SameName(old, *name))
            DeleteRecordsOfArchive(files, launcher.paths, old);
    } catch (const FileError& error) {
        if (error.isDenied())
            launcher.prompts.MsgboxPos(u"Unable to rename the selected item in this list,       \r\n"
                                       "  the file may be in use by another program."_s,
                                       Msg::Ok + Msg::Exclamation, accessError);
        else
            ReportIllegalName(launcher.prompts, illegalArchiveName);
    }
    SelectView(launcher, View::ZipLibrary);
}
