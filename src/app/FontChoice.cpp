#include "app/FontChoice.h"

#include "app/MainWindowLoad.h"
#include "platform/Text.h"

using namespace Qt::StringLiterals;

namespace {

QString pathOf(const Launcher& launcher)
{
    return launcher.paths.LaunchPath + u"font.vyk"_s;
}

void restart(Launcher& launcher)
{
    launcher.startUp.RestartRequested = true;
    UnloadMainWindow(launcher);
    launcher.window.endProgram();
}

} // namespace

const QList<LauncherFont>& LauncherFonts()
{
    static const QList<LauncherFont> fonts{
        {u"Arial"_s, {8, 9, 10}},   {u"Calibri"_s, {10}},      {u"MS Sans Serif"_s, {8, 10}},
        {u"Segoe UI"_s, {8, 9}},    {u"Tahoma"_s, {8, 9, 10}}, {u"Times New Roman"_s, {9, 10}},
        {u"Verdana"_s, {8, 9, 10}},
    };
    return fonts;
}

void UseDefaultFont(Launcher& launcher)
{
    try {
        launcher.files.remove(pathOf(launcher));
    } catch (const FileError&) {
        // Then the font stays.
    }
    restart(launcher);
}

void UseFont(Launcher& launcher, const FontSetting& font)
{
    launcher.font = font;
    launcher.font.CustomFontOn = true;
    try {
        WriteLines(
            launcher.files, pathOf(launcher),
            {font.FontName + u',' + QString::number(font.FontSize) + (font.FontBold ? u",b"_s : QString())});
    } catch (const FileError&) {
        // Then the former font stays.
    }
    launcher.window.checkFont(launcher.font);
    restart(launcher);
}
