#pragma once

#include "app/Launcher.h"

#include <optional>

// The message that refuses a name.
struct IllegalName
{
    QString title;
    QString text = QStringLiteral(" Illegal naming convention detected.    ");
};

// Asks for a game's name; nothing when the player cancels, leaves it empty, or gives one that no folder or
// file can have on every system, which has its message. Blanks around it are dropped.
std::optional<QString> AskGameName(Launcher& launcher, const NameQuestion& question,
                                   const IllegalName& illegal);

void ReportIllegalName(Launcher& launcher, const IllegalName& illegal);
