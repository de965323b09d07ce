#include "engines/EngineSwitches.h"

#include <algorithm>

namespace {

using enum SwitchUse;
using enum SwitchValues;

constexpr InEngines all(QStringView text)
{
    return {text, text, text, text};
}

constexpr EngineSwitch switches[] = {
    {u"-doom1", NamedIwad, None, {}, u"Doom1.wad"},
    {u"-doom", NamedIwad, None, {}, u"Doom.wad"},
    {u"-doom2", NamedIwad, None, {}, u"Doom2.wad"},
    {u"-tnt", NamedIwad, None, {}, u"Tnt.wad"},
    {u"-plutonia", NamedIwad, None, {}, u"Plutonia.wad"},
    {u"-iwad", IwadFile, One},
    {u"-udir", GameFolder, One},
    {u"-f", GameFiles, Many},
    {u"-data", DataFiles, One},
    {u"-file", ExtraFiles, Many},
    {u"-deh", Patches, Many},

    {u"-wp", Pass, Map, all(u"-warp")},
    {u"-sk", Pass, Number, all(u"-skill")},
    {u"-loadgame", Load, Number, {u"-loadgame", u"-loadgame", u"-loadgame", u""}},
    {u"-nm", Pass, None, all(u"-nomonsters")},
    {u"-fast", Pass, None, all(u"-fast")},
    {u"-respawn", Pass, None, all(u"-respawn")},
    {u"-nosound", Pass, None, all(u"-nosound")},
    {u"-nomusic", Pass, None, all(u"-nomusic")},
    {u"-nomouse", Pass, None, {u"-nomouse", u"-nomouse", u"", u"-nomouse"}},

    // Definition files, models, textures, light and effects.
    {u"-d", LeaveOut, Many},
    {u"-fp", LeaveOut, None},
    {u"-ap", LeaveOut, None},
    {u"-am", LeaveOut, None},
    {u"-np", LeaveOut, None},
    {u"-nht", LeaveOut, None},
    {u"-td", LeaveOut, One},
    {u"-dt", LeaveOut, None},
    {u"-xa", LeaveOut, None},
    {u"-spf", LeaveOut, None},
    {u"-fx", LeaveOut, None},
    {u"-spz", LeaveOut, None},
    {u"-spx", LeaveOut, None},
    {u"-noamwds", LeaveOut, None},
    {u"-usb", LeaveOut, None},
    {u"-fsb", LeaveOut, None},
    {u"-cmd", LeaveOut, Many},
    {u"-smn", LeaveOut, None},
    {u"-nc", LeaveOut, None},
    {u"-nws", LeaveOut, None},

    // Sound.
    {u"-3d", LeaveOut, None},
    {u"-ch", LeaveOut, One},
    {u"-dsst", LeaveOut, One},
    {u"-extmus", Playlist, One},
    {u"-upm", OwnMusic, None},
    {u"-fmodmidi", LeaveOut, None},

    // Play.
    {u"-nojoy", Pass, None, {u"use_joystick 0", u"use_joystick 0", u"", u"-nojoy"}},
    {u"-noif1", LeaveOut, None},
    {u"-noif2", LeaveOut, None},
    {u"-gnd", LeaveOut, One},
    {u"-pbm", LeaveOut, None},
    {u"-ro", LeaveOut, None},
    {u"-ct", LeaveOut, One},

    // Compatibility.
    {u"-boom", Pass, None, {u"", u"", u"-complevel boom", u"-complevel 9"}},
    {u"-stx", LeaveOut, None},
    {u"-c_nextmap", LeaveOut, None},
    {u"-mfo", LeaveOut, None},

    // Editing and development.
    {u"-v", Pass, None, {u"", u"", u"", u"-verbose"}},
    {u"-txe", LeaveOut, None},
    {u"-txn", LeaveOut, None},
    {u"-txa", LeaveOut, One},
    {u"-lean", LeaveOut, None},
    {u"-devmap", LeaveOut, None},
    {u"-debug_scp", LeaveOut, None},
    {u"-listloresfm", LeaveOut, None},
};

} // namespace

std::span<const EngineSwitch> EngineSwitches()
{
    return switches;
}

QString InEngine(const EngineSwitch& known, const KnownEngine& engine)
{
    switch (known.use) {
    case LeaveOut:
        return {};
    case NamedIwad:
    case IwadFile:
        return QStringLiteral("-iwad");
    case Patches:
        return QStringLiteral("-deh");
    case GameFolder:
    case GameFiles:
    case DataFiles:
    case ExtraFiles:
        return engine.fileSwitch.toString();
    case Playlist:
    case OwnMusic:
        return engine.music == MusicWay::None    ? QString()
               : engine.music == MusicWay::Packs ? QStringLiteral("music_pack_path")
                                                 : engine.fileSwitch.toString();
    case Pass:
    case Load:
        break;
    }
    return known.engines[static_cast<size_t>(engine.id)].toString();
}

const EngineSwitch* FindEngineSwitch(QStringView argument)
{
    const auto row = std::ranges::find_if(switches, [&](const EngineSwitch& known) {
        return known.text.compare(argument, Qt::CaseInsensitive) == 0;
    });
    return row == std::end(switches) ? nullptr : &*row;
}
