#include "app/StartUp.h"

#include "app/MainWindowLoad.h"
#include "app/SettingsLoad.h"
#include "platform/CutOffWrites.h"
#include "platform/Paths.h"
#include "platform/Text.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace {

struct MissingComponent : std::exception
{
};

const QString thisVersion = u"v9.1"_s;
const QString defaultEngineVersion = u"Keldrax v2.2"_s;

// Sets VersionUpdate when config.vyk is another version's, or has no line that says which.
void checkConfigVersion(Launcher& launcher)
{
    const QString path = ConfigPath(launcher);
    if (!launcher.files.fileExists(path))
        return;
    StartUpState& startUp = launcher.startUp;
    const QStringList lines = ReadLines(launcher.files, path);
    if (lines.isEmpty())
        startUp.VersionUpdate = startUp.ConfigReadError = true;
    else if (!SameName(lines.first(), startUp.LauncherVersion))
        startUp.VersionUpdate = true;
}

// The player's account may not be allowed to write here. Throws FileError.
void testWriting(Launcher& launcher)
{
    const QString folder = launcher.paths.LaunchPath + u"Admin"_s;
    launcher.files.createFolder(folder);
    launcher.files.removeFolder(folder);
}

// What an end in the middle of a write has left, in the folders of the settings and the playlists.
void discardCutOffWrites(Launcher& launcher)
{
    const InstallationPaths& paths = launcher.paths;
    for (const QString& folder : {paths.LaunchPath, paths.LaunchDataPath, paths.MusicLaunchPath})
        DiscardCutOffWrites(launcher.files, folder);
}

bool isArgument(const QString& arguments, const QString& name)
{
    return SameName(arguments.trimmed(), name);
}

StartResult start(Launcher& launcher, const QString& arguments, const StartUpServices& services)
{
    StartUpState& startUp = launcher.startUp;
    startUp.LauncherVersion = thisVersion;
    // Before anything is written: another launcher may start at the same moment.
    launcher.RunningUnderWine = isArgument(arguments, u"/WINE"_s);
    if (isArgument(arguments, u"/RESTART"_s)) {
        services.claimInstanceWhenFree();
    } else if (!services.claimInstance()) {
        if (!services.activateRunningInstance())
            launcher.prompts.MsgboxPos(u"The VYKLauncher is already running but does not answer.    "_s,
                                       Msg::Ok + Msg::Exclamation, u"Startup error"_s);
        return StartResult::Ended;
    }

    startUp.EngineVersion = ReadEngineVersion(launcher.files, launcher.paths);
    discardCutOffWrites(launcher);
    checkConfigVersion(launcher);
    launcher.font = LoadFontSetting(launcher.files, launcher.paths.LaunchPath + u"font.vyk"_s);
    if (startUp.VersionUpdate)
        SetConfigAside(launcher);
    testWriting(launcher);
    QDir::setCurrent(launcher.paths.RootPath);

    const QString missing = CheckRequiredFiles(launcher.files, launcher.paths);
    if (!missing.isEmpty()) {
        launcher.window.show();
        launcher.prompts.MsgboxPos(missing + u" has not been detected - re-install Keldrax.    "_s,
                                   Msg::Ok + Msg::SystemModal, u"Startup error"_s);
        ShutDownLauncher(launcher);
        return StartResult::Ended;
    }

    startUp.WindowCaption =
        u"VYKLauncher "_s + startUp.LauncherVersion + u"  and  "_s + startUp.EngineVersion;
    LoadMainWindow(launcher);
    if (startUp.ShuttingDown)
        return StartResult::Ended;
    if (!services.componentsPresent())
        throw MissingComponent();
    launcher.window.show();
    if (launcher.settings.ShowTipsAtStartup)
        services.showTips();
    return StartResult::Running;
}

enum class StartUpError { NoAccess, DiskFull, MissingComponent, Unknown };

void reportStartUpError(Launcher& launcher, StartUpError error)
{
    const auto report = [&](const QString& text, int icon, const QString& title) {
        launcher.prompts.MsgboxPos(text, Msg::Ok + icon, title);
    };
    switch (error) {
    case StartUpError::NoAccess:
        return report(u"   You appear to have restricted access with this user account, Keldrax        \r\n"
                      "    requires a UAC with a higher privilege level before it will run."_s,
                      Msg::Exclamation, u"Restricted Window's User Account Control"_s);
    case StartUpError::DiskFull:
        return report(
            u"   Unable to run the VYKlauncher, the disk is full. Make some room and try again.    "_s,
            Msg::Exclamation, u" Disk full"_s);
    case StartUpError::MissingComponent:
        return report(u"   Unable to run the VYKlauncher due to missing or unregistered       \r\n"
                      "   dependencies, re-install the program using the Keldrax setup."_s,
                      Msg::Critical, u"Installation error"_s);
    case StartUpError::Unknown:
        return report(u"   Unable to run the VYKlauncher due to unknown error      \r\n"
                      "  please report error to the Keldrax development team."_s,
                      Msg::Critical, u"Unknown Error"_s);
    }
}

} // namespace

StartResult Main(Launcher& launcher, const QString& arguments, const StartUpServices& services)
{
    try {
        return start(launcher, arguments, services);
    } catch (const FileError& error) {
        using enum FileError::Kind;
        reportStartUpError(launcher, error.kind() == DiskFull ? StartUpError::DiskFull
                                     : error.kind() != Other && error.kind() != NotFound
                                         ? StartUpError::NoAccess
                                         : StartUpError::Unknown);
    } catch (const MissingComponent&) {
        reportStartUpError(launcher, StartUpError::MissingComponent);
    } catch (const std::exception&) {
        reportStartUpError(launcher, StartUpError::Unknown);
    }
    launcher.startUp.ShuttingDown = true;
    launcher.window.endProgram();
    return StartResult::Ended;
}

QString ReadEngineVersion(const FileSystem& files, const InstallationPaths& paths)
{
    const QString path = paths.LaunchDataPath + u"version.vyk"_s;
    if (!files.fileExists(path))
        return defaultEngineVersion;
    const QString line = ReadLines(files, path).value(0);
    return line.isEmpty() ? defaultEngineVersion : line;
}

QString CheckRequiredFiles(const FileSystem& files, const InstallationPaths& paths)
{
    for (const QString& name : {u"Keldrax.exe"_s, u"VYKgFiles.exe"_s, u"unzip32.dll"_s, u"fmodex.dll"_s}) {
        const QString path = paths.RootPath + u"/Bin/"_s + name;
        const bool isProgram = EndsWith(name, u".exe"_s);
        if (!files.fileExists(path) && !(isProgram && files.fileExists(path.chopped(4))))
            return name;
    }
    return {};
}

void RestartLauncher(Launcher& launcher)
{
    const QString commandLine = u'"' + launcher.paths.RootPath + u"/bin/VYKlauncher.exe\" /RESTART"_s;
    if (!launcher.processes.start(commandLine, launcher.paths.RootPath))
        launcher.prompts.MsgboxPos(u"The launcher could not be started again.    "_s,
                                   Msg::Ok + Msg::Exclamation, u"Startup error"_s);
}
