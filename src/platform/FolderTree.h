#pragma once

#include "platform/FileSystem.h"

#include <filesystem>

// Walks over a folder and all below it. Links are never followed, and what cannot be read is left out.

// FileSystem::contents of a path that exists.
TreeContents ContentsOf(const std::filesystem::path& top);

// Gives the owner every right to the folders, as far as the system lets: a read-only folder keeps what is in
// it from being removed.
void MakeFoldersWritable(const std::filesystem::path& top);
