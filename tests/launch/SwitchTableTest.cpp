// The engine's option switches: whole lines with everything in its place, and the values at their edges.
#include "launch/SwitchTable.h"

#include "platform/Paths.h"
#include "state/OptionTable.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr auto C = LaunchPath::CommercialGame;
constexpr auto I = LaunchPath::InstalledGame;

// Nothing asks for a switch but the channels and the console's two fixed commands.
Settings quiet()
{
    Settings settings;
    settings.HighResPatches = settings.HighResTextures = settings.SplashEffects = true;
    return settings;
}

// As much as can be on at the same time.
Settings loud()
{
    Settings settings = quiet();
    for (const OptionRow& row : OptionTable())
        if (const auto* option = std::get_if<bool Settings::*>(&row.member))
            settings.*(*option) = true;
    for (const auto off :
         {&Settings::HighResPatches, &Settings::SplashEffects, &Settings::BasicDoom, &Settings::Fx,
          &Settings::CoreEffects, &Settings::EditMode, &Settings::NoObjects, &Settings::Light,
          &Settings::DisableSound, &Settings::DisableMusic, &Settings::NoMonsters, &Settings::DetailTextures})
        settings.*off = false;
    settings.AudioChannels = 64;
    settings.SkinScaling = 3;
    settings.GrenadeTime = 2;
    settings.RicochetInterval = 4;
    settings.SmokeMode = 1;
    settings.Skill = 3;
    settings.LightLevel = 77;
    settings.CorpseSeconds = 9;
    return settings;
}

SwitchInputs inputs(const Settings& settings, LaunchPath path)
{
    return {.on = settings,
            .path = path,
            .startChoice = StartChoice::ChosenMap,
            .textureFolder = u"/own/Textures"_s,
            .manualPlaylist = u"rock"_s,
            .automaticPlaylist = u"metal"_s};
}

} // namespace

class SwitchTableTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wholeLines()
    {
        const QString sound = u"-data hv_doom_sfx.wad -3d -ch 64 -dsst 3 "_s;
        const QString playlists = u"-extmus \"rock\" -extmus \"metal\" "_s;
        const QString textures = u"-td \""_s + NativePath(u"/own/Textures"_s) + u"\" "_s;
        const QString start = u"-devmap -debug_scp -listloresfm "_s;
        const Settings on = loud();
        QCOMPARE(OptionSwitches(inputs(on, C)),
                 u"-fp -ap -am -np "_s + textures + sound + playlists +
                     u"-upm -FMODmidi -fx -spz -nomouse -spx -respawn -noif1 -noif2 -gnd 2 -nojoy -usb -ro "
                     "-ct 9 -cmd \"audio-ricoh 4\" \"rend-light 1\" \"rend-smoke 1\" -smn -fast -v -sk 3 "_s);
        SwitchInputs installed = inputs(on, I);
        installed.wadCheckResult = 3;
        QCOMPARE(OptionSwitches(installed),
                 start + u"-fp -ap -am -np "_s + textures + sound + playlists +
                     u"-upm -FMODmidi -boom -noamwds -fx -spz -nomouse -gnd 2 -nojoy -usb -spx -ReSpawn "
                     "-noif1 -noif2 -ro -ct 9 -cmd \"rend-light 1\" \"rend-smoke 1\" \"audio-ricoh 4\" -smn "
                     "-fast -v -sk 3 "_s);

        // A scripted map, with what it leaves in force.
        Settings own = on;
        for (const auto off :
             {&Settings::KelspackAlternative, &Settings::TovrensReplacements, &Settings::PistolZombies,
              &Settings::HighResTextures, &Settings::Skyboxes, &Settings::ManualPlaylistOn,
              &Settings::AutoPlaylistsOn, &Settings::NoForcedModels, &Settings::ExtraFx,
              &Settings::MonsterRespawn, &Settings::NoSameTypeInfighting, &Settings::NoLostSoulInfighting})
            own.*off = false;
        SwitchInputs scripted = inputs(own, I);
        scripted.scriptedMap = scripted.scriptedMapModels = scripted.lateAlternativeWeapons = true;
        QCOMPARE(OptionSwitches(scripted),
                 start + u"-fp -am "_s + sound +
                     u"-upm -FMODmidi -nomouse -gnd 2 -nojoy -usb -ro -ct 9 -cmd \"rend-smoke 1\" "
                     "\"audio-ricoh 4\" -smn -fast -ap -v -sk 3 "_s);

        // Basic Doom with FX, in the edit mode.
        Settings basic = quiet();
        for (const auto option :
             {&Settings::BasicDoom, &Settings::Fx, &Settings::EditMode, &Settings::NoObjects,
              &Settings::Light, &Settings::NoMonsters, &Settings::DetailTextures, &Settings::GrenadeLauncher,
              &Settings::DynamicLighting, &Settings::DevelopmentMode})
            basic.*option = true;
        basic.HighResPatches = basic.HighResTextures = basic.SplashEffects = false;
        basic.LightLevel = 77;
        const QString group = u"-pbm -nm -dt -nc -xa -spf -spx -cmd \"rend-light 1\" "_s;
        QCOMPARE(OptionSwitches(inputs(basic, C)),
                 u"-np -nht -ch 128 "_s + group + u"-sk 0 -txe -txn -txa 77 "_s);
        SwitchInputs format = inputs(basic, I);
        format.wadCheckResult = 4;
        QCOMPARE(OptionSwitches(format),
                 start + u"-np -nht -ch 128 "_s + group + u"-mfo -sk 0 -txe -lean -txn -txa 77 "_s);
    }

    void edges()
    {
        const QString end = u"-cmd \"rend-light 0\" \"rend-smoke 0\" "_s;
        const struct
        {
            void (*change)(Settings&);
            QString line;
        } rows[] = {
            {[](Settings&) {}, u"-ch 128 "_s + end},
            {[](Settings& s) { s.AudioChannels = -5; }, u"-ch 128 "_s + end},
            {[](Settings& s) { s.AudioChannels = 1; }, u"-ch 1 "_s + end},
            {[](Settings& s) { s.DisableSound = true; }, u"-nosound "_s + end},
            {[](Settings& s) { s.DisableMusic = true; }, u"-ch 128 -nomusic "_s + end},
            {[](Settings& s) { s.CoreEffects = true; }, u"-ch 128 -xa -spf "_s + end},
            {[](Settings& s) { s.Skyboxes = true, s.SkyMode = 1; }, u"-ch 128 -fsb "_s + end},
            {[](Settings& s) { s.Fx = true; }, u"-ch 128 "_s},
            {[](Settings& s) { s.BasicDoom = true; }, u"-ch 128 -nc -nws "_s},
            {[](Settings& s) { s.CorpseSeconds = 12; }, u"-ch 128 -ct 12 "_s + end},
            {[](Settings& s) { s.RicochetSetting = true; },
             u"-ch 128 -cmd \"audio-ricoh 0\" \"rend-light 0\" \"rend-smoke 0\" "_s},
        };
        for (const auto& row : rows) {
            Settings settings = quiet();
            row.change(settings);
            QCOMPARE(OptionSwitches({.on = settings, .path = C}), row.line);
        }
        const QString compatibility[] = {u""_s, u""_s, u""_s, u""_s, u"-mfo "_s, u"-stx "_s, u"-c_nextmap "_s,
                                         u""_s};
        for (int entry = 0; entry < std::ssize(compatibility); ++entry) {
            const Settings settings = quiet();
            QCOMPARE(OptionSwitches({.on = settings, .path = I, .wadCheckResult = entry}),
                     u"-ch 128 "_s + (entry == 3 ? u"-boom "_s : u""_s) + end + compatibility[entry]);
        }
    }
};

QTEST_GUILESS_MAIN(SwitchTableTest)
#include "SwitchTableTest.moc"
