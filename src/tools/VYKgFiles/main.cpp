// VYKgFiles CHECKWAD <file> | GETSAVEHDRS <folder or file>: prints a report on standard output.
// Exit status: 0 done, 1 the file is no WAD or the report could not be written, 2 wrong usage. Standard error
// stays empty, because the launcher takes both streams as the report.
#include "tools/VYKgFiles/CheckWad.h"
#include "tools/VYKgFiles/SaveGameHeaders.h"
#include "tools/wadreader/AsciiCase.h"

#include <cstdio>
#include <string>

static bool print(const std::string& report)
{
    return std::fwrite(report.data(), 1, report.size(), stdout) == report.size() && std::fflush(stdout) == 0;
}

int main(int argc, char** argv)
try {
    if (argc != 3)
        return 2;
    if (equalIgnoringCase(argv[1], "CHECKWAD")) {
        const WadReport report = checkWad(argv[2]);
        return print(report.text) && report.isWad ? 0 : 1;
    }
    if (equalIgnoringCase(argv[1], "GETSAVEHDRS"))
        return print(saveGameHeaders(argv[2])) ? 0 : 1;
    return 2;
} catch (...) {
    return 1;
}
