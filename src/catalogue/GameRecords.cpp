#include "catalogue/GameRecords.h"

#include "platform/Paths.h"
#include "platform/Text.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

// The record's path under `folder`; empty for a name that would leave it.
QString recordPath(const QString& folder, const QString& name, const QString& ending)
{
    if (name.trimmed().isEmpty() || FileNameOf(name) != name)
        return {};
    return folder + name.toLower() + ending;
}

QString mapRecordPath(const Launcher& launcher, const QString& name)
{
    const Selection& selection = launcher.selection;
    const QString info = launcher.paths.LaunchPath + u"GameInfo/"_s;
    if (selection.DoomGameSelected)
        return recordPath(info + u"Iwads/"_s, RecordKeyOf(name), u".vykm"_s);
    if (selection.PwadSelected)
        return recordPath(info + u"Pwads/"_s, name, u".vykm"_s);
    if (selection.ArchiveSelected)
        return recordPath(info + u"Zips/"_s, name, u".vykm"_s);
    return {};
}

QString savegameRecordPath(const Launcher& launcher)
{
    const Selection& selection = launcher.selection;
    const QString save = launcher.paths.LaunchPath + u"GameInfo/Save/"_s;
    const QString name = SelectedRecordName(launcher);
    if (selection.DoomGameSelected)
        return recordPath(save, RecordKeyOf(name), u".vyks"_s);
    if (selection.PwadSelected)
        return recordPath(save, name, u".vyks"_s);
    if (selection.GwadSelected && !selection.SelectedGameFile.isEmpty())
        return recordPath(save + u"Gwads/"_s + name.toLower() + u'/', BaseNameOf(selection.SelectedGameFile),
                          u".vyks"_s);
    if (selection.ArchiveSelected)
        return recordPath(save + u"Zip/"_s, name, u".vyks"_s);
    return {};
}

void writeRecord(FileSystem& files, const QString& path, const QStringList& lines)
{
    if (path.isEmpty())
        return;
    try {
        files.createFolder(FolderOf(path));
        WriteLines(files, path, lines);
    } catch (const FileError&) {
    }
}

QStringList recordLines(const FileSystem& files, const QString& path)
{
    if (path.isEmpty() || !files.fileExists(path))
        return {};
    try {
        return ReadLines(files, path);
    } catch (const FileError&) {
        return {};
    }
}

QString readRecord(const FileSystem& files, const QString& path)
{
    return FirstField(recordLines(files, path).value(0));
}

void selectMap(ListBox& maps, const QString& map)
{
    maps.select(map.isEmpty() ? 0 : std::max(maps.find(map), 0));
}

} // namespace

QString SelectedRecordName(const Launcher& launcher)
{
    if (launcher.selection.DoomGameSelected)
        return launcher.settings.SelectedDoomGame;
    if (launcher.selection.ArchiveSelected)
        return launcher.settings.SelectedArchive;
    return launcher.selection.GwadSelected ? launcher.selection.SelectedGwadGame
                                           : launcher.selection.SelectedPwadGame;
}

void SaveLastMap(Launcher& launcher, const QString& name)
{
    if (launcher.controls.PwadShowlist.selectedText().isEmpty())
        return;
    writeRecord(launcher.files, mapRecordPath(launcher, name), {launcher.controls.MapList.selectedText()});
}

void RestoreLastMap(Launcher& launcher, const QString& name)
{
    selectMap(launcher.controls.MapList, readRecord(launcher.files, mapRecordPath(launcher, name)));
}

void SaveGwadSelection(Launcher& launcher, const QString& name)
{
    const QString file = launcher.controls.PwadShowlist.selectedText();
    const QString folder = launcher.paths.LaunchPath + u"GameInfo/Gwads/"_s;
    if (file.isEmpty())
        return;
    writeRecord(launcher.files, recordPath(folder, name, u".vykg"_s), {file});
    const QString map = launcher.controls.MapList.selectedText();
    if (!launcher.settings.RememberLastMap || map.isEmpty())
        return;
    const QString path = recordPath(folder, name, u".vykm"_s);
    const QString mapLine = file + u' ' + map;
    QStringList lines;
    bool placed = false;
    for (const QString& line : recordLines(launcher.files, path)) {
        if (!line.startsWith(file, Qt::CaseInsensitive))
            lines << line;
        else if (!std::exchange(placed, true))
            lines << mapLine;
    }
    if (!placed)
        lines << mapLine;
    writeRecord(launcher.files, path, lines);
}

bool RestoreGwadFile(Launcher& launcher, const QString& name)
{
    const QString folder = launcher.paths.LaunchPath + u"GameInfo/Gwads/"_s;
    const QString file = readRecord(launcher.files, recordPath(folder, name, u".vykg"_s));
    const int entry = launcher.controls.PwadShowlist.find(file);
    launcher.controls.PwadShowlist.select(entry);
    return entry >= 0;
}

void RestoreGwadMap(Launcher& launcher, const QString& name)
{
    const QString folder = launcher.paths.LaunchPath + u"GameInfo/Gwads/"_s;
    const QString file = launcher.controls.PwadShowlist.selectedText().trimmed();
    QString map;
    for (const QString& line : recordLines(launcher.files, recordPath(folder, name, u".vykm"_s)))
        if (line.startsWith(file, Qt::CaseInsensitive))
            map = line.mid(file.size()).trimmed();
    selectMap(launcher.controls.MapList, map);
}

void SaveLastSavegame(Launcher& launcher)
{
    writeRecord(launcher.files, savegameRecordPath(launcher), {launcher.launch.SaveSlot});
}

void ForgetLastSavegame(Launcher& launcher)
{
    const QString path = savegameRecordPath(launcher);
    if (path.isEmpty())
        return;
    try {
        launcher.files.remove(path);
    } catch (const FileError&) {
    }
}

QString LastSavegame(const Launcher& launcher)
{
    return readRecord(launcher.files, savegameRecordPath(launcher)).left(1);
}
