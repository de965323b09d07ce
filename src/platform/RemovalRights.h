#pragma once

#include <filesystem>

// Takes away, as far as the system lets, what keeps a file or a folder from being removed with all that is in
// it although its owner wants it: a read-only folder here, a read-only entry of any kind on Windows. A link
// and what it leads to stay as they are.
void AllowRemoval(const std::filesystem::path& entry);
