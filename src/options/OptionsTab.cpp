#include "options/OptionsInForce.h"
#include "options/Tabs.h"

using namespace Qt::StringLiterals;

namespace {

bool monsters(Now now)
{
    return now.monsters;
}

// A scripted map leaves these to itself.
bool ownMonsters(Now now)
{
    return now.monsters && !now.scriptedMap;
}

constexpr OptionRule rules[] = {
    {&Settings::FastMonsters, monsters},
    {&Settings::MonsterRespawn, ownMonsters},
    {&Settings::NoSameTypeInfighting, ownMonsters},
    {&Settings::NoLostSoulInfighting, ownMonsters},
};

} // namespace

std::span<const OptionRule> OptionsTabRules()
{
    return rules;
}

void ShowOptionsTab(const Truth& truth, Controls& controls)
{
    const Settings& settings = truth.settings;
    GreyOptions(rules, Circumstances(truth), controls);
    controls.butLeft2.enabled = controls.butRight2.enabled = controls.Timeout.enabled =
        settings.GrenadeLauncher;
    const bool pipebombs = settings.GrenadeTime == 0;
    controls.ChkGL.caption = pipebombs ? u"Pipebomb launcher"_s : u"Grenade launcher"_s;
    controls.Timeout.colour = pipebombs ? Colour::Accent : Colour::Normal;
    controls.TexPathLabel.visible = controls.AuxButton[Tool::TextureFolder].visible =
        settings.AllowHiResRelocation;
    controls.TexPathLabel.startAs(0);

    const bool developing = settings.DevelopmentMode || truth.selection.developmentModeShown;
    const bool normalShown = settings.DevelopmentMode || truth.selection.normalModeShown;
    controls.chkTesting.visible = developing;
    controls.ExitOption[LaunchMode::Normal].visible = normalShown || settings.LaunchMode == 0;
    controls.ImageDG[DeveloperSpot::DevelopmentMode].visible = !developing;
    controls.ImageDG[DeveloperSpot::DevelopmentModeOn].visible = developing;
    controls.ImageDG[DeveloperSpot::NormalMode].visible = !normalShown;
    controls.ImageDG[DeveloperSpot::NormalModeOn].visible = normalShown;
}
