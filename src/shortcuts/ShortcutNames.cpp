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

QString ShortcutNameOf(const Launcher& launcher)
{
    const Selection& selection = launcher.selection;
    // Not the text that the list shows: capitals may lose letters that the former name is found by.
    const QString name = launcher.controls.PwadList.selectedName();
    if (selection.GwadSelected)
        return name + u" - "_s + BaseNameOf(selection.SelectedGameFile);
    if (selection.DoomGameSelected)
        for (const auto& row : shortNames)
            if (SameName(name, QString::fromUtf16(row.title)))
                return QString::fromUtf16(row.name);
    return name;
}

QString GetShortcutName(const Launcher& launcher)
{
    constexpr int longestName = 30;
    constexpr int keptOfLonger = 27;
    const Selection& selection = launcher.selection;
    if (selection.DoomGameSelected)
        return labelOfDoomGame(launcher.settings.SelectedDoomGame);
    if (selection.PwadSelected)
        return BaseNameOf(selection.SelectedGameFile).toUpper();
    const QString game = selection.GwadSelected ? selection.SelectedGwadGame : QString();
    return game.size() > longestName ? game.first(keptOfLonger) + u" ..."_s : game;
}

QString MapSuffixOf(const Launcher& launcher)
{
    const QString map = launcher.controls.MapList.selectedText();
    return map.isEmpty() || launcher.controls.SkillsLevel[1].selected() == 0 ? QString() : u" - "_s + map;
}

QString ShortcutFileName(const QString& name, const QString& mapSuffix)
{
    constexpr int mapBeginning = 4; // " - M"
    const QString fileName = name.isEmpty() ? QString() : name.at(0).toUpper() + name.sliced(1).toLower();
    if (!mapSuffix.startsWith(u" - M"_s, Qt::CaseInsensitive))
        return fileName + mapSuffix;
    return fileName + mapSuffix.first(mapBeginning).toUpper() + mapSuffix.sliced(mapBeginning).toLower();
}
