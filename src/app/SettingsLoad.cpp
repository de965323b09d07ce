#include "app/SettingsLoad.h"

#include "app/StartUp.h"
#include "catalogue/ZipLibrary.h"
#include "options/Modes.h"
#include "platform/Paths.h"
#include "platform/Text.h"
#include "state/OptionTable.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QPoint centred(const MainWindowHost& window)
{
    return {(window.screenSize().width() - window.size().width()) / 2,
            (window.screenSize().height() - window.size().height()) / 2};
}

QString firstLineOf(const FileSystem& files, const QString& path)
{
    try {
        return files.fileExists(path) ? ReadLines(files, path).value(0) : QString();
    } catch (const FileError&) {
        return {};
    }
}

void reportCorruptConfig(Launcher& launcher)
{
    UseDefaultSettings(launcher);
    launcher.window.moveTo(centred(launcher.window));
    launcher.startUp.VersionUpdate = true;
    SetConfigAside(launcher);
    launcher.prompts.MsgboxPos(u" The Launcher has detected a configuration error, the default  \r\n"
                               " settings will be reset, please reconfigure launcher settings. "_s,
                               Msg::Ok + Msg::SystemModal, u" Configuration error detected"_s);
    RestartLauncher(launcher);
    ShutDownLauncher(launcher);
}

// The next save writes it without its faults. One that cannot be kept stops no start.
void keepFaultyConfig(Launcher& launcher)
{
    try {
        KeepConfigBeside(launcher);
    } catch (const FileError&) {
    }
}

} // namespace

QString ConfigPath(const Launcher& launcher)
{
    return launcher.paths.LaunchPath + u"config.vyk"_s;
}

void KeepConfigBeside(Launcher& launcher)
{
    const QString path = ConfigPath(launcher);
    if (!launcher.files.fileExists(path))
        return;
    QString copy = path + u".bak"_s;
    for (int number = 2; launcher.files.fileExists(copy); ++number)
        copy = path + u".bak"_s + QString::number(number);
    launcher.files.copy(path, copy);
}

void SetConfigAside(Launcher& launcher)
{
    KeepConfigBeside(launcher);
    launcher.files.remove(ConfigPath(launcher));
}

void UseDefaultSettings(Launcher& launcher)
{
    const QString texturePath = launcher.settings.TexturePath;
    launcher.settings = DefaultSettings();
    launcher.settings.TexturePath = texturePath;
}

ReadResult ReadStoredSettings(Launcher& launcher)
{
    const FileSystem& files = launcher.files;
    UseDefaultSettings(launcher);
    launcher.settings.TexturePath =
        WithSlashes(firstLineOf(files, launcher.paths.LaunchDataPath + u"texpath.vyk"_s));
    const QString archives =
        WithSlashes(firstLineOf(files, launcher.paths.LaunchDataPath + u"archives.vyk"_s));
    // The installation's own folder is no other place once the installation was moved.
    const bool movedAway = SameName(FileNameOf(archives), FileNameOf(launcher.paths.ArchivesPath)) &&
                           !files.folderExists(archives);
    if (!archives.isEmpty() && !movedAway && !IsFolderOfInstallation(files, launcher.paths, archives))
        launcher.paths.ArchivesPath = archives;
    try {
        if (files.fileExists(ConfigPath(launcher)))
            return ReadSettings(launcher.settings, ReadLines(files, ConfigPath(launcher)),
                                !launcher.RunningUnderWine);
    } catch (const FileError&) {
        // What could not be read keeps its default.
    }
    return ReadResult::Stopped;
}

void CorrectSettings(Settings& settings)
{
    const Settings usual = DefaultSettings();
    const auto keepWithin = [&](int Settings::*setting, int lowest, int highest) {
        if (settings.*setting < lowest || settings.*setting > highest)
            settings.*setting = usual.*setting;
    };
    keepWithin(&Settings::LightLevel, 0, 255);
    keepWithin(&Settings::LastSkill, 1, 5);
    keepWithin(&Settings::Skill, 0, 5);
    keepWithin(&Settings::SkyMode, 0, 1);
    keepWithin(&Settings::SmokeMode, 0, 1);
    keepWithin(&Settings::LaunchMode, 0, 2);
    keepWithin(&Settings::ListMode, 0, 2);
    settings.GrenadeTime = std::clamp(settings.GrenadeTime, 0, 7);
    if (settings.CorpseSeconds == 0) // corpses that stay need no resurrection
        settings.ResurrectCorpses = false;
    if (settings.ListMode == static_cast<int>(View::ZipLibrary) && !settings.AdvancedOptions)
        settings.ListMode = static_cast<int>(View::DoomGames); // which alone has the zip library
    settings.ScriptedMapMode = settings.ScriptedMapMode || settings.AutoSelect;
    SettleModes(settings);
}

void LoadSettings(Launcher& launcher)
{
    const ReadResult result = ReadStoredSettings(launcher);
    if (result == ReadResult::Corrupt)
        reportCorruptConfig(launcher);
    if (result == ReadResult::Faulty)
        keepFaultyConfig(launcher);
    CorrectSettings(launcher.settings);
}

void SaveSettings(Launcher& launcher)
{
    Settings& settings = launcher.settings;
    (settings.AutoSelect ? settings.SelectedGameAutoOn : settings.SelectedGameAutoOff) =
        settings.SelectedGame;
    WriteLines(launcher.files, ConfigPath(launcher), SettingsLines(settings, !launcher.RunningUnderWine));
}
