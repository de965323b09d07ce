#include "catalogue/InstallGame.h"

#include "catalogue/GameLists.h"
#include "catalogue/GameNames.h"
#include "catalogue/GameStaging.h"
#include "catalogue/ZipLibrary.h"
#include "platform/FileNames.h"
#include "platform/Paths.h"
#include "platform/Text.h"
#include "ui/FileErrorReport.h"

using namespace Qt::StringLiterals;

namespace {

const QString installError = u" Install error"_s;
const QString conversionError = u" Conversion error"_s;

bool isWad(const QString& path)
{
    return EndsWith(path, u".wad"_s);
}

bool isZip(const QString& path)
{
    return EndsWith(path, u".zip"_s);
}

// Brings a WAD, or the files of a zip, into the folder that becomes the game; false when there are none.
bool fillFromFile(Launcher& launcher, GameStaging& staging, const QString& path)
{
    if (isZip(path))
        return ExtractZip(launcher, path, staging.folder());
    const std::unique_ptr<Progress> progress =
        launcher.prompts.showProgress(u"Copying "_s + FileNameOf(path));
    const qint64 size = launcher.files.stamp(path).size;
    return staging.add(path, [&](qint64 done) { return progress->advance(done, size); });
}

// Whether a file is one that can be installed under its name.
Installed checkFile(Prompts& prompts, const QString& path)
{
    if (!isWad(path) && !isZip(path))
        return Installed::NotAGame;
    if (IsUsableName(BaseNameOf(path)) && !IsReservedGameName(BaseNameOf(path)))
        return Installed::Done;
    ReportIllegalName(prompts, {.title = installError});
    return Installed::Refused;
}

void reportFailure(Prompts& prompts, const FileError& error)
{
    if (ReportCause(prompts, error))
        return;
    const QString text = error.isDenied() ? u" Read only error, file can't be overwritten      "_s
                                          : u" Unknown error, Pwad can not be installed      "_s;
    prompts.MsgboxPos(text, Msg::Ok + Msg::Information, installError);
}

// Without a message: the game is there either way.
void rememberFolder(Launcher& launcher)
{
    try {
        WriteLines(launcher.files, launcher.paths.LaunchDataPath + u"pwads.vyk"_s,
                   {AsField(NativePath(launcher.session.LastInstallFolder))});
    } catch (const FileError&) {
    }
}

} // namespace

bool InstallGameFromFile(Launcher& launcher)
{
    QString& LastInstallFolder = launcher.session.LastInstallFolder;
    LastInstallFolder = LoadLastInstallFolder(launcher.files, launcher.paths);
    if (LastInstallFolder.isEmpty())
        LastInstallFolder = launcher.paths.ArchivesPath;
    const QString path = launcher.prompts.chooseFile({.title = u"Install a wad file to the Games List"_s,
                                                      .filter = u"Doom levels - zip or wad files"_s,
                                                      .pattern = u"*.zip;*.wad;"_s,
                                                      .folder = LastInstallFolder});
    if (!path.isEmpty())
        LastInstallFolder = FolderOf(path);
    const Installed installed = path.isEmpty() ? Installed::NotAGame : InstallPwadGame(launcher, path);
    if (installed == Installed::Refused)
        return false;
    rememberFolder(launcher);
    if (installed == Installed::Done)
        ShowInstalledGame(launcher, BaseNameOf(path));
    return true;
}

bool InstallDroppedFiles(Launcher& launcher, const QStringList& paths)
{
    QString last;
    for (const QString& path : paths)
        if (InstallPwadGame(launcher, path) == Installed::Done)
            last = path;
    if (last.isEmpty())
        return false;
    launcher.session.LastInstallFolder = FolderOf(last);
    rememberFolder(launcher);
    ShowInstalledGame(launcher, BaseNameOf(last));
    return true;
}

Installed InstallPwadGame(Launcher& launcher, const QString& path)
{
    const QString name = BaseNameOf(path);
    if (const Installed checked = checkFile(launcher.prompts, path); checked != Installed::Done)
        return checked;
    if (!launcher.files.actualPath(launcher.paths.GamesPath + name).isEmpty()) {
        launcher.prompts.MsgboxPos(u"  WARNING: '"_s + name + u"' already exists in the   \r\n"_s +
                                       u"  games list, delete or rename existing entry.     "_s,
                                   Msg::Ok, u" Duplicate name error"_s);
        return Installed::Refused;
    }
    try {
        GameStaging staging(launcher.files, launcher.paths.GamesPath);
        staging.create(name, u"Pwads"_s);
        if (!fillFromFile(launcher, staging, path))
            return Installed::Refused;
        staging.placeAsNewGame();
        return Installed::Done;
    } catch (const FileError& error) {
        reportFailure(launcher.prompts, error);
        return Installed::Refused;
    }
}

Installed InstallGwadGame(Launcher& launcher, const QString& path)
{
    if (const Installed checked = checkFile(launcher.prompts, path); checked != Installed::Done)
        return checked;
    return InstallAsGwad(launcher, BaseNameOf(path),
                         [&](GameStaging& staging) { return fillFromFile(launcher, staging, path); });
}

Installed InstallAsGwad(Launcher& launcher, const QString& name,
                        const std::function<bool(GameStaging&)>& fill)
{
    const QString game = launcher.paths.GamesPath + name;
    if (launcher.files.folderExists(game + u"/Pwads"_s)) {
        launcher.prompts.MsgboxPos(u" The "_s + name +
                                       u" folder already exists as an auto-loading User Directory     "_s,
                                   Msg::Ok, u" User Directory Conversion"_s);
        return Installed::Refused;
    }
    const bool isAddition = launcher.files.folderExists(game + u"/Gwads"_s);
    try {
        GameStaging staging(launcher.files, launcher.paths.GamesPath);
        staging.create(name, u"Gwads"_s);
        if (!fill(staging))
            return Installed::Refused;
        if (launcher.files.actualPath(game).isEmpty())
            staging.placeAsNewGame();
        else
            staging.placeInGame();
    } catch (const FileError& error) {
        if (ReportCause(launcher.prompts, error))
            return Installed::Refused;
        if (error.isDenied())
            launcher.prompts.MsgboxPos(u" Read only error, file can't be overwritten      "_s,
                                       Msg::Ok + Msg::Information, conversionError);
        else
            launcher.prompts.MsgboxPos(u"ERROR: Unknown error     "_s, Msg::Ok + Msg::Critical,
                                       conversionError);
        return Installed::Refused;
    }
    if (isAddition)
        launcher.prompts.MsgboxPos(u" All relevant files have been unzipped to the existing "_s + name +
                                       u" games list.    "_s,
                                   Msg::Ok, u"User Directory Conversion"_s);
    else
        launcher.prompts.MsgboxPos(u" The "_s + name + u" has been installed to the games list.     "_s,
                                   Msg::Ok, u" User Directory Conversion"_s);
    return Installed::Done;
}

QString LoadLastInstallFolder(const FileSystem& files, const InstallationPaths& paths)
{
    const QString record = paths.LaunchDataPath + u"pwads.vyk"_s;
    try {
        if (!files.fileExists(record))
            return {};
        const QString folder = WithSlashes(FirstField(ReadLines(files, record).value(0)));
        return files.folderExists(folder) ? folder : QString();
    } catch (const FileError&) {
        return {};
    }
}
