#pragma once

#include "state/Controls.h"
#include "state/Truth.h"

#include <span>

// Which options can have an effect now. One that cannot is greyed: its pack is missing, the mode in force
// excludes it, a scripted map is selected, or another option silences it. It keeps its tick, and a launch
// counts it as off.

// What decides about options.
struct Circumstances
{
    explicit Circumstances(const Truth& truth);

    const Settings& on;
    const ModelPacks& models;
    const ResourcePacks& resources;
    bool basePack;    // of the models
    bool scriptedMap; // selected
    bool coreEffects; // the modes as they are in force
    bool basicDoom;
    bool fx;    // also where nothing else can be had
    bool plain; // Basic Doom without FX
    bool sound;
    bool music;
    bool monsters;
    bool hasPlaylists;
};

using Now = const Circumstances&;

// A check box's option and when it can have an effect.
struct OptionRule
{
    bool Settings::*option;
    bool (*usable)(Now);
};

// The rules of each tab; an option without one can always be used.
std::span<const OptionRule> StripRules();
std::span<const OptionRule> OptionsTabRules();
std::span<const OptionRule> GraphicsTabRules();
std::span<const OptionRule> SoundTabRules();
std::span<const OptionRule> ModelsTabRules();

// Greys the boxes of the options that cannot be used.
void GreyOptions(std::span<const OptionRule> rules, Now now, Controls& controls);

bool CanScaleSkins(Now now);

// The settings with every option off that is greyed.
Settings OptionsInForce(const Truth& truth);
