#include "app/Toolbar.h"

#include "catalogue/GameLists.h"
#include "launch/ShellOpen.h"
#include "launch/TextEditor.h"
#include "platform/Paths.h"
#include "platform/Text.h"
#include "ui/FolderQuestion.h"

using namespace Qt::StringLiterals;

namespace {

// AuxButton; the others belong to what they start.
enum Tool : size_t {
    Documentation = 1,
    EditLog = 3,
    EngineLog = 4,
    IwadLocations = 5,
    Font = 6,
    ZipFolder = 7
};

void openDocumentation(Launcher& launcher)
{
    QString& folder = launcher.documentationFolder;
    const QString path = launcher.prompts.chooseFile(
        {.title = u"Keldrax Documentation"_s,
         .filter = u"Keldrax Documentation"_s,
         .pattern = u"*.txt;*.htm;"_s,
         .folder = folder.isEmpty() ? launcher.paths.RootPath + u"/VYK_Docs"_s : folder});
    if (path.isEmpty())
        return;
    folder = FolderOf(path);
    if (EndsWith(path, u".txt"_s) || EndsWith(path, u".htm"_s))
        ShellOpen(launcher.prompts, path);
}

void openLog(Launcher& launcher, const QString& name)
{
    const QString path = launcher.files.actualPath(launcher.paths.RootPath + u'/' + name);
    if (!path.isEmpty())
        OpenInTextEditor(launcher, path);
}

void chooseZipFolder(Launcher& launcher)
{
    QString& folder = launcher.paths.ArchivesPath;
    const QString chosen = launcher.prompts.chooseFolder(
        FolderQuestion(NativePath(folder), u"Select the new location of your zipped wad files ..."_s),
        folder);
    if (!chosen.isEmpty())
        folder = chosen;
    if (!launcher.files.folderExists(folder))
        folder = launcher.paths.RootPath + u"/VYKArchives"_s;
    try {
        WriteLines(launcher.files, launcher.paths.LaunchDataPath + u"archives.vyk"_s, {NativePath(folder)});
    } catch (const FileError&) {
        // The folder is the zip library as long as the launcher runs.
    }
    OptionUdirClick(launcher, zipLibrary);
}

} // namespace

void ConnectToolbar(Launcher& launcher)
{
    auto& buttons = launcher.controls.AuxButton;
    buttons[Documentation].clicked = [&launcher] { openDocumentation(launcher); };
    buttons[EditLog].clicked = [&launcher] { openLog(launcher, u"edit.out"_s); };
    buttons[EngineLog].clicked = [&launcher] { openLog(launcher, u"Keldrax.out"_s); };
    buttons[IwadLocations].clicked = [&launcher] { launcher.window.showIwadForm(); };
    buttons[Font].clicked = [&launcher] { launcher.window.showFontForm(); };
    buttons[ZipFolder].clicked = [&launcher] { chooseZipFolder(launcher); };
}
