#include "launch/GameFileArguments.h"

#include "platform/Paths.h"
#include "wad/GameFiles.h"

#include <utility>

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

QStringList withEnding(const QStringList& names, const QString& ending)
{
    QStringList found;
    for (const QString& name : names)
        if (EndsWith(name, ending))
            found << name;
    return found;
}

} // namespace

GameFileArguments FileArgumentsOf(const GameFacts& game, const QString& chosenWad, bool iwadMissing)
{
    const bool isArchive = game.kind == GameKind::Archive;
    const QString userDir = FileNameOf(FolderOf(game.folder.chopped(1)));
    Pieces pieces;
    if (!isArchive)
        pieces.add(u"-udir "_s, userDir);
    if (game.kind == GameKind::Gwad)
        pieces.add(u"-f "_s, chosenWad);
    // A folder's name alone starts its main WAD: another one has to be named.
    const bool isFolderEnough = !isArchive && !iwadMissing && SameName(chosenWad, game.mainWad);
    if (game.kind == GameKind::Gwad || isFolderEnough)
        return pieces.arguments();

    const auto pathOf = [&game](const QString& name) { return NativePath(game.folder + name); };
    const auto nameOf = [&](const QString& name) { return isArchive ? pathOf(name) : name; };
    const QStringList files = GatherGameFiles(game.files, chosenWad);
    pieces.add(u"-f"_s);
    QString introduction = u" "_s;
    for (const QString& name : withEnding(files, u".wad"_s))
        pieces.add(std::exchange(introduction, {}), nameOf(name));
    introduction = u"-deh "_s;
    for (const QString& name : withEnding(files, u".deh"_s))
        pieces.add(std::exchange(introduction, {}), nameOf(name));
    introduction = u"-d "_s;
    for (const QString& name : withEnding(files, u".ded"_s))
        pieces.add(std::exchange(introduction, {}), pathOf(name));
    return pieces.arguments();
}
