#pragma once

#include "platform/FileSystem.h"

// Moves to the trash what an end in the middle of FileSystem::write or copy has left of small files directly
// in `folder` (which ends in '/') an hour ago or earlier: "config.vyk.QwErTy". A player's own copy may be
// called like that; so where there is no trash it stays. Throws nothing.
void DiscardCutOffWrites(FileSystem& files, const QString& folder);
