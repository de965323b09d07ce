#include "shortcuts/MakeShortcut.h"

#include "launch/LaunchButton.h"
#include "launch/LaunchSteps.h"
#include "platform/Shortcuts.h"
#include "shell/DeleteShortcuts.h"
#include "shortcuts/ShortcutNames.h"

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

// A picture that the installation brings; without it, the name under which a menu entry has it.
QString launcherIcon(const Launcher& launcher)
{
    const QString picture =
        launcher.files.actualPath(launcher.paths.IconsPath + LauncherIcon + u"-128.png"_s);
    return picture.isEmpty() ? LauncherIcon : picture;
}

// False, with a message, when the shortcut cannot be written.
bool CreateLink(Launcher& launcher, const QString& folder, const QString& fileName, const QString& arguments)
{
    try {
        // A separator would lead out of the folder.
        if (fileName.contains(u'/') || fileName.contains(u'\\'))
            throw std::invalid_argument("no file can have this name");
        launcher.files.createFolder(folder);
        WriteShortcut(launcher.files, {.folder = folder,
                                       .name = fileName,
                                       .arguments = arguments,
                                       .target = launcher.paths.RootPath + u"/Bin/Keldrax.exe"_s,
                                       .workingDirectory = folder,
                                       .windowStyle = 0,
                                       .program = Engine,
                                       .launchFolder = launcher.paths.RootPath,
                                       .icon = launcherIcon(launcher)});
        return true;
    } catch (const std::exception&) {
        launcher.prompts.MsgboxPos(u" It appears you don't have adequate UAC privileges    "_s,
                                   Msg::Ok + Msg::Information, u"Permissions"_s);
        return false;
    }
}

} // namespace

void ConnectShortcuts(Launcher& launcher)
{
    launcher.controls.AuxButton[Tool::Shortcut].clicked = [&launcher] { MakeShortcut(launcher); };
}

void MakeShortcut(Launcher& launcher)
{
    if (launcher.gameIs(GameKind::Archive) || launcher.selection.tab != Tab::Games)
        return;
    const auto choice = launcher.prompts.askShortcut(
        {.name = GetShortcutName(launcher), .toolTips = !launcher.settings.DisableToolTips});
    if (!choice)
        return;
    ReadBeforeLaunch(launcher);
    const LaunchPlan plan = PlanLaunch(launcher);
    if (ShowMessages(launcher, plan))
        CreateShortcuts(launcher, *choice, ShortcutNameOf(launcher), plan.commandLine.mid(Engine.size() + 1));
}

void CreateShortcuts(Launcher& launcher, const ShortcutChoice& choice, const QString& name,
                     const QString& arguments)
{
    const QString suffix = choice.IncludeMapInShortcut ? MapSuffixOf(launcher) : QString();
    const QString fileName = ShortcutFileName(name, suffix);
    const ShortcutFolders& folders = launcher.shortcutFolders;
    const bool onDesktop =
        choice.DesktopShortcut && CreateLink(launcher, folders.desktop, fileName, arguments);
    if (choice.StartMenuShortcut)
        CreateLink(launcher, folders.programs, fileName, arguments);
    if (onDesktop)
        RefreshDesktop();
}
