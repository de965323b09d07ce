#include "options/CleanUpModels.h"

#include "options/PackFacts.h"
#include "options/RemovalReport.h"
#include "platform/Text.h"
#include "shell/Trash.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

void rememberConfirmation(Launcher& launcher, const QString& path, bool neverAgain)
{
    try {
        if (neverAgain)
            WriteLines(launcher.files, path, {u"Cleanup confirmation removed."_s});
        else
            launcher.files.remove(path);
    } catch (const FileError&) {
        launcher.prompts.MsgboxPos(u"This choice could not be saved.    "_s, Msg::Ok + Msg::Exclamation,
                                   u" Access error "_s);
    }
}

bool isConfirmed(Launcher& launcher)
{
    const QString path = launcher.paths.LaunchDataPath + u"confirm.vyk"_s;
    return launcher.files.fileExists(path) ||
           launcher.prompts.confirmModelCleanup(
               [&launcher, path](bool neverAgain) { rememberConfirmation(launcher, path, neverAgain); });
}

// False when it stayed.
bool removeItem(Trash& trash, const ModelPackItem& item)
{
    try {
        return trash.discard(item.path);
    } catch (const FileError&) {
        return false;
    }
}

} // namespace

void ConnectModelCleanup(Launcher& launcher)
{
    launcher.controls.AuxButton[Tool::CleanUpModels].clicked = [&launcher] { CleanUpModels(launcher); };
    launcher.controls.ButPurge[Purge::Models].clicked = [&launcher] { CleanUpModels(launcher); };
}

void CleanUpModels(Launcher& launcher)
{
    const ModelCleanup everything{
        .RemoveModelPack1 = true, .RemoveTovrensPack = true, .RemoveKelspack = true};
    const QString summary =
        u"To be removed: "_s +
        ModelPackContents(launcher.files, FindModelPackItems(launcher.files, launcher.paths, everything));
    const CleanupQuestion question{.summary = summary, .toolTips = !launcher.settings.DisableToolTips};
    if (!launcher.prompts.askModelCleanup(question) || !isConfirmed(launcher))
        return;
    const QStringList left = DeleteModelPacks(launcher, everything);
    QString text = u"Important: Close down the launcher before re-installing any model packs.    "_s;
    if (launcher.files.hasTrash())
        text += u"\r\n What was removed lies in the trash.    "_s;
    if (!left.isEmpty())
        text += u"\r\n\r\n"_s + RemovalReport(left, launcher.paths.RootPath);
    launcher.prompts.MsgboxPos(text, Msg::Ok + (left.isEmpty() ? Msg::Information : Msg::Exclamation),
                               u" Cleanup Completed"_s);
}

QStringList DeleteModelPacks(Launcher& launcher, const ModelCleanup& cleanup)
{
    FileSystem& files = launcher.files;
    Trash trash(files, launcher.prompts);
    const auto isGone = [&files](const QString& path) { return files.actualPath(path) != path; };
    QStringList failed;
    for (const ModelPackItem& item : FindModelPackItems(files, launcher.paths, cleanup))
        if (std::ranges::all_of(item.onlyWithout, isGone) && !removeItem(trash, item))
            failed << item.path;
    failed.removeIf(isGone); // with the folder that they were in

    DetectModelPacks(launcher);
    return OutermostPaths(failed);
}
