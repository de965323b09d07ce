#pragma once

#include "state/Launcher.h"

// The launcher fonts that can be chosen.
struct LauncherFont
{
    QString name;
    QList<int> sizes; // points
};
const QList<LauncherFont>& LauncherFonts();

// Both restart the launcher: the main window is gone and the program ends when they return.

// Back to the fonts that the windows are designed with.
void UseDefaultFont(Launcher& launcher);

// From now on the windows use this font.
void UseFont(Launcher& launcher, const FontSetting& font);
