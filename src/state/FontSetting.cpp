#include "state/FontSetting.h"

#include "platform/Text.h"

FontSetting LoadFontSetting(const FileSystem& files, const QString& path)
{
    FontSetting font;
    if (!files.fileExists(path))
        return font;
    try {
        QString line = ReadLines(files, path).value(0);
        font.CustomFontOn = true;
        if (line.endsWith(u'b', Qt::CaseInsensitive)) {
            font.FontBold = true;
            line.chop(2);
        }
        const qsizetype comma = line.indexOf(u',');
        font.FontName = line.left(comma); // all of it when there is no comma
        if (comma >= 0)
            font.FontSize =
                static_cast<int>(qBound(0.0, line.mid(comma + 1).section(u',', 0, 0).toDouble(), 72.0));
        if (font.FontName.isEmpty())
            font.CustomFontOn = false;
    } catch (const FileError&) {
        font = FontSetting(); // an unreadable file is no font
    }
    return font;
}
