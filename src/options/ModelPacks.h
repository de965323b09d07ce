#pragma once

#include "app/InstallationPaths.h"
#include "app/Settings.h"
#include "platform/FileSystem.h"

struct Launcher;

// Which of the optional model packs are installed.
struct ModelPacks
{
    bool ModelPacksMissing = true;    // the base pack is not there
    bool ModelPack2Installed = false; // the Tovrens pack
    bool KelspackInstalled = false;   // the optional weapons
};

// Looks for the packs' marker files.
ModelPacks FindModelPacks(const FileSystem& files, const InstallationPaths& paths);

// Looks for them again.
void DetectModelPacks(Launcher& launcher);

// False when exactly one of the two HUD-weapons definition files carries the current header; then the
// Tovrens replacements are switched off in `settings`.
bool CheckHudWeaponsDefs(Settings& settings, const FileSystem& files, const InstallationPaths& paths);
