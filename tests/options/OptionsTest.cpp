// What an option that can be used, and one that cannot, means to the command line; over generated states.
#include "options/OptionsInForce.h"

#include "app/Connect.h"
#include "app/ShowAll.h"
#include "launch/LaunchPlan.h"
#include "options/Modes.h"
#include "platform/Processes.h"
#include "state/OptionTable.h"
#include "tests/support/LauncherFixture.h"

#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// Those of the launcher itself, and those that this version of the engine has no switch for.
constexpr bool Settings::*withoutSwitch[] = {
    &Settings::AdvancedOptions,     &Settings::RememberLastMap,   &Settings::RememberLastSavegame,
    &Settings::ShortcutCreation,    &Settings::ShowTipsAtStartup, &Settings::WadFilesOnly,
    &Settings::DisableToolTips,     &Settings::ScriptedMapMode,   &Settings::AutoSelect,
    &Settings::SpareEffect,         &Settings::SpareSound7,       &Settings::SpareSound8,
    &Settings::AllowHiResRelocation};

// A game that can be started, of each kind that takes other switches.
Truth gameOf(GameKind kind, bool scripted)
{
    Truth truth;
    for (const GameFamilyRow& row : GameFamilies) {
        truth.facts.iwads.of(row.family) = u"/wads/"_s + QString::fromUtf16(row.iwadName);
        truth.facts.iwadsOnDisk[static_cast<size_t>(row.family)] = {.exists = true, .foundByEngine = true};
    }
    truth.facts.game = {.kind = kind,
                        .name = kind == GameKind::Doom ? u"Doom II"_s : u"Game"_s,
                        .folder = u"/VYKGames/Game/Pwads/"_s,
                        .files = {u"game.wad"_s},
                        .mainWad = u"game.wad"_s,
                        .scriptedMap = {.isScriptedMap = scripted, .isComplete = scripted}};
    truth.facts.file.maps = QStringList{u"MAP01"_s};
    truth.selection.file = u"game.wad"_s;
    truth.selection.map = u"MAP01"_s;
    return truth;
}

QList<Truth> allGames()
{
    return {gameOf(GameKind::Doom, false), gameOf(GameKind::Pwad, false), gameOf(GameKind::Pwad, true)};
}

void shuffle(Truth& truth, QRandomGenerator& dice)
{
    const auto yes = [&dice] { return dice.bounded(2) == 1; };
    truth.settings = DefaultSettings();
    for (const OptionRow& row : OptionTable())
        if (const auto* option = std::get_if<bool Settings::*>(&row.member))
            truth.settings.*(*option) = yes();
    truth.settings.Skill = dice.bounded(6);
    truth.settings.PlaylistName = u"rock"_s;
    truth.settings.SkinScaling = dice.bounded(5);
    truth.settings.CorpseSeconds = dice.bounded(3);
    truth.settings.RicochetInterval = 1 + dice.bounded(9);
    SettleModes(truth.settings);
    truth.facts.modelPacks = {.ModelPacksMissing = !truth.isScriptedMap() && dice.bounded(4) == 0,
                              .ModelPack2Installed = yes(),
                              .KelspackInstalled = yes(),
                              .CoreEffectsInstalled = yes(),
                              .zombies = yes(),
                              .extraEffects = yes(),
                              .gunSmoke = yes(),
                              .kelspackWad = true,
                              .hudWeaponsAgree = true};
    truth.facts.resources = {.patches = yes(),
                             .detailTextures = yes(),
                             .skyboxes = yes(),
                             .sounds = yes(),
                             .textures = yes() ? u"/own/Textures"_s : QString()};
    truth.facts.playlists = yes() ? QStringList{u"rock"_s, u"metal"_s} : QStringList();
    truth.facts.autoPlaylists = QStringList(4, u"metal"_s);
}

// Not with modes that exclude one another.
bool canBe(const Settings& settings)
{
    Settings settled = settings;
    SettleModes(settled);
    return SettingsLines(settled, true) == SettingsLines(settings, true);
}

QStringList linesOf(Truth truth, const Settings& settings, const QList<Truth>& games)
{
    truth.settings = settings;
    QStringList lines;
    for (const Truth& game : games) {
        truth.facts.game = game.facts.game;
        lines << PlanLaunch(truth).commandLine;
    }
    return lines;
}

} // namespace

class OptionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Toggled by a click, an option that can be used changes the line of some game; one that is greyed is on
    // none, whatever its tick.
    void anOptionIsUsedOrGreyed()
    {
        constexpr int states = 3000;
        LauncherFixture fixture;
        for (const QString& file : {u"rock.vym"_s, u"metal.vym"_s})
            fixture.installation.add(u"VYKLaunch/Music/"_s + file);
        fixture.installation.add(u"VYKLaunch/music/auto-playlist.vyk"_s, "-\r\nmetal\r\nmetal\r\n");
        Launcher& launcher = fixture.launcher;
        QRandomGenerator dice(7);
        const QList<Truth> games = allGames();
        for (int state = 0; state < states; ++state) {
            static_cast<Truth&>(launcher) = games.at(dice.bounded(static_cast<int>(games.size())));
            shuffle(launcher, dice);
            ShowWindow(launcher);
            const Truth truth = launcher;
            const QString current = PlanLaunch(launcher).commandLine;
            const QStringList before = linesOf(launcher, truth.settings, games);
            QVERIFY(!current.isEmpty());
            for (const OptionRow& row : OptionTable()) {
                const auto* check = std::get_if<CheckMirror>(&row.mirror);
                if (!check || std::ranges::find(withoutSwitch, std::get<bool Settings::*>(row.member)) !=
                                  std::end(withoutSwitch))
                    continue;
                CheckBox& box = check->of(launcher.controls);
                const QString what = u"line %1 of the settings, state %2: "_s.arg(row.line).arg(state);
                if (box.enabled) {
                    box.setTicked(!box.ticked());
                    QVERIFY2(linesOf(launcher, launcher.settings, games) != before,
                             qPrintable(what + current));
                } else {
                    bool& option = launcher.settings.*std::get<bool Settings::*>(row.member);
                    option = !option;
                    if (canBe(launcher.settings))
                        QCOMPARE(what + PlanLaunch(launcher).commandLine, what + current);
                }
                static_cast<Truth&>(launcher) = truth;
                ShowWindow(launcher);
            }
        }
    }

    // What must never stand on one line.
    void piecesThatExcludeEachOther()
    {
        const struct
        {
            QString piece;
            QStringList silences;
        } rules[] = {
            {u"-nm"_s,
             {u"-respawn"_s, u"-ReSpawn"_s, u"-noif1"_s, u"-noif2"_s, u"-ro"_s, u"-ct"_s, u"-fast"_s}},
            {u"-nosound"_s,
             {u"-data"_s, u"-3d"_s, u"-ch"_s, u"-dsst"_s, u"-nomusic"_s, u"-extmus"_s, u"-upm"_s,
              u"-FMODmidi"_s}},
            {u"-nomusic"_s, {u"-extmus"_s, u"-upm"_s, u"-FMODmidi"_s}},
            {u"-nht"_s, {u"-td"_s}},
            {u"-nc"_s,
             {u"-fp"_s, u"-ap"_s, u"-am"_s, u"-fx"_s, u"-spz"_s, u"-noamwds"_s, u"-usb"_s, u"-fsb"_s,
              u"-dsst"_s}},
            {u"-fp"_s, {u"-ap"_s, u"-noamwds"_s}},
            {u"-gnd"_s, {u"-pbm"_s}},
            {u"-usb"_s, {u"-fsb"_s}},
            {u"-txe"_s, {u"-fp"_s}},
            {u"-loadgame"_s, {u"-wp"_s}},
        };
        QRandomGenerator dice(11);
        for (int state = 0; state < 20000; ++state) {
            Truth truth = allGames().at(dice.bounded(3));
            shuffle(truth, dice);
            const QString line = PlanLaunch(truth).commandLine;
            QVERIFY2(line.endsWith(u' ') && !line.contains(u"  "_s), qPrintable(line));
            const QStringList pieces = SplitCommandLine(line);
            for (const auto& rule : rules)
                for (const QString& silenced : rule.silences)
                    QVERIFY2(!pieces.contains(rule.piece) || !pieces.contains(silenced), qPrintable(line));
            QVERIFY2(!pieces.contains(u"-spz"_s) || pieces.contains(u"-am"_s), qPrintable(line));
            for (const QString& piece : {u"-extmus"_s, u"-np"_s, u"-nht"_s, u"-nc"_s, u"-spx"_s, u"-noif1"_s})
                QVERIFY2(!truth.isScriptedMap() || !pieces.contains(piece), qPrintable(line));
            for (const QString& piece : pieces)
                QVERIFY2(!piece.startsWith(u'-') || pieces.count(piece) == 1 || piece == u"-extmus" ||
                             (piece == u"-am" && truth.isScriptedMap()),
                         qPrintable(piece + u" twice: "_s + line));
            const auto console = line.indexOf(u"-cmd "_s);
            for (const QString& command : {u"\"rend-"_s, u"\"audio-"_s})
                QVERIFY2(!line.contains(command) || (console >= 0 && console < line.indexOf(command)),
                         qPrintable(line));
        }
    }

    // Each number from each end; corpses that do not fade are not resurrected.
    void spinners()
    {
        LauncherFixture fixture;
        Controls& controls = fixture.launcher.controls;
        Settings& settings = fixture.launcher.settings;
        settings.ResurrectCorpses = true;
        const struct
        {
            Button& down;
            Button& up;
            int Settings::*value;
            int lowest;
            int highest;
        } spinners[] = {
            {controls.butleft, controls.butRight, &Settings::CorpseSeconds, 0, 9},
            {controls.butLeft2, controls.butRight2, &Settings::GrenadeTime, 0, 7},
            {controls.RicoButton[Step::Down], controls.RicoButton[Step::Up], &Settings::RicochetInterval, 1,
             9},
        };
        for (const auto& spinner : spinners)
            for (const int start : {-5, 0, 4, 100}) {
                settings.*spinner.value = start;
                for (int i = 0; i < 100; ++i)
                    spinner.up.clicked();
                QCOMPARE(settings.*spinner.value, spinner.highest);
                for (int i = 0; i < 100; ++i)
                    spinner.down.clicked();
                QCOMPARE(settings.*spinner.value, spinner.lowest);
            }
        QCOMPARE(controls.TexLabel[Texts::CorpseFade].caption, u"No corpse fade"_s);
        QCOMPARE(controls.ChkGL.caption, u"Pipebomb launcher"_s);
        QVERIFY(controls.Corpse.colour == Colour::Accent && controls.Timeout.colour == Colour::Accent);
        controls.butRight.clicked();
        const CheckBox& resurrect = controls.chkVYKOpts[VYKOpts::ResurrectCorpses];
        QVERIFY(resurrect.enabled && !resurrect.ticked());
        QCOMPARE(controls.TexLabel[Texts::CorpseFade].caption, u"Seconds before corpse fade"_s);
    }

    // Advanced options off: the games tab alone, and no zip library; the tips go as they are told to.
    void modesOfTheWindow()
    {
        LauncherFixture fixture;
        Controls& controls = fixture.launcher.controls;
        CheckBox& advanced = controls.chkMain[Main::AdvancedOptions];
        advanced.setTicked(true);
        controls.OptionUdir.click(View::ZipLibrary);
        controls.OptionTabs.click(Tab::Sound);
        QVERIFY(controls.TabFrame[Tab::Sound].visible && !controls.TabFrame[Tab::Games].visible);
        controls.chkMain[Main::EditMode].setTicked(true);
        QVERIFY(controls.AuxButton[Tool::EditLog].visible);
        advanced.setTicked(false);
        QVERIFY(controls.OptionUdir.isSelected(View::DoomGames) &&
                controls.OptionTabs.isSelected(Tab::Games));
        QVERIFY(!controls.AuxButton[Tool::EditLog].visible && controls.MainForm.compact);

        QVERIFY(!controls.PwadList.toolTip.isEmpty() && controls.Auto[Heading::Games].toolTip.isEmpty());
        controls.chkLaunchPrefs[LaunchPrefs::DisableToolTips].setTicked(true);
        for (const ListBox* list : {&controls.PwadList, &controls.MapList, &controls.SaveGameList})
            QVERIFY(list->toolTip.isEmpty());

        controls.SelButton.clicked();
        QCOMPARE(controls.FrameGlobal[Panel::Whole].caption, u"  VYK Edit  "_s);
        fixture.launcher.RunningUnderWine = true;
        fixture.launcher.settings.CommandPanelMode = 1;
        controls.SelButton.clicked();
        QCOMPARE(controls.FrameGlobal[Panel::Whole].caption, u"  Command Line  "_s);
    }
};

QTEST_GUILESS_MAIN(OptionsTest)
#include "OptionsTest.moc"
