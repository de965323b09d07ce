#include "catalogue/ScriptedMaps.h"
#include "launch/GameFileArguments.h"
#include "launch/LaunchPlan.h"
#include "launch/LaunchSteps.h"
#include "options/Modes.h"
#include "options/OptionsInForce.h"
#include "platform/Paths.h"
#include "wad/MainWad.h"

using namespace Qt::StringLiterals;

namespace {

// The compatibility entries that choose an IWAD or a mode; the others only add a switch.
constexpr int needsTnt = 1;
constexpr int needsPlutonia = 2;
constexpr int needsBasicDoom = 7;

// The message that stops the launch of a scripted map or of the add-on's level; nothing when it may start.
std::optional<LaunchMessage> missingResources(const Truth& truth)
{
    const ScriptedMapCheck& map = truth.facts.game.scriptedMap;
    const ModelPacks& packs = truth.facts.modelPacks;
    if (SameName(truth.chosenFile(), u"Vexlev.wad"_s) && packs.vexAddonOutdated)
        return LaunchMessage{u"   This map requires the latest version of the Keldrax VEX \r\n"
                             "   addon available from the Keldrax website's maps section.   "_s,
                             u" VEX Addon required"_s};
    if (map.isScriptedMap && !map.isComplete)
        return LaunchMessage{u"   Components of this map are either missing or not compatible \r\n"
                             "   with this version of Keldrax, download the latest version   \r\n"
                             "   of this map from the Keldrax website's Maps section.        "_s,
                             u" Map error - updated map required"_s};
    if (truth.isScriptedMap() && packs.ModelPacksMissing)
        return LaunchMessage{u"   Keldrax maps require the model packs to be installed \r\n"
                             "   Model packs are available from the Keldrax website. "_s,
                             u" Model packs required"_s};
    if (truth.isScriptedMap() && truth.facts.file.isOutdated)
        return LaunchMessage{u"   This map is an older version and not compatible with \r\n"
                             "   this version of Keldrax, download the latest version \r\n"
                             "   of this map from the Keldrax website's maps section. "_s,
                             u" Map update required"_s};
    return std::nullopt;
}

// An auto-loading game needs a WAD with maps chosen in its files list.
QString unusableChoice(const Truth& truth)
{
    if (!truth.gameIs(GameKind::Gwad))
        return {};
    const QString chosen = truth.chosenFile();
    if (!EndsWith(chosen, u".wad"_s))
        return u"You have not yet selected a WAD file.     "_s;
    if (truth.facts.file.maps.isEmpty())
        return u"You have not yet selected a valid WAD file.     \r\nThe "_s + chosen.toUpper() +
               u" contains no levels.     "_s;
    return {};
}

LaunchMessage missingFinalDoom()
{
    return {u"This map requires one of the Final Doom Iwads to run correctly.      \r\n"
            "  Read the author's text file regarding which Iwad is required.      "_s,
            u" Missing Final Doom Iwad "_s};
}

LaunchMessage missingIwad(bool isDoom2)
{
    return {u"There appears to be a problem locating the Iwad for this map.      \r\n"
            "This map requires the "_s +
                (isDoom2 ? u"Doom2.wad"_s : u"Doom.wad"_s) + u" before it can be run."_s,
            u" Iwad not found for current map"_s};
}

} // namespace

LaunchPlan PlanInstalledGame(const Truth& now)
{
    Truth truth = now;
    LaunchPlan plan;
    const auto refused = [&plan](const LaunchMessage& message) {
        plan.refusal = message;
        return plan;
    };
    if (const auto message = missingResources(truth))
        return refused(*message);
    CheckModels(truth,
                u" There is a compatibility issue between the standard and enhanced models,  \r\n"
                "  Enhanced models will not be used  - update to the latest model packs.  "_s,
                plan);
    if (const QString message = unusableChoice(truth); !message.isEmpty())
        return refused({message, u" Launch error"_s});

    const int wadCheckResult = truth.facts.file.compatibility;
    const bool finalDoomRequired = wadCheckResult == needsTnt || wadCheckResult == needsPlutonia;
    std::optional<GameFamily> family = UpdateWarp(truth).family;
    if (finalDoomRequired)
        family = wadCheckResult == needsTnt ? GameFamily::Tnt : GameFamily::Plutonia;
    if (!family || !truth.facts.onDisk(*family).exists)
        return refused(finalDoomRequired ? missingFinalDoom() : missingIwad(family == GameFamily::Doom2));

    if (wadCheckResult == needsBasicDoom && !truth.settings.BasicDoom) {
        truth.settings.BasicDoom = true; // for this launch
        BasicDoom(truth.settings);
    }
    const Settings inForce = OptionsInForce(truth);
    const GameFileArguments files =
        FileArgumentsOf(truth.facts.game, truth.chosenFile(), !truth.facts.onDisk(*family).foundByEngine);
    SwitchInputs inputs = InputsOf(truth, inForce, LaunchPath::InstalledGame, *family);
    inputs.scriptedMapModels = truth.facts.modelPacks.ModelPack2Installed;
    inputs.lateAlternativeWeapons =
        !truth.gameIs(GameKind::Gwad) && NeedsAlternativeWeapons(truth.chosenFile());
    inputs.wadCheckResult = wadCheckResult;
    return FinishPlan(truth, std::move(plan),
                      Engine + IwadArgument(truth.facts, *family) + files.text + OptionSwitches(inputs),
                      *family, files.names);
}
