#include "tools/VYKgFiles/Command.h"

#include <vector>

int main(int argc, char** argv)
{
    const std::vector<std::filesystem::path> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
    return runCommand(arguments);
}
