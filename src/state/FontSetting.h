#pragma once

#include "platform/FileSystem.h"

// The launcher font of font.vyk: one line, "name,size" or "name,size,b" for a bold font.
struct FontSetting
{
    bool CustomFontOn = false;
    QString FontName;
    int FontSize = 0; // points; 0 means the usual 8
    bool FontBold = false;
};

// The font of the file at `path`; no custom font when the file is missing or cannot be read.
FontSetting LoadFontSetting(const FileSystem& files, const QString& path);
