#include "options/OptionsInForce.h"
#include "options/Tabs.h"

using namespace Qt::StringLiterals;

namespace {

bool noMode(Now now)
{
    return !now.basicDoom && !now.fx && !now.coreEffects;
}

bool replacements(Now now)
{
    return now.models.ModelPack2Installed && now.basePack && noMode(now) && !now.scriptedMap;
}

// The weapons have no place in the edit mode.
bool kelspack(Now now)
{
    return now.models.KelspackInstalled && now.basePack && noMode(now) && !now.on.EditMode;
}

bool effects(Now now)
{
    return now.basePack && !now.basicDoom && !now.coreEffects;
}

bool gunSmoke(Now now)
{
    return effects(now) && now.models.gunSmoke;
}

constexpr OptionRule rules[] = {
    {&Settings::TovrensReplacements, replacements},
    {&Settings::KelspackWeapons, kelspack},
    {&Settings::KelspackAlternative, [](Now now) { return kelspack(now) && !now.scriptedMap; }},
    {&Settings::PistolZombies,
     [](Now now) {
         return now.models.zombies && replacements(now) && now.on.TovrensReplacements && now.monsters;
     }},
    {&Settings::NoForcedModels,
     [](Now now) { return !now.basicDoom && !now.coreEffects && !now.scriptedMap; }},
    {&Settings::GunSmoke, gunSmoke},
    {&Settings::ExtraFx, [](Now now) { return effects(now) && now.models.extraEffects && !now.scriptedMap; }},
};

QString installedPacks(const ModelPacks& packs)
{
    if (packs.ModelPacksMissing)
        return u" Model packs "_s;
    if (packs.ModelPack2Installed)
        return packs.KelspackInstalled ? u" All model packs installed "_s
                                       : u" Model packs 1 and 2 installed "_s;
    return packs.KelspackInstalled ? u" Model pack 1 and Kelspack installed "_s
                                   : u" Model pack 1 installed "_s;
}

QString meaningOfScaling(int level)
{
    constexpr const char16_t* meanings[] = {u"No scaling - best quality", u"Minimum scaling", u"", u"",
                                            u"Maximum scaling"};
    return level >= 0 && level < std::ssize(meanings) ? QString::fromUtf16(meanings[level]) : QString();
}

// The frames of what the modes do without.
void DisableModels(Now now, Controls& controls)
{
    const bool anyPack = now.basePack || now.models.ModelPack2Installed || now.models.KelspackInstalled;
    controls.FrameModel[ModelsFrame::Packs].enabled =
        anyPack && !now.basicDoom && !now.coreEffects && !now.scriptedMap;
    controls.FrameModel[ModelsFrame::Effects].enabled = effects(now);
    controls.GraphicFrames[GraphicsFrame::SkinScaling].enabled = controls.cbScaler.enabled =
        controls.TexLabel[Texts::SkinScaling].enabled = CanScaleSkins(now);
}

} // namespace

std::span<const OptionRule> ModelsTabRules()
{
    return rules;
}

void ShowModelsTab(const Truth& truth, Controls& controls)
{
    const Circumstances now(truth);
    GreyOptions(rules, now, controls);
    DisableModels(now, controls);
    controls.Smoke[SmokeMode::More].enabled = controls.Smoke[SmokeMode::Less].enabled =
        gunSmoke(now) && now.on.GunSmoke;
    controls.FrameModel[ModelsFrame::Packs].caption = installedPacks(now.models);
    controls.TexLabel[Texts::SkinScaling].caption = meaningOfScaling(now.on.SkinScaling);
    controls.ModFrame.visible = now.models.ModelPacksMissing;
}
