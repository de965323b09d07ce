#include "wad/ToolBridge.h"

#include "platform/Paths.h"
#include "platform/Text.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

const QString checkWad = u"VYKgfiles CHECKWAD "_s;
const QString getSaveHeaders = u"VYKgfiles GETSAVEHDRS "_s;

constexpr int firstNamedSection = 2;
constexpr const char16_t* sectionFields[] = {u"Check2", u"Check3", u"Check4",
                                             u"Check5", u"Check6", u"Check7"};

constexpr int headerFields = 3;
constexpr int mapNameLength = 5;
constexpr int countPosition = 16; // characters 17 and 18

// The section that a field starts; 0 when it starts none.
int sectionStartedBy(const QString& field)
{
    for (size_t i = 0; i < std::size(sectionFields); ++i)
        if (field.startsWith(QString::fromUtf16(sectionFields[i]), Qt::CaseInsensitive))
            return firstNamedSection + static_cast<int>(i);
    return 0;
}

// The last report stays on disk for the player to look at; a disk that takes no file loses nothing else.
void keepReport(Launcher& launcher, const QString& report)
{
    try {
        launcher.files.overwrite(launcher.paths.LaunchDataPath + u"pwad.vyk"_s, ToAnsi(report + u"\r\n"_s));
    } catch (const FileError&) {
    }
}

// What the tool prints; one that cannot be started gives a message and nothing.
std::optional<QString> runTool(Launcher& launcher, const QString& operation, const QString& path)
{
    if (path.contains(u'"'))
        return QString(); // no command line can carry the name
    const QString commandLine = operation + u'"' + NativePath(path) + u'"';
    const Captured captured = launcher.processes.capture(commandLine, launcher.paths.RootPath + u"/Bin"_s);
    if (!captured.started) {
        if (!std::exchange(launcher.session.toolFailed, true)) // once, not for each of a game's WADs
            launcher.prompts.MsgboxPos(u"CreateProcess failed. Error: "_s + captured.error, Msg::Ok,
                                       QString());
        return std::nullopt;
    }
    return FromAnsi(captured.output);
}

enum class EmptyReport { Kept, Dropped };

// The report on a WAD; empty when there is none.
QString wadReport(Launcher& launcher, const QString& path, EmptyReport empty)
{
    const FileStamp stamp = launcher.files.stamp(path);
    KnownReport& known = launcher.facts.wadReports[path];
    if (!known.isKnown || known.stamp != stamp) {
        const std::optional<QString> report = runTool(launcher, checkWad, path);
        known = {stamp, report.value_or(QString()), report.has_value()};
        if (!known.text.isEmpty() || empty == EmptyReport::Kept)
            keepReport(launcher, known.text);
    }
    return known.text;
}

// The number that orders WADs, read from a report's fixed place.
int mapKey(const QString& report)
{
    const QString count = report.mid(countPosition, 2);
    const auto isDigit = [](QChar c) { return c >= u'0' && c <= u'9'; };
    const bool twoDigits = count.size() == 2 && isDigit(count.at(1));
    QString key = twoDigits ? u"1"_s + count : u"10"_s + count.left(1);
    key.remove(u' '); // the number ends at what is neither digit nor blank
    return key.first(std::ranges::find_if_not(key, isDigit) - key.cbegin()).toInt();
}

} // namespace

int CountWadMaps(Launcher& launcher, const QString& path)
{
    return mapKey(wadReport(launcher, path, EmptyReport::Kept));
}

QStringList ListWadMaps(Launcher& launcher, const QString& path)
{
    QStringList maps;
    const QStringList fields = FieldsOf(wadReport(launcher, path, EmptyReport::Dropped));
    for (qsizetype i = headerFields; i < fields.size(); ++i)
        maps << fields.at(i).left(mapNameLength).trimmed();
    if (!maps.isEmpty() && maps.last().isEmpty())
        maps.removeLast();
    return maps;
}

std::optional<QList<SaveGame>> ListSavegameHeaders(Launcher& launcher, const QString& folder)
{
    const std::optional<QString> report = runTool(launcher, getSaveHeaders, folder);
    if (!report)
        return std::nullopt;
    QList<SaveGame> savegames;
    if (report->isEmpty())
        return savegames;
    keepReport(launcher, *report);
    for (const QString& field : FieldsOf(*report))
        if (field.size() > 1)
            savegames << SaveGame{.slot = field.left(1), .description = field.mid(1)};
    return savegames;
}

int CheckPwad(const FileSystem& files, const InstallationPaths& paths, const QString& path)
{
    const QString list = paths.LaunchDataPath + u"checkpwad.vyk"_s;
    constexpr qint64 largestList = 1024 * 1024; // bytes
    if (!files.fileExists(list))
        return 0;
    try {
        const QString name = FileNameOf(path);
        int section = 1;
        for (const QString& field : FieldsOf(FromAnsi(files.read(list, largestList)))) {
            if (SameName(field, name))
                return section;
            if (const int started = sectionStartedBy(field))
                section = started;
        }
    } catch (const FileError&) {
        // An unreadable list means that no WAD needs special treatment.
    }
    return 0;
}
