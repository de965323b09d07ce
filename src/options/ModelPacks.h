#pragma once

#include "app/Launcher.h"

// The optional model packs: which of them are there, and what that allows.

// Looks for the packs anew; captions and enables the model options. That the base pack is missing is known
// from the start of the launcher and from a cleanup, and not looked for here.
void DetectModelPacks(Launcher& launcher);

// Whether the pistol-packing zombies can be had: their pack and the base pack are there.
bool ZombiesInstalled(const Launcher& launcher);

// Shows where the model packs come from, on the models page.
void ShowModelAdvice(Launcher& launcher);

// False when exactly one of the two HUD-weapons definition files carries the current header; then the
// Tovrens replacements are switched off in `settings`.
bool CheckHudWeaponsDefs(Settings& settings, const FileSystem& files, const InstallationPaths& paths);
