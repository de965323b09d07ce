#include "state/Truth.h"

#include "platform/FileNames.h"
#include "platform/Paths.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr const char16_t* sideFileEndings[] = {u".txt", u".htm", u"html", u".doc",
                                               u".deh", u".bex", u".ded", u".lmp"};

} // namespace

bool IsShownFile(const QString& name, bool wadFilesOnly)
{
    return !wadFilesOnly || std::ranges::none_of(sideFileEndings, [&](const char16_t* ending) {
        return EndsWith(name, QString::fromUtf16(ending));
    });
}

QStringList Truth::shownFiles() const
{
    QStringList shown = facts.game.files;
    shown.removeIf([this](const QString& name) { return !IsShownFile(name, settings.WadFilesOnly); });
    return shown;
}

QString Truth::chosenFile() const
{
    const bool isThere = facts.game.files.contains(selection.file, Qt::CaseInsensitive) &&
                         IsShownFile(selection.file, settings.WadFilesOnly);
    return isThere ? selection.file : QString();
}

QString Truth::SelectedGameFile() const
{
    const QString file = chosenFile();
    return file.isEmpty() ? QString() : facts.game.folder + file;
}

QString Truth::chosenWadName() const
{
    const QString file = chosenFile();
    return EndsWith(file, u".wad"_s) ? BaseNameOf(file) : QString();
}

QString Truth::chosenMap() const
{
    const bool isThere = !selection.map.isEmpty() && !chosenFile().isEmpty() && settings.Skill != 0 &&
                         facts.file.maps.contains(selection.map, Qt::CaseInsensitive);
    return isThere && chosenSlot().isEmpty() ? selection.map : QString();
}

QString Truth::chosenSlot() const
{
    const bool isThere = !selection.SaveSlot.isEmpty() && settings.Skill != 0 &&
                         std::ranges::any_of(facts.file.savegames, [this](const SaveGame& game) {
                             return game.slot == selection.SaveSlot;
                         });
    return isThere ? selection.SaveSlot : QString();
}

::StartChoice Truth::startChoice() const
{
    if (settings.Skill == 0)
        return StartChoice::NewGame;
    if (!chosenSlot().isEmpty())
        return StartChoice::ChosenSavegame;
    return chosenMap().isEmpty() ? StartChoice::Undecided : StartChoice::ChosenMap;
}

bool Truth::isScriptedMap() const
{
    return facts.game.scriptedMap.isScriptedMap ||
           (!gameIs(GameKind::Doom) && SameName(BaseNameOf(chosenFile()), u"vexlev"_s));
}

QString Truth::saveGameFolder() const
{
    QString name = BaseNameOf(chosenFile());
    if (gameIs(GameKind::Doom)) {
        const std::optional<GameFamily> family = FamilyOfTitle(facts.game.name);
        name = family ? QString::fromUtf16(RowOf(*family).key) : QString();
    }
    return IsUsableName(name) ? u"UserSG/"_s + name + u"/savegame"_s : QString();
}

const FoundEngine* Truth::engine() const
{
    if (!facts.startsOtherEngines || facts.engines.isEmpty())
        return nullptr;
    return settings.Engine.isEmpty() ? &facts.engines.first() : EngineNamed(facts.engines, settings.Engine);
}
