#include "catalogue/InstallArchive.h"

#include "catalogue/GameLists.h"
#include "catalogue/GameNames.h"
#include "catalogue/InstallGame.h"
#include "catalogue/ZipLibrary.h"
#include "ui/FileErrorReport.h"

using namespace Qt::StringLiterals;

namespace {

const QString conversionError = u" Conversion error"_s;

// Every file of the zip folder; false when the player cancelled.
bool fillFromZipFolder(Launcher& launcher, GameStaging& staging)
{
    const QString folder = launcher.facts.opened.folder;
    const QStringList names = launcher.files.files(folder);
    qint64 total = 0;
    for (const QString& name : names)
        total += launcher.files.stamp(folder + name).size;
    const std::unique_ptr<Progress> progress =
        launcher.prompts.showProgress(u"Installing "_s + launcher.settings.SelectedArchive);
    qint64 before = 0;
    for (const QString& name : names) {
        if (!staging.add(folder + name, [&](qint64 done) { return progress->advance(before + done, total); }))
            return false;
        before += launcher.files.stamp(folder + name).size;
    }
    return true;
}

// The name to install the selected zip under; nothing when there is none, or the zip cannot be opened.
std::optional<QString> askInstallName(Launcher& launcher, const QString& caption, const QString& frame)
{
    const QString archive = launcher.settings.SelectedArchive;
    if (!OpenArchive(launcher, archive))
        return std::nullopt;
    const std::optional<QString> name = AskGameName(
        launcher.prompts, {.caption = caption, .frame = frame, .button = u"OK"_s, .name = archive},
        {.title = conversionError});
    // The zip may have changed meanwhile.
    return name && OpenArchive(launcher, archive) ? name : std::nullopt;
}

bool isEmptyFolder(const FileSystem& files, const QString& folder)
{
    return files.files(folder).isEmpty() && files.folders(folder).isEmpty();
}

// Whether a game may take the place of what has its name now.
bool mayReplace(Prompts& prompts, const QString& name)
{
    const QString question = u" WARNING: A manual-loading structure already exists in "_s + name +
                             u"     \r\n selecting Yes will delete all the existing files contained in this "
                             "folder.     "_s;
    return prompts.MsgboxPos(question, Msg::YesNo + Msg::Question, u" User Directory Conversion"_s) ==
           Msg::ResultYes;
}

} // namespace

void ConnectArchiveInstallation(Launcher& launcher)
{
    launcher.controls.mcUdirUnZip.clicked = [&launcher] { InstallArchiveAsPwad(launcher); };
    launcher.controls.mcGwadUnZip.clicked = [&launcher] { InstallArchiveAsGwad(launcher); };
}

void InstallArchiveAsPwad(Launcher& launcher)
{
    const std::optional<QString> name = askInstallName(launcher, u" Install to Game List"_s, u" Name "_s);
    if (!name)
        return;
    const QString game = launcher.paths.GamesPath + *name;
    if (launcher.files.folderExists(game + u"/Pwads"_s)) {
        launcher.prompts.MsgboxPos(u"  WARNING: '"_s + *name + u"' already exists  \r\n"_s +
                                       u"  choose another name before installing.     "_s,
                                   Msg::Ok, u" Duplicate name error"_s);
        return;
    }
    const bool exists = launcher.files.folderExists(game);
    if (exists && !isEmptyFolder(launcher.files, game) && !mayReplace(launcher.prompts, *name))
        return;
    try {
        GameStaging staging(launcher.files, launcher.paths.GamesPath);
        staging.create(*name, u"Pwads"_s);
        if (!fillFromZipFolder(launcher, staging))
            return;
        if (exists)
            staging.placeAsReplacement();
        else
            staging.placeAsNewGame();
    } catch (const FileError& error) {
        if (ReportCause(launcher.prompts, error))
            return;
        launcher.prompts.MsgboxPos(error.isDenied() ? u" Read only error, file can't be overwritten     "_s
                                                    : u" Unknown error     "_s,
                                   Msg::Ok + Msg::Critical, conversionError);
        return;
    }
    ShowInstalledGame(launcher, *name);
}

void InstallArchiveAsGwad(Launcher& launcher)
{
    const std::optional<QString> name =
        askInstallName(launcher, u" Install to Games List"_s, u"Games List Name"_s);
    if (!name)
        return;
    const auto fill = [&launcher](GameStaging& staging) { return fillFromZipFolder(launcher, staging); };
    if (InstallAsGwad(launcher, *name, fill) != Installed::Done)
        return;
    ShowInstalledGame(launcher, *name);
}
