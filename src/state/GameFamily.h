#pragma once

#include <QString>

#include <array>
#include <optional>

// The five commercial Doom games. A family is known by its IWAD's file name alone.
enum class GameFamily { Shareware, Doom, Doom2, Tnt, Plutonia };

struct GameFamilyRow
{
    GameFamily family;
    const char16_t* title; // shown with a launcher font; in upper case without
    const char16_t* key;   // of record files and savegame folders
    const char16_t* iwadName;
};

constexpr std::array<GameFamilyRow, 5> GameFamilies{{
    {GameFamily::Shareware, u"Shareware Doom", u"doom1", u"Doom1.wad"},
    {GameFamily::Doom, u"Doom/Ultimate Doom", u"doom", u"Doom.wad"},
    {GameFamily::Doom2, u"Doom II", u"doom2", u"Doom2.wad"},
    {GameFamily::Tnt, u"TNT - Final Doom", u"tnt", u"Tnt.wad"},
    {GameFamily::Plutonia, u"The Plutonia Experiment", u"plutonia", u"Plutonia.wad"},
}};

constexpr const GameFamilyRow& RowOf(GameFamily family)
{
    return GameFamilies[static_cast<size_t>(family)];
}

constexpr bool eachFamilyInItsPlace()
{
    for (size_t i = 0; i < GameFamilies.size(); ++i)
        if (static_cast<size_t>(GameFamilies[i].family) != i)
            return false;
    return true;
}
static_assert(eachFamilyInItsPlace());

// The family of an IWAD's path or file name, or of a display title, without regard to case.
std::optional<GameFamily> FamilyOfIwad(const QString& path);
std::optional<GameFamily> FamilyOfTitle(const QString& title);

// The title that the games list shows.
QString DisplayTitle(GameFamily family, bool customFontOn);

// The name under which a Doom game's records are kept: its key, but "Shareware Doom" for the shareware.
QString RecordKeyOf(const QString& title);
