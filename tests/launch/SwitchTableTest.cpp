// The engine's option switches: whole lines, each row's condition, and what no state may break.
#include "launch/SwitchTable.h"

#include "app/SettingsTable.h"
#include "platform/Paths.h"
#include "tests/support/LauncherFixture.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

struct Case
{
    Launcher& launcher;
    LaunchPath path = LaunchPath::CommercialGame;
    bool scripted = false, models = false, lateWeapons = false;
    int check = 0;
    QString autoPlaylist = {};

    Settings& set = launcher.settings;
    Controls& box = launcher.controls;
    QString line() const
    {
        return OptionSwitches({launcher, path, autoPlaylist, scripted, models, lateWeapons, check});
    }
};

using Change = void (*)(Case&);
const auto C = LaunchPath::CommercialGame;
const auto I = LaunchPath::InstalledGame;

QList<CheckBox*> boxesOfPacks(Controls& b)
{
    return {&b.chkGraphics[2],  &b.chkGraphics[3],
            &b.chkGraphics[4],  &b.chkSound[6],
            &b.chkSound[9],     &b.chkSound[10],
            &b.chkEffects[3],   &b.ChkModelOpts[1],
            &b.ChkModelOpts[3], &b.chkAltModels[0],
            &b.chkAltModels[1], &b.chkAltModels[2],
            &b.chkAltModels[3], &b.ChkGL};
}

// Nothing asks for a switch but the channels and the console's two fixed commands.
void quiet(Case& c)
{
    Settings& s = c.set = Settings();
    s.HighResPatches = s.HighResTextures = s.SplashEffects = true;
    Controls& b = c.box;
    b.Corpse.text = u"0"_s;
    for (CheckBox* box : boxesOfPacks(b))
        box->enabled = true;
    b.cbScaler.enabled = true;
    s.PlaylistName = u"rock"_s;
    c.autoPlaylist = u"metal"_s;
    b.chkAltModels[0].startAs(1);
    b.chkAltModels[3].startAs(1);
    c.launcher.launch = {};
    c.launcher.modelPacks.CoreEffectsInstalled = true;
    c.launcher.resources = {true, true, true, true};
}

// As much as can be on at the same time.
void loud(Case& c)
{
    quiet(c);
    Settings& s = c.set;
    for (bool Settings::*option : {&Settings::KelspackWeapons,
                                   &Settings::KelspackAlternative,
                                   &Settings::TovrensReplacements,
                                   &Settings::HiResSoundPack,
                                   &Settings::Sound3D,
                                   &Settings::ManualPlaylistOn,
                                   &Settings::AutoPlaylistsOn,
                                   &Settings::IgnorePlaylistIfCustomMusic,
                                   &Settings::ForceFmodMidi,
                                   &Settings::NoForcedModels,
                                   &Settings::ExtraFx,
                                   &Settings::PistolZombies,
                                   &Settings::DisableMouse,
                                   &Settings::MonsterRespawn,
                                   &Settings::NoSameTypeInfighting,
                                   &Settings::NoLostSoulInfighting,
                                   &Settings::GrenadeLauncher,
                                   &Settings::DisableJoystick,
                                   &Settings::Skyboxes,
                                   &Settings::ResurrectCorpses,
                                   &Settings::RicochetSetting,
                                   &Settings::DynamicLighting,
                                   &Settings::GunSmoke,
                                   &Settings::FastMonsters,
                                   &Settings::Verbose,
                                   &Settings::DevelopmentMode,
                                   &Settings::NoObjects,
                                   &Settings::Light})
        s.*option = true;
    s.HighResPatches = s.SplashEffects = false;
    s.AudioChannels = 64;
    s.SkinScaling = 3;
    s.GrenadeTime = 2;
    s.RicochetInterval = 4;
    s.SmokeMode = 1;
    s.Skill = 3;
    s.LightLevel = 77;
    s.TexturePath = c.launcher.paths.RootPath + u"/Own Textures"_s;
    c.box.HiResText.text = NativePath(s.TexturePath);
    c.box.Corpse.text = u"9"_s;
    c.launcher.launch.RicochetOn = true;
}

void basicDoom(Case& c)
{
    loud(c);
    c.set.BasicDoom = c.set.Fx = c.set.EditMode = c.set.NoMonsters = c.set.DetailTextures = true;
    c.set.HighResTextures = c.set.GunSmoke = false;
    c.set.GrenadeTime = 0;
}

} // namespace

class SwitchTableTest : public QObject
{
    Q_OBJECT

    LauncherFixture m_fixture;

private Q_SLOTS:
    void initTestCase()
    {
        m_fixture.installation.addFolder(u"Own Textures"_s);
        m_fixture.installation.addFolder(u"Data/Textures"_s);
        for (const QString& playlist : {u"rock"_s, u"metal"_s})
            m_fixture.installation.add(u"VYKLaunch/Music/"_s + playlist + u".vym"_s);
    }

    // Everything in its place, on both paths.
    void wholeLines()
    {
        const QString sound = u"-data hv_doom_sfx.wad -3d -ch 64 -dsst 3 "_s;
        const QString playlists = u"-extmus \"rock\" -extmus \"metal\" "_s;
        const QString textures = u"-td \""_s + NativePath(m_fixture.path(u"Own Textures"_s)) + u"\" "_s;
        Case c{m_fixture.launcher};
        loud(c);
        c.box.ChkModelOpts[3].enabled = false;
        QCOMPARE(c.line(),
                 u"-fp -ap -am -np "_s + textures + sound + playlists +
                     u"-upm -FMODmidi -xa -spf -fx -spz -nomouse -spx -respawn -noif1 -noif2 -gnd 2 -nojoy "
                     "-usb -ro -ct 9 -cmd \"audio-ricoh 4\" \"rend-light 1\" \"rend-smoke 1\" -smn -fast "
                     "-v -sk 3 "_s);
        c.path = I;
        c.check = 3;
        const QString start = u"-devmap -debug_scp -listloresfm "_s;
        QCOMPARE(c.line(), start + u"-fp -ap -am -np "_s + textures + sound + playlists +
                               u"-upm -FMODmidi -boom -noamwds -fx -spz -nomouse -gnd 2 -nojoy -usb -spx "
                               "-ReSpawn -noif1 -noif2 -ro -ct 9 -cmd \"rend-light 1\" \"rend-smoke 1\" "
                               "\"audio-ricoh 4\" -smn -fast -v -sk 3 "_s);
        c.scripted = c.models = c.lateWeapons = true;
        QCOMPARE(c.line(), start + u"-fp -ap -am -am "_s + textures + sound +
                               u"-upm -FMODmidi -boom -spz -nomouse -gnd 2 -nojoy -usb -ro -ct 9 -cmd "
                               "\"rend-smoke 1\" \"audio-ricoh 4\" -smn -fast -ap -v -sk 3 "_s);

        Case basic{m_fixture.launcher};
        basicDoom(basic);
        const QString middle = u"-upm -FMODmidi -nomouse -pbm -nm -dt -nojoy "_s;
        const QString group = u"-nc -xa -spf -spx -cmd \"rend-light 1\" "_s;
        QCOMPARE(basic.line(),
                 u"-np -nht "_s + sound + playlists + middle + group + u"-v -sk 3 -txe -txn -txa 77 "_s);
        basic.path = I;
        basic.check = 4;
        QCOMPARE(basic.line(), start + u"-np -nht "_s + sound + playlists + middle + group +
                                   u"-mfo -v -sk 3 -txe -lean -txn -txa 77 "_s);
        basic.scripted = true;
        QCOMPARE(basic.line(), start + sound +
                                   u"-upm -FMODmidi -nomouse -pbm -nm -dt -nojoy -usb -mfo "
                                   "-v -sk 3 -txe -lean -txn -txa 77 "_s);
    }

    // One change to a state in which little is on: the whole line.
    void rows_data()
    {
        QTest::addColumn<Change>("change");
        QTest::addColumn<QString>("commercial");
        QTest::addColumn<QString>("installed");
        const QString ch = u"-ch 128 "_s;
        const QString cmd = u"-cmd \"rend-light 0\" \"rend-smoke 0\" "_s;
        const QString none = ch + cmd;
        const auto row = [](const char* name, Change change, const QString& c, const QString& i) {
            QTest::newRow(name) << change << c << i;
        };
        const auto both = [&](const char* name, Change change, const QString& line) {
            row(name, change, line, line);
        };
        both(
            "nothing", [](Case&) {}, none);
        row(
            "greyed boxes and missing packs count as off",
            [](Case& c) {
                Settings& s = c.set;
                s.DetailTextures = s.HiResSoundPack = s.IgnorePlaylistIfCustomMusic = s.ForceFmodMidi = true;
                s.NoForcedModels = s.ExtraFx = s.PistolZombies = s.TovrensReplacements = s.Skyboxes = true;
                s.KelspackWeapons = s.KelspackAlternative = s.GrenadeLauncher = true;
                s.HighResTextures = false;
                s.SkinScaling = 4, s.GrenadeTime = 3, s.AudioChannels = -5;
                for (CheckBox* box : boxesOfPacks(c.box))
                    box->enabled = false;
                c.box.cbScaler.enabled = false;
                c.launcher.resources = {};
            },
            u"-np -nht -ch 128 -xa -spf -gnd 3 "_s + cmd, u"-np -nht "_s + none);
        both(
            "options that hang on others",
            [](Case& c) {
                Settings& s = c.set;
                s.SmokeMode = s.SkyMode = 1;
                s.Light = s.NoObjects = s.PistolZombies = s.RicochetSetting = s.DetailTextures = true;
            },
            none);
        both(
            "unticked boxes",
            [](Case& c) {
                c.set.TovrensReplacements = c.set.PistolZombies = true;
                c.box.chkAltModels[0].startAs(0), c.box.chkAltModels[3].startAs(0);
            },
            none);
        both(
            "zombies unticked",
            [](Case& c) {
                c.set.TovrensReplacements = c.set.PistolZombies = true, c.box.chkAltModels[0].startAs(0);
            },
            u"-am "_s + none);
        both(
            "own textures without their folder",
            [](Case& c) { c.set.TexturePath = c.box.HiResText.text = u"/nowhere"_s; }, none);
        both(
            "the installation's textures, spelled otherwise",
            [](Case& c) {
                c.set.TexturePath = c.launcher.paths.RootPath + u"/Data/Textures"_s;
                c.box.HiResText.text = u"  "_s + c.launcher.paths.RootPath + u"\\DATA/textures "_s;
            },
            none);
        both(
            "details in place of textures",
            [](Case& c) { c.set.DetailTextures = true, c.set.HighResTextures = false; },
            u"-nht "_s + ch + u"-dt "_s + cmd);
        both(
            "no music",
            [](Case& c) {
                c.set.DisableMusic = c.set.ForceFmodMidi = c.set.Sound3D = c.set.ManualPlaylistOn = true;
            },
            u"-3d -ch 128 -nomusic "_s + cmd);
        both(
            "no sound and no music", [](Case& c) { c.set.DisableSound = c.set.DisableMusic = true; },
            u"-nosound "_s + cmd);
        both(
            "playlists that are not there",
            [](Case& c) {
                c.set.ManualPlaylistOn = c.set.AutoPlaylistsOn = true;
                c.set.PlaylistName = u"gone"_s, c.autoPlaylist = u"gone"_s;
            },
            none);
        both(
            "core effects", [](Case& c) { c.set.CoreEffects = c.set.KelspackWeapons = true; },
            ch + u"-xa -spf "_s + cmd);
        row(
            "effects without Basic Doom", [](Case& c) { c.set.Fx = c.set.KelspackWeapons = true; }, ch, none);
        both(
            "edit mode keeps Kelspack out", [](Case& c) { c.set.EditMode = c.set.KelspackWeapons = true; },
            none + u"-txe "_s);
        row(
            "forced models", [](Case& c) { c.set.NoForcedModels = true; }, none, ch + u"-noamwds "_s + cmd);
        both(
            "values at their edges",
            [](Case& c) {
                c.set.AudioChannels = c.set.SkyMode = 1;
                c.set.GrenadeLauncher = c.set.Skyboxes = true;
                c.box.Corpse.text = u"12"_s;
            },
            u"-ch 1 -pbm -fsb -ct 12 "_s + cmd);
        row(
            "ricochets off for the engine", [](Case& c) { c.launcher.launch.RicochetOn = true; },
            ch + u"-cmd \"audio-ricoh 0\" \"rend-light 0\" \"rend-smoke 0\" "_s,
            none + u"\"audio-ricoh 0\" "_s);
        both(
            "Basic Doom",
            [](Case& c) {
                c.set.BasicDoom = c.set.Skyboxes = c.set.CoreEffects = true, c.set.SplashEffects = false;
                c.set.ExtraFx = c.set.NoForcedModels = c.set.TovrensReplacements = true;
            },
            ch + u"-nc -nws "_s);
        both(
            "no light in Basic Doom", [](Case& c) { c.set.BasicDoom = c.set.Fx = true; },
            ch + u"-nc -xa -spf -cmd \"rend-light 0\" "_s);
        both(
            "a skill, but a new game",
            [](Case& c) { c.set.Skill = 4, c.launcher.launch.StartChoice = StartChoice::NewGame; }, none);
        both(
            "a skill and a savegame",
            [](Case& c) { c.set.Skill = 4, c.launcher.launch.StartChoice = StartChoice::ChosenSavegame; },
            none + u"-sk 4 "_s);
        const auto installed = [&](const char* name, Change change, const QString& line) {
            row(name, change, none, line);
        };
        installed(
            "scripted", [](Case& c) { c.scripted = c.path == I; }, ch + u"-usb -cmd \"rend-smoke 0\" "_s);
        installed(
            "entry 3", [](Case& c) { c.check = c.path == I ? 3 : 0; }, ch + u"-boom "_s + cmd);
        installed(
            "entry 5", [](Case& c) { c.check = c.path == I ? 5 : 0; }, none + u"-stx "_s);
        installed(
            "entry 6", [](Case& c) { c.check = c.path == I ? 6 : 0; }, none + u"-c_nextmap "_s);
        both(
            "entry 7 adds nothing", [](Case& c) { c.check = 7; }, none);
        row(
            "entry 3 in edit mode", [](Case& c) { c.check = 3, c.set.EditMode = true; }, none + u"-txe "_s,
            none + u"-txe "_s);
    }
    void rows()
    {
        QFETCH(Change, change);
        for (const LaunchPath path : {C, I}) {
            Case c{m_fixture.launcher, path};
            quiet(c);
            change(c);
            QTEST(c.line(), path == C ? "commercial" : "installed");
        }
    }

    // From each of three states every option and every pair of options flipped.
    void invariants()
    {
        QList<bool Settings::*> flips;
        for (const SettingRow& row : SettingsTable())
            if (const auto* flag = std::get_if<bool Settings::*>(&row.member))
                flips << *flag;
        for (const Change base : {quiet, loud, basicDoom})
            for (qsizetype i = 0; i < flips.size(); ++i)
                for (qsizetype j = i; j < flips.size(); ++j)
                    for (int variant = 0; variant < 4; ++variant) {
                        Case c{m_fixture.launcher, variant == 0 ? C : I};
                        base(c);
                        c.scripted = c.models = c.lateWeapons = variant >= 2;
                        c.check = variant * 3 % 7;
                        c.set.*flips[i] = !(c.set.*flips[i]);
                        if (j != i)
                            c.set.*flips[j] = !(c.set.*flips[j]);
                        checkLine(c);
                        if (QTest::currentTestFailed())
                            return;
                    }
    }

private:
    static void checkLine(const Case& c)
    {
        const QString line = c.line();
        const auto where = [&line](const char* what, const QString& piece) {
            return qPrintable(QLatin1String(what) + piece + u" in "_s + line);
        };
        QVERIFY2(line.endsWith(u' ') && !line.contains(u"  "_s) && !line.startsWith(u' '), qPrintable(line));
        QMap<QString, int> times;
        for (const QString& piece : SplitCommandLine(line))
            ++times[piece];
        const bool installed = c.path == I;
        for (auto piece = times.cbegin(); piece != times.cend(); ++piece) {
            const bool twice =
                piece.key() == u"-extmus"_s ||
                (installed && c.scripted && (piece.key() == u"-am"_s || piece.key() == u"-ap"_s));
            if (piece.key().startsWith(u'-') || piece.key().contains(u"rend-"_s))
                QVERIFY2(piece.value() <= (twice ? 2 : 1), where("too often: ", piece.key()));
        }
        const auto never = [&](const QStringList& pieces) {
            for (const QString& piece : pieces)
                QVERIFY2(!times.contains(piece), where("not allowed: ", piece));
        };
        const QStringList musicPieces{u"-extmus"_s, u"-upm"_s, u"-FMODmidi"_s};
        if (c.set.NoMonsters)
            never({u"-respawn"_s, u"-ReSpawn"_s, u"-noif1"_s, u"-noif2"_s, u"-ro"_s, u"-ct"_s, u"-fast"_s});
        if (c.set.DisableSound)
            never(musicPieces + QStringList{u"-nomusic"_s, u"-data"_s, u"-3d"_s, u"-ch"_s, u"-dsst"_s});
        if (c.set.DisableMusic)
            never(musicPieces);
        if (c.set.BasicDoom)
            never({u"-fp"_s, u"-fx"_s, u"-spz"_s, u"-noamwds"_s, u"-fsb"_s, u"audio-ricoh 4"_s,
                   u"audio-ricoh 0"_s, u"rend-smoke 1"_s, u"rend-smoke 0"_s});
        if (c.scripted)
            never({u"-np"_s, u"-nht"_s, u"-extmus"_s, u"-nc"_s, u"-spx"_s, u"-fsb"_s, u"-xa"_s, u"-fx"_s});
        QCOMPARE(times.contains(u"-nosound"_s), !times.contains(u"-ch"_s));
        QCOMPARE(times.contains(u"-xa"_s), times.contains(u"-spf"_s));
        QVERIFY(!times.contains(u"-gnd"_s) || !times.contains(u"-pbm"_s));
        QVERIFY(!times.contains(u"-td"_s) || !times.contains(u"-nht"_s));
        const auto console = line.indexOf(u"-cmd "_s);
        for (const QString& command : {u"\"rend-"_s, u"\"audio-"_s})
            QVERIFY2(!line.contains(command) || (console >= 0 && console < line.indexOf(command)),
                     where("outside -cmd: ", command));
    }
};

QTEST_GUILESS_MAIN(SwitchTableTest)
#include "SwitchTableTest.moc"
