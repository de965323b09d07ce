#include "catalogue/GameStaging.h"

#include "platform/Locks.h"
#include "platform/Paths.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

// In the work folder: what is built; what is built and decided to go into games that exist; the games and the
// single files that it replaces; and what was replaced for good.
const QString built = u"new/"_s;
const QString decided = u"adding/"_s;
const QString replacedGames = u"games/"_s;
const QString replacedFiles = u"files/"_s;
const QString gone = u"gone/"_s;

const QString workName = u".installing"_s;
const QString lockName = u".installing.lock"_s;

QString workFolder(const QString& gamesPath)
{
    return gamesPath + workName + u'/';
}

// Moves done so far, the last one last; undone in reverse.
class Moves
{
public:
    explicit Moves(FileSystem& files) : m_files(files) {}

    void move(const QString& from, const QString& to)
    {
        m_files.move(from, to);
        m_done.push_back({from, to});
    }

    // From the first that cannot be moved back on, all stays where it is: RecoverGames goes on from there.
    void undo()
    {
        try {
            for (; !m_done.empty(); m_done.pop_back())
                m_files.move(m_done.back().to, m_done.back().from);
        } catch (const FileError&) {
        }
    }

private:
    struct Move
    {
        QString from, to;
    };
    FileSystem& m_files;
    std::vector<Move> m_done;
};

void putBackGames(FileSystem& files, const QString& gamesPath, const QString& aside)
{
    for (const QString& game : files.folders(aside))
        if (files.actualPath(gamesPath + game).isEmpty())
            files.move(aside + game, gamesPath + game);
}

void requireReplaceable(const FileSystem& files, const QString& path)
{
    if (files.folderExists(path))
        throw FileError(FileError::Kind::Exists, path, u"a folder has the file's name"_s);
    if (files.isReadOnly(path))
        throw FileError(FileError::Kind::PermissionDenied, path, u"the file is read-only"_s);
}

// Moves the files into a game's folder, and those that they replace into `aside`.
void addFiles(FileSystem& files, Moves& moves, const QString& source, const QString& target,
              const QString& aside)
{
    files.createFolder(aside);
    for (const QString& name : files.files(source)) {
        if (const QString old = files.actualPath(target + name); !old.isEmpty()) {
            requireReplaceable(files, old);
            moves.move(old, aside + FileNameOf(old));
        }
        moves.move(source + name, target + name);
    }
}

// Goes on with an addition that was cut off.
void finishAdding(FileSystem& files, const QString& gamesPath, const QString& work)
{
    Moves moves(files);
    for (const QString& game : files.folders(work + decided)) {
        for (const QString& kind : files.folders(work + decided + game)) {
            const QString folder = game + u'/' + kind + u'/';
            files.createFolder(gamesPath + folder);
            addFiles(files, moves, work + decided + folder, gamesPath + folder,
                     work + replacedFiles + folder);
        }
    }
}

// Into the trash, where there is one: the player may want it back.
void discard(FileSystem& files, const QString& folder)
{
    for (const QString& name : files.folders(folder))
        if (files.hasTrash() && files.contents(folder + name).files > 0)
            files.moveToTrash(folder + name);
    files.removeTree(folder);
}

void recover(FileSystem& files, const QString& gamesPath)
{
    const QString work = workFolder(gamesPath);
    if (!files.folderExists(work))
        return;
    putBackGames(files, gamesPath, work + replacedGames);
    finishAdding(files, gamesPath, work);
    for (const QString& replaced : {replacedGames, replacedFiles, gone})
        discard(files, work + replaced);
    for (const QString& own : {built, decided})
        files.removeTree(work + own);
    if (files.files(work).isEmpty() && files.folders(work).isEmpty()) // what is not ours stays
        files.removeFolder(work);
}

QString lockPath(const QString& gamesPath)
{
    return gamesPath + lockName;
}

QString existing(FileSystem& files, const QString& folder)
{
    files.createFolder(folder);
    const QString path = files.actualPath(folder);
    if (path.isEmpty())
        throw FileError(FileError::Kind::NotFound, folder, u"no such folder"_s);
    return path + u'/';
}

} // namespace

GameStaging::GameStaging(FileSystem& files, const QString& gamesPath)
    : m_files(files),
      m_games(existing(files, gamesPath)),
      m_work(workFolder(m_games)),
      m_lock(lockPath(m_games))
{
    constexpr int aLittle = 2000; // milliseconds
    if (!TakeLock(m_lock, aLittle) && m_lock.error() == QLockFile::LockFailedError)
        throw FileError(FileError::Kind::Held, m_games, HolderOf(m_lock));
    recover(m_files, m_games);
}

GameStaging::~GameStaging()
{
    try {
        recover(m_files, m_games);
    } catch (const FileError&) {
        // It is no game, and the next installation tries again.
    }
}

void GameStaging::create(const QString& game, const QString& kind)
{
    m_game = game;
    m_kind = kind;
    m_files.createFolder(folder());
}

QString GameStaging::folder() const
{
    return m_work + built + m_game + u'/' + m_kind + u'/';
}

bool GameStaging::add(const QString& path, const std::function<bool(qint64)>& progress)
{
    constexpr qint64 pieceSize = 1024 * 1024;
    const std::unique_ptr<QIODevice> source = m_files.open(path);
    qint64 done = 0;
    bool goOn = true;
    const auto next = [&] {
        QByteArray piece;
        if (goOn)
            piece = source->read(pieceSize);
        if (goOn && piece.isEmpty() && !source->atEnd())
            throw FileError(FileError::Kind::Other, path, source->errorString());
        done += piece.size();
        goOn = goOn && progress(done);
        return goOn ? piece : QByteArray();
    };
    m_files.create(folder() + FileNameOf(path), next, m_files.modified(path));
    return goOn;
}

void GameStaging::placeAsNewGame()
{
    m_files.move(m_work + built + m_game, m_games + m_game);
}

void GameStaging::placeAsReplacement()
{
    const QString game = FileNameOf(m_files.actualPath(m_games + m_game));
    m_files.createFolder(m_work + replacedGames);
    Moves moves(m_files);
    try {
        moves.move(m_games + game, m_work + replacedGames + game);
        moves.move(m_work + built + m_game, m_games + m_game);
        moves.move(m_work + replacedGames, m_work + gone);
    } catch (const FileError&) {
        moves.undo();
        throw;
    }
}

void GameStaging::placeInGame()
{
    const QString target = m_games + m_game + u'/' + m_kind;
    if (m_files.folderExists(target))
        addToFolder(target + u'/');
    else
        m_files.move(folder().chopped(1), target);
}

void GameStaging::addToFolder(const QString& target)
{
    const QString game = FileNameOf(m_files.actualPath(m_games + m_game)) + u'/' + m_kind + u'/';
    Moves moves(m_files);
    try {
        for (const QString& name : m_files.files(folder()))
            if (const QString old = m_files.actualPath(target + name); !old.isEmpty())
                requireReplaceable(m_files, old);
        m_files.createFolder(m_work + decided + FolderOf(game.chopped(1)));
        // From here on the game gets the files, also when this program is ended meanwhile.
        moves.move(folder().chopped(1), m_work + decided + game.chopped(1));
        addFiles(m_files, moves, m_work + decided + game, target, m_work + replacedFiles + game);
    } catch (const FileError&) {
        moves.undo();
        throw;
    }
}

bool IsReservedGameName(const QString& name)
{
    return SameName(name, workName) || SameName(name, lockName);
}

void RecoverGames(FileSystem& files, const QString& gamesPath)
{
    const QString games = files.actualPath(gamesPath) + u'/';
    // Our own folder, spelled as we spell it: it is not searched for among thousands of games.
    if (games == u"/" || !QFileInfo(workFolder(games)).isDir())
        return;
    QLockFile lock(lockPath(games));
    if (TakeLock(lock, 0))
        recover(files, games);
}
