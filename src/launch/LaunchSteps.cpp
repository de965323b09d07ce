#include "launch/LaunchSteps.h"

#include "music/AutoPlaylist.h"
#include "options/OptionsInForce.h"
#include "platform/Paths.h"
#include "wad/MainWad.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QString startSwitches(const Truth& truth)
{
    const QString warp = UpdateWarp(truth).WarpArgument;
    if (truth.startChoice() == StartChoice::ChosenMap && !warp.isEmpty())
        return u"-wp "_s + warp + u' ';
    if (truth.startChoice() == StartChoice::ChosenSavegame)
        return u"-loadgame "_s + truth.chosenSlot() + u' ';
    return {};
}

// The player asked for another engine than his usual one.
QString engineSwitch(const Truth& truth)
{
    const QString& engine = truth.selection.engine;
    return engine.isEmpty() ? QString() : u"--engine \""_s + NativePath(engine) + u"\" "_s;
}

QString customText(const Settings& settings)
{
    const QString& text = settings.CustomText;
    return text.isEmpty() ? QString() : text + u' ';
}

// Nothing in a command line escapes a double quote: a path that holds one would be split.
bool canBeQuoted(const Truth& truth, const QString& own, GameFamily family, const QStringList& names)
{
    const auto carries = [&own](const QString& value) { return value.contains(u'"') && own.contains(value); };
    return own.count(u'"') % 2 == 0 && !carries(NativePath(truth.facts.iwads.of(family))) &&
           !carries(NativePath(truth.facts.resources.textures)) && !carries(truth.settings.PlaylistName) &&
           std::ranges::none_of(names, [](const QString& name) { return name.contains(u'"'); });
}

// It would be taken for a switch.
bool beginsAsSwitch(const QString& own, const QStringList& names)
{
    return own.contains(u"-extmus \"-"_s) ||
           std::ranges::any_of(names, [](const QString& name) { return name.startsWith(u'-'); });
}

QString playlistThatExists(const Facts& facts, const QString& name)
{
    return facts.playlists.contains(name, Qt::CaseInsensitive) ? name : QString();
}

} // namespace

void CheckModels(Truth& truth, const QString& compatibility, LaunchPlan& plan)
{
    const Circumstances now(truth);
    Settings& settings = truth.settings;
    const auto report = [&](const QString& text, std::initializer_list<bool Settings::*> switchedOff) {
        plan.notices << LaunchMessage{text, u" Launch error"_s};
        for (const auto option : switchedOff) {
            plan.switchedOff << option;
            settings.*option = false;
        }
    };
    if (!now.basicDoom && !now.coreEffects && settings.TovrensReplacements && !now.models.hudWeaponsAgree)
        report(compatibility, {&Settings::TovrensReplacements});
    if ((settings.KelspackWeapons || settings.KelspackAlternative) && !now.coreEffects &&
        !now.models.kelspackWad)
        report(u" Unable to use kelspack as the kelspack.wad was not found.  "_s,
               {&Settings::KelspackWeapons, &Settings::KelspackAlternative});
}

QString IwadArgument(const Facts& facts, GameFamily family)
{
    const QString& iwad = facts.iwads.of(family);
    return facts.onDisk(family).foundByEngine ? u" -"_s + BaseNameOf(iwad) + u' '
                                              : u" -iwad \""_s + NativePath(iwad) + u"\" "_s;
}

SwitchInputs InputsOf(const Truth& truth, const Settings& inForce, LaunchPath path, GameFamily family)
{
    const ResourcePacks& packs = truth.facts.resources;
    return {.on = inForce,
            .path = path,
            .startChoice = truth.startChoice(),
            .textureFolder = packs.texturesAreOwn ? QString() : packs.textures,
            .manualPlaylist = playlistThatExists(truth.facts, inForce.PlaylistName),
            .automaticPlaylist = playlistThatExists(truth.facts, GetAutoPlaylist(truth.facts, family)),
            .scriptedMap = truth.isScriptedMap()};
}

LaunchMessage DoubleQuoteMessage()
{
    return {
        u"A file or folder name holds a double quote, which the engine's command line cannot carry.    \r\n"
        "Rename it and try again.    "_s,
        u" Launch error"_s};
}

LaunchPlan FinishPlan(const Truth& truth, LaunchPlan plan, const QString& commandLine, GameFamily family,
                      const QStringList& names)
{
    const QString own = commandLine + startSwitches(truth) + engineSwitch(truth);
    if (!canBeQuoted(truth, own, family, names))
        plan.refusal = DoubleQuoteMessage();
    else if (beginsAsSwitch(own, names))
        plan.refusal = {u"A file, folder or playlist name begins with a hyphen, which the engine would take "
                        "for an option.    \r\nRename it and try again.    "_s,
                        u" Launch error"_s};
    else
        plan.commandLine = own + customText(truth.settings);
    return plan;
}
