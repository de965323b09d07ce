// The CHECKWAD report: what the launcher reads of a WAD.
#pragma once

#include <filesystem>
#include <string>

struct WadReport
{
    std::string text;
    bool isWad = false; // no: the report has the same form, with no maps
};

// Fields one per line, ended by CR LF: the number of maps (left-aligned at the 17th and 18th
// character of the report, 99 when there are more), the WAD's type, its number of lumps, then per
// map its name, blank-padded to five characters, and a blank.
WadReport checkWad(const std::filesystem::path& path);
