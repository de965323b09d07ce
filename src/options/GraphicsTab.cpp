#include "options/GraphicsTab.h"

#include "options/Tabs.h"
#include "platform/Paths.h"

using namespace Qt::StringLiterals;

namespace {

bool texturesUsable(Now now)
{
    return !now.resources.textures.isEmpty() && !BasicDoomGrey(now);
}

bool lighting(Now now)
{
    return !now.plain && !now.scriptedMap;
}

constexpr OptionRule rules[] = {
    {&Settings::HighResTextures, texturesUsable},
    {&Settings::HighResPatches, [](Now now) { return now.resources.patches && !BasicDoomGrey(now); }},
    {&Settings::DetailTextures,
     [](Now now) {
         return now.resources.detailTextures && !now.scriptedMap &&
                !(now.on.HighResTextures && texturesUsable(now));
     }},
    {&Settings::Skyboxes,
     [](Now now) { return now.resources.skyboxes && !now.basicDoom && !now.scriptedMap; }},
    {&Settings::DynamicLighting, lighting},
    {&Settings::SplashEffects, lighting},
    {&Settings::ResurrectCorpses, [](Now now) { return now.monsters && now.on.CorpseSeconds != 0; }},
};

// A scripted map's frame of graphics, whatever is in it.
void GreyHiresFrame(Now now, Controls& controls)
{
    controls.GraphicFrames[GraphicsFrame::Graphics].enabled = !now.scriptedMap;
}

void showCorpses(Now now, Controls& controls)
{
    controls.butleft.enabled = controls.butRight.enabled = controls.Corpse.enabled = now.monsters;
    controls.GraphicFrames[GraphicsFrame::CorpseFade].enabled = controls.TexLabel[Texts::CorpseFade].enabled =
        now.monsters;
    const bool fade = now.on.CorpseSeconds != 0;
    controls.Corpse.colour = fade ? Colour::Normal : Colour::Accent;
    controls.TexLabel[Texts::CorpseFade].caption =
        fade ? u"Seconds before corpse fade"_s : u"No corpse fade"_s;
}

void showResolution(const ResolutionFacts& facts, Controls& controls)
{
    controls.ResLabel[ResolutionText::Resolution].caption =
        facts.resolution.isEmpty() ? u"Default Resolution"_s : facts.resolution;
    controls.ResLabel[ResolutionText::Mode].caption = facts.mode;
    controls.ResLabel[ResolutionText::RefreshRate].caption = facts.refreshRate;
}

} // namespace

bool BasicDoomGrey(Now now)
{
    return now.plain || now.scriptedMap;
}

std::span<const OptionRule> GraphicsTabRules()
{
    return rules;
}

void ShowGraphicsTab(const Truth& truth, Controls& controls)
{
    const Circumstances now(truth);
    GreyOptions(rules, now, controls);
    GreyHiresFrame(now, controls);
    const CheckBox& skies = controls.chkGraphics[Graphics::Skyboxes];
    controls.SkyOpt[SkyMode::ReplaceMissing].enabled = controls.SkyOpt[SkyMode::Force].enabled =
        skies.enabled && now.on.Skyboxes;
    controls.GraphicFrames[GraphicsFrame::Lighting].enabled = lighting(now);
    showCorpses(now, controls);
    showResolution(truth.facts.resolution, controls);
    const QString& textures = truth.facts.resources.textures;
    controls.HiResText.text = textures.isEmpty() ? NoTextures : NativePath(textures);
}
