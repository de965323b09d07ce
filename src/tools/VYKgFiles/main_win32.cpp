#include "tools/VYKgFiles/Command.h"

#include <cstdio>
#include <fcntl.h>
#include <io.h>
#include <vector>

int wmain(int argc, wchar_t** argv)
{
    _setmode(_fileno(stdout), _O_BINARY); // the report has its line ends
    const std::vector<std::filesystem::path> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
    return runCommand(arguments);
}
