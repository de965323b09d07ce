#pragma once

#include "platform/FileSystem.h"
#include "ui/Prompts.h"

#include <optional>

// Where what a player deletes goes in one command: into the system's trash. Where the system has none it is
// deleted for good; where the trash does not take something the player is asked, once, whether it shall be.
class Trash
{
public:
    // Both must outlive it.
    Trash(FileSystem& files, Prompts& prompts) : m_files(files), m_prompts(prompts) {}

    // Deletes a file, a link or a folder with all that is in it; nothing at `path` is no failure. False, and
    // it is still there, when the player would rather keep it than lose it for good. Throws FileError.
    bool discard(const QString& path);

    // One more line for the question or the message of the command; empty where there is no trash.
    QString words() const;

    // What belongs to something discarded is of use again when that comes back.
    bool keeps() const { return m_files.hasTrash() && !m_forGood; }

private:
    FileSystem& m_files;
    Prompts& m_prompts;
    std::optional<bool> m_forGood; // the player's answer
};
