#include "launch/GameFileArguments.h"

#include "platform/Paths.h"
#include "wad/GameFiles.h"

using namespace Qt::StringLiterals;

namespace {

class Pieces
{
public:
    void add(const QString& introduction, const QString& name)
    {
        m_arguments.text += introduction + u'"' + name + u"\" "_s;
        m_arguments.names << name;
    }
    void add(const QString& text) { m_arguments.text += text; }
    GameFileArguments arguments() const { return m_arguments; }

private:
    GameFileArguments m_arguments;
};

QStringList withEnding(const QStringList& paths, const QString& ending)
{
    QStringList found;
    for (const QString& path : paths)
        if (EndsWith(path, ending))
            found << path;
    return found;
}

} // namespace

GameFileArguments FileArgumentsOf(Launcher& launcher, bool iwadMissing, const MapCounter& countMaps)
{
    const Selection& selection = launcher.selection;
    const QString mainWad = selection.SelectedGameFile;
    const GatheredFiles gathered = GatherGameFiles(launcher.files, mainWad, countMaps);
    Pieces pieces;
    if (selection.GwadSelected) {
        pieces.add(u"-udir "_s, gathered.userDir);
        pieces.add(u"-f "_s, FileNameOf(mainWad));
        return pieces.arguments();
    }
    if (mainWad.isEmpty())
        return {};
    if (!gathered.inGameFolder) {
        pieces.add(u"-f "_s, NativePath(mainWad));
        return pieces.arguments();
    }

    const bool isArchive = selection.ArchiveSelected;
    const bool everyFile = isArchive || iwadMissing;
    const auto nameOf = [isArchive](const QString& path) {
        return isArchive ? NativePath(path) : FileNameOf(path);
    };
    if (!isArchive)
        pieces.add(u"-udir "_s, gathered.userDir);
    if (!everyFile)
        return pieces.arguments();

    pieces.add(u"-f"_s);
    QString introduction = u" "_s;
    for (const QString& path : withEnding(gathered.StoredFiles, u".wad"_s)) {
        if (!IsGameFile(launcher.files, FolderOf(path) + u'/', FileNameOf(path),
                        launcher.settings.WadFilesOnly))
            continue;
        pieces.add(introduction, nameOf(path));
        introduction.clear();
    }
    introduction = u"-deh "_s;
    for (const QString& path : withEnding(gathered.StoredFiles, u".deh"_s)) {
        pieces.add(introduction, selection.PwadSelected ? FileNameOf(path) : NativePath(path));
        introduction.clear();
    }
    introduction = u"-d "_s;
    for (const QString& path : withEnding(gathered.StoredFiles, u".ded"_s)) {
        pieces.add(introduction, NativePath(path));
        introduction.clear();
    }
    return pieces.arguments();
}
