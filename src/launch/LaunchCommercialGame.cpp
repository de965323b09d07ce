#include "launch/LaunchPlan.h"
#include "launch/LaunchSteps.h"
#include "options/OptionsInForce.h"

using namespace Qt::StringLiterals;

LaunchPlan PlanCommercialGame(const Truth& now)
{
    Truth truth = now;
    LaunchPlan plan;
    CheckModels(truth,
                u"There is a compatibility issue between the standard and enhanced models, enhanced models "
                "will not be used\r\nupdate to the latest model packs.  "_s,
                plan);
    const std::optional<GameFamily> family = FamilyOfTitle(truth.facts.game.name);
    if (!family || !truth.facts.onDisk(*family).exists) {
        plan.refusal = LaunchMessage{u"There appears to be a problem with the IWAD location.\r\n"
                                     "Reset Iwads and do a search or enter new locations."_s,
                                     u" Setup error"_s};
        plan.iwadGone = true;
        return plan;
    }
    const Settings inForce = OptionsInForce(truth);
    return FinishPlan(truth, std::move(plan),
                      Engine + IwadArgument(truth.facts, *family) +
                          OptionSwitches(InputsOf(truth, inForce, LaunchPath::CommercialGame, *family)),
                      *family);
}
