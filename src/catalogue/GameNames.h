#pragma once

#include "ui/Prompts.h"

#include <optional>

// The message that refuses a name.
struct IllegalName
{
    QString title;
    QString text = QStringLiteral(" Illegal naming convention detected.    ");
};

// Asks for a game's name; nothing when the player cancels, leaves it empty, or gives one that no folder or
// file can have on every system, which has its message. Blanks around it are dropped.
std::optional<QString> AskGameName(Prompts& prompts, const NameQuestion& question,
                                   const IllegalName& illegal);

void ReportIllegalName(Prompts& prompts, const IllegalName& illegal);
