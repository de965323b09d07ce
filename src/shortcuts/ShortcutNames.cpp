#include "shortcuts/ShortcutNames.h"

#include "platform/Paths.h"

using namespace Qt::StringLiterals;

namespace {

const struct
{
    const char16_t* title;
    const char16_t* name;
} shortNames[] = {
    {u"DOOM/ULTIMATE DOOM", u"Doom"},
    {u"THE PLUTONIA EXPERIMENT", u"Plutonia"},
    {u"TNT - FINAL DOOM", u"Tnt"},
    {u"DOOM II", u"Doom2"},
};

// With regard to case: as the games list shows the titles.
const struct
{
    const char16_t* beginning;
    const char16_t* label;
} labels[] = {
    {u"The P", u"Plutonia Experiment"},
    {u"THE P", u"PLUTONIA EXPERIMENT"},
    {u"TNT", u"TNT Evilution"},
    {u"Doom/", u"Doom"},
    {u"DOOM/", u"DOOM"},
    {u"Doom II", u"Doom II"},
    {u"DOOM II", u"DOOM II"},
    {u"Share", u"Shareware Doom"},
    {u"SHARE", u"SHAREWARE DOOM"},
};

QString labelOfDoomGame(const QString& title)
{
    for (const auto& row : labels)
        if (title.startsWith(QString::fromUtf16(row.beginning)))
            return QString::fromUtf16(row.label);
    return title;
}

} // namespace

QString ShortcutNameOf(const Truth& truth)
{
    // Not the text that the list shows: capitals may lose letters that the former name is found by.
    const QString& name = truth.facts.game.name;
    if (truth.gameIs(GameKind::Gwad))
        return name + u" - "_s + BaseNameOf(truth.chosenFile());
    if (truth.gameIs(GameKind::Doom))
        for (const auto& row : shortNames)
            if (SameName(name, QString::fromUtf16(row.title)))
                return QString::fromUtf16(row.name);
    return name;
}

QString GetShortcutName(const Truth& truth)
{
    constexpr int longestName = 30;
    constexpr int keptOfLonger = 27;
    const QString& game = truth.facts.game.name;
    if (truth.gameIs(GameKind::Doom))
        return labelOfDoomGame(game);
    if (truth.gameIs(GameKind::Pwad))
        return BaseNameOf(truth.chosenFile()).toUpper();
    return game.size() > longestName ? game.first(keptOfLonger) + u" ..."_s : game;
}

QString MapSuffixOf(const Truth& truth)
{
    const QString map = truth.chosenMap();
    return map.isEmpty() ? QString() : u" - "_s + map;
}
