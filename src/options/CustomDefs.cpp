#include "options/CustomDefs.h"

#include "platform/Paths.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace {

// A double quote is what no command line can carry in a path.
bool isDefinition(const FileSystem& files, const QString& path)
{
    return QDir::isAbsolutePath(path) && EndsWith(path, u".ded"_s) && !BaseNameOf(path).isEmpty() &&
           !path.contains(u'"') && files.fileExists(path);
}

} // namespace

bool IsKelspackDef(const QString& path)
{
    const QString name = FileNameOf(path);
    return SameName(name, u"Alternative.ded"_s) || SameName(name, u"Fullpack.ded"_s) ||
           SameName(name, u"kelspack.wad"_s);
}

void ChooseCustomDefs(Launcher& launcher, ListBox& list)
{
    const QString folder = FolderOf(launcher.paths.CustomDefsPath + u"x"_s);
    try {
        launcher.files.createFolder(folder);
    } catch (const FileError&) {
        // Then the dialog starts elsewhere.
    }
    const QString chosen = launcher.prompts.chooseFile(
        {.title = u"DED Files"_s, .filter = u"DED Files"_s, .pattern = u"*.ded"_s, .folder = folder});
    const QString path = WithSlashes(chosen).trimmed();
    if (IsKelspackDef(path)) {
        launcher.prompts.MsgboxPos(
            u"It is not necessary to add any Kel's model defs to Global Deds, to use    \r\n"
            "  the Kel's models just enable the required option under the Misc tab.   "_s,
            Msg::Ok + Msg::Information, u" Configuration warning"_s);
        return;
    }
    if (!isDefinition(launcher.files, path))
        return;
    list.add(SameName(FolderOf(path), folder) ? BaseNameOf(path) : NativePath(path));
    list.select(list.count() - 1);
}
