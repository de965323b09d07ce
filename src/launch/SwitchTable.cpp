#include "launch/SwitchTable.h"

#include "platform/Paths.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

using In = const SwitchInputs&;

// The conditions' own words.

const Settings& on(In in)
{
    return in.on;
}

bool commercial(In in)
{
    return in.path == LaunchPath::CommercialGame;
}
bool notScripted(In in)
{
    return !in.scriptedMap;
}
bool sound(In in)
{
    return !on(in).DisableSound;
}
bool consoleCommands(In in)
{
    return !on(in).BasicDoom && (!commercial(in) || !on(in).Fx);
}
bool ricochets(In in)
{
    return consoleCommands(in) && on(in).RicochetSetting;
}
bool light(In in)
{
    return consoleCommands(in) && notScripted(in);
}
bool basicEffects(In in)
{
    return on(in).BasicDoom && on(in).Fx;
}
bool textureFolder(In in)
{
    return on(in).HighResTextures && (commercial(in) || !on(in).BasicDoom) && !in.textureFolder.isEmpty();
}

QString quoted(const QString& value)
{
    return value + u"\" "_s;
}
QString number(int value)
{
    return QString::number(value) + u' ';
}

enum class Switch {
    DevelopmentMap,
    Kelspack,
    KelspackAlternative,
    Replacements,
    ScriptedModels,
    NoPatches,
    NoTextures,
    TextureFolder,
    NoSound,
    SoundPack,
    Sound3D,
    Channels,
    UsualChannels,
    SkinScaling,
    NoMusic,
    ManualPlaylist,
    AutomaticPlaylist,
    IgnorePlaylist,
    FmodMidi,
    Boom,
    CoreEffects,
    NoForcedModels,
    ExtraFx,
    PistolZombies,
    NoMouse,
    NoSplashes,
    Respawn,
    RespawnInstalled,
    NoSameType,
    NoLostSoul,
    Grenades,
    Pipebombs,
    NoMonsters,
    DetailTextures,
    NoJoystick,
    Skyboxes,
    ForcedSkyboxes,
    Resurrect,
    CorpseTime,
    Console,
    Ricochets,
    NoRicochets,
    Light,
    NoLight,
    Smoke,
    NoSmoke,
    LessSmoke,
    Fast,
    NoCore,
    BasicEffects,
    BasicNoSplashes,
    NoSprites,
    BasicConsole,
    BasicLight,
    BasicNoLight,
    StaticTextures,
    NextMap,
    MapFormat,
    LateAlternative,
    Verbose,
    Skill,
    TextureEdit,
    Lean,
    NoObjects,
    LightLevel,
    Count
};

struct Row
{
    Switch name;
    const char16_t* text;
    bool (*applies)(In);
    QString (*value)(In) = nullptr; // what follows the text
};

// clang-format off
constexpr Row rows[] = {
    {Switch::DevelopmentMap, u"-devmap -debug_scp -listloresfm ", [](In in) { return on(in).DevelopmentMode; }},
    {Switch::Kelspack, u"-fp ", [](In in) { return on(in).KelspackWeapons; }},
    {Switch::KelspackAlternative, u"-ap ", [](In in) { return on(in).KelspackAlternative; }},
    {Switch::Replacements, u"-am ", [](In in) { return on(in).TovrensReplacements; }},
    {Switch::ScriptedModels, u"-am ", [](In in) { return in.scriptedMap && in.scriptedMapModels; }},
    {Switch::NoPatches, u"-np ", [](In in) { return notScripted(in) && !on(in).HighResPatches; }},
    {Switch::NoTextures, u"-nht ", [](In in) { return notScripted(in) && !on(in).HighResTextures; }},
    {Switch::TextureFolder, u"-td \"", textureFolder, [](In in) { return quoted(NativePath(in.textureFolder)); }},
    {Switch::NoSound, u"-nosound ", [](In in) { return !sound(in); }},
    {Switch::SoundPack, u"-data hv_doom_sfx.wad ", [](In in) { return on(in).HiResSoundPack; }},
    {Switch::Sound3D, u"-3d ", [](In in) { return on(in).Sound3D; }},
    {Switch::Channels, u"-ch ", [](In in) { return sound(in) && on(in).AudioChannels >= 1; }, [](In in) { return number(on(in).AudioChannels); }},
    {Switch::UsualChannels, u"-ch 128 ", [](In in) { return sound(in) && on(in).AudioChannels < 1; }},
    {Switch::SkinScaling, u"-dsst ", [](In in) { return on(in).SkinScaling >= 1; }, [](In in) { return number(on(in).SkinScaling); }},
    {Switch::NoMusic, u"-nomusic ", [](In in) { return on(in).DisableMusic; }},
    {Switch::ManualPlaylist, u"-extmus \"", [](In in) { return on(in).ManualPlaylistOn && !in.manualPlaylist.isEmpty(); },
        [](In in) { return quoted(in.manualPlaylist); }},
    {Switch::AutomaticPlaylist, u"-extmus \"", [](In in) { return on(in).AutoPlaylistsOn && !in.automaticPlaylist.isEmpty(); },
        [](In in) { return quoted(in.automaticPlaylist); }},
    {Switch::IgnorePlaylist, u"-upm ", [](In in) { return on(in).IgnorePlaylistIfCustomMusic; }},
    {Switch::FmodMidi, u"-FMODmidi ", [](In in) { return on(in).ForceFmodMidi; }},
    {Switch::Boom, u"-boom ", [](In in) { return in.wadCheckResult == 3 && !on(in).EditMode; }},
    {Switch::CoreEffects, u"-xa -spf ", [](In in) { return on(in).CoreEffects; }},
    {Switch::NoForcedModels, u"-noamwds ", [](In in) { return on(in).NoForcedModels; }},
    {Switch::ExtraFx, u"-fx ", [](In in) { return on(in).ExtraFx; }},
    {Switch::PistolZombies, u"-spz ", [](In in) { return on(in).PistolZombies; }},
    {Switch::NoMouse, u"-nomouse ", [](In in) { return on(in).DisableMouse; }},
    {Switch::NoSplashes, u"-spx ", [](In in) { return !on(in).SplashEffects && !on(in).BasicDoom && notScripted(in); }},
    {Switch::Respawn, u"-respawn ", [](In in) { return on(in).MonsterRespawn; }},
    {Switch::RespawnInstalled, u"-ReSpawn ", [](In in) { return on(in).MonsterRespawn; }},
    {Switch::NoSameType, u"-noif1 ", [](In in) { return on(in).NoSameTypeInfighting; }},
    {Switch::NoLostSoul, u"-noif2 ", [](In in) { return on(in).NoLostSoulInfighting; }},
    {Switch::Grenades, u"-gnd ", [](In in) { return on(in).GrenadeLauncher && on(in).GrenadeTime != 0; }, [](In in) { return number(on(in).GrenadeTime); }},
    {Switch::Pipebombs, u"-pbm ", [](In in) { return on(in).GrenadeLauncher && on(in).GrenadeTime == 0; }},
    {Switch::NoMonsters, u"-nm ", [](In in) { return on(in).NoMonsters; }},
    {Switch::DetailTextures, u"-dt ", [](In in) { return on(in).DetailTextures; }},
    {Switch::NoJoystick, u"-nojoy ", [](In in) { return on(in).DisableJoystick; }},
    {Switch::Skyboxes, u"-usb ", [](In in) { return in.scriptedMap || (on(in).Skyboxes && on(in).SkyMode == 0); }},
    {Switch::ForcedSkyboxes, u"-fsb ", [](In in) { return on(in).Skyboxes && on(in).SkyMode == 1; }},
    {Switch::Resurrect, u"-ro ", [](In in) { return on(in).ResurrectCorpses; }},
    {Switch::CorpseTime, u"-ct ", [](In in) { return !on(in).NoMonsters && on(in).CorpseSeconds != 0; }, [](In in) { return number(on(in).CorpseSeconds); }},
    {Switch::Console, u"-cmd ", consoleCommands},
    {Switch::Ricochets, u"\"audio-ricoh ", [](In in) { return ricochets(in) && on(in).RicochetInterval != 0; },
        [](In in) { return quoted(QString::number(on(in).RicochetInterval)); }},
    {Switch::NoRicochets, u"\"audio-ricoh 0\" ", [](In in) { return ricochets(in) && on(in).RicochetInterval == 0; }},
    {Switch::Light, u"\"rend-light 1\" ", [](In in) { return light(in) && on(in).DynamicLighting; }},
    {Switch::NoLight, u"\"rend-light 0\" ", [](In in) { return light(in) && !on(in).DynamicLighting; }},
    {Switch::Smoke, u"\"rend-smoke 1\" ", [](In in) { return consoleCommands(in) && on(in).GunSmoke; }},
    {Switch::NoSmoke, u"\"rend-smoke 0\" ", [](In in) { return consoleCommands(in) && !on(in).GunSmoke; }},
    {Switch::LessSmoke, u"-smn ", [](In in) { return on(in).GunSmoke && on(in).SmokeMode == 1; }},
    {Switch::Fast, u"-fast ", [](In in) { return on(in).FastMonsters; }},
    {Switch::NoCore, u"-nc ", [](In in) { return on(in).BasicDoom; }},
    {Switch::BasicEffects, u"-xa -spf ", basicEffects},
    {Switch::BasicNoSplashes, u"-spx ", [](In in) { return basicEffects(in) && !on(in).SplashEffects; }},
    {Switch::NoSprites, u"-nws ", [](In in) { return on(in).BasicDoom && !on(in).Fx; }},
    {Switch::BasicConsole, u"-cmd ", basicEffects},
    {Switch::BasicLight, u"\"rend-light 1\" ", [](In in) { return basicEffects(in) && on(in).DynamicLighting; }},
    {Switch::BasicNoLight, u"\"rend-light 0\" ", [](In in) { return basicEffects(in) && !on(in).DynamicLighting; }},
    {Switch::StaticTextures, u"-stx ", [](In in) { return in.wadCheckResult == 5; }},
    {Switch::NextMap, u"-c_nextmap ", [](In in) { return in.wadCheckResult == 6; }},
    {Switch::MapFormat, u"-mfo ", [](In in) { return in.wadCheckResult == 4; }},
    {Switch::LateAlternative, u"-ap ", [](In in) { return in.lateAlternativeWeapons; }},
    {Switch::Verbose, u"-v ", [](In in) { return on(in).Verbose; }},
    {Switch::Skill, u"-sk ", [](In in) { return in.startChoice != StartChoice::NewGame; }, [](In in) { return number(on(in).Skill); }},
    {Switch::TextureEdit, u"-txe ", [](In in) { return on(in).EditMode; }},
    {Switch::Lean, u"-lean ", [](In in) { return on(in).EditMode && on(in).DevelopmentMode; }},
    {Switch::NoObjects, u"-txn ", [](In in) { return on(in).NoObjects; }},
    {Switch::LightLevel, u"-txa ", [](In in) { return on(in).Light; }, [](In in) { return number(on(in).LightLevel); }},
};
// clang-format on

constexpr bool everySwitchInItsPlace()
{
    for (size_t i = 0; i < std::size(rows); ++i)
        if (static_cast<size_t>(rows[i].name) != i)
            return false;
    return std::size(rows) == static_cast<size_t>(Switch::Count);
}
static_assert(everySwitchInItsPlace(), "a row stands at its switch's number");

// clang-format off
constexpr Switch commercialOrder[] = {
    Switch::Kelspack, Switch::KelspackAlternative, Switch::Replacements,
    Switch::NoPatches, Switch::NoTextures, Switch::TextureFolder,
    Switch::NoSound, Switch::SoundPack, Switch::Sound3D, Switch::Channels, Switch::UsualChannels, Switch::SkinScaling,
    Switch::NoMusic, Switch::ManualPlaylist, Switch::AutomaticPlaylist, Switch::IgnorePlaylist, Switch::FmodMidi,
    Switch::CoreEffects, Switch::ExtraFx, Switch::PistolZombies,
    Switch::NoMouse, Switch::NoSplashes, Switch::Respawn, Switch::NoSameType, Switch::NoLostSoul, Switch::Grenades, Switch::Pipebombs,
    Switch::NoMonsters, Switch::DetailTextures, Switch::NoJoystick, Switch::Skyboxes, Switch::ForcedSkyboxes,
    Switch::Resurrect, Switch::CorpseTime,
    Switch::Console, Switch::Ricochets, Switch::NoRicochets, Switch::Light, Switch::NoLight, Switch::Smoke, Switch::NoSmoke,
    Switch::LessSmoke, Switch::Fast,
    Switch::NoCore, Switch::BasicEffects, Switch::BasicNoSplashes, Switch::NoSprites, Switch::BasicConsole, Switch::BasicLight, Switch::BasicNoLight,
    Switch::Verbose, Switch::Skill,
    Switch::TextureEdit, Switch::NoObjects, Switch::LightLevel,
};

constexpr Switch installedOrder[] = {
    Switch::DevelopmentMap,
    Switch::Kelspack, Switch::KelspackAlternative, Switch::Replacements, Switch::ScriptedModels,
    Switch::NoPatches, Switch::NoTextures, Switch::TextureFolder,
    Switch::NoSound, Switch::SoundPack, Switch::Sound3D, Switch::Channels, Switch::UsualChannels, Switch::SkinScaling,
    Switch::NoMusic, Switch::ManualPlaylist, Switch::AutomaticPlaylist, Switch::IgnorePlaylist, Switch::FmodMidi,
    Switch::Boom,
    Switch::CoreEffects, Switch::NoForcedModels, Switch::ExtraFx, Switch::PistolZombies,
    Switch::NoMouse, Switch::Grenades, Switch::Pipebombs, Switch::NoMonsters, Switch::DetailTextures, Switch::NoJoystick,
    Switch::Skyboxes, Switch::ForcedSkyboxes, Switch::NoSplashes, Switch::RespawnInstalled, Switch::NoSameType, Switch::NoLostSoul,
    Switch::Resurrect, Switch::CorpseTime,
    Switch::Console, Switch::Light, Switch::NoLight, Switch::Smoke, Switch::NoSmoke, Switch::Ricochets, Switch::NoRicochets,
    Switch::LessSmoke, Switch::Fast,
    Switch::NoCore, Switch::BasicEffects, Switch::BasicNoSplashes, Switch::NoSprites, Switch::BasicConsole, Switch::BasicLight, Switch::BasicNoLight,
    Switch::StaticTextures, Switch::NextMap, Switch::MapFormat, Switch::LateAlternative,
    Switch::Verbose, Switch::Skill,
    Switch::TextureEdit, Switch::Lean, Switch::NoObjects, Switch::LightLevel,
};
// clang-format on

template <class Order>
QString joined(const Order& order, In inputs)
{
    QString line;
    for (const Switch name : order) {
        const Row& row = rows[static_cast<size_t>(name)];
        if (!row.applies(inputs))
            continue;
        line += QString::fromUtf16(row.text);
        if (row.value)
            line += row.value(inputs);
    }
    return line;
}

} // namespace

QString OptionSwitches(const SwitchInputs& inputs)
{
    return inputs.path == LaunchPath::CommercialGame ? joined(commercialOrder, inputs)
                                                     : joined(installedOrder, inputs);
}
