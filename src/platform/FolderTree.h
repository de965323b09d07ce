#pragma once

#include "platform/FileSystem.h"

#include <filesystem>

// Walks over a folder and all below it. Links are never followed, and what cannot be read is left out.

// FileSystem::contents of a path that exists.
TreeContents ContentsOf(const std::filesystem::path& top);

// AllowRemoval for all of it.
void AllowRemovalOfTree(const std::filesystem::path& top);
