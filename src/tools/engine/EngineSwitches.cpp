#include "tools/engine/EngineSwitches.h"

#include <algorithm>

namespace {

using enum SwitchUse;
using enum SwitchValues;

constexpr EngineSwitch switches[] = {
    {u"-doom1", NamedIwad, None, u"Doom1.wad"},
    {u"-doom", NamedIwad, None, u"Doom.wad"},
    {u"-doom2", NamedIwad, None, u"Doom2.wad"},
    {u"-tnt", NamedIwad, None, u"Tnt.wad"},
    {u"-plutonia", NamedIwad, None, u"Plutonia.wad"},
    {u"-iwad", IwadFile, One, {}},
    {u"-udir", GameFolder, One, {}},
    {u"-f", GameFiles, Many, {}},
    {u"-data", DataFiles, One, {}},
    {u"-file", ExtraFiles, Many, {}},
    {u"-deh", Patches, Many, {}},

    {u"-wp", Pass, Map, u"-warp"},
    {u"-sk", Pass, Number, u"-skill"},
    {u"-loadgame", Pass, Number, u"-loadgame"},
    {u"-nm", Pass, None, u"-nomonsters"},
    {u"-fast", Pass, None, u"-fast"},
    {u"-respawn", Pass, None, u"-respawn"},
    {u"-nosound", Pass, None, u"-nosound"},
    {u"-nomusic", Pass, None, u"-nomusic"},
    {u"-nomouse", Pass, None, u"-nomouse"},

    // Definition files, models, textures, light and effects.
    {u"-d", LeaveOut, Many, {}},
    {u"-fp", LeaveOut, None, {}},
    {u"-ap", LeaveOut, None, {}},
    {u"-am", LeaveOut, None, {}},
    {u"-np", LeaveOut, None, {}},
    {u"-nht", LeaveOut, None, {}},
    {u"-td", LeaveOut, One, {}},
    {u"-dt", LeaveOut, None, {}},
    {u"-xa", LeaveOut, None, {}},
    {u"-spf", LeaveOut, None, {}},
    {u"-fx", LeaveOut, None, {}},
    {u"-spz", LeaveOut, None, {}},
    {u"-spx", LeaveOut, None, {}},
    {u"-noamwds", LeaveOut, None, {}},
    {u"-usb", LeaveOut, None, {}},
    {u"-fsb", LeaveOut, None, {}},
    {u"-cmd", LeaveOut, Many, {}},
    {u"-smn", LeaveOut, None, {}},
    {u"-nc", LeaveOut, None, {}},
    {u"-nws", LeaveOut, None, {}},

    // Sound.
    {u"-3d", LeaveOut, None, {}},
    {u"-ch", LeaveOut, One, {}},
    {u"-dsst", LeaveOut, One, {}},
    {u"-extmus", LeaveOut, One, {}},
    {u"-upm", LeaveOut, None, {}},
    {u"-fmodmidi", LeaveOut, None, {}},

    // Play.
    {u"-nojoy", LeaveOut, None, {}},
    {u"-noif1", LeaveOut, None, {}},
    {u"-noif2", LeaveOut, None, {}},
    {u"-gnd", LeaveOut, One, {}},
    {u"-pbm", LeaveOut, None, {}},
    {u"-ro", LeaveOut, None, {}},
    {u"-ct", LeaveOut, One, {}},

    // Compatibility.
    {u"-boom", LeaveOut, None, {}},
    {u"-stx", LeaveOut, None, {}},
    {u"-c_nextmap", LeaveOut, None, {}},
    {u"-mfo", LeaveOut, None, {}},

    // Editing and development.
    {u"-v", LeaveOut, None, {}},
    {u"-txe", LeaveOut, None, {}},
    {u"-txn", LeaveOut, None, {}},
    {u"-txa", LeaveOut, One, {}},
    {u"-lean", LeaveOut, None, {}},
    {u"-devmap", LeaveOut, None, {}},
    {u"-debug_scp", LeaveOut, None, {}},
    {u"-listloresfm", LeaveOut, None, {}},
};

} // namespace

const EngineSwitch* FindEngineSwitch(QStringView argument)
{
    const auto row = std::ranges::find_if(switches, [&](const EngineSwitch& known) {
        return known.text.compare(argument, Qt::CaseInsensitive) == 0;
    });
    return row == std::end(switches) ? nullptr : &*row;
}
