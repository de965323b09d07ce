#pragma once

#include "state/Launcher.h"

// Which of the optional packs are installed: facts that are read at load, at every visit of a tab, and before
// a launch.
void ReadPacks(Launcher& launcher);

// Its three parts: the packs of models, of graphics, and of sounds.
void DetectModelPacks(Launcher& launcher);
void CheckGraphicsPacks(Launcher& launcher);
void CheckSoundPack(Launcher& launcher);

// Whether exactly one of the two definition files of HUD weapons carries the current header is false; a
// missing file is no disagreement.
bool CheckHudWeaponsDefs(const FileSystem& files, const InstallationPaths& paths);
