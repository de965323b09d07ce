#include "options/DisplayResolution.h"

#include "platform/Text.h"
#include "savegames/SaveGames.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 longestLine = 80; // the engine's are half as long
constexpr qsizetype textStart = 2; // after the mode letter and a separator

QString resolutionFile(const Launcher& launcher)
{
    return launcher.paths.RootPath + u"/Bin/VYKres.out"_s;
}

QString firstLine(const Launcher& launcher)
{
    try {
        return LinesOf(FromAnsi(launcher.files.read(resolutionFile(launcher), longestLine + 1))).value(0);
    } catch (const FileError&) {
        return {};
    }
}

// The engine has not written what is too long or cannot be shown.
bool isUsable(const QString& line)
{
    return line.size() <= longestLine &&
           std::ranges::all_of(line, [](QChar c) { return c.isPrint() || c == u'\t'; });
}

QString withoutLeadingBlanks(const QString& text)
{
    const auto start = std::ranges::find_if_not(text, [](QChar c) { return c == u' '; });
    return text.sliced(start - text.begin());
}

} // namespace

void GetCurrentRes(Launcher& launcher)
{
    auto& labels = launcher.controls.ResLabel;
    launcher.resolutionRead = launcher.files.modified(resolutionFile(launcher));
    const QString line = firstLine(launcher);
    const qsizetype star = line.lastIndexOf(u'*');
    const QString resolution =
        withoutLeadingBlanks(line.mid(textStart, star < 0 ? -1 : std::max(star - textStart, qsizetype(0))));
    labels[1].caption = u"Default Resolution"_s;
    labels[2].caption.clear();
    labels[3].caption.clear();
    if (resolution.isEmpty() || resolution.startsWith(u'0') || !isUsable(line))
        return;

    labels[1].caption = resolution;
    const QChar mode = line.front().toUpper();
    if (mode == u'W' || mode == u'F')
        labels[2].caption = mode == u'W' ? u"--- Windowed Mode ---"_s : u"--- Fullscreen Mode ---"_s;
    const QString rate = star < 0 ? QString() : line.mid(star + 1).trimmed();
    labels[3].caption = rate == u"0 Hz" ? QString() : rate;
}

bool Reset(Launcher& launcher)
{
    const QDateTime written = launcher.files.modified(resolutionFile(launcher));
    if (written.isValid() && (!launcher.resolutionRead.isValid() || written > launcher.resolutionRead))
        GetCurrentRes(launcher);
    return RefreshSaveGames(launcher);
}

void CheckDPISettings(Launcher& launcher)
{
    constexpr int largeFonts = 120;
    if (launcher.window.logicalDpi() != largeFonts)
        return;
    launcher.controls.MainForm.topOfVYKFrame = 3575;
    launcher.controls.MainForm.leftOfImageCM = 60;
}
