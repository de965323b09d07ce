#pragma once

#include "app/InstallationPaths.h"
#include "platform/FileSystem.h"

// Which of the optional packs are installed, as last looked for.

struct ModelPacks
{
    bool ModelPacksMissing = true;     // the base pack is not there
    bool ModelPack2Installed = false;  // the Tovrens pack
    bool KelspackInstalled = false;    // the optional weapons
    bool CoreEffectsInstalled = false; // without them the game runs in FX mode, whatever its box shows
};

// The packs of graphics.
struct ResourcePacks
{
    bool patches = false;
    bool textures = false;
    bool detailTextures = false;
    bool skyboxes = false;
};

// Looks for the model packs' marker files.
ModelPacks FindModelPacks(const FileSystem& files, const InstallationPaths& paths);
