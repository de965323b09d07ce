// The skills, the display mode, the tabs, and the packs that enable options.
#include "options/DisplayMode.h"
#include "options/LoadOptions.h"
#include "options/ModelPacks.h"
#include "options/PresenceChecks.h"
#include "platform/Paths.h"
#include "tests/support/CommercialGame.h"

#include <QTest>

using namespace Qt::StringLiterals;

class OptionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // What the skill, a map and a savegame make of each other.
    void startChoices()
    {
        CommercialGame game;
        game.installation.add(u"UserSG/doom2/savegame/KeldraxSav5.vyksg"_s, "Five\0"_ba);
        game.selectGame(u"Doom II"_s);
        Launcher& launcher = game.launcher;
        Controls& controls = launcher.controls;
        const auto state = [&] {
            return u"%1 map %2 save %3 skill %4%5 last %6"_s
                .arg(static_cast<int>(launcher.launch.StartChoice))
                .arg(controls.MapList.selectedText(), controls.SaveGameList.selectedText().left(1))
                .arg(controls.SkillsLevel[0].selected())
                .arg(launcher.settings.Skill)
                .arg(launcher.settings.LastSkill);
        };
        QCOMPARE(state(), u"3 map  save  skill 00 last 2"_s);
        game.pickMap(u"MAP07"_s); // brings the remembered skill back
        QCOMPARE(state(), u"1 map MAP07 save  skill 22 last 2"_s);
        game.pickSkill(5);
        QCOMPARE(state(), u"1 map MAP07 save  skill 55 last 5"_s);
        game.pickSkill(0);
        QCOMPARE(state(), u"3 map  save  skill 00 last 5"_s);
        game.pickSavegame(u"5 - Five"_s);
        QCOMPARE(state(), u"2 map  save 5 skill 55 last 5"_s);
        controls.SkillsLevel[0].click(1); // either list; a chosen savegame stays
        QCOMPARE(state(), u"2 map  save 5 skill 11 last 1"_s);
        QCOMPARE(controls.SkillsLevel[1].selected(), 1);
        game.pickSkill(0);
        game.pickSkill(4); // nothing is chosen: the remembered map
        QCOMPARE(state(), u"1 map MAP07 save  skill 44 last 4"_s);
        game.pickSkill(0);
        controls.chkLaunchPrefs[0].setTicked(false);
        launcher.settings.RememberLastMap = false;
        game.pickSkill(3);
        QCOMPARE(state(), u"1 map MAP01 save  skill 33 last 3"_s);
        game.pickSkill(0);
        game.selectGame(u"Doom/Ultimate Doom"_s); // a new game keeps the lists unchosen
        QCOMPARE(state(), u"3 map  save  skill 00 last 3"_s);
        game.pickMap(u"E3M2"_s);
        game.pickMap(u"E3M2"_s);
        QCOMPARE(state(), u"1 map E3M2 save  skill 33 last 3"_s);
    }

    void displayMode()
    {
        CommercialGame game;
        Launcher& launcher = game.launcher;
        Controls& controls = launcher.controls;
        const auto verifyMode = [&](bool advanced) {
            QCOMPARE(launcher.settings.AdvancedOptions, advanced);
            QCOMPARE(controls.MainForm.compact, !advanced);
            for (int tab = 1; tab < 5; ++tab)
                QCOMPARE(controls.OptionTabs[tab].visible, advanced);
            QCOMPARE(controls.OptionTabs[0].enabled, advanced);
            QCOMPARE(controls.FrameGlobal[0].visible, advanced);
            QCOMPARE(controls.OptionUdir[2].visible, advanced);
            QCOMPARE(controls.chkMain[6].visible, advanced);
            QCOMPARE(controls.SkillsLevel[0].visible, advanced);
            QCOMPARE(controls.SkillFrame.visible, !advanced);
        };
        controls.chkMain[2].setTicked(true);
        verifyMode(true);
        OptionUdirClick(launcher, 2);
        controls.OptionTabs.click(3);
        controls.chkMain[2].setTicked(false);
        verifyMode(false);
        QCOMPARE(controls.OptionTabs.selected(), 0); // back to what the short window shows
        QCOMPARE(launcher.settings.ListMode, 1);
        QVERIFY(controls.LaunchButton.enabled);

        SelectStartupOptions(launcher);
        for (const bool editing : {false, true, false}) {
            QCOMPARE(controls.FrameGlobal[0].caption, editing ? u"  VYK Edit  "_s : u"  Command Line  "_s);
            QCOMPARE(controls.FrameGlobal[1].visible, !editing);
            QCOMPARE(controls.FrameGlobal[2].visible, editing);
            controls.SelButton.clicked();
        }
        launcher.startUp.RunningUnderWine = true;
        SelectStartupOptions(launcher);
        QVERIFY(!controls.FrameGlobal[2].visible);
    }

    void tabs()
    {
        CommercialGame game;
        Controls& controls = game.launcher.controls;
        game.installation.add(u"Data/hv_doom_sfx.wad"_s);
        game.installation.add(u"Data/patches/stbar.png"_s);
        for (const int tab : {1, 2, 3, 4, 0}) {
            controls.OptionTabs.click(tab);
            for (int i = 0; i < 5; ++i) {
                QCOMPARE(controls.TabFrame[static_cast<size_t>(i)].visible, i == tab);
                QCOMPARE(controls.OptionTabs[i].colour, i == tab ? Colour::Accent : Colour::Normal);
            }
            QCOMPARE(controls.LaunchButton.enabled, tab == 0);
            QCOMPARE(controls.AuxButton[8].visible, tab == 4);
            QCOMPARE(controls.chkGraphics[4].enabled, tab != 1); // looked for on the graphics tab
            QCOMPARE(controls.chkSound[6].enabled, tab != 1 && tab != 2);
        }
    }

    void packs()
    {
        CommercialGame game;
        Launcher& launcher = game.launcher;
        Controls& controls = launcher.controls;
        const auto enabled = [&] {
            CheckGraphicsPacks(launcher);
            CheckSoundPack(launcher);
            QString boxes;
            for (const CheckBox* box : {&controls.chkGraphics[2], &controls.chkGraphics[3],
                                        &controls.chkGraphics[4], &controls.chkSound[6]})
                boxes += box->enabled ? u'1' : u'0';
            return boxes;
        };
        launcher.settings.HighResTextures = false;
        QCOMPARE(enabled(), u"0000"_s);
        QCOMPARE(controls.HiResText.text, u"Not installed or the specified path is invalid"_s);
        for (const QString& file :
             {u"Data/dtex/detail.wad"_s, u"Data/Skyboxes/x"_s, u"Data/hv_doom_sfx.wad"_s})
            game.installation.add(file);
        game.installation.addFolder(u"mine/Textures"_s);
        game.installation.addFolder(u"mine/patches"_s);
        controls.chkMain[0].startAs(1); // Basic Doom needs none
        QCOMPARE(enabled(), u"0000"_s);
        controls.chkMain[0].startAs(0);
        controls.chkSound[0].startAs(1);
        QCOMPARE(enabled(), u"1100"_s);
        controls.chkSound[0].startAs(0);
        launcher.settings.TexturePath = game.path(u"mine/Textures"_s);
        QCOMPARE(enabled(), u"0111"_s); // patches beside the textures, which go before details

        // A texture folder that went away gives way to the installation's own.
        controls.HiResText.text = u"/gone"_s;
        launcher.settings.TexturePath = u"/gone/Textures"_s;
        QVERIFY(!TexturePathValid(launcher));
        game.installation.addFolder(u"Data/textures"_s);
        QVERIFY(TexturePathValid(launcher));
        QVERIFY(SameName(launcher.settings.TexturePath, game.path(u"Data/Textures"_s)));
        CheckOptions(launcher);
        QVERIFY(controls.chkMain[1].enabled);
        controls.chkGraphics[2].enabled = false;
        controls.chkMain[1].startAs(1);
        QCOMPARE(enabled(), u"0101"_s); // the other folder's patches are out of use; details stay off
    }

    void modelPacks()
    {
        LauncherFixture f;
        const InstallationPaths& paths = f.launcher.paths;
        QVERIFY(FindModelPacks(f.files, paths).ModelPacksMissing);
        f.installation.add(u"md2/hudweapons/supershotgun/DB-shells.md2"_s);
        f.installation.add(u"md2/Kelspack/AK47/AK47.md2"_s);
        QVERIFY(!FindModelPacks(f.files, paths).ModelPacksMissing);
        QVERIFY(!FindModelPacks(f.files, paths).KelspackInstalled);
        f.installation.add(u"md2/Kelspack/kelspack.wad"_s);
        QVERIFY(FindModelPacks(f.files, paths).KelspackInstalled);

        const QByteArray current = "# hweapons version 10 - Do not edit this line\r\n";
        const auto agrees = [&](const QByteArray& standard, const QByteArray& enhanced, bool coreEffects) {
            f.installation.add(u"Defs/Model/hudweapons.ded"_s, standard);
            f.installation.add(u"Defs/Model/Tovrens/hudweapons.ded"_s, enhanced);
            f.launcher.settings.TovrensReplacements = true;
            f.launcher.settings.CoreEffects = coreEffects;
            const bool result = CheckHudWeaponsDefs(f.launcher.settings, f.files, paths);
            return result == f.launcher.settings.TovrensReplacements && result;
        };
        QVERIFY(agrees(current, current, false));
        QVERIFY(agrees("old", {}, false));
        QVERIFY(!agrees(current, "old", false));
        QVERIFY(!agrees("\r\n" + current, current, false));
        QVERIFY(agrees(current, "old", true)); // not used
    }
};

QTEST_GUILESS_MAIN(OptionsTest)
#include "OptionsTest.moc"
