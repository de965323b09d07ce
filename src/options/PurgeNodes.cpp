#include "options/PurgeNodes.h"

#include "options/RemovalReport.h"

using namespace Qt::StringLiterals;

namespace {

constexpr const char16_t* nodeFolders[] = {u"gwa", u"VYKAnFiles"};

void purgeClicked(Launcher& launcher)
{
    const QString question = u"This is a quick method of removing all nodes that have      \r\n"
                             "    previously been built with maps you have played.       \r\n\r\n"
                             "                  Do you wish to continue?"_s;
    if (launcher.prompts.MsgboxPos(question, Msg::YesNo + Msg::Question, u" Delete all saved nodes"_s) !=
        Msg::ResultYes)
        return;
    const QStringList left = PurgeNodes(launcher.files, launcher.paths);
    if (!left.isEmpty())
        launcher.prompts.MsgboxPos(RemovalReport(left, launcher.paths.RootPath), Msg::Ok + Msg::Exclamation,
                                   u" Access error "_s);
}

} // namespace

void ConnectNodePurge(Launcher& launcher)
{
    launcher.controls.ButPurge[Purge::Nodes].clicked = [&launcher] { purgeClicked(launcher); };
}

QStringList PurgeNodes(FileSystem& files, const InstallationPaths& paths)
{
    QStringList left;
    for (const char16_t* name : nodeFolders) {
        const QString folder = paths.RootPath + u'/' + QString::fromUtf16(name) + u'/';
        for (const QString& file : files.files(folder)) {
            try {
                files.remove(folder + file);
            } catch (const FileError&) {
                left << folder + file;
            }
        }
    }
    return left;
}
