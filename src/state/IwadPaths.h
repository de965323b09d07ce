#pragma once

#include "state/GameFamily.h"

#include <QString>

// Where the IWADs lie: at most one path for each family.
struct IwadPaths
{
    std::array<QString, 5> Path;      // by family; empty when none is known
    std::array<QString, 4> ShowIwads; // the boxes of the dialog, which are what iwads.cfg remembers
    QString IwadFolder;               // where the dialog starts to look

    QString& of(GameFamily family) { return Path[static_cast<size_t>(family)]; }
    const QString& of(GameFamily family) const { return Path[static_cast<size_t>(family)]; }
    bool anyKnown() const;
};

// The environment's two folders for IWADs; an empty one is not looked in.
struct IwadEnvironment
{
    QString dollarDoomWadDir; // the variable that is literally named "$DOOMWADDIR"
    QString doomWadDir;

    static IwadEnvironment ofProcess();
};
