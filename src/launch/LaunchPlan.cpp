#include "launch/LaunchPlan.h"

#include "launch/LaunchSteps.h"

using namespace Qt::StringLiterals;

namespace {

LaunchPlan noLevels(const Truth& truth)
{
    const QString tail = truth.chosenFile() + u" contains no levels.    "_s;
    return Refused({u"The "_s + tail.toLower(), u" Wad error"_s});
}

} // namespace

LaunchPlan Refused(const LaunchMessage& message)
{
    LaunchPlan plan;
    plan.refusal = message;
    return plan;
}

LaunchPlan PlanLaunch(const Truth& truth)
{
    if (truth.gameIs(GameKind::None))
        return {};
    const bool hasMaps = !truth.facts.file.maps.isEmpty();
    if (!hasMaps && truth.SelectedGameFile().contains(u'"')) // nothing can say which levels are in it
        return Refused(DoubleQuoteMessage());
    if (truth.gameIs(GameKind::Doom)) {
        const LaunchPlan plan = PlanCommercialGame(truth);
        return hasMaps || plan.refusal ? plan : noLevels(truth);
    }
    // Of an auto-loading game any file can be chosen; it has messages of its own.
    if (!hasMaps && !truth.gameIs(GameKind::Gwad))
        return truth.chosenFile().isEmpty() ? LaunchPlan() : noLevels(truth);
    return PlanInstalledGame(truth);
}
