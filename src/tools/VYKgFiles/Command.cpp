#include "tools/VYKgFiles/Command.h"

#include "tools/VYKgFiles/CheckWad.h"
#include "tools/VYKgFiles/SaveGameHeaders.h"
#include "tools/wadreader/AsciiCase.h"

#include <cstdio>
#include <string>

namespace {

bool print(const std::string& report)
{
    return std::fwrite(report.data(), 1, report.size(), stdout) == report.size() && std::fflush(stdout) == 0;
}

} // namespace

int runCommand(std::span<const std::filesystem::path> arguments)
try {
    if (arguments.size() != 2)
        return 2;
    const std::string command = arguments[0].string();
    if (equalIgnoringCase(command, "CHECKWAD")) {
        const WadReport report = checkWad(arguments[1]);
        return print(report.text) && report.isWad ? 0 : 1;
    }
    if (equalIgnoringCase(command, "GETSAVEHDRS"))
        return print(saveGameHeaders(arguments[1])) ? 0 : 1;
    return 2;
} catch (...) {
    return 1;
}
