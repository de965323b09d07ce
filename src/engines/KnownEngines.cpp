#include "engines/KnownEngines.h"

#include "platform/Paths.h"

#include <algorithm>

namespace {

// clang-format off
constexpr KnownEngine engines[] = {
    {EngineId::Crispy, u"crispy-doom", u"Crispy Doom", u"Crispy Doom ", u"-file", u"", u"-savedir", u"doomsav%1.dsg", u"-nogui", MusicWay::Packs, u"crispy-doom.cfg"},
    {EngineId::Chocolate, u"chocolate-doom", u"Chocolate Doom", u"Chocolate Doom ", u"-merge", u"-dehlump", u"-savedir", u"doomsav%1.dsg", u"-nogui", MusicWay::Packs, u"chocolate-doom.cfg"},
    {EngineId::Woof, u"woof", u"Woof", u"Woof ", u"-file", u"", u"-save", u"woofsav%1.dsg", u"-nogui", MusicWay::Lumps, u""},
    {EngineId::Dsda, u"dsda-doom", u"DSDA-Doom", u"dsda-doom v", u"-file", u"", u"-assign dsda_organized_saves=0 -save", u"dsda-doom-savegame%1.dsg", u"-no_message_box", MusicWay::Lumps, u""},
};
// clang-format on

constexpr bool eachAtItsPlace()
{
    for (size_t i = 0; i < std::size(engines); ++i)
        if (static_cast<size_t>(engines[i].id) != i)
            return false;
    return std::size(engines) == static_cast<size_t>(EngineId::Count);
}
static_assert(eachAtItsPlace(), "a row stands at its engine's number");

// Most engines know the oldest switches; music packs and pairs of configuration files few.
constexpr KnownEngine unknownEngine = [] {
    KnownEngine unknown = engines[0];
    unknown.music = MusicWay::None;
    unknown.secondConfig = {};
    return unknown;
}();

} // namespace

std::span<const KnownEngine> KnownEngines()
{
    return engines;
}

const KnownEngine* FindKnownEngine(const QString& program)
{
    const auto row = std::ranges::find_if(engines, [&](const KnownEngine& known) {
        return SameName(BaseNameOf(program), known.program.toString());
    });
    return row == std::end(engines) ? nullptr : &*row;
}

const KnownEngine& ConventionsOf(const QString& program)
{
    const KnownEngine* known = FindKnownEngine(program);
    return known ? *known : unknownEngine;
}
