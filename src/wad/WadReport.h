#pragma once

#include "platform/FileSystem.h"

// What the game-file tool said of a WAD, and which state of the file it said it of.
struct WadReport
{
    FileStamp stamp;
    QString text;
    bool isKnown = false;
};
