#include "options/DisplayResolution.h"

#include "platform/Text.h"
#include "savegames/SaveGames.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 longestLine = 80; // the engine's are half as long
constexpr qsizetype textStart = 2; // after the mode letter and a separator

QString firstLine(const FileSystem& files, const QString& path)
{
    try {
        return LinesOf(FromAnsi(files.read(path, longestLine + 1))).value(0);
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

ResolutionFacts GetCurrentRes(const FileSystem& files, const InstallationPaths& paths)
{
    const QString line = firstLine(files, paths.RootPath + u"/Bin/VYKres.out"_s);
    const qsizetype star = line.lastIndexOf(u'*');
    const QString resolution =
        withoutLeadingBlanks(line.mid(textStart, star < 0 ? -1 : std::max(star - textStart, qsizetype(0))));
    if (resolution.isEmpty() || resolution.startsWith(u'0') || !isUsable(line))
        return {};

    ResolutionFacts facts{.resolution = resolution, .mode = {}, .refreshRate = {}};
    const QChar mode = line.front().toUpper();
    if (mode == u'W' || mode == u'F')
        facts.mode = mode == u'W' ? u"--- Windowed Mode ---"_s : u"--- Fullscreen Mode ---"_s;
    const QString rate = star < 0 ? QString() : line.mid(star + 1).trimmed();
    facts.refreshRate = rate == u"0 Hz" ? QString() : rate;
    return facts;
}

bool Reset(Launcher& launcher)
{
    launcher.facts.resolution = GetCurrentRes(launcher.files, launcher.paths);
    return RefreshSaveGames(launcher);
}

void CheckDPISettings(int logicalDpi, WindowControl& form)
{
    constexpr int largeFonts = 120;
    form.topOfVYKFrame = logicalDpi == largeFonts ? 3575 : 0;
    form.leftOfImageCM = logicalDpi == largeFonts ? 60 : 0;
}
