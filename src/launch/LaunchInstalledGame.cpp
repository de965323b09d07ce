#include "launch/LaunchInstalledGame.h"

#include "app/ControlStates.h"
#include "catalogue/ScriptedMaps.h"
#include "launch/GameFileArguments.h"
#include "launch/LaunchSteps.h"
#include "launch/SwitchTable.h"
#include "music/AutoPlaylist.h"
#include "options/ModelPacks.h"
#include "platform/Paths.h"
#include "wad/MainWad.h"
#include "wad/ToolBridge.h"

#include <memory>

using namespace Qt::StringLiterals;

namespace {

// The compatibility entries that choose an IWAD or a mode; the others only add a switch.
constexpr int needsTnt = 1;
constexpr int needsPlutonia = 2;
constexpr int needsBasicDoom = 7;

// "Basic Doom" ticked for one launch; afterwards every option is as it was.
class ForcedBasicDoom
{
public:
    explicit ForcedBasicDoom(Launcher& launcher)
        : m_launcher(launcher), m_controls(launcher.controls), m_settings(launcher.settings)
    {
        CheckBox& box = launcher.controls.chkMain[0];
        box.enabled = true; // greyed beside Core Effects
        box.setTicked(true);
    }
    ~ForcedBasicDoom()
    {
        m_controls.restore(m_launcher.controls);
        m_launcher.settings = m_settings;
    }
    ForcedBasicDoom(const ForcedBasicDoom&) = delete;
    ForcedBasicDoom& operator=(const ForcedBasicDoom&) = delete;

private:
    Launcher& m_launcher;
    ControlStates m_controls;
    Settings m_settings;
};

QString gameName(const Launcher& launcher)
{
    return FileNameOf(FolderOf(launcher.selection.SelectedGameFolder.chopped(1)));
}

// The message that stops the launch of a scripted map or of the add-on's level; nothing when it may start.
std::optional<LaunchMessage> missingResources(const Launcher& launcher, const ScriptedMapCheck& map)
{
    const QString mainWad = launcher.selection.SelectedGameFile;
    if (SameName(FileNameOf(mainWad), u"Vexlev.wad"_s) && CheckVexAddon(launcher.files, launcher.paths))
        return LaunchMessage{u"   This map requires the latest version of the Keldrax VEX \r\n"
                             "   addon available from the Keldrax website's maps section.   "_s,
                             u" VEX Addon required"_s};
    if (map.isScriptedMap && !map.isComplete)
        return LaunchMessage{u"   Components of this map are either missing or not compatible \r\n"
                             "   with this version of Keldrax, download the latest version   \r\n"
                             "   of this map from the Keldrax website's Maps section.        "_s,
                             u" Map error - updated map required"_s};
    if (launcher.selection.ScriptedMap && launcher.modelPacks.ModelPacksMissing)
        return LaunchMessage{u"   Keldrax maps require the model packs to be installed \r\n"
                             "   Model packs are available from the Keldrax website. "_s,
                             u" Model packs required"_s};
    if (launcher.selection.ScriptedMap && CheckScriptedMapDate(launcher.files, mainWad))
        return LaunchMessage{u"   This map is an older version and not compatible with \r\n"
                             "   this version of Keldrax, download the latest version \r\n"
                             "   of this map from the Keldrax website's maps section. "_s,
                             u" Map update required"_s};
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

LaunchPlan PlanInstalledGame(Launcher& launcher, const MapCounter& countMaps)
{
    LaunchState& launch = launcher.launch;
    const QString mainWad = launcher.selection.SelectedGameFile;
    LaunchPlan plan;
    const auto refused = [&plan](const LaunchMessage& message) {
        plan.refusal = message;
        return plan;
    };

    PrepareLaunch(launcher);
    const ScriptedMapCheck map = IsScriptedMap(launcher.files, launcher.paths, gameName(launcher));
    if (map.isScriptedMap && map.isComplete)
        launcher.selection.ScriptedMap = true;
    if (const auto message = missingResources(launcher, map))
        return refused(*message);
    if (!CheckHudWeaponsDefs(launcher.settings, launcher.files, launcher.paths))
        plan.notices << LaunchMessage{
            u" There is a compatibility issue between the standard and enhanced models,  \r\n"
            "  Enhanced models will not be used  - update to the latest model packs.  "_s,
            u" Launch error"_s};
    CheckKelspackWad(launcher, plan);
    if (const QString message = unusableChoice(launcher); !message.isEmpty())
        return refused({message, u" Launch error"_s});

    if (launch.StartChoice == StartChoice::NewGame)
        UpdateWarp(launcher);
    const int wadCheckResult = CheckPwad(launcher.files, launcher.paths, mainWad);
    const bool finalDoomRequired = wadCheckResult == needsTnt || wadCheckResult == needsPlutonia;
    if (finalDoomRequired)
        launch.SelectedIwadPath =
            launcher.iwads.of(wadCheckResult == needsTnt ? GameFamily::Tnt : GameFamily::Plutonia);
    std::unique_ptr<ForcedBasicDoom> forced;
    if (wadCheckResult == needsBasicDoom && !launcher.settings.BasicDoom)
        forced = std::make_unique<ForcedBasicDoom>(launcher);

    if (!launcher.files.fileExists(launch.SelectedIwadPath)) {
        if (finalDoomRequired)
            return refused({u"This map requires one of the Final Doom Iwads to run correctly.      \r\n"
                            "  Read the author's text file regarding which Iwad is required.      "_s,
                            u" Missing Final Doom Iwad "_s});
        const bool isDoom2 = launcher.controls.MapList.entry(0).startsWith(u'M', Qt::CaseInsensitive);
        return refused({u"There appears to be a problem locating the Iwad for this map.      \r\n"
                        "This map requires the "_s +
                            (isDoom2 ? u"Doom2.wad"_s : u"Doom.wad"_s) + u" before it can be run."_s,
                        u" Iwad not found for current map"_s});
    }

    const bool iwadMissing =
        IsIwadMissing(launch.SelectedIwadPath, launcher.files, launcher.paths, launcher.environment);
    const GameFileArguments files = FileArgumentsOf(launcher, iwadMissing, countMaps);
    QString commandLine = Engine + IwadArgument(launcher, launch.SelectedIwadPath) + files.text;
    if (launcher.settings.Skill == 0)
        launch.StartChoice = StartChoice::NewGame;
    commandLine += OptionSwitches(
        {.launcher = launcher,
         .path = LaunchPath::InstalledGame,
         .automaticPlaylist = AutomaticPlaylist(launcher),
         .scriptedMap = launcher.selection.ScriptedMap,
         .scriptedMapModels = launcher.modelPacks.ModelPack2Installed,
         .lateAlternativeWeapons = !launcher.selection.GwadSelected && NeedsAlternativeWeapons(mainWad),
         .wadCheckResult = wadCheckResult});
    return FinishPlan(launcher, std::move(plan), commandLine, files.names);
}

LaunchResult LaunchInstalledGame(Launcher& launcher)
{
    const auto countMaps = [&launcher](const QString& path) { return CountWadMaps(launcher, path); };
    return RunPlan(launcher, PlanInstalledGame(launcher, countMaps));
}
