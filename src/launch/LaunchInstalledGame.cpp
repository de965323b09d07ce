#include "launch/LaunchInstalledGame.h"

#include "catalogue/ScriptedMaps.h"
#include "launch/GameFileArguments.h"
#include "launch/LaunchSteps.h"
#include "launch/SwitchTable.h"
#include "options/ModelPacks.h"
#include "platform/Paths.h"
#include "wad/MainWad.h"
#include "wad/ToolBridge.h"

using namespace Qt::StringLiterals;

namespace {

// The compatibility entries that choose an IWAD or a mode; the others only add a switch.
constexpr int needsTnt = 1;
constexpr int needsPlutonia = 2;
constexpr int needsBasicDoom = 7;

LaunchResult refuse(Launcher& launcher, const QString& text, const QString& title)
{
    launcher.prompts.MsgboxPos(text, Msg::Ok + Msg::Information, title);
    launcher.launch.ShortcutMode = false;
    return LaunchResult::Refused;
}

// "Basic Doom" ticked for one launch.
class ForcedBasicDoom
{
public:
    ForcedBasicDoom(Launcher& launcher, bool wanted)
        : m_launcher(launcher), m_forced(wanted && !launcher.settings.BasicDoom)
    {
        if (m_forced)
            set(true);
    }
    ~ForcedBasicDoom()
    {
        if (m_forced)
            set(false);
    }
    ForcedBasicDoom(const ForcedBasicDoom&) = delete;
    ForcedBasicDoom& operator=(const ForcedBasicDoom&) = delete;

private:
    void set(bool on)
    {
        m_launcher.controls.chkMain[0].setTicked(on);
        m_launcher.settings.BasicDoom = on;
    }

    Launcher& m_launcher;
    bool m_forced;
};

QString gameName(const Launcher& launcher)
{
    return FileNameOf(FolderOf(launcher.selection.SelectedGameFolder.chopped(1)));
}

// The message that stops the launch of a scripted map or of the add-on's level; nothing when it may start.
std::optional<std::pair<QString, QString>> missingResources(const Launcher& launcher,
                                                            const ScriptedMapCheck& map)
{
    const QString mainWad = launcher.selection.SelectedGameFile;
    if (SameName(FileNameOf(mainWad), u"Vexlev.wad"_s) && CheckVexAddon(launcher.files, launcher.paths))
        return {{u"   This map requires the latest version of the Keldrax VEX \r\n"
                 "   addon available from the Keldrax website's maps section.   "_s,
                 u" VEX Addon required"_s}};
    if (map.isScriptedMap && !map.isComplete)
        return {{u"   Components of this map are either missing or not compatible \r\n"
                 "   with this version of Keldrax, download the latest version   \r\n"
                 "   of this map from the Keldrax website's Maps section.        "_s,
                 u" Map error - updated map required"_s}};
    if (map.isScriptedMap && launcher.modelPacks.ModelPacksMissing)
        return {{u"   Keldrax maps require the model packs to be installed \r\n"
                 "   Model packs are available from the Keldrax website. "_s,
                 u" Model packs required"_s}};
    if (map.isScriptedMap && CheckScriptedMapDate(launcher.files, mainWad))
        return {{u"   This map is an older version and not compatible with \r\n"
                 "   this version of Keldrax, download the latest version \r\n"
                 "   of this map from the Keldrax website's maps section. "_s,
                 u" Map update required"_s}};
    return std::nullopt;
}

// An auto-loading game needs a WAD with maps chosen in its files list.
QString unusableChoice(const Launcher& launcher)
{
    if (!launcher.selection.GwadSelected)
        return {};
    const QString chosen = launcher.controls.PwadShowlist.selectedText();
    if (!EndsWith(chosen, u".wad"_s))
        return u"You have not yet selected a WAD file.     "_s;
    if (launcher.controls.MapList.entry(0).isEmpty())
        return u"You have not yet selected a valid WAD file.     \r\nThe "_s + chosen.toUpper() +
               u" contains no levels.     "_s;
    return {};
}

} // namespace

LaunchResult LaunchInstalledGame(Launcher& launcher)
{
    LaunchState& launch = launcher.launch;
    const QString mainWad = launcher.selection.SelectedGameFile;

    PrepareLaunch(launcher);
    const ScriptedMapCheck map = IsScriptedMap(launcher.files, launcher.paths, gameName(launcher));
    if (const auto message = missingResources(launcher, map))
        return refuse(launcher, message->first, message->second);
    if (!CheckHudWeaponsDefs(launcher.settings, launcher.files, launcher.paths))
        launcher.prompts.MsgboxPos(
            u" There is a compatibility issue between the standard and enhanced models,  \r\n"
            "  Enhanced models will not be used  - update to the latest model packs.  "_s,
            Msg::Ok + Msg::Information, u" Launch error"_s);
    CheckKelspackWad(launcher);
    if (const QString message = unusableChoice(launcher); !message.isEmpty())
        return refuse(launcher, message, u" Launch error"_s);

    if (launch.StartChoice == StartChoice::NewGame)
        UpdateWarp(launcher);
    const int wadCheckResult = CheckPwad(launcher.files, launcher.paths, mainWad);
    const bool finalDoomRequired = wadCheckResult == needsTnt || wadCheckResult == needsPlutonia;
    if (finalDoomRequired)
        launch.SelectedIwadPath =
            launcher.iwads.of(wadCheckResult == needsTnt ? GameFamily::Tnt : GameFamily::Plutonia);
    const ForcedBasicDoom forced(launcher, wadCheckResult == needsBasicDoom);

    if (!launcher.files.fileExists(launch.SelectedIwadPath)) {
        if (finalDoomRequired)
            return refuse(launcher,
                          u"This map requires one of the Final Doom Iwads to run correctly.      \r\n"
                          "  Read the author's text file regarding which Iwad is required.      "_s,
                          u" Missing Final Doom Iwad "_s);
        const bool isDoom2 = launcher.controls.MapList.entry(0).startsWith(u'M', Qt::CaseInsensitive);
        return refuse(launcher,
                      u"There appears to be a problem locating the Iwad for this map.      \r\n"
                      "This map requires the "_s +
                          (isDoom2 ? u"Doom2.wad"_s : u"Doom.wad"_s) + u" before it can be run."_s,
                      u" Iwad not found for current map"_s);
    }

    const bool iwadMissing =
        IsIwadMissing(launch.SelectedIwadPath, launcher.files, launcher.paths, launcher.environment);
    const GameFileArguments files = FileArgumentsOf(launcher, iwadMissing);
    for (const QString& name : files.names)
        if (name.contains(u'"'))
            return RefuseUnquotable(launcher);

    QString commandLine = Engine + IwadArgument(launcher, launch.SelectedIwadPath) + files.text;
    launch.AfterLaunch = true;
    if (launcher.settings.Skill == 0)
        launch.StartChoice = StartChoice::NewGame;
    commandLine += OptionSwitches(
        {.launcher = launcher,
         .path = LaunchPath::InstalledGame,
         .automaticPlaylist = {},
         .scriptedMap = map.isScriptedMap,
         .scriptedMapModels = launcher.modelPacks.ModelPack2Installed,
         .lateAlternativeWeapons = !launcher.selection.GwadSelected && NeedsAlternativeWeapons(mainWad),
         .wadCheckResult = wadCheckResult});
    commandLine += StartSwitches(launcher) + CustomText(launcher);
    return FinishLaunch(launcher, commandLine);
}
