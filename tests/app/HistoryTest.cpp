// What is shown and what would start depends on what is true, and not on the way there: after any events the
// window is what a fresh launcher shows with the same files and the same choice.
#include "app/Connect.h"
#include "app/MainWindowLoad.h"
#include "app/SettingsFile.h"
#include "app/SettingsLoad.h"
#include "app/ShowAll.h"
#include "catalogue/GameSelection.h"
#include "platform/DiskFileSystem.h"
#include "platform/Paths.h"
#include "state/OptionTable.h"
#include "state/VisitControls.h"
#include "tests/support/FakeWindow.h"
#include "tests/support/Packs.h"
#include "tests/support/ZipMaker.h"
#include "tools/VYKgFiles/CheckWad.h"
#include "tools/VYKgFiles/SaveGameHeaders.h"

#include <QRandomGenerator>
#include <QTest>

#include <filesystem>

using namespace Qt::StringLiterals;

namespace {

// The game-file tool without a process; a game that starts is noted.
class InProcess : public Processes
{
public:
    Captured capture(const QString& commandLine, const QString&) override
    {
        const QStringList words = SplitCommandLine(commandLine);
        const std::filesystem::path path(words.at(2).toStdWString());
        return {true,
                {},
                QByteArray::fromStdString(words.at(1) == u"CHECKWAD" ? checkWad(path).text
                                                                     : saveGameHeaders(path))};
    }
    bool start(const QString&, const QString&) override { return true; }
    bool startWatched(const QString&, const QString&, const ProgramWatch&) override { return true; }
};

// A player who answers as it comes.
class AnyAnswers : public Prompts
{
public:
    explicit AnyAnswers(QRandomGenerator& dice) : m_dice(dice) {}

    int MsgboxPos(const QString&, int style, const QString&) override
    {
        return (style & Msg::YesNo) == 0 ? Msg::ResultOk : yes() ? Msg::ResultYes : Msg::ResultNo;
    }
    QString chooseFile(const FileQuestion&) override { return {}; }
    QString chooseFolder(const QString&, const QString&) override { return {}; }
    std::optional<QString> askName(const NameQuestion&) override
    {
        return yes() ? std::optional(u"Name %1"_s.arg(m_dice.bounded(3))) : std::nullopt;
    }
    QString askPassword(const QString&) override { return {}; }
    bool askModelCleanup(const CleanupQuestion&) override { return yes(); }
    bool confirmModelCleanup(const std::function<void(bool)>&) override { return yes(); }
    std::optional<ShortcutChoice> askShortcut(const ShortcutQuestion&) override { return {}; }
    std::unique_ptr<Progress> showProgress(const QString&) override
    {
        struct Silent : Progress
        {
            bool advance(qint64, qint64) override { return true; }
        };
        return std::make_unique<Silent>();
    }
    bool openWithShell(const QString&) override { return true; }

private:
    bool yes() { return m_dice.bounded(2) == 1; }

    QRandomGenerator& m_dice;
};

// All that a player could see of each control; the lists' entries as well.
QMap<QString, QString> seen(const Controls& controls)
{
    QMap<QString, QString> all;
    const auto note = [&all](const QString& name, const Control& control, const QString& value) {
        all[name] = u"%1|%2|%3|%4|%5%6 colour %7"_s
                        .arg(value, control.caption, control.text, control.toolTip,
                             control.enabled ? u""_s : u" greyed"_s, control.visible ? u""_s : u" hidden"_s)
                        .arg(static_cast<int>(control.colour));
    };
    VisitControls(controls, [&note](QStringView array, int index, const auto& control) {
        using Type = std::remove_cvref_t<decltype(control)>;
        const QString name = array.toString() + (index < 0 ? QString() : u'_' + QString::number(index));
        if constexpr (std::is_base_of_v<OptionButtons, Type>)
            for (int i = 0; i < control.count(); ++i)
                note(name + u'_' + QString::number(i), control.button(i),
                     QString::number(control.selected() == i));
        else if constexpr (std::is_same_v<Type, CheckBox>)
            note(name, control, QString::number(control.value()));
        else if constexpr (std::is_same_v<Type, ListBox>)
            note(name, control, control.entries().join(u',') + u" at "_s + control.selectedName());
        else if constexpr (std::is_same_v<Type, TextBox>)
            note(name, control, control.placeholder);
        else
            note(name, control, QString());
    });
    return all;
}

struct Event
{
    QString name;
    std::function<void(Launcher&)> perform;
};

// An installation with something of everything, and launchers in it.
class World
{
public:
    World(int packs, quint32 seed) : m_dice(seed), m_packs(packs) {}

    void build()
    {
        m_installation = std::make_unique<TemporaryInstallation>();
        m_installation->makeComplete();
        Packs::add(*m_installation, m_packs);
        const auto wad = [this](const QString& path, const QStringList& maps) {
            QStringList lumps;
            for (const QString& map : maps)
                lumps += {map, u"THINGS"_s, u"LINEDEFS"_s, u"SIDEDEFS"_s, u"VERTEXES"_s};
            m_installation->add(path, TemporaryInstallation::wad("PWAD", lumps));
        };
        wad(u"Iwads/Doom.wad"_s, {u"E1M1"_s, u"E1M2"_s});
        wad(u"Iwads/Doom2.wad"_s, {u"MAP01"_s, u"MAP02"_s});
        wad(u"VYKGames/By hand/Pwads/one.wad"_s, {u"MAP01"_s});
        wad(u"VYKGames/By hand/Pwads/two.wad"_s, {u"MAP01"_s, u"E1M1"_s, u"MAP05"_s});
        m_installation->add(u"VYKGames/By hand/Pwads/read.txt"_s);
        wad(u"VYKGames/Auto/Gwads/doom.two.wad"_s, {u"MAP03"_s});
        wad(u"VYKGames/Auto/Gwads/episode.wad"_s, {u"E2M1"_s, u"E2M3"_s});
        m_installation->add(u"VYKGames/Auto/Gwads/read.txt"_s);
        wad(u"VYKGames/Iron Tide/Pwads/irontide.wad"_s, {u"MAP01"_s});
        for (const QString& folder : {u"Md2/irontide"_s, u"Data/custom.hires/irontide"_s})
            m_installation->addFolder(folder);
        wad(u"VYKGames/Vex/Pwads/vexlev.wad"_s, {u"MAP01"_s});
        m_installation->addFolder(u"VYKGames/Empty/Pwads"_s);
        m_installation->add(
            u"VYKArchives/zipped.zip"_s,
            ZipMaker().add("z.wad", TemporaryInstallation::wad("PWAD", {u"MAP07"_s, u"THINGS"_s})).bytes());
        for (const QString& save : {u"doom2"_s, u"episode"_s, u"two"_s, u"irontide"_s})
            m_installation->add(u"UserSG/"_s + save + u"/savegame/KeldraxSav3.vyksg"_s, "Saved\0"_ba);
        m_installation->add(u"VYKLaunch/Data/checkpwad.vyk"_s, "Check7,one.wad\r\n");
        m_window = {};
        launcher = start(DefaultSettings());
    }

    // A launcher as a start loads it: from the lines of config.vyk and the disk.
    std::unique_ptr<Launcher> start(const Settings& settings)
    {
        m_installation->add(u"VYKLaunch/config.vyk"_s,
                            SettingsLines(settings, true).join(u"\r\n"_s).toLatin1());
        auto fresh = std::make_unique<ConnectedLauncher>(
            static_cast<FileSystem&>(m_disk), static_cast<Processes&>(m_processes),
            static_cast<Prompts&>(m_prompts), static_cast<MainWindowHost&>(m_window), m_installation->root());
        fresh->environment = {};
        fresh->shortcutFolders = {m_installation->path(u"Desktop"_s), m_installation->path(u"Menu"_s)};
        LoadSettings(*fresh);
        ReadFacts(*fresh);
        ShowWindow(*fresh);
        return fresh;
    }

    // What differs from a fresh start with the same choice.
    QString difference()
    {
        launcher->session.openedFolders.clear(); // two at once would open a zip in two folders
        const auto fresh = start(launcher->settings);
        fresh->selection = launcher->selection;
        ReadSelectedGame(*fresh);
        fresh->facts.titlePictures = launcher->facts.titlePictures;
        ShowWindow(*fresh);
        fresh->session.openedFolders.clear();
        const auto here = seen(launcher->controls), there = seen(fresh->controls);
        QString text;
        for (auto control = here.cbegin(); control != here.cend(); ++control)
            if (const QString other = there.value(control.key()); other != control.value())
                text += u'\n' + control.key() + u":\n  here  "_s + control.value() + u"\n  fresh "_s + other;
        return text;
    }

    // Something that can happen now: a player's click where one is possible, or a pack that comes or goes.
    Event anyEvent()
    {
        QList<Event> events = clicks();
        events << Event{u"activation"_s, ActivateMainWindow} << Event{u"resize"_s, ResizeMainWindow};
        const int pack = 1 << m_dice.bounded(6);
        events << Event{u"pack %1"_s.arg(pack), [this, pack](Launcher& here) {
                            changePack(pack);
                            here.controls.OptionTabs.click(static_cast<Tab>(m_dice.bounded(5)));
                            ActivateMainWindow(here);
                        }};
        return events.at(m_dice.bounded(static_cast<int>(events.size())));
    }

    std::unique_ptr<Launcher> launcher;

private:
    void changePack(int pack)
    {
        for (const QString& file : Packs::filesOf(pack)) {
            if (m_packs & pack)
                m_disk.remove(m_installation->path(file));
            else
                m_installation->add(file);
        }
        // A pack is there when its folder is.
        if ((m_packs & pack) && pack == Packs::Graphics)
            for (const QString& folder : {u"Data/Skyboxes"_s, u"Data/Textures"_s})
                m_disk.removeTree(m_installation->path(folder));
        m_packs ^= pack;
    }

    QList<Event> clicks()
    {
        QList<Event> events;
        VisitControls(launcher->controls, [&](QStringView array, int index, auto& control) {
            using Type = std::remove_cvref_t<decltype(control)>;
            const QString name = array.toString() + (index < 0 ? QString() : u'_' + QString::number(index));
            const auto add = [&events](const QString& what, const std::function<void()>& perform) {
                events << Event{what, [perform](Launcher&) { perform(); }};
            };
            if constexpr (std::is_base_of_v<OptionButtons, Type>) {
                for (int i = 0; i < control.count(); ++i)
                    if (control.button(i).enabled && control.button(i).visible)
                        add(name + u'.' + QString::number(i),
                            [&control, i] { control.OptionButtons::click(i); });
            } else if constexpr (std::is_same_v<Type, ListBox>) {
                if (!control.enabled || !control.visible || control.isEmpty())
                    return;
                const int entry = m_dice.bounded(control.count());
                add(name + u'.' + QString::number(entry), [&control, entry] { control.click(entry); });
                if (control.taskMenu)
                    if (const Menu* menu = control.taskMenu())
                        for (const MenuItem* item : *menu)
                            if (item->clicked && item->visible && item->enabled)
                                add(item->caption, item->clicked);
            } else if (!control.enabled || !control.visible) {
                return;
            } else if constexpr (std::is_same_v<Type, CheckBox>) {
                add(name, [&control] { control.setTicked(!control.ticked()); });
            } else if constexpr (std::is_same_v<Type, TextBox>) {
                const QString text = QString::number(m_dice.bounded(300));
                if (control.typed && name != u"Corpse"_s && name != u"Timeout"_s && name != u"Ricotext"_s)
                    add(name, [&control, text] {
                        control.text = text;
                        control.typed();
                    });
            } else if constexpr (std::is_same_v<Type, Button>) {
                if (control.clicked)
                    add(name, control.clicked);
            }
        });
        return events;
    }

    QRandomGenerator m_dice;
    int m_packs;
    std::unique_ptr<TemporaryInstallation> m_installation;
    DiskFileSystem m_disk;
    InProcess m_processes;
    AnyAnswers m_prompts{m_dice};
    FakeWindow m_window;
};

} // namespace

class HistoryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void doesNotMatter_data()
    {
        QTest::addColumn<int>("packs");
        for (const int packs : {Packs::None, Packs::CoreEffects, Packs::Models, Packs::Tovrens,
                                Packs::Kelspack, Packs::Graphics, Packs::Music, Packs::All})
            QTest::addRow("packs %d", packs) << packs;
    }

    void doesNotMatter()
    {
        QFETCH(const int, packs);
        constexpr int sequences = OnWindows ? 20 : 250; // where a file costs a hundred times as much
        constexpr int longest = 12;
        QRandomGenerator dice(static_cast<quint32>(packs) + 1);
        for (int sequence = 0; sequence < sequences; ++sequence) {
            World world(packs, dice.generate());
            world.build();
            world.launcher->controls.chkMain[Main::AdvancedOptions].setTicked(dice.bounded(4) != 0);
            QStringList history;
            for (int length = 1 + dice.bounded(longest); length > 0; --length) {
                const Event event = world.anyEvent();
                history << event.name;
                event.perform(*world.launcher);
                const QString difference = world.difference();
                QVERIFY2(difference.isEmpty(), qPrintable(history.join(u", "_s) + difference));
            }
        }
    }

    void visitingChangesNothing()
    {
        World world(Packs::All, 1);
        world.build();
        Controls& controls = world.launcher->controls;
        controls.chkMain[Main::AdvancedOptions].setTicked(true);
        for (const View home : {View::InstalledGames, View::DoomGames, View::ZipLibrary}) {
            controls.OptionUdir.click(home);
            const auto before = seen(controls);
            for (int i = 0; i < controls.OptionTabs.count(); ++i) {
                controls.OptionTabs.click(static_cast<Tab>(i));
                controls.OptionTabs.click(Tab::Games);
            }
            for (int i = 0; i < controls.OptionUdir.count(); ++i)
                controls.OptionUdir.click(static_cast<View>(i));
            controls.OptionUdir.click(home);
            QCOMPARE(seen(controls), before);
        }
    }
};

QTEST_GUILESS_MAIN(HistoryTest)
#include "HistoryTest.moc"
