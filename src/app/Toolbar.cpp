#include "app/Toolbar.h"

#include "app/SettingsLoad.h"
#include "catalogue/GameLists.h"
#include "catalogue/InstallGame.h"
#include "catalogue/ZipLibrary.h"
#include "platform/Paths.h"
#include "platform/Text.h"
#include "shell/ShellOpen.h"
#include "shell/TextEditor.h"
#include "ui/FolderQuestion.h"

using namespace Qt::StringLiterals;

namespace {

void openDocumentation(Launcher& launcher)
{
    QString& folder = launcher.session.documentationFolder;
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
    if (IsFolderOfInstallation(launcher.files, launcher.paths, chosen)) {
        launcher.prompts.MsgboxPos(
            u"This is one of the installation's own folders, choose another one.    "_s,
            Msg::Ok + Msg::Exclamation, u" Zip library folder"_s);
        return;
    }
    if (!chosen.isEmpty())
        folder = chosen;
    if (!launcher.files.folderExists(folder))
        folder = launcher.paths.RootPath + u"/VYKArchives"_s;
    try {
        WriteLines(launcher.files, launcher.paths.LaunchDataPath + u"archives.vyk"_s, {NativePath(folder)});
    } catch (const FileError&) {
        // The folder is the zip library as long as the launcher runs.
    }
    SelectView(launcher, View::ZipLibrary);
}

// What the player set is not to be lost with a game just installed; without a message, for the game is there.
void saveQuietly(Launcher& launcher)
{
    try {
        SaveSettings(launcher);
    } catch (const FileError&) {
    }
}

} // namespace

void ConnectToolbar(Launcher& launcher)
{
    auto& buttons = launcher.controls.AuxButton;
    buttons[Tool::Install].clicked = [&launcher] {
        if (InstallGameFromFile(launcher))
            saveQuietly(launcher);
    };
    launcher.controls.MainForm.filesDropped = [&launcher](const QStringList& paths) {
        if (InstallDroppedFiles(launcher, paths))
            saveQuietly(launcher);
    };
    buttons[Tool::Documentation].clicked = [&launcher] { openDocumentation(launcher); };
    buttons[Tool::EditLog].clicked = [&launcher] { openLog(launcher, u"edit.out"_s); };
    buttons[Tool::EngineLog].clicked = [&launcher] { openLog(launcher, u"Keldrax.out"_s); };
    buttons[Tool::Iwads].clicked = [&launcher] { launcher.window.showIwadForm(); };
    buttons[Tool::Font].clicked = [&launcher] { launcher.window.showFontForm(); };
    buttons[Tool::ZipFolder].clicked = [&launcher] { chooseZipFolder(launcher); };
}
