// The GETSAVEHDRS report: the slots and descriptions of savegames.
#pragma once

#include <filesystem>
#include <string>

// Takes a folder, whose savegames (KeldraxSav<digit>.vyksg, in any case) are reported in slot order,
// or one such file. Gives one field per savegame, one per line ended by CR LF: the slot's digit and
// right after it the description, which is the text of up to 24 bytes at the head of the file. A
// field that holds a comma stands in double quotes; double quotes in a description become
// apostrophes. Where there is no savegame the report is empty.
std::string saveGameHeaders(const std::filesystem::path& target);
