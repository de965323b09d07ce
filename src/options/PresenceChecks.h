#pragma once

#include "app/Launcher.h"

// Which resource packs are installed; they enable the options that need them.

// What stands in place of the folder of textures when there is none.
inline const QString NoTextures = QStringLiteral("Not installed or the specified path is invalid");

// True when the folder of high-resolution textures is there. A TexturePath that is not is replaced by the
// texture dialog's text or by the installation's own folder.
bool TexturePathValid(Launcher& launcher);

// Enables the boxes of patches, textures, detail textures and skyboxes that are installed.
void CheckGraphicsPacks(Launcher& launcher);

// Whether the high-resolution textures are ticked and there.
bool HighResTexturesUsed(const Launcher& launcher);

bool SoundPackInstalled(const Launcher& launcher);

// Looks which packs of graphics are there.
void FindResourcePacks(Launcher& launcher);

// Enables the box of the sound pack when it is installed.
void CheckSoundPack(Launcher& launcher);

// At start-up: shows the texture folder in the texture dialog, then checks the graphics packs.
void CheckPacksAtLoad(Launcher& launcher);
