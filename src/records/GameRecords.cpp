#include "records/GameRecords.h"

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

} // namespace

GameRecords::GameRecords(FileSystem& files, const InstallationPaths& paths, const Truth& truth)
    : m_files(files), m_info(paths.LaunchPath + u"GameInfo/"_s), m_truth(truth)
{
}

QString GameRecords::mapRecord() const
{
    const QString& name = m_truth.facts.game.name;
    switch (m_truth.facts.game.kind) {
    case GameKind::Doom:
        return recordPath(m_info + u"Iwads/"_s, RecordKeyOf(name), u".vykm"_s);
    case GameKind::Pwad:
        return recordPath(m_info + u"Pwads/"_s, name, u".vykm"_s);
    case GameKind::Gwad:
        return recordPath(m_info + u"Gwads/"_s, name, u".vykm"_s);
    case GameKind::Archive:
        return recordPath(m_info + u"Zips/"_s, name, u".vykm"_s);
    case GameKind::None:
        break;
    }
    return {};
}

QString GameRecords::savegameRecord() const
{
    const QString& name = m_truth.facts.game.name;
    const QString save = m_info + u"Save/"_s;
    switch (m_truth.facts.game.kind) {
    case GameKind::Doom:
        return recordPath(save, RecordKeyOf(name), u".vyks"_s);
    case GameKind::Pwad:
        return recordPath(save, name, u".vyks"_s);
    case GameKind::Gwad: {
        const QString folder = recordPath(save + u"Gwads/"_s, name, u"/"_s);
        return folder.isEmpty() ? QString()
                                : recordPath(folder, BaseNameOf(m_truth.chosenFile()), u".vyks"_s);
    }
    case GameKind::Archive:
        return recordPath(save + u"Zip/"_s, name, u".vyks"_s);
    case GameKind::None:
        break;
    }
    return {};
}

QString GameRecords::map() const
{
    if (!m_truth.gameIs(GameKind::Gwad))
        return readRecord(m_files, mapRecord());
    const QString file = m_truth.chosenFile();
    QString map;
    for (const QString& line : recordLines(m_files, mapRecord()))
        if (line.startsWith(file, Qt::CaseInsensitive))
            map = line.mid(file.size()).trimmed();
    return map;
}

void GameRecords::SaveLastMap()
{
    if (!m_truth.chosenFile().isEmpty())
        writeRecord(m_files, mapRecord(), {m_truth.chosenMap()});
}

void GameRecords::SaveGwadSelection()
{
    const QString file = m_truth.chosenFile();
    if (file.isEmpty())
        return;
    writeRecord(m_files, recordPath(m_info + u"Gwads/"_s, m_truth.facts.game.name, u".vykg"_s),
                {AsField(file)});
    const QString map = m_truth.chosenMap();
    if (!m_truth.settings.RememberLastMap || map.isEmpty())
        return;
    const QString mapLine = file + u' ' + map;
    QStringList lines;
    bool placed = false;
    for (const QString& line : recordLines(m_files, mapRecord())) {
        if (!line.startsWith(file, Qt::CaseInsensitive))
            lines << line;
        else if (!std::exchange(placed, true))
            lines << mapLine;
    }
    if (!placed)
        lines << mapLine;
    writeRecord(m_files, mapRecord(), lines);
}

QString GameRecords::gwadFile() const
{
    const QString line =
        recordLines(m_files, recordPath(m_info + u"Gwads/"_s, m_truth.facts.game.name, u".vykg"_s)).value(0);
    // Older records have no quotes around a name with a comma.
    const bool isName = m_truth.facts.game.files.contains(line, Qt::CaseInsensitive);
    return isName ? line : FirstField(line);
}

QString GameRecords::LastSavegame() const
{
    return readRecord(m_files, savegameRecord()).left(1);
}

void GameRecords::SaveLastSavegame()
{
    writeRecord(m_files, savegameRecord(), {m_truth.chosenSlot()});
}

void GameRecords::ForgetLastSavegame()
{
    const QString path = savegameRecord();
    if (path.isEmpty())
        return;
    try {
        m_files.remove(path);
    } catch (const FileError&) {
    }
}
