// A player's evenings with the launcher, from an empty installation on: with the disk, the tools and the engine
// adapter as they are, and a program in the engine's place. What lies in the installation after each evening is
// the same on every system.
#include "app/MainWindowLoad.h"
#include "app/StartUp.h"
#include "catalogue/GameLists.h"
#include "catalogue/InstallArchive.h"
#include "catalogue/RemoveGame.h"
#include "catalogue/RenameGame.h"
#include "music/PlaylistEditor.h"
#include "platform/SystemProcesses.h"
#include "tests/support/LauncherFixture.h"
#include "tests/support/ZipMaker.h"

#include <QCryptographicHash>
#include <QDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QStringList mapLumps(const QString& map)
{
    return {map, u"THINGS"_s, u"LINEDEFS"_s, u"SIDEDEFS"_s, u"VERTEXES"_s};
}

// One start of the launcher, until it is closed.
class Evening
{
public:
    explicit Evening(TemporaryInstallation& installation)
        : m_installation(installation), m_launcher(m_files, m_processes, prompts, m_window, installation.root())
    {
        m_launcher.environment = {};
        m_launcher.shortcutFolders = {installation.path(u"Desktop/Keldrax Shortcuts"_s),
                                      installation.path(u"Menu/Keldrax Shortcuts"_s)};
        const StartResult result = Main(m_launcher, {},
                                        {.claimInstance = [] { return true; },
                                         .activateRunningInstance = [] { return false; },
                                         .claimInstanceWhenFree = [] {},
                                         .componentsPresent = [] { return true; },
                                         .showTips = [] {}});
        if (result != StartResult::Running)
            qFatal("the launcher did not start");
    }
    ~Evening() { UnloadMainWindow(m_launcher); }
    Q_DISABLE_COPY_MOVE(Evening)

    Launcher& launcher() { return m_launcher; }
    Controls& controls() { return m_launcher.controls; }

    static void click(ListBox& list, const QString& entry)
    {
        if (list.find(entry) < 0)
            qFatal("not listed: %s", qPrintable(entry));
        list.click(list.find(entry));
    }

    // Plays until the adapter says that the game has ended.
    bool play()
    {
        QFile::remove(m_installation.path(u"Keldrax.out"_s));
        controls().LaunchButton.clicked();
        return QTest::qWaitFor(
            [this] {
                return m_installation.exists(u"Keldrax.out"_s) &&
                       m_installation.read(u"Keldrax.out"_s).contains("Exit status: 0");
            },
            60000);
    }

    QueuedPrompts prompts;

private:
    TemporaryInstallation& m_installation;
    DiskFileSystem m_files;
    SystemProcesses m_processes{m_files};
    FakeWindow m_window;
    Launcher m_launcher;
};

// Each file with its contents: as text where it is one, line ends marked. The installation's own path, which
// no two have in common, stands as "HERE", in one spelling.
QString contentsOf(const TemporaryInstallation& installation)
{
    QString text;
    for (const QString& file : installation.tree()) {
        if (file.startsWith(u"Bin/"_s))
            continue;
        text += u"== "_s + file + u'\n';
        const QByteArray bytes = installation.read(file);
        if (file.endsWith(u".lnk"_s) || file.endsWith(u".desktop"_s))
            continue;
        if (bytes.contains('\0')) {
            text += QString::fromLatin1(QCryptographicHash::hash(bytes, QCryptographicHash::Sha1).toHex()) + u'\n';
            continue;
        }
        QString content = FromAnsi(bytes);
        content.replace(u'\\', u'/').replace(installation.root(), u"HERE"_s, Qt::CaseInsensitive);
        text += content.replace(u"\r\n"_s, u"<\n"_s) + u"|\n"_s;
    }
    return text;
}

} // namespace

class StoryTest : public QObject
{
    Q_OBJECT

    TemporaryInstallation m_installation;

private Q_SLOTS:
    void initTestCase()
    {
        m_installation.makeComplete();
        m_installation.addBuilt(u"Bin/VYKgFiles"_s, VYKGFILES_PROGRAM);
        m_installation.addBuilt(u"Bin/Keldrax"_s, KELDRAX_PROGRAM);
        m_installation.addBuilt(u"Bin/engine"_s, RECORDER_PROGRAM);
        qputenv("KELDRAX_ENGINE", m_installation.nativePath(u"Bin/engine"_s).toUtf8());
        m_installation.add(u"Data/Doom2.wad"_s,
                           TemporaryInstallation::wad("IWAD", mapLumps(u"MAP01"_s) + mapLumps(u"MAP07"_s)));
    }
    void cleanupTestCase() { QDir::setCurrent(QDir::tempPath()); }

    void firstEvening()
    {
        const QByteArray wad = TemporaryInstallation::wad("PWAD", mapLumps(u"MAP01"_s) + mapLumps(u"MAP02"_s));
        m_installation.add(u"Downloads/Zwei Läufer.WAD"_s, wad);
        m_installation.add(u"VYKArchives/Böse Pack.zip"_s, ZipMaker()
                                                               .add("Pack.wad", wad)
                                                               .add("pack.DEH", "patch")
                                                               .add("Docs/read me.txt", "text")
                                                               .bytes());
        Evening evening(m_installation);
        evening.prompts.expectFile(m_installation.path(u"Downloads/Zwei Läufer.WAD"_s));
        evening.controls().AuxButton[0].clicked(); // install
        QCOMPARE(evening.controls().PwadList.selectedText(), u"ZWEI LÄUFER"_s);
        Evening::click(evening.controls().MapList, u"MAP02"_s);
        evening.controls().SkillsLevel[1].click(3);
        evening.controls().edCustom.text = u"rend-light 1, \"say grüß\" 2"_s;
        QVERIFY(evening.play());
        QVERIFY(m_installation.read(u"arguments.txt"_s).contains("-warp\n2\n-skill\n3\n"));

        OptionUdirClick(evening.launcher(), zipLibrary);
        evening.prompts.expectName(u"Böse & gut"_s);
        InstallArchiveAsPwad(evening.launcher());
        QCOMPARE(evening.controls().PwadList.selectedText(), u"BÖSE & GUT"_s);
        PlaylistEditor music(evening.launcher());
        music.startNew();
        music.setTrack(4, 7);
        QVERIFY(music.save());
    }

    // What was chosen and saved in the game is there the next time.
    void secondEvening()
    {
        Evening evening(m_installation);
        OptionUdirClick(evening.launcher(), installedGames);
        Evening::click(evening.controls().PwadList, u"Zwei Läufer"_s);
        QCOMPARE(evening.controls().MapList.selectedText(), u"MAP02"_s);
        const QStringList saved = evening.controls().SaveGameList.entries();
        QCOMPARE(saved.size(), 1);
        QVERIFY(saved.first().contains(u"At the red door"_s));
        Evening::click(evening.controls().SaveGameList, saved.first());
        QVERIFY(evening.play());
        QVERIFY(m_installation.read(u"arguments.txt"_s).contains("-loadgame\n0\n"));

        evening.prompts.expectShortcut(
            ShortcutChoice{.StartMenuShortcut = true, .DesktopShortcut = true, .IncludeMapInShortcut = true});
        evening.controls().AuxButton[2].clicked();
        OptionUdirClick(evening.launcher(), zipLibrary);
        Evening::click(evening.controls().PwadList, u"Böse Pack"_s);
        evening.prompts.expectName(u"Pack 2"_s);
        evening.controls().mcRenameArchive.clicked();
    }

    void files()
    {
        QFile data(QStringLiteral(TEST_DATA "/story.txt"));
        QVERIFY(data.open(QFile::ReadOnly));
        QCOMPARE(contentsOf(m_installation).split(u'\n'), QString::fromUtf8(data.readAll()).split(u'\n'));
    }

    // The game goes, with its shortcuts and records; the savegames stay with their owner.
    void removal()
    {
        const QStringList before = m_installation.tree();
        {
            Evening evening(m_installation);
            OptionUdirClick(evening.launcher(), installedGames);
            Evening::click(evening.controls().PwadList, u"Zwei Läufer"_s);
            evening.prompts.expectMessage(Msg::ResultYes);
            evening.controls().mcDeleteFolder.clicked();
        }
        QStringList gone;
        for (const QString& file : before)
            if (!m_installation.exists(file))
                gone << file;
        QCOMPARE(gone, QStringList{});
    }
};

QTEST_GUILESS_MAIN(StoryTest)
#include "StoryTest.moc"
