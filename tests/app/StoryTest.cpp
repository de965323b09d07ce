// A player's evenings with the launcher, from an empty installation on: with the disk, the tools and the
// engine adapter as they are, and a program in the engine's place. What lies in the installation after each
// evening is the same on every system.
#include "app/MainWindowLoad.h"
#include "app/StartUp.h"
#include "music/PlaylistEditor.h"
#include "platform/SystemProcesses.h"
#include "tests/support/LauncherFixture.h"
#include "tests/support/ZipMaker.h"

#include <QCryptographicHash>
#include <QDir>
#include <QRegularExpression>
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
        : m_installation(installation), m_launcher(m_files, m_processes, prompts, window, installation.root())
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
    FakeWindow window;

private:
    TemporaryInstallation& m_installation;
    DiskFileSystem m_disk;
    FailingFileSystem m_files{m_disk}; // without a trash
    SystemProcesses m_processes{m_files};
    ConnectedLauncher m_launcher;
};

// A text without what no two systems have in common: where the installation lies, and how that is spelled.
QString anywhere(const TemporaryInstallation& installation, QString text)
{
    static const QRegularExpression path(u"HERE[^\"\r\n]*"_s);
    text.replace(installation.root(), u"HERE"_s)
        .replace(QDir::toNativeSeparators(installation.root()), u"HERE"_s);
    text.remove(u".exe"_s);
    for (auto match = path.match(text); match.hasMatch(); match = path.match(text, match.capturedEnd()))
        text.replace(match.capturedStart(), match.capturedLength(), match.captured().replace(u'\\', u'/'));
    return text;
}

// Each file with its contents: as text where it is one, line ends marked, else as a hash.
QString contentsOf(const TemporaryInstallation& installation)
{
    QString text;
    for (const QString& file : installation.tree()) {
        if (file.startsWith(u"Bin/"_s) || file.endsWith(u".desktop"_s)) // each system's own
            continue;
        text += u"== "_s + file + u'\n';
        if (file.endsWith(u".lnk"_s)) // which knows where on which disk it lies
            continue;
        const QByteArray bytes = installation.read(file);
        if (bytes.contains('\0'))
            text += QString::fromLatin1(QCryptographicHash::hash(bytes, QCryptographicHash::Sha1).toHex());
        else
            text += anywhere(installation, FromAnsi(bytes)).replace(u"\r\n"_s, u"<\n"_s) + u'|';
        text += u'\n';
    }
    return text;
}

} // namespace

class StoryTest : public QObject
{
    Q_OBJECT

    TemporaryInstallation m_installation;
    QStringList m_expected;

private Q_SLOTS:
    void initTestCase()
    {
        QFile data(QStringLiteral(TEST_DATA "/story.txt"));
        QVERIFY(data.open(QFile::ReadOnly));
        m_expected = QString::fromUtf8(data.readAll()).split(u'\n');
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
        const QByteArray wad =
            TemporaryInstallation::wad("PWAD", mapLumps(u"MAP01"_s) + mapLumps(u"MAP02"_s));
        m_installation.add(u"Downloads/Zwei Läufer.WAD"_s, wad);
        m_installation.add(u"OggVorbis/own/läuft.ogg"_s);
        m_installation.add(
            u"VYKArchives/Böse Pack.zip"_s,
            ZipMaker().add("Pack.wad", wad).add("pack.DEH", "patch").add("Docs/read me.txt", "text").bytes());
        Evening evening(m_installation);
        evening.prompts.expectFile(m_installation.path(u"Downloads/Zwei Läufer.WAD"_s));
        evening.controls().AuxButton[Tool::Install].clicked(); // install
        QCOMPARE(evening.controls().PwadList.selectedText(), u"ZWEI LÄUFER"_s);
        Evening::click(evening.controls().MapList, u"MAP02"_s);
        evening.controls().SkillsLevel[SkillList::Basic].click(3);
        evening.controls().edCustom.text = u"rend-light 1, \"say grüß\" 2"_s;
        evening.controls().edCustom.typed();
        QVERIFY(evening.play());
        QVERIFY(m_installation.read(u"arguments.txt"_s).contains("-skill\n3\n-warp\n2\n"));

        evening.controls().OptionUdir.click(View::ZipLibrary);
        evening.prompts.expectName(u"Böse & gut"_s);
        evening.controls().mcUdirUnZip.clicked();
        QCOMPARE(evening.controls().PwadList.selectedText(), u"BÖSE & GUT"_s);
        evening.prompts.expectName(u"Für abends"_s);
        evening.window.onMusicForm = [&](PlaylistEditor& music) {
            music.setTrack(4, 7);
            music.AddMusicFile(11, m_installation.path(u"OggVorbis/own/läuft.ogg"_s));
            QVERIFY(music.save());
        };
        evening.controls().butMusic[PlaylistCommand::New].clicked(); // new playlist
    }

    // What was chosen and saved in the game is there the next time.
    void secondEvening()
    {
        Evening evening(m_installation);
        evening.controls().OptionUdir.click(View::InstalledGames);
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
        evening.controls().AuxButton[Tool::Shortcut].clicked();
        evening.controls().OptionUdir.click(View::ZipLibrary);
        Evening::click(evening.controls().PwadList, u"Böse Pack"_s);
        evening.prompts.expectName(u"Pack 2"_s);
        evening.controls().mcRenameArchive.clicked();
    }

    void files() { QCOMPARE(contentsOf(m_installation).split(u'\n'), m_expected); }

    // With the game go its shortcuts and records; the savegames stay.
    void removal()
    {
        const QStringList before = m_installation.tree();
        {
            Evening evening(m_installation);
            evening.controls().OptionUdir.click(View::InstalledGames);
            Evening::click(evening.controls().PwadList, u"Zwei Läufer"_s);
            evening.prompts.expectMessage(Msg::ResultYes);
            evening.controls().mcDeleteFolder.clicked();
        }
        QStringList gone;
        for (const QString& file : before)
            if (!m_installation.exists(file) && !file.endsWith(u".desktop"_s))
                gone << file;
        QCOMPARE(gone, (QStringList{u"Desktop/Keldrax Shortcuts/Zwei läufer.lnk"_s,
                                    u"Menu/Keldrax Shortcuts/Zwei läufer.lnk"_s,
                                    u"VYKGames/Zwei Läufer/Pwads/Zwei Läufer.WAD"_s,
                                    u"VYKLaunch/GameInfo/Pwads/zwei läufer.vykm"_s}));
    }
};

QTEST_GUILESS_MAIN(StoryTest)
#include "StoryTest.moc"
