// A program that writes how it was started.
#pragma once

#include <filesystem>
#include <fstream>

// Writes the arguments, one in a line in UTF-8, into arguments.txt in the working folder: the whole file at
// once.
template <class Argument>
int record(int argc, const Argument* argv)
{
    std::ofstream file("arguments.new", std::ios::binary);
    for (int i = 1; i < argc; ++i) {
        const std::u8string text = std::filesystem::path(argv[i]).u8string();
        file << std::string(text.begin(), text.end()) << '\n';
    }
    file.close();
    std::filesystem::rename("arguments.new", "arguments.txt");
    return 0;
}
