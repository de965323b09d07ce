#pragma once

#include "app/Launcher.h"

// The three modes of effects, which exclude one another: Basic Doom (no models), FX (Basic Doom with
// lighting and splashes) and Core Effects. Each enables and disables what the others need. The functions
// are steps in an order that matters: an earlier step's control may be changed by a later one.

void ConnectEffectModes(Launcher& launcher);

// FX is ticked, or the core effects without which there is nothing else are not installed.
bool FxInForce(const Launcher& launcher);

// The frame and boxes of lighting and splashes.
void AllowLighting(Controls& controls, bool on);

// What Core Effects, or its absence, means for the model options. Nothing without a folder of models.
void DisableModels(Launcher& launcher);

// What Basic Doom, or its absence, means for every option. Nothing without a folder of models, or while
// its box is greyed.
void BasicDoom(Launcher& launcher);

// What FX, or its absence, means for the model options. Nothing without a folder of models, or while its
// box is greyed.
void CoreEffects(Launcher& launcher);
