#pragma once

#include "state/Launcher.h"

// The folder that music was added from last: music.vyk.

// Empty when there is none, or none any more.
void LoadMusicFolder(Launcher& launcher);

// `folder` with '/'. One that cannot be written is kept as long as the launcher runs.
void KeepMusicFolder(Launcher& launcher, const QString& folder);
