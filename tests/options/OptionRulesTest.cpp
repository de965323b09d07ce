// Each rule of the options: what one event changes in the whole window, and in which order the steps go.
#include "launch/CommandPreview.h"
#include "options/DisplayResolution.h"
#include "options/EffectModes.h"
#include "options/GraphicsOptions.h"
#include "options/ModelPacks.h"
#include "options/PresenceChecks.h"
#include "options/SoundOptions.h"
#include "options/SpriteOptions.h"
#include "options/TexturePath.h"
#include "platform/Paths.h"
#include "tests/support/CommercialGame.h"
#include "tests/support/OptionLauncher.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

using Event = std::function<void(Launcher&)>;

template <size_t count>
Event toggle(std::array<CheckBox, count> Controls::*boxes, size_t index)
{
    return [boxes, index](Launcher& launcher) {
        CheckBox& box = (launcher.controls.*boxes)[index];
        box.setTicked(!box.ticked());
    };
}
Event chkMain(size_t index)
{
    return toggle(&Controls::chkMain, index);
}
Event modelOption(size_t index)
{
    return toggle(&Controls::ChkModelOpts, index);
}
Event replacement(size_t index)
{
    return toggle(&Controls::chkAltModels, index);
}
Event sound(size_t index)
{
    return toggle(&Controls::chkSound, index);
}
Event graphics(size_t index)
{
    return toggle(&Controls::chkGraphics, index);
}
Event toggle(CheckBox Controls::*box)
{
    return
        [box](Launcher& launcher) { (launcher.controls.*box).setTicked(!(launcher.controls.*box).ticked()); };
}
Event press(Button Controls::*button)
{
    return [button](Launcher& launcher) { (launcher.controls.*button).clicked(); };
}
Event tab(int index)
{
    return [index](Launcher& launcher) { launcher.controls.OptionTabs.click(index); };
}
Event scripted(bool on)
{
    return [on](Launcher& launcher) {
        launcher.selection.ScriptedMap = on;
        on ? KillSpriteOptions(launcher) : RestoreSpriteOptions(launcher);
        GreyHiresFrame(launcher);
    };
}
Event corpseSeconds(const QString& seconds)
{
    return [seconds](Launcher& launcher) { launcher.controls.Corpse.text = seconds; };
}

// The changes of an event: "+name" enabled, "-name" greyed, "name=1" ticked, "name shown", ...
QString changes(Launcher& launcher, const Event& event)
{
    const ControlStates before(launcher.controls);
    event(launcher);
    QStringList changed;
    for (const QString& difference : before.differences(ControlStates(launcher.controls))) {
        const QString name = difference.section(u':', 0, 0);
        const QString from = difference.section(u": "_s, 1).section(u" -> "_s, 0, 0);
        const QString to = difference.section(u" -> "_s, 1);
        const auto word = [](const QString& state, const QString& w) {
            return state.section(u" '"_s, 0, 0).contains(w);
        };
        QString what = word(from, u"greyed"_s) == word(to, u"greyed"_s) ? QString()
                       : word(to, u"greyed"_s)                          ? u"-"_s
                                                                        : u"+"_s;
        what += name;
        if (from.section(u' ', 0, 0) != to.section(u' ', 0, 0))
            what += u'=' + to.section(u' ', 0, 0);
        if (word(from, u"hidden"_s) != word(to, u"hidden"_s))
            what += word(to, u"hidden"_s) ? u"(hidden)"_s : u"(shown)"_s;
        if (word(from, u"accent"_s) != word(to, u"accent"_s))
            what += word(to, u"accent"_s) ? u"(red)"_s : u"(black)"_s;
        if (from.section(u'\'', 1, 1) != to.section(u'\'', 1, 1))
            what += u'"' + to.section(u'\'', 1, 1) + u'"';
        if (from.section(u'\'', 3, 3) != to.section(u'\'', 3, 3))
            what += u'[' + to.section(u'\'', 3, 3) + u']';
        changed << what;
    }
    return changed.join(u' ');
}

struct Row
{
    const char* name;
    int packs;
    QList<Event> before;
    Event event;
    QString changed;
};

Settings advanced()
{
    Settings settings = DefaultSettings();
    settings.AdvancedOptions = true;
    return settings;
}

void verify(const QList<Row>& rows)
{
    for (const Row& row : rows) {
        OptionLauncher options(row.packs);
        const auto launcher = options.load(advanced());
        for (const Event& event : row.before)
            event(*launcher);
        const QString changed = changes(*launcher, row.event);
        QVERIFY2(changed == row.changed,
                 qPrintable(QString::fromLatin1(row.name) + u'\n' + changed + u'\n' + row.changed));
    }
}

} // namespace

class OptionRulesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void modes()
    {
        const int core = Packs::CoreEffects, models = core + Packs::Models, all = Packs::All;
        const Event basic = chkMain(0), fx = modelOption(2), coreEffects = modelOption(3);
        verify({
            {"Basic Doom without models", Packs::None, {}, basic, u"chkMain_0=1"_s},
            {"Basic Doom with all packs",
             all,
             {},
             basic,
             u"-GraphicFrames_1 -GraphicFrames_4 -FrameModel_1 chkMain_0=1 -chkMain_1 -chkSound_2 +chkGraphics_2 -chkGraphics_3 -chkGraphics_4 -chkEffects_0 -chkEffects_3 -ChkModelOpts_1 -ChkModelOpts_3 -chkAltModels_1 -chkAltModels_2 -chkAltModels_3 -GunSmoke -SkyOpt_0 -SkyOpt_1 -Smoke_0 -Smoke_1 -Ricotext -RicoButton_0 -RicoButton_1 -cbScaler -TexLabel_0"_s},
            {"Basic Doom ends",
             all,
             {basic},
             basic,
             u"+GraphicFrames_1 +GraphicFrames_4 +FrameModel_1 chkMain_0=0 +chkMain_1 +chkSound_2 -chkGraphics_2 +chkGraphics_3 +chkGraphics_4 +chkEffects_0 +chkEffects_3 +ChkModelOpts_1 +ChkModelOpts_3 +chkAltModels_1 +chkAltModels_2 +chkAltModels_3 +GunSmoke +SkyOpt_0 +SkyOpt_1 +Smoke_0 +Smoke_1 +Ricotext +RicoButton_0 +RicoButton_1 +cbScaler +TexLabel_0"_s},
            {"Basic Doom without the base pack",
             core,
             {},
             basic,
             u"-GraphicFrames_4 chkMain_0=1 -chkSound_2 -chkEffects_0 -ChkModelOpts_1 -ChkModelOpts_3 -Ricotext -RicoButton_0 -RicoButton_1"_s},
            {"Basic Doom ends without the base pack",
             core,
             {basic},
             basic,
             u"+GraphicFrames_4 chkMain_0=0 +chkSound_2 +chkEffects_0 +ChkModelOpts_1 +ChkModelOpts_3 +Ricotext +RicoButton_0 +RicoButton_1"_s},
            {"FX",
             all,
             {},
             fx,
             u"-GraphicFrames_1 -FrameModel_1 chkMain_0=1 -chkSound_2 -chkEffects_3 -ChkModelOpts_1 ChkModelOpts_2=1 -ChkModelOpts_3 -chkAltModels_1 -chkAltModels_2 -chkAltModels_3 -GunSmoke -Smoke_0 -Smoke_1 -Ricotext -RicoButton_0 -RicoButton_1 -cbScaler -TexLabel_0"_s},
            {"FX ends",
             all,
             {fx},
             fx,
             u"-GraphicFrames_4 -chkMain_1 +chkGraphics_2 -chkGraphics_3 -chkGraphics_4 -chkEffects_0 ChkModelOpts_2=0 -SkyOpt_0 -SkyOpt_1"_s},
            {"FX and Basic Doom end",
             all,
             {fx},
             basic,
             u"+FrameModel_1 chkMain_0=0 +chkSound_2 +chkEffects_3 +ChkModelOpts_1 ChkModelOpts_2=0 +ChkModelOpts_3 +chkAltModels_1 +chkAltModels_2 +chkAltModels_3 +GunSmoke +Smoke_0 +Smoke_1 +Ricotext +RicoButton_0 +RicoButton_1"_s},
            {"FX after Basic Doom",
             all,
             {basic},
             fx,
             u"+GraphicFrames_4 +chkMain_1 -chkGraphics_2 +chkGraphics_3 +chkGraphics_4 +chkEffects_0 ChkModelOpts_2=1 +SkyOpt_0 +SkyOpt_1"_s},
            {"Core Effects",
             all,
             {},
             coreEffects,
             u"-GraphicFrames_1 -FrameModel_1 -chkMain_0 -chkEffects_3 -ChkModelOpts_1 ChkModelOpts_3=1 -chkAltModels_1 -chkAltModels_2 -chkAltModels_3 -GunSmoke -Smoke_0 -Smoke_1 -cbScaler -TexLabel_0"_s},
            {"Core Effects end",
             all,
             {coreEffects},
             coreEffects,
             u"+GraphicFrames_1 +FrameModel_1 +chkMain_0 +chkEffects_3 +ChkModelOpts_1 ChkModelOpts_3=0 +chkAltModels_1 +chkAltModels_2 +chkAltModels_3 +GunSmoke +Smoke_0 +Smoke_1 +cbScaler +TexLabel_0"_s},
            {"Core Effects after FX",
             all,
             {fx},
             coreEffects,
             u"-chkMain_0=0 +chkSound_2 ChkModelOpts_2=0 +ChkModelOpts_3=1 +Ricotext +RicoButton_0 +RicoButton_1"_s},
            {"FX after Core Effects",
             all,
             {coreEffects},
             fx,
             u"+GraphicFrames_1 +FrameModel_1 +chkMain_0=1 +chkEffects_3 +ChkModelOpts_1 ChkModelOpts_2=1 ChkModelOpts_3=0 +chkAltModels_1 +chkAltModels_2 +chkAltModels_3 +GunSmoke +Smoke_0 +Smoke_1 +cbScaler +TexLabel_0"_s},
            {"Core Effects without the base pack",
             core,
             {},
             coreEffects,
             u"-chkMain_0 -ChkModelOpts_1 ChkModelOpts_3=1"_s},
            {"Core Effects end without the base "
             "pack",
             core,
             {coreEffects},
             coreEffects,
             u"+chkMain_0 +ChkModelOpts_1 ChkModelOpts_3=0"_s},
            {"Basic Doom ends without core "
             "effects: FX is in force",
             all - core,
             {basic},
             basic,
             u"+FrameModel_1 chkMain_0=0 +chkSound_2 +chkEffects_3 +ChkModelOpts_1 +ChkModelOpts_3 +GunSmoke +Smoke_0 +Smoke_1 +Ricotext +RicoButton_0 +RicoButton_1"_s},
            {"Basic Doom ends in silence", all, {sound(0), basic}, basic, u"+GraphicFrames_1 +GraphicFrames_4 +FrameModel_1 chkMain_0=0 +chkMain_1 -chkGraphics_2 +chkGraphics_3 +chkGraphics_4 +chkEffects_0 +chkEffects_3 +ChkModelOpts_1 +ChkModelOpts_3 +chkAltModels_1 +chkAltModels_2 +chkAltModels_3 +GunSmoke +SkyOpt_0 +SkyOpt_1 +Smoke_0 +Smoke_1 +cbScaler +TexLabel_0"_s},
            {"Basic Doom ends without ricochets",
             all,
             {sound(2), basic},
             basic,
             u"+GraphicFrames_1 +GraphicFrames_4 +FrameModel_1 chkMain_0=0 +chkMain_1 +chkSound_2 -chkGraphics_2 +chkGraphics_3 +chkGraphics_4 +chkEffects_0 +chkEffects_3 +ChkModelOpts_1 +ChkModelOpts_3 +chkAltModels_1 +chkAltModels_2 +chkAltModels_3 +GunSmoke +SkyOpt_0 +SkyOpt_1 +Smoke_0 +Smoke_1 +cbScaler +TexLabel_0"_s},
            {"Basic Doom ends without monsters",
             models,
             {chkMain(6), basic},
             basic,
             u"+GraphicFrames_1 +GraphicFrames_4 +FrameModel_1 chkMain_0=0 +chkSound_2 +chkEffects_0 +chkEffects_3 +ChkModelOpts_1 +ChkModelOpts_3 +GunSmoke +Smoke_0 +Smoke_1 +Ricotext +RicoButton_0 +RicoButton_1 +cbScaler +TexLabel_0"_s},
        });
    }

    void modelsPage()
    {
        const int all = Packs::All;
        const auto scale = [](int level) {
            return Event([level](Launcher& launcher) { launcher.controls.cbScaler.click(level); });
        };
        verify({
            {"the second "
             "weapons end the "
             "first",
             all,
             {replacement(1)},
             replacement(2),
             u"chkAltModels_1=0 chkAltModels_2=1"_s},
            {"the first "
             "weapons end "
             "the second",
             all,
             {replacement(2)},
             replacement(1),
             u"chkAltModels_1=1 chkAltModels_2=0"_s},
            {"weapons "
             "force "
             "models",
             all,
             {modelOption(1)},
             replacement(1),
             u"ChkModelOpts_1=0 chkAltModels_1=1"_s},
            {"othe"
             "r "
             "weap"
             "ons "
             "forc"
             "e "
             "mode"
             "ls",
             all,
             {modelOption(1)},
             replacement(2),
             u"ChkModelOpts_1=0 chkAltModels_2=1"_s},
            {"no forced models, no weapons",
             all,
             {replacement(2)},
             modelOption(1),
             u"ChkModelOpts_1=1 chkAltModels_2=0"_s},
            {"no replacements, no zombies", all, {}, replacement(3), u"-chkAltModels_0 chkAltModels_3=0"_s},
            {"replacements, zombies",
             all,
             {replacement(3)},
             replacement(3),
             u"+chkAltModels_0 chkAltModels_3=1"_s},
            {"no zombies in FX",
             all,
             {modelOption(2), replacement(3)},
             replacement(3),
             u"chkAltModels_3=1"_s},
            {"no zombies without their folder",
             all - Packs::Models,
             {replacement(3)},
             replacement(3),
             u"chkAltModels_3=1"_s},
            {"no smoke", all, {}, toggle(&Controls::GunSmoke), u"GunSmoke=0 -Smoke_0 -Smoke_1"_s},
            {"smoke",
             all,
             {toggle(&Controls::GunSmoke)},
             toggle(&Controls::GunSmoke),
             u"GunSmoke=1 +Smoke_0 +Smoke_1"_s},
            {"no smoke in Basic Doom", all, {chkMain(0)}, toggle(&Controls::GunSmoke), u"GunSmoke=0"_s},
            {"maximum scaling", all, {}, scale(4), u"cbScaler=4 TexLabel_0\"Maximum scaling\""_s},
            {"scaling without a name", all, {}, scale(2), u"cbScaler=2 TexLabel_0\"\""_s},
            {"no scaling",
             all,
             {scale(4)},
             scale(0),
             u"cbScaler=0 TexLabel_0\"No scaling - best quality\""_s},
        });
    }

    void graphicsPage()
    {
        const int all = Packs::All;
        const Event seconds = press(&Controls::butleft), more = press(&Controls::butRight);
        verify({
            {"details without textures", all, {}, chkMain(1), u"chkMain_1=0 +chkGraphics_2"_s},
            {"textures without details", all, {chkMain(1)}, chkMain(1), u"chkMain_1=1 -chkGraphics_2"_s},
            {"no textures, but no details either", Packs::None, {}, chkMain(1), u"chkMain_1=0"_s},
            {"no skies", all, {}, graphics(3), u"chkGraphics_3=0 -SkyOpt_0 -SkyOpt_1"_s},
            {"skies", all, {graphics(3)}, graphics(3), u"chkGraphics_3=1 +SkyOpt_0 +SkyOpt_1"_s},
            {"skies without their pack", Packs::None, {graphics(3)}, graphics(3), u"chkGraphics_3=1"_s},
            {"relocation",
             all,
             {},
             toggle(&Controls::chkVYKOpts, 2),
             u"AuxButton_9(shown) chkVYKOpts_2=1 TexPathLabel(shown)"_s},
            {"relocation ends",
             all,
             {toggle(&Controls::chkVYKOpts, 2)},
             toggle(&Controls::chkVYKOpts, 2),
             u"AuxButton_9(hidden) chkVYKOpts_2=0 TexPathLabel(hidden)"_s},
            {"a second less", all, {}, seconds, u"Corpse[8]"_s},
            {"no second",
             all,
             {corpseSeconds(u"1"_s)},
             seconds,
             u"-chkVYKOpts_3=0 Corpse(red)[0] TexLabel_1\"No corpse fade\""_s},
            {"less than none", all, {corpseSeconds(u"1"_s), seconds}, seconds, {}},
            {"a second again",
             all,
             {corpseSeconds(u"1"_s), seconds},
             more,
             u"+chkVYKOpts_3 Corpse(black)[1] TexLabel_1\"Seconds before corpses fade\""_s},
            {"more than nine", all, {}, more, {}},
            {"from far above", all, {corpseSeconds(u"300"_s)}, seconds, u"Corpse[9]"_s},
            {"from far below",
             all,
             {corpseSeconds(u"-300"_s)},
             more,
             u"-chkVYKOpts_3=0 Corpse(red)[0] TexLabel_1\"No corpse fade\""_s},
        });
    }

    void optionsPage()
    {
        const int all = Packs::All;
        const auto grenade = [](const QString& delay) {
            return Event([delay](Launcher& launcher) { launcher.controls.Timeout.text = delay; });
        };
        const Event less = press(&Controls::butLeft2), more = press(&Controls::butRight2);
        const Event hotSpot = press(&Controls::DevMode);
        verify({
            {"no monsters",
             all,
             {},
             chkMain(6),
             u"-GraphicFrames_3 chkMain_6=1 -chkVYKOpts_3 -chkVYKOpts_5 -chkVYKOpts_6 -chkVYKOpts_7 -chkVYKOpts_8 -chkAltModels_0 -Corpse -butleft -butRight -TexLabel_1"_s},
            {"monsters",
             all,
             {chkMain(6)},
             chkMain(6),
             u"+GraphicFrames_3 chkMain_6=0 +chkVYKOpts_3 +chkVYKOpts_5 +chkVYKOpts_6 +chkVYKOpts_7 +chkVYKOpts_8 +chkAltModels_0 +Corpse +butleft +butRight +TexLabel_1"_s},
            {"monsters without corpse fade",
             all,
             {corpseSeconds(u"0"_s), chkMain(6)},
             chkMain(6),
             u"+GraphicFrames_3 chkMain_6=0 +chkVYKOpts_5 +chkVYKOpts_6 +chkVYKOpts_7 +chkVYKOpts_8 +chkAltModels_0 +Corpse +butleft +butRight +TexLabel_1"_s},
            {"monsters in Core Effects",
             all,
             {modelOption(3), chkMain(6)},
             chkMain(6),
             u"+GraphicFrames_3 chkMain_6=0 +chkVYKOpts_3 +chkVYKOpts_5 +chkVYKOpts_6 +chkVYKOpts_7 +chkVYKOpts_8 +Corpse +butleft +butRight +TexLabel_1"_s},
            {"monsters without the base pack",
             all - Packs::Models,
             {chkMain(6)},
             chkMain(6),
             u"+GraphicFrames_3 chkMain_6=0 +chkVYKOpts_3 +chkVYKOpts_5 +chkVYKOpts_6 +chkVYKOpts_7 +chkVYKOpts_8 +Corpse +butleft +butRight +TexLabel_1"_s},
            {"grenades", all, {}, toggle(&Controls::ChkGL), u"ChkGL=1 +Timeout +butLeft2 +butRight2"_s},
            {"no grenades",
             all,
             {toggle(&Controls::ChkGL)},
             toggle(&Controls::ChkGL),
             u"ChkGL=0 -Timeout -butLeft2 -butRight2"_s},
            {"pipebombs", all, {grenade(u"1"_s)}, less, u"ChkGL\"Pipebomb launcher\" Timeout(red)[0]"_s},
            {"grenades again",
             all,
             {grenade(u"1"_s), less},
             more,
             u"ChkGL\"Grenade launcher\" Timeout(black)[1]"_s},
            {"the longest delay", all, {grenade(u"7"_s)}, more, {}},
            {"for developers", all, {}, hotSpot, u"chkTesting(shown) ExitOption_0(shown)"_s},
            {"for developers no more",
             all,
             {hotSpot, toggle(&Controls::chkTesting)},
             hotSpot,
             u"chkTesting=0(hidden) ExitOption_0(hidden)"_s},
            {"no shortcuts",
             all,
             {},
             toggle(&Controls::chkLaunchPrefs, 2),
             u"AuxButton_2(shown) chkLaunchPrefs_2=1"_s},
        });
    }

    void soundPage()
    {
        const int all = Packs::All;
        const auto playlist = [](Launcher& launcher) { launcher.controls.SelectionList.add(u"Rock"_s); };
        const auto interval = [](Launcher& launcher) { launcher.controls.Ricotext.text = u"0"_s; };
        const auto less = [](Launcher& launcher) { launcher.controls.RicoButton[0].clicked(); };
        const auto more = [](Launcher& launcher) { launcher.controls.RicoButton[1].clicked(); };
        verify({
            {"no sound",
             all,
             {},
             sound(0),
             u"-SoundFrame_1 chkSound_0=1 -chkSound_1 -chkSound_2 -chkSound_3 -chkSound_4 -chkSound_5 -chkSound_9 -chkSound_10 -Ricotext -RicoButton_0 -RicoButton_1 -cbChannels -SelectionList -butMusic_0 -butMusic_1 -butMusic_2 -TexLabel_2"_s},
            {"sound",
             all,
             {sound(0)},
             sound(0),
             u"+SoundFrame_1 chkSound_0=0 +chkSound_1 +chkSound_2 +chkSound_3 +chkSound_4 +chkSound_6 +chkSound_9 +Ricotext +RicoButton_0 +RicoButton_1 +cbChannels +SelectionList +butMusic_0 +TexLabel_2"_s},
            {"sound with playlists",
             all,
             {playlist, sound(0)},
             sound(0),
             u"+SoundFrame_1 chkSound_0=0 +chkSound_1 +chkSound_2 +chkSound_3 +chkSound_4 +chkSound_5 +chkSound_6 +chkSound_9 +chkSound_10 +Ricotext +RicoButton_0 +RicoButton_1 +cbChannels +SelectionList +butMusic_0 +butMusic_1 +butMusic_2 +TexLabel_2"_s},
            {"sound in Basic Doom",
             all,
             {chkMain(0), sound(0)},
             sound(0),
             u"+SoundFrame_1 chkSound_0=0 +chkSound_1 +chkSound_3 +chkSound_4 +chkSound_6 +chkSound_9 +cbChannels +SelectionList +butMusic_0 +TexLabel_2"_s},
            {"sound without ricochets",
             all,
             {sound(2), sound(0)},
             sound(0),
             u"+SoundFrame_1 chkSound_0=0 +chkSound_1 +chkSound_2 +chkSound_3 +chkSound_4 +chkSound_6 +chkSound_9 +cbChannels +SelectionList +butMusic_0 +TexLabel_2"_s},
            {"sound without its pack",
             Packs::CoreEffects,
             {sound(0)},
             sound(0),
             u"+SoundFrame_1 chkSound_0=0 +chkSound_1 +chkSound_2 +chkSound_3 +chkSound_4 +chkSound_9 +Ricotext +RicoButton_0 +RicoButton_1 +cbChannels +SelectionList +butMusic_0 +TexLabel_2"_s},
            {"sound without music",
             all,
             {sound(1), sound(0)},
             sound(0),
             u"chkSound_0=0 +chkSound_1 +chkSound_2 +chkSound_3 +chkSound_6 +Ricotext +RicoButton_0 +RicoButton_1 +cbChannels +TexLabel_2"_s},
            {"no music",
             all,
             {playlist},
             sound(1),
             u"-SoundFrame_1 chkSound_1=1 -chkSound_4 -chkSound_5 -chkSound_9 -chkSound_10 -SelectionList -butMusic_0 -butMusic_1 -butMusic_2"_s},
            {"music",
             all,
             {playlist, sound(1)},
             sound(1),
             u"+SoundFrame_1 chkSound_1=0 +chkSound_4 +chkSound_5 +chkSound_9 +chkSound_10 +SelectionList +butMusic_0 +butMusic_1 +butMusic_2"_s},
            {"music by itself",
             all,
             {playlist, sound(1), sound(4)},
             sound(1),
             u"+SoundFrame_1 chkSound_1=0 +chkSound_4 +chkSound_5 +chkSound_9 +chkSound_10"_s},
            {"no ricochets", all, {}, sound(2), u"chkSound_2=0 -Ricotext -RicoButton_0 -RicoButton_1"_s},
            {"ricochets", all, {sound(2)}, sound(2), u"chkSound_2=1 +Ricotext +RicoButton_0 +RicoButton_1"_s},
            {"no 3D sound", all, {}, sound(3), u"chkSound_3=0"_s},
            {"3D sound", all, {sound(3)}, sound(3), u"chkSound_3=1"_s},
            {"fewer", all, {}, more, u"Ricotext[5]"_s},
            {"never none", all, {interval}, less, u"Ricotext[1]"_s},
            {"from none", all, {interval}, more, u"Ricotext[1]"_s},
        });
    }

    void strip()
    {
        const Event edit = chkMain(5), light = chkMain(3);
        const auto wine = [](Launcher& launcher) {
            launcher.startUp.RunningUnderWine = launcher.controls.WineImage.visible = true;
        };
        verify({
            {"edit mode", Packs::None, {}, edit, u"AuxButton_3(shown) +chkMain_3 +chkMain_4 chkMain_5=1"_s},
            {"edit mode ends",
             Packs::None,
             {edit},
             edit,
             u"AuxButton_3(hidden) -chkMain_3 -chkMain_4 chkMain_5=0"_s},
            {"edit mode under Wine",
             Packs::None,
             {wine},
             edit,
             u"WineImage(hidden) AuxButton_3(shown) +chkMain_3 +chkMain_4 chkMain_5=1"_s},
            {"edit mode ends under Wine",
             Packs::None,
             {wine, edit},
             edit,
             u"WineImage(shown) AuxButton_3(hidden) -chkMain_3 -chkMain_4 chkMain_5=0"_s},
            {"light without edit mode", Packs::None, {}, light, u"chkMain_3=1 LightText(shown)"_s},
            {"light in edit mode", Packs::None, {edit}, light, u"chkMain_3=1 LightText(shown)"_s},
            {"edit mode ends with light",
             Packs::None,
             {edit, light},
             edit,
             u"AuxButton_3(hidden) -chkMain_3 -chkMain_4 chkMain_5=0 -LightText"_s},
            {"no light", Packs::None, {edit, light}, light, u"chkMain_3=0 LightText(hidden)"_s},
            {"default mode",
             Packs::None,
             {},
             chkMain(2),
             u"AuxButton_4(hidden) AuxButton_5(hidden) AuxButton_6(hidden) OptionUdir_2(hidden) Auto_0 -OptionTabs_0 OptionTabs_1(hidden) OptionTabs_2(hidden) OptionTabs_3(hidden) OptionTabs_4(hidden) chkMain_2=0 chkMain_6(hidden) ChkModelOpts_2(hidden) ChkModelOpts_3(hidden) SkillsLevel_0(hidden) SkillFrame(shown) StartFrame(shown) FrameGlobal_0(hidden)"_s},
            {"advanced mode",
             Packs::None,
             {chkMain(2)},
             chkMain(2),
             u"AuxButton_4(shown) AuxButton_5(shown) AuxButton_6(shown) OptionUdir_2(shown) Auto_0 +OptionTabs_0 OptionTabs_1(shown) OptionTabs_2(shown) OptionTabs_3(shown) OptionTabs_4(shown) chkMain_2=1 chkMain_6(shown) ChkModelOpts_2(shown) ChkModelOpts_3(shown) SkillsLevel_0(shown) SkillFrame(hidden) StartFrame(hidden) FrameGlobal_0(shown)"_s},
            {"the other panel",
             Packs::None,
             {},
             press(&Controls::SelButton),
             u"FrameGlobal_0\"  VYK Edit  \" FrameGlobal_1(hidden) FrameGlobal_2(shown)"_s},
            {"and back",
             Packs::None,
             {press(&Controls::SelButton)},
             press(&Controls::SelButton),
             u"FrameGlobal_0\"  Command Line  \" FrameGlobal_1(shown) FrameGlobal_2(hidden)"_s},
            {"no other panel under Wine", Packs::None, {wine}, press(&Controls::SelButton), {}},
        });
    }

    void scriptedMaps()
    {
        const int all = Packs::All, noDefinitions = all - Packs::Models;
        verify({
            {"a scripted map",
             all,
             {},
             scripted(true),
             u"-GraphicFrames_4 -GraphicFrames_5 -chkMain_0 -chkMain_1 -chkGraphics_3 -chkGraphics_4 -chkEffects_0 -ChkModelOpts_0 -ChkModelOpts_1 -ChkModelOpts_2 -ChkModelOpts_3 -SkyOpt_0 -SkyOpt_1"_s},
            {"another map again",
             all,
             {scripted(true)},
             scripted(false),
             u"+GraphicFrames_4 +GraphicFrames_5 +chkMain_0 +chkMain_1 +chkGraphics_3 +chkGraphics_4 +chkEffects_0 +ChkModelOpts_1 +ChkModelOpts_2 +ChkModelOpts_3 +SkyOpt_0 +SkyOpt_1"_s},
            {"a scripted map in Basic Doom",
             all,
             {chkMain(0)},
             scripted(true),
             u"+GraphicFrames_1 -FrameModel_0 +FrameModel_1 -chkMain_0 +chkMain_1 +chkSound_2 -chkGraphics_2 +chkGraphics_3 +chkGraphics_4 +chkEffects_3 -ChkModelOpts_0 -ChkModelOpts_2 +chkAltModels_1 +GunSmoke +SkyOpt_0 +SkyOpt_1 +Smoke_0 +Smoke_1 +Ricotext +RicoButton_0 +RicoButton_1 +cbScaler +TexLabel_0"_s},
            {"another map in Basic Doom",
             all,
             {chkMain(0), scripted(true)},
             scripted(false),
             u"-GraphicFrames_1 -FrameModel_1 +chkMain_0 -chkMain_1 -chkSound_2 +chkGraphics_2 -chkGraphics_3 -chkGraphics_4 -chkEffects_3 -chkAltModels_0 -chkAltModels_1 -GunSmoke -SkyOpt_0 -SkyOpt_1 -Smoke_0 -Smoke_1 -Ricotext -RicoButton_0 -RicoButton_1 -cbScaler -TexLabel_0"_s},
            {"a scripted map in FX",
             all,
             {modelOption(2)},
             scripted(true),
             u"-FrameModel_0 +FrameModel_1 -chkMain_0 +chkSound_2 +chkEffects_3 -ChkModelOpts_0 -ChkModelOpts_2 +chkAltModels_1 +GunSmoke +Smoke_0 +Smoke_1 +Ricotext +RicoButton_0 +RicoButton_1"_s},
            {"another map in FX",
             all,
             {modelOption(2), scripted(true)},
             scripted(false),
             u"+ChkModelOpts_3"_s},
            {"a scripted map in Core Effects",
             all,
             {modelOption(3)},
             scripted(true),
             u"-GraphicFrames_4 -GraphicFrames_5 -chkMain_1 -chkGraphics_3 -chkGraphics_4 -chkEffects_0 -ChkModelOpts_0 -ChkModelOpts_2 -ChkModelOpts_3 -SkyOpt_0 -SkyOpt_1"_s},
            {"another map in Core Effects",
             all,
             {modelOption(3), scripted(true)},
             scripted(false),
             u"+GraphicFrames_4 +GraphicFrames_5 +chkMain_1 +chkGraphics_3 +chkGraphics_4 +chkEffects_0 +ChkModelOpts_3 +SkyOpt_0 +SkyOpt_1"_s},
            {"without flames",
             noDefinitions,
             {scripted(true)},
             scripted(false),
             u"+GraphicFrames_5 +chkMain_0 +chkMain_1 +chkGraphics_3 +chkGraphics_4 +SkyOpt_0 +SkyOpt_1"_s},
        });
    }

    void tabs()
    {
        verify({
            {"options",
             Packs::All,
             {},
             tab(1),
             u"OptionTabs_0=0(black) OptionTabs_1=1(red) TabFrame_0(hidden) TabFrame_1(shown) -LaunchButton"_s},
            {"graphics",
             Packs::All,
             {tab(1)},
             tab(2),
             u"OptionTabs_1=0(black) OptionTabs_2=1(red) TabFrame_1(hidden) TabFrame_2(shown)"_s},
            {"sound",
             Packs::All,
             {tab(2)},
             tab(3),
             u"OptionTabs_2=0(black) OptionTabs_3=1(red) TabFrame_2(hidden) TabFrame_3(shown) +chkSound_6"_s},
            {"models",
             Packs::All,
             {tab(3)},
             tab(4),
             u"AuxButton_8(shown) OptionTabs_3=0(black) OptionTabs_4=1(red) TabFrame_3(hidden) TabFrame_4(shown)"_s},
            {"models without packs",
             Packs::None,
             {tab(3)},
             tab(4),
             u"AuxButton_8(shown) OptionTabs_3=0(black) OptionTabs_4=1(red) TabFrame_3(hidden) TabFrame_4(shown) ModFrame(shown)"_s},
            {"games",
             Packs::All,
             {tab(4)},
             tab(0),
             u"AuxButton_8(hidden) OptionTabs_0=1(red) OptionTabs_4=0(black) TabFrame_0(shown) TabFrame_4(hidden)"_s},
        });
    }

    // The resolution that the engine wrote down; what is no such line shows the default.
    void resolution()
    {
        const QString none = u"Default Resolution||"_s;
        const struct
        {
            QByteArray file;
            QString shown;
        } rows[] = {
            {"F 1024 x 768 x 32*0 Hz\r\n", u"1024 x 768 x 32|--- Fullscreen Mode ---|"_s},
            {"w 640 x 480 x 16* 100 Hz \nmore", u"640 x 480 x 16|--- Windowed Mode ---|100 Hz"_s},
            {"W   800 * 600*60 Hz", u"800 * 600|--- Windowed Mode ---|60 Hz"_s},
            {"X 800 x 600", u"800 x 600||"_s},
            {"F 0 x 0 x 0*75 Hz", none},
            {"", none},
            {"F", none},
            {"*", none},
            {"F*9 Hz", none},
            {QByteArray("F \0\x01\x02 800*9", 11), none},
            {QByteArray(100000, '*'), none},
        };
        OptionLauncher options(Packs::None);
        const auto launcher = options.load(advanced());
        const auto& labels = launcher->controls.ResLabel;
        for (const auto& row : rows) {
            options.installation.add(u"Bin/VYKres.out"_s, row.file);
            GetCurrentRes(*launcher);
            QCOMPARE(labels[1].caption + u'|' + labels[2].caption + u'|' + labels[3].caption, row.shown);
        }
    }

    void resolutionAfterAGame()
    {
        LauncherFixture f;
        Controls& controls = f.launcher.controls;
        GetCurrentRes(f.launcher);
        QCOMPARE(controls.ResLabel[1].caption, u"Default Resolution"_s);
        const auto engineWrites = [&f](const QByteArray& line, const QDateTime& when) {
            f.installation.add(u"Bin/VYKres.out"_s, line);
            QFile file(f.path(u"Bin/VYKres.out"_s));
            QVERIFY(file.open(QIODevice::ReadWrite) &&
                    file.setFileTime(when, QFileDevice::FileModificationTime));
        };
        const QDateTime start(QDate(2026, 5, 1), QTime(12, 0));
        engineWrites("W 640 x 480*60 Hz", start);
        Reset(f.launcher);
        QCOMPARE(controls.ResLabel[1].caption, u"640 x 480"_s);
        engineWrites("W 800 x 600*60 Hz", start);
        Reset(f.launcher); // no newer than what is shown
        QCOMPARE(controls.ResLabel[1].caption, u"640 x 480"_s);
        engineWrites("W 800 x 600*60 Hz", start.addSecs(1));
        Reset(f.launcher);
        QCOMPARE(controls.ResLabel[1].caption, u"800 x 600"_s);
    }

    void largeFonts()
    {
        for (const int dpi : {96, 119, 120, 144}) {
            LauncherFixture f;
            f.window.dpi = dpi;
            CheckDPISettings(f.launcher);
            QCOMPARE(f.launcher.controls.MainForm.topOfVYKFrame, dpi == 120 ? 3575 : 0);
            QCOMPARE(f.launcher.controls.MainForm.leftOfImageCM, dpi == 120 ? 60 : 0);
        }
    }

    void detectedPacks()
    {
        const int base = Packs::CoreEffects + Packs::Models;
        const struct
        {
            int packs;
            QString caption;
            bool zombies, first, second, replacements, frame;
        } rows[] = {
            {Packs::CoreEffects, u" Model packs "_s, false, false, false, false, false},
            {Packs::CoreEffects + Packs::Tovrens, u" Model packs "_s, false, false, false, false, true},
            {base, u" Model pack 1 installed "_s, false, false, false, false, true},
            {base + Packs::Tovrens, u" Model packs 1 and 2 installed "_s, true, false, false, true, true},
            {base + Packs::Kelspack, u" Model pack 1 and Kelspack installed "_s, false, true, true, false,
             true},
            {Packs::All, u" All model packs installed "_s, true, true, true, true, true},
        };
        for (const auto& row : rows) {
            OptionLauncher options(row.packs);
            const auto launcher = options.load(advanced());
            const Controls& controls = launcher->controls;
            QCOMPARE(controls.FrameModel[0].caption, row.caption);
            QCOMPARE(controls.chkAltModels[0].enabled, row.zombies);
            QCOMPARE(controls.chkAltModels[1].enabled, row.first);
            QCOMPARE(controls.chkAltModels[2].enabled, row.second);
            QCOMPARE(controls.chkAltModels[3].enabled, row.replacements);
            QCOMPARE(controls.FrameModel[0].enabled, row.frame);
            QCOMPARE(controls.chkAltModels[3].value(), 1); // the tick stays, pack or not
        }

        // The engine's own add-on is like a scripted map.
        OptionLauncher options(Packs::All);
        const auto launcher = options.load(advanced());
        launcher->selection.SelectedGameFile = u"/x/VEXLEV.wad"_s;
        QCOMPARE(changes(*launcher, DetectModelPacks), u"-FrameModel_0 -chkAltModels_2 -chkAltModels_3"_s);
        QVERIFY(launcher->selection.ScriptedMap);
    }

    // What is in a pack's folder has no say in other options.
    void garbageInPacks()
    {
        OptionLauncher clean(Packs::All), options(Packs::All);
        const QString before = OptionLauncher::doomLine(*clean.load(advanced()));
        options.installation.add(u"Defs/Model/hudweapons.ded"_s, QByteArray(3000, '\xff'));
        options.installation.add(u"Defs/Model/Tovrens/hudweapons.ded"_s, QByteArray("\0,\r\n\0", 5));
        QCOMPARE(OptionLauncher::doomLine(*options.load(advanced())), before);
        options.installation.add(u"Defs/Model/Tovrens/hudweapons.ded"_s,
                                 "# hweapons version 10 - Do not edit this line,x");
        QString withoutReplacements = before;
        QCOMPARE(OptionLauncher::doomLine(*options.load(advanced())), withoutReplacements.remove(u"-am "_s));
    }

    void toolTips()
    {
        OptionLauncher options(Packs::None);
        const auto launcher = options.load(advanced());
        Controls& controls = launcher->controls;
        QCOMPARE(controls.ExitOption[2].toolTip, u"Exit out of launcher after having launched a game."_s);
        QCOMPARE(controls.SkillsLevel[1].toolTip, u"Skill level - sets the degree of difficulty.\r\n"
                                                  "Note: The 'Start game from new' option\r\n"
                                                  "takes you to the default Doom startup."_s);
        QCOMPARE(controls.Auto[0].toolTip, u" Toggle Keldrax scripted maps if installed. "_s);
        controls.chkMain[2].setTicked(false); // no switch in default mode
        QVERIFY(controls.Auto[0].toolTip.isEmpty());
        controls.chkLaunchPrefs[3].setTicked(true);
        QVERIFY(controls.ExitOption[2].toolTip.isEmpty() && controls.PwadList.toolTip.isEmpty());
        controls.chkMain[2].setTicked(true);
        QVERIFY(controls.Auto[0].toolTip.isEmpty());
        controls.chkLaunchPrefs[3].setTicked(false);
        QVERIFY(!controls.ExitOption[2].toolTip.isEmpty() && !controls.Auto[0].toolTip.isEmpty());
    }

    // The line under the command line is the one that starts, and looking at it changes nothing.
    void preview()
    {
        CommercialGame game;
        Launcher& launcher = game.launcher;
        Controls& controls = launcher.controls;
        controls.chkMain[2].setTicked(true);
        controls.edCustom.text = u"-own \"a b\""_s;
        game.pickSkill(3);
        const ControlStates before(controls);
        UpdateCommandPreview(launcher);
        const QString line = controls.CommandPreview.text;
        QCOMPARE(before.differences(ControlStates(controls)).size(), 1); // the line itself
        QVERIFY(!launcher.launch.RicochetOn && !launcher.launch.AfterLaunch);
        controls.CopyPreview.clicked();
        QCOMPARE(game.window.copied, line);
        controls.LaunchButton.clicked();
        QCOMPARE(game.processes.lastCommandLine(), line);

        controls.chkMain[7].setTicked(true);
        UpdateCommandPreview(launcher);
        QVERIFY(controls.CommandPreview.text.contains(u" -v "_s));
        QVERIFY(QFile::remove(game.path(u"Iwads/Doom2.wad"_s)));
        UpdateCommandPreview(launcher); // asks nothing
        QVERIFY(controls.CommandPreview.text.isEmpty() && !controls.CopyPreview.enabled);
        QVERIFY(controls.CommandPreview.toolTip.startsWith(u"There appears to be a problem"_s));
    }

    // A game that needs Basic Doom gets it for one launch; whatever it changed on the way is back.
    void basicDoomForOneLaunch()
    {
        OptionLauncher options(Packs::All);
        Settings settings = advanced();
        settings.CoreEffects = true;
        settings.ResurrectCorpses = false;
        const auto launcher = options.load(settings);
        options.installation.add(u"VYKLaunch/Data/checkpwad.vyk"_s, "Check7,game.wad,");
        OptionLauncher::installedLine(*launcher); // what every launch looks for
        const ControlStates before(launcher->controls);
        QVERIFY(OptionLauncher::installedLine(*launcher).contains(u" -nc "_s));
        QCOMPARE(before.differences(ControlStates(launcher->controls)), QStringList());
        QVERIFY(launcher->settings.CoreEffects && !launcher->settings.BasicDoom);
    }

    // The dialog of the textures' location: what it shows, asks and stores.
    void texturePath()
    {
        LauncherFixture f;
        Launcher& launcher = f.launcher;
        const QString file = u"VYKLaunch/Data/texpath.vyk"_s;
        f.installation.add(file, "/gone");
        ShowTexturePath(launcher);
        QCOMPARE(launcher.controls.HiResText.text, NoTextures);
        QVERIFY(!f.installation.exists(file));

        f.installation.addFolder(u"mine/Textures"_s);
        f.installation.addFolder(u"mine/Patches"_s);
        launcher.controls.chkMain[1].enabled = launcher.controls.chkGraphics[4].enabled = false;
        f.prompts.expectFile(f.path(u"mine"_s));
        SetTexPath(launcher);
        QCOMPARE(launcher.settings.TexturePath, f.path(u"mine"_s));
        QCOMPARE(f.installation.read(file), ToAnsi(NativePath(f.path(u"mine"_s)) + u"\r\n"_s));
        QVERIFY(launcher.controls.chkMain[1].enabled && launcher.controls.chkGraphics[4].enabled);

        f.prompts.expectFile({}); // cancelled
        SetTexPath(launcher);
        QCOMPARE(launcher.settings.TexturePath, f.path(u"mine"_s));
        f.installation.addFolder(u"Data/Textures"_s);
        f.prompts.expectFile(f.path(u"Data/Textures"_s)); // the usual one is not stored
        SetTexPath(launcher);
        QVERIFY(!f.installation.exists(file));
        f.prompts.expectFile(f.path(u"VYKLaunch"_s)); // no textures there: the usual one
        SetTexPath(launcher);
        QCOMPARE(launcher.controls.HiResText.text, NativePath(f.path(u"Data/Textures"_s)));

        const auto asked = [&](int length) {
            launcher.settings.TexturePath = u'/' + QString(length - 1, u'x');
            f.prompts.expectFile({});
            SetTexPath(launcher);
            return WithSlashes(f.prompts.folderTexts.last());
        };
        const QString question = u"Select the new location of your high resolution textures ..."_s;
        QVERIFY(asked(30).startsWith(u"Current Location: /xx"_s) && asked(30).endsWith(u"\r\n"_s + question));
        QVERIFY(asked(31).startsWith(u"Location: /xx"_s) && asked(40).startsWith(u"Location: /xx"_s));
        QVERIFY(asked(41).startsWith(u"/xx"_s) && asked(49).startsWith(u"/xx"_s));
        QCOMPARE(asked(50), question);

        f.files.failOn(u"texpath"_s, FileError::Kind::PermissionDenied);
        f.prompts.expectMessage();
        f.prompts.expectFile(f.path(u"mine"_s));
        SetTexPath(launcher);
        QCOMPARE(launcher.settings.TexturePath, f.path(u"mine"_s));
        launcher.controls.AuxButton[9].clicked();
        QCOMPARE(f.window.calls.last(), u"showTexForm"_s);
    }
};

QTEST_GUILESS_MAIN(OptionRulesTest)
#include "OptionRulesTest.moc"
