#include "options/OptionsInForce.h"

#include "state/OptionTable.h"

#include <algorithm>

namespace {

// Every rule is about an option that a box shows.
CheckBox& boxOf(bool Settings::*option, Controls& controls)
{
    const auto rows = OptionTable();
    const auto row = std::ranges::find_if(rows, [option](const OptionRow& candidate) {
        const auto* member = std::get_if<bool Settings::*>(&candidate.member);
        return member && *member == option && std::holds_alternative<CheckMirror>(candidate.mirror);
    });
    return std::get<CheckMirror>(row->mirror).of(controls);
}

} // namespace

Circumstances::Circumstances(const Truth& truth)
    : on(truth.settings),
      models(truth.facts.modelPacks),
      resources(truth.facts.resources),
      basePack(!models.ModelPacksMissing),
      scriptedMap(truth.isScriptedMap()),
      coreEffects(on.CoreEffects && models.CoreEffectsInstalled && !scriptedMap),
      basicDoom(on.BasicDoom && !scriptedMap && !coreEffects),
      fx((on.Fx && !scriptedMap && !coreEffects) || !models.CoreEffectsInstalled),
      plain(basicDoom && !fx),
      sound(!on.DisableSound),
      music(sound && !on.DisableMusic),
      monsters(!on.NoMonsters),
      hasPlaylists(!truth.facts.playlists.isEmpty())
{
}

void GreyOptions(std::span<const OptionRule> rules, Now now, Controls& controls)
{
    for (const OptionRule& rule : rules)
        boxOf(rule.option, controls).enabled = rule.usable(now);
}

bool CanScaleSkins(Now now)
{
    return now.basePack && now.sound && !now.basicDoom && !now.coreEffects;
}

Settings OptionsInForce(const Truth& truth)
{
    const Circumstances now(truth);
    Settings inForce = truth.settings;
    for (const auto rules :
         {StripRules(), OptionsTabRules(), GraphicsTabRules(), SoundTabRules(), ModelsTabRules()})
        for (const OptionRule& rule : rules)
            inForce.*rule.option = inForce.*rule.option && rule.usable(now);
    inForce.Fx = now.fx;
    if (!CanScaleSkins(now))
        inForce.SkinScaling = 0;
    return inForce;
}
