#pragma once

#include "platform/FileSystem.h"

#include <QLockFile>
#include <functional>

// The place where a new game is built before it becomes part of the catalogue: a folder of its own beside
// the games, which is no game itself. What is not put into its place goes with this object, and everything
// that a placing moves aside stays there until the placing is done, so that a crash loses nothing:
// RecoverGames brings it back.
class GameStaging
{
public:
    // `gamesPath` ends in '/'; it is created when missing. Throws FileError; InUse while another launcher
    // installs.
    GameStaging(FileSystem& files, const QString& gamesPath);
    ~GameStaging();
    GameStaging(const GameStaging&) = delete;
    GameStaging& operator=(const GameStaging&) = delete;

    // Makes the empty folder that becomes the game's folder `kind` ("Pwads" or "Gwads"). Throws FileError.
    void create(const QString& game, const QString& kind);

    // That folder, ending in '/'.
    QString folder() const;

    // Copies a file into the folder, with its time; `progress` is given the bytes copied so far and returns
    // false to cancel, which gives false. Throws FileError.
    bool add(const QString& path, const std::function<bool(qint64)>& progress);

    // Each of these puts the folder into its place. Throws FileError; then the catalogue is as it was.
    void placeAsNewGame();     // no such game exists
    void placeAsReplacement(); // a game of the name exists and goes with all it holds
    void placeInGame();        // a game of the name exists: its folder `kind` is made, or gets the files

private:
    void addToFolder(const QString& target);

    FileSystem& m_files;
    QString m_games;
    QString m_work;
    QString m_game;
    QString m_kind;
    QLockFile m_lock;
};

// True for the names that an installation uses beside the games: no game can have them.
bool IsReservedGameName(const QString& name);

// Puts back what an installation that was cut off had moved aside, and deletes the rest of it. Nothing
// happens while another launcher installs. Throws FileError.
void RecoverGames(FileSystem& files, const QString& gamesPath);
