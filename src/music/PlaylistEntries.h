#pragma once

#include <QString>
#include <QStringList>

#include <span>

// The entries of a playlist: a key, which is a map or a piece of intermission music, and after a blank the
// music that replaces what the game plays there.

// A key and the lump with the game's own music, as the games' data files name it.
struct MusicKey
{
    QStringView key;
    QStringView lump;
};

enum class MusicGame { Doom, Doom2 };

MusicGame OtherGame(MusicGame game);

std::span<const MusicKey> IntermissionKeys(MusicGame game); // 5 of Doom, 4 of Doom II
std::span<const MusicKey> MapKeys(MusicGame game);          // 36 of Doom, 32 of Doom II

// Whether the line can be given music: it begins like a key, without regard to case.
bool IsEntry(const QString& line);

// The text before the first blank.
QString KeyOf(const QString& line);

// Whether the line is the entry of `key`, without regard to case.
bool HasKey(const QString& line, QStringView key);

// The line when it is an intermission entry of either game, else an empty text.
QString GetInterMusic(const QString& line);

// The last line of `held` that is the entry of `key`; an empty text when there is none.
QString ReplaceInterMusic(const QStringList& held, QStringView key);

// The music of an entry with the blank before it; empty for an entry of fewer than 10 characters, which
// has no room for any.
QString GetMusicString(const QString& entry);

// Whether the engine plays music files of this kind: an extension without its dot, in any case.
bool CheckMusicExt(const QString& extension);

// The map of the other game with the same number; empty for E4M6 to E4M9 and for what is no map.
QString GetNewMap(const QString& map);
