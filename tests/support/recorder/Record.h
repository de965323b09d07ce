// A program in an engine's place: it writes how it was started, and saves the game.
#pragma once

#include <filesystem>
#include <fstream>
#include <string>

// Writes the arguments, one in a line in UTF-8, into arguments.txt in the working folder: the whole file at
// once; and a savegame into the folder that follows "-savedir".
template <class Argument>
int record(int argc, const Argument* argv)
{
    std::ofstream file("arguments.new", std::ios::binary);
    for (int i = 1; i < argc; ++i) {
        const std::u8string text = std::filesystem::path(argv[i]).u8string();
        file << std::string(text.begin(), text.end()) << '\n';
        if (text == u8"-savedir" && i + 1 < argc)
            std::ofstream(std::filesystem::path(argv[i + 1]) / "doomsav0.dsg", std::ios::binary)
                << "At the red door" << std::string(9, '\0') << "the rest of the game";
    }
    file.close();
    std::filesystem::rename("arguments.new", "arguments.txt");
    return 0;
}
