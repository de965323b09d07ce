#include "catalogue/ConvertGame.h"

#include "catalogue/GameSelection.h"
#include "platform/Paths.h"
#include "shell/Trash.h"
#include "ui/FileErrorReport.h"

using namespace Qt::StringLiterals;

namespace {

void reportFailure(Prompts& prompts, const FileError& error, const QString& denied)
{
    if (ReportCause(prompts, error))
        return;
    prompts.MsgboxPos(error.isDenied() ? denied : u"ERROR: Unknown error     "_s, Msg::Ok + Msg::Critical,
                      u" Conversion error"_s);
}

// Gives a game's folder its other name, or moves what is in it into that folder when the game has both: what
// it replaces there goes to the trash.
void moveFiles(FileSystem& files, Prompts& prompts, const QString& from, const QString& to)
{
    if (!files.folderExists(to)) {
        files.move(from, to);
        return;
    }
    Trash trash(files, prompts);
    for (const QStringList& names : {files.files(from), files.folders(from)})
        for (const QString& name : names)
            if (trash.discard(to + u'/' + name))
                files.move(from + u'/' + name, to + u'/' + name);
    if (files.entries(from).isEmpty())
        files.removeFolder(from);
}

void remove(FileSystem& files, const QString& folder, const QString& key, const QString& ending)
{
    files.remove(folder + key.toLower() + ending);
}

// Only with files of other kinds beside its WADs is a game unfit to be loaded by hand.
bool mayConvertToPwad(Prompts& prompts, const QStringList& shown)
{
    constexpr int unaskedEntries = 3;
    qsizetype lastWad = shown.size();
    while (lastWad > 0 && !EndsWith(shown.at(lastWad - 1), u".wad"_s))
        --lastWad;
    if (lastWad <= unaskedEntries)
        return true;
    return prompts.MsgboxPos(
               u" Only relevant game files can be contained in an auto-loading structure,      \r\n"
               " select Yes if you still wish to convert to auto-loading or No to abort.      "_s,
               Msg::YesNo + Msg::Question, u" User Directory Conversion"_s) == Msg::ResultYes;
}

} // namespace

void ConnectConversion(Launcher& launcher)
{
    launcher.controls.mcGwadConvert.clicked = [&launcher] { ConvertToGwad(launcher); };
    launcher.controls.mcUdirConvert.clicked = [&launcher] { ConvertToPwad(launcher); };
}

void ConvertToGwad(Launcher& launcher)
{
    FileSystem& files = launcher.files;
    const QString name = launcher.facts.game.name;
    const QString game = launcher.paths.GamesPath + name;
    if (name.isEmpty())
        return;
    try {
        files.remove(game + u"/Pwads/"_s + BaseNameOf(launcher.chosenFile()) + u".vykchk"_s);
        moveFiles(files, launcher.prompts, game + u"/Pwads"_s, game + u"/Gwads"_s);
        remove(files, launcher.paths.LaunchPath + u"GameInfo/Pwads/"_s, name, u".vykm"_s);
    } catch (const FileError& error) {
        reportFailure(launcher.prompts, error, u"Access denied: File or folder may be in use     "_s);
    }
    SelectGameAgain(launcher);
}

void ConvertToPwad(Launcher& launcher)
{
    FileSystem& files = launcher.files;
    const QString name = launcher.facts.game.name;
    const QString game = launcher.paths.GamesPath + name;
    if (name.isEmpty())
        return;
    try {
        files.remove(game + u"/Gwads/"_s + BaseNameOf(launcher.chosenFile()) + u".vykchk"_s);
        if (!mayConvertToPwad(launcher.prompts, launcher.shownFiles()))
            return;
        moveFiles(files, launcher.prompts, game + u"/Gwads"_s, game + u"/Pwads"_s);
        const QString records = launcher.paths.LaunchPath + u"GameInfo/Gwads/"_s;
        remove(files, records, name, u".vykg"_s);
        remove(files, records, name, u".vykm"_s);
    } catch (const FileError& error) {
        reportFailure(launcher.prompts, error, u"Read only error, file can't be overwritten     "_s);
    }
    SelectGameAgain(launcher);
}
