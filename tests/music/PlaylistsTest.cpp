#include "music/Playlists.h"
#include "app/MainWindowLoad.h"
#include "launch/LaunchCommercialGame.h"
#include "launch/LaunchInstalledGame.h"
#include "music/AutoPlaylist.h"
#include "music/BuiltInPlaylists.h"
#include "music/MusicFolder.h"
#include "music/PlaylistEditor.h"
#include "platform/Paths.h"
#include "tests/support/LauncherFixture.h"

using namespace Qt::StringLiterals;

namespace {

enum { New, Open, Delete }; // butMusic

QByteArray bytesOf(const QStringList& lines)
{
    return ToAnsi(lines.join(u"\r\n"_s) + u"\r\n"_s);
}

class Fixture : public LauncherFixture
{
public:
    Controls& controls = launcher.controls;
    CheckBox& automatic = controls.chkSound[4];
    CheckBox& manual = controls.chkSound[5];

    void addPlaylist(const QString& name, const QStringList& lines = StandardLayout(MusicGame::Doom2))
    {
        installation.add(fileOf(name), bytesOf(lines));
        FillPlaylistList(launcher);
    }
    static QString fileOf(const QString& name) { return u"VYKLaunch/Music/"_s + name + u".vym"_s; }
    QByteArray saved(const QString& name) { return installation.read(fileOf(name)); }
    void select(const QString& name) { controls.SelectionList.select(controls.SelectionList.find(name)); }

    static void click(CheckBox& box)
    {
        box.setTicked(!box.ticked());
        box.chosen();
    }

    // What the launch of the Doom game with this IWAD says of music.
    QString musicOf(const QString& iwad)
    {
        const QString path = addIwad(u"Iwads/"_s + iwad);
        AddIwad(launcher.iwads, m_stored, path);
        launcher.selection.SelectedWadPath = launcher.launch.SelectedIwadPath = path;
        return musicIn(PlanCommercialGame(launcher).commandLine);
    }
    static QString musicIn(const QString& commandLine)
    {
        const qsizetype start = commandLine.indexOf(u"-extmus"_s);
        return start < 0 ? QString() : commandLine.mid(start).section(u'"', 0, 1) + u'"';
    }

private:
    QStringList m_stored;
};

} // namespace

class PlaylistsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void builtInPlaylists();
    void changedBuiltInPlaylistIsKept();
    void selectionMode();
    void automaticPlaylists();
    void launches();
    void damagedAutoPlaylists();
    void newPlaylist();
    void deletePlaylist();
    void openingOldLayouts();
    void closing();
    void editing();
    void victorMusicComesBack();
    void writeFailures();
    void hostileFiles_data();
    void hostileFiles();
};

void PlaylistsTest::builtInPlaylists()
{
    Fixture f;
    f.installation.add(u"OggVorbis/Fennic/tnt_stalks2.ogg"_s, "music");
    f.installation.add(u"VYKLaunch/Music/Fennic.vym"_s, "old");
    f.installation.addFolder(u"OggVorbis/tavro"_s);
    f.installation.add(Fixture::fileOf(u"Tavro - TNT"_s), "changed by the player");
    f.installation.add(Fixture::fileOf(u"K-Tor - Doom2"_s), "its pack is gone");
    LoadPlaylists(f.launcher);
    QCOMPARE(f.controls.SelectionList.entries(), QStringList({u"Fennic - TNT"_s, u"Tavro - Doom & Doom2"_s,
                                                              u"Tavro - Plutonia"_s, u"Tavro - TNT"_s}));
    QCOMPARE(f.saved(u"Tavro - TNT"_s), QByteArray("changed by the player"));
    QCOMPARE(f.installation.read(u"VYKLaunch/Music/Fennic.old"_s), QByteArray("old"));
    QVERIFY(f.installation.exists(u"OggVorbis/Fennic/tnt_stlks2.ogg"_s));

    const QString fennic = QString::fromLatin1(f.saved(u"Fennic - TNT"_s));
    QVERIFY(fennic.startsWith(u"\r\n # -  INTERMISSION MUSIC FOR TNT\r\n\r\n"
                              "D_DM2TTL \\OggVorbis\\Fennic\\tnt_dm2ttl.ogg\r\n"_s));
    QVERIFY(fennic.contains(u"\r\nMAP03 \\OggVorbis\\Fennic\\d_countd.ogg\r\n"_s));
    const QString tavro = QString::fromLatin1(f.saved(u"Tavro - Doom & Doom2"_s));
    QVERIFY(tavro.contains(u"\r\nE1M1 \\OggVorbis\\Tavro\\d_e1m1.ogg\r\n"_s));
    QVERIFY(
        tavro.contains(u" # -  MAP MUSIC FOR DOOM II\r\n\r\nMAP01 \\OggVorbis\\Tavro\\d_runnin.ogg\r\n"_s));

    for (const QString& name : f.controls.SelectionList.entries()) // each opens without a question
        if (name != u"Tavro - TNT"_s) {
            f.launcher.settings.PlaylistName = name;
            PlaylistEditor editor(f.launcher);
            QVERIFY(editor.open());
            QVERIFY(editor.close());
            QVERIFY(!editor.canToggle());
        }

    const QByteArray once = f.saved(u"Fennic - TNT"_s);
    LoadPlaylists(f.launcher);
    QCOMPARE(f.saved(u"Fennic - TNT"_s), once);
    MakeFennicPlaylists(f.launcher);
    QVERIFY(IsBuiltInPlaylist(u"fennic - tnt"_s));
    f.disk.removeTree(f.path(u"OggVorbis"_s));
    f.addPlaylist(u"Tavro my way"_s);
    LoadPlaylists(f.launcher);
    QCOMPARE(f.controls.SelectionList.entries(), QStringList(u"Tavro my way"_s));
}

void PlaylistsTest::changedBuiltInPlaylistIsKept()
{
    Fixture f;
    f.installation.addFolder(u"OggVorbis/K-Tor"_s);
    LoadPlaylists(f.launcher);
    const QByteArray made = f.saved(u"K-Tor - Doom2"_s);
    f.disk.removeTree(f.path(u"OggVorbis"_s));
    LoadPlaylists(f.launcher);
    QVERIFY(!f.installation.exists(u"VYKLaunch/Music/K-Tor - Doom2.old"_s));
    f.installation.add(Fixture::fileOf(u"K-Tor - Doom2"_s), made + "E1M1 CD 02\r\n");
    LoadPlaylists(f.launcher);
    QVERIFY(!f.installation.exists(Fixture::fileOf(u"K-Tor - Doom2"_s)));
    QCOMPARE(f.installation.read(u"VYKLaunch/Music/K-Tor - Doom2.old"_s), made + "E1M1 CD 02\r\n");
}

void PlaylistsTest::selectionMode()
{
    Fixture f;
    FillPlaylistList(f.launcher);
    QVERIFY(!f.automatic.enabled && !f.manual.enabled && !f.controls.butMusic[Open].enabled);
    QVERIFY(f.controls.butMusic[New].enabled);

    f.addPlaylist(u"Mine"_s);
    f.prompts.expectMessage(); // nothing is selected
    Fixture::click(f.manual);
    QVERIFY(!f.manual.ticked());
    QCOMPARE(f.prompts.titles.last(), u" No auto playlist detected "_s);
    f.select(u"Mine"_s);
    QCOMPARE(f.launcher.settings.PlaylistName, u"Mine"_s);
    Fixture::click(f.manual);
    QCOMPARE(f.manual.caption, u"Load"_s);
    QCOMPARE(f.manual.colour, Colour::Red);

    f.prompts.expectMessage(); // no game has a playlist yet
    Fixture::click(f.automatic);
    QVERIFY(!f.automatic.ticked());
    QVERIFY(f.controls.SelectionList.enabled);
    SetAutoPlaylist(f.launcher, 0);
    Fixture::click(f.automatic);
    QVERIFY(!f.manual.ticked());
    QCOMPARE(f.manual.caption, u"Manual"_s);
    QVERIFY(!f.controls.SelectionList.enabled);
    for (const Button& button : f.controls.butMusic)
        QVERIFY(!button.enabled);
    Fixture::click(f.manual);
    QVERIFY(!f.automatic.ticked() && f.controls.SelectionList.enabled && f.controls.butMusic[Delete].enabled);

    f.controls.chkSound[1].setTicked(true); // no music: neither choice gives the list back
    f.automatic.setTicked(true);
    f.automatic.setTicked(false);
    QVERIFY(!f.controls.SelectionList.enabled && !f.controls.butMusic[New].enabled);
}

void PlaylistsTest::automaticPlaylists()
{
    Fixture f;
    f.addPlaylist(u"One"_s);
    f.addPlaylist(u"Two, too"_s);
    f.select(u"One"_s);
    f.launcher.iwads.of(GameFamily::Tnt) = f.path(u"TNT.WAD"_s);
    QVERIFY(f.controls.SelectionList.taskMenu());
    QVERIFY(!f.controls.mcAutoSelect[0].enabled && !f.controls.mcAutoSelect[2].enabled);
    QVERIFY(f.controls.mcAutoSelect[3].enabled);

    for (const int game : {0, 1}) {
        f.prompts.expectMessage();
        f.controls.mcAutoSelect[game].clicked();
    }
    QCOMPARE(f.prompts.titles.last(), u" Auto playlist selection for DOOM II"_s);
    QCOMPARE(f.prompts.texts.last(), u"     One  has been added to your auto selection.         "_s);
    f.select(u"Two, too"_s);
    f.prompts.expectMessage();
    f.controls.mcAutoSelect[3].clicked();
    QCOMPARE(f.installation.read(u"VYKLaunch/Music/auto-playlist.vyk"_s),
             QByteArray("IMPORTANT: Do not manually edit or change the order of this list\r\n"
                        "One\r\nOne\r\nPlutonia - Placeholder\r\n\"Two, too\"\r\n"));

    f.automatic.setTicked(true);
    QCOMPARE(f.musicOf(u"Doom.wad"_s), u"-extmus \"One\""_s);
    QCOMPARE(f.musicOf(u"TNT.WAD"_s), u"-extmus \"Two, too\""_s);
    QCOMPARE(f.musicOf(u"Plutonia.wad"_s), QString());
    f.disk.remove(f.path(Fixture::fileOf(u"One"_s)));
    QCOMPARE(f.musicOf(u"Doom2.wad"_s), QString());

    f.files.failOn(f.path(u"VYKLaunch/Music/auto-playlist.vyk"_s), FileError::Kind::PermissionDenied);
    f.prompts.expectMessage();
    f.controls.mcAutoSelect[2].clicked();
    QCOMPARE(f.prompts.titles.last(), u" Access error"_s);
}

void PlaylistsTest::launches()
{
    Fixture f;
    f.addPlaylist(u"My Doom"_s);
    QCOMPARE(f.musicOf(u"Doom2.wad"_s), QString());
    f.select(u"My Doom"_s);
    QCOMPARE(f.musicOf(u"Doom2.wad"_s), QString());
    f.manual.setTicked(true);
    QCOMPARE(f.musicOf(u"Doom2.wad"_s), u"-extmus \"My Doom\""_s);

    f.installation.add(u"VYKGames/Game/Pwads/game.wad"_s);
    f.launcher.selection.SelectedGameFolder = f.path(u"VYKGames/Game/Pwads/"_s);
    f.launcher.selection.SelectedGameFile = f.path(u"VYKGames/Game/Pwads/game.wad"_s);
    f.launcher.selection.PwadSelected = true;
    f.controls.MapList.add(u"MAP01"_s);
    const auto installed = [&f] {
        return Fixture::musicIn(PlanInstalledGame(f.launcher, [](const QString&) { return 0; }).commandLine);
    };
    QCOMPARE(installed(), u"-extmus \"My Doom\""_s);
    SetAutoPlaylist(f.launcher, 1);
    f.automatic.setTicked(true);
    QCOMPARE(installed(), u"-extmus \"My Doom\""_s);
    f.launcher.selection.ScriptedMap = true;
    QCOMPARE(installed(), QString());
    f.launcher.selection.ScriptedMap = false;
    f.controls.chkSound[1].setTicked(true);
    QCOMPARE(installed(), QString());
    f.controls.chkSound[1].setTicked(false);
    f.disk.remove(f.path(Fixture::fileOf(u"My Doom"_s)));
    QCOMPARE(installed(), QString());
}

void PlaylistsTest::damagedAutoPlaylists()
{
    for (const QByteArray& bytes :
         {QByteArray(), QByteArray("\0\xFF\n\r", 4), QByteArray("one line"), QByteArray(1'000'000, ','),
          QByteArray("a\r\nb\r\nc\r\nd\r\ne\r\nmore\r\n")}) {
        Fixture f;
        f.addPlaylist(u"Mine"_s);
        f.installation.add(u"VYKLaunch/Music/auto-playlist.vyk"_s, bytes);
        f.automatic.setTicked(true);
        QCOMPARE(f.musicOf(u"Doom2.wad"_s), QString());
        f.select(u"Mine"_s);
        SetAutoPlaylist(f.launcher, 1);
        QCOMPARE(f.musicOf(u"Doom2.wad"_s), u"-extmus \"Mine\""_s);
    }
}

void PlaylistsTest::newPlaylist()
{
    Fixture f;
    const auto create = [&f](const std::optional<QString>& name) {
        f.prompts.expectName(name);
        f.controls.butMusic[New].clicked();
    };
    for (const QString& bad : {u" "_s, u".vym"_s})
        create(bad);
    create(std::nullopt);
    for (const QString& bad : {u"a/b"_s, u"a,b"_s, u"nul"_s, u"say \"it\""_s, u"..\\up"_s}) {
        f.prompts.expectMessage();
        create(bad);
    }
    QCOMPARE(f.window.calls.size(), 0);
    QCOMPARE(f.prompts.nameQuestions.last().name, u"MyDoomMusic"_s);

    f.window.onMusicForm = [&f](PlaylistEditor& editor) {
        QCOMPARE(editor.MusicList(), StandardLayout(MusicGame::Doom2));
        f.prompts.expectMessage(Msg::ResultNo);
        QVERIFY(editor.close());
    };
    create(u"First"_s);
    QCOMPARE(f.launcher.settings.PlaylistName, QString()); // it was not saved

    f.launcher.iwads.of(GameFamily::Doom) = f.path(u"Doom.wad"_s);
    f.window.onMusicForm = [&f](PlaylistEditor& editor) {
        QCOMPARE(editor.MusicList(), StandardLayout(MusicGame::Doom));
        editor.setTrack(11, 9);
        editor.setTrack(12, 10);
        f.prompts.expectMessage(Msg::ResultYes);
        QVERIFY(editor.close());
    };
    create(u"First.VYM"_s);
    QVERIFY(f.saved(u"First"_s).contains("\r\nE1M1 CD 09\r\nE1M2 CD 10\r\nE1M3\r\n"));
    QCOMPARE(f.controls.SelectionList.selectedText(), u"First"_s);
    QVERIFY(f.controls.butMusic[Open].enabled && f.manual.enabled);

    f.prompts.expectMessage(Msg::ResultNo); // overwrite it?
    create(u"first"_s);
    QCOMPARE(f.window.calls.size(), 2);
    QCOMPARE(f.launcher.settings.PlaylistName, u"First"_s);
}

void PlaylistsTest::deletePlaylist()
{
    Fixture f;
    f.addPlaylist(u"A"_s);
    f.addPlaylist(u"B"_s);
    f.select(u"A"_s);
    f.prompts.expectMessage(Msg::ResultNo);
    f.controls.butMusic[Delete].clicked();
    QCOMPARE(f.prompts.texts.last(), u"Are you certain you wish to delete A   "_s);
    f.files.failOn(f.path(Fixture::fileOf(u"A"_s)), FileError::Kind::PermissionDenied);
    f.prompts.expectMessage(Msg::ResultYes);
    f.prompts.expectMessage();
    f.controls.butMusic[Delete].clicked();
    QCOMPARE(f.controls.SelectionList.count(), 2);
    f.files.failOn({}, FileError::Kind::Other);
    f.prompts.expectMessage(Msg::ResultYes);
    f.controls.butMusic[Delete].clicked();
    QVERIFY(!f.installation.exists(Fixture::fileOf(u"A"_s)));
    QCOMPARE(f.launcher.settings.PlaylistName, u"B"_s);
    f.prompts.expectMessage(Msg::ResultYes);
    f.controls.butMusic[Delete].clicked();
    QVERIFY(!f.automatic.enabled && !f.manual.enabled && !f.controls.butMusic[Open].enabled);
    QCOMPARE(f.launcher.settings.PlaylistName, QString());
}

void PlaylistsTest::openingOldLayouts()
{
    Fixture f;
    QStringList missing = StandardLayout(MusicGame::Doom2);
    missing.removeAt(20);
    f.addPlaylist(u"Missing"_s, missing);
    f.addPlaylist(u"Maps"_s, StandardLayout(MusicGame::Doom).mid(11));
    f.select(u"Missing"_s);

    f.prompts.expectMessage(Msg::ResultNo);
    f.controls.butMusic[Open].clicked();
    QCOMPARE(f.prompts.titles.last(), u" Non Standard Format"_s);
    QCOMPARE(f.window.calls.size(), 0);

    f.window.onMusicForm = [&f](PlaylistEditor& editor) {
        QCOMPARE(editor.MusicList(), StandardLayout(MusicGame::Doom2));
        f.prompts.expectMessage(Msg::ResultNo);
        QVERIFY(editor.close());
        QCOMPARE(f.prompts.titles.last(), u" Save playlist to new format"_s);
    };
    f.prompts.expectMessage(Msg::ResultYes);
    f.controls.butMusic[Open].clicked();
    QCOMPARE(f.saved(u"Missing"_s), bytesOf(missing));

    f.select(u"Maps"_s);
    f.window.onMusicForm = [&f](PlaylistEditor& editor) {
        f.prompts.expectMessage(Msg::ResultYes);
        QVERIFY(editor.close());
    };
    f.controls.butMusic[Open].clicked();
    QCOMPARE(f.saved(u"Maps"_s), bytesOf(StandardLayout(MusicGame::Doom)));

    f.disk.remove(f.path(Fixture::fileOf(u"Maps"_s)));
    f.window.calls.clear();
    f.controls.butMusic[Open].clicked();
    QCOMPARE(f.window.calls.size(), 0);
}

void PlaylistsTest::closing()
{
    // The edits are not wanted, the new layout is.
    Fixture f;
    f.addPlaylist(u"Maps"_s, StandardLayout(MusicGame::Doom2).mid(11));
    f.select(u"Maps"_s);
    f.window.onMusicForm = [&f](PlaylistEditor& editor) {
        editor.setTrack(11, 3);
        f.prompts.expectMessage(Msg::ResultNo);
        f.prompts.expectMessage(Msg::ResultYes);
        QVERIFY(editor.close());
    };
    f.controls.butMusic[Open].clicked();
    QCOMPARE(f.saved(u"Maps"_s), bytesOf(StandardLayout(MusicGame::Doom2)));
}

void PlaylistsTest::editing()
{
    Fixture f;
    QStringList lines = StandardLayout(MusicGame::Doom2);
    lines[11] = u"MAP01 \\OggVorbis\\a.ogg"_s;
    lines[3] = u"D_DM2TTL CD 04"_s;
    f.addPlaylist(u"Mine"_s, lines);
    f.launcher.settings.PlaylistName = u"Mine"_s;
    f.installation.add(u"OggVorbis/own/b.OGG"_s);
    PlaylistEditor editor(f.launcher);
    QVERIFY(editor.open());

    for (const int line : {-1, 0, 1, 43}) // no entry: no dialog
        editor.AddMusic(line);
    f.prompts.expectFile({});
    editor.AddMusic(12);
    QCOMPARE(f.prompts.fileQuestions.last().folder, f.launcher.paths.MusicLaunchPath);
    f.prompts.expectFile(f.path(u"OggVorbis/own/b.wav"_s));
    f.prompts.expectMessage();
    editor.AddMusic(12);
    QCOMPARE(f.prompts.texts.last(), u" This file type is not supported.    "_s);
    QVERIFY(editor.close()); // nothing has changed

    f.prompts.expectFile(f.path(u"OggVorbis/own/b.OGG"_s));
    editor.AddMusic(12);
    QCOMPARE(editor.MusicList().at(12), u"MAP02 \"\\OggVorbis\\own\\b.OGG\""_s);
    const QString elsewhere = QDir::rootPath() + u"elsewhere/c d.mid"_s;
    editor.AddMusicFile(13, elsewhere);
    QCOMPARE(editor.MusicList().at(13), u"MAP03 \""_s + NativePath(elsewhere) + u'"');
    f.prompts.expectFile({});
    editor.AddMusic(12);
    QCOMPARE(f.prompts.fileQuestions.last().folder,
             f.launcher.paths.MusicLaunchPath); // /elsewhere is no folder
    f.prompts.expectFile(f.path(u"OggVorbis/own/b.OGG"_s));
    editor.AddMusic(14);
    f.launcher.music = {};
    LoadMusicFolder(f.launcher);
    QCOMPARE(f.launcher.music.MusicFolder, f.path(u"OggVorbis/own"_s));

    editor.removeMusic({1, 11, 12});
    QCOMPARE(editor.MusicList().mid(11, 3),
             QStringList({u"MAP01"_s, u"MAP02"_s, u"MAP03 \""_s + NativePath(elsewhere) + u'"'}));
    QCOMPARE(editor.MusicList().at(1), u" # INTERMISSION MUSIC FOR DOOM II"_s);
    editor.removeAllMusic();
    QCOMPARE(editor.MusicList(), StandardLayout(MusicGame::Doom2));

    QVERIFY(editor.canToggle() && editor.canClone());
    f.prompts.expectMessage(Msg::ResultNo);
    editor.Clone();
    QCOMPARE(editor.MusicList().size(), 43);
    f.prompts.expectMessage(Msg::ResultYes);
    editor.Clone();
    QVERIFY(!editor.canToggle() && !editor.canClone());
    QVERIFY(editor.save());
    QVERIFY(editor.close());
    QCOMPARE(f.saved(u"Mine"_s), bytesOf(StandardLayout(MusicGame::Doom2) + StandardLayout(MusicGame::Doom)));

    // The player's own text editor, then the usual one.
    f.installation.add(u"VYKLaunch/Data/editor.vyk"_s, "\"/opt/an editor\"\r\n");
    editor.openInTextEditor();
    QVERIFY(f.processes.lastCommandLine().startsWith(u"\"/opt/an editor\" \""_s));
    f.disk.remove(f.path(u"VYKLaunch/Data/editor.vyk"_s));
    editor.openInTextEditor();
    QVERIFY(f.processes.lastCommandLine().startsWith(u"notepad.exe \""_s));
    const auto startedBefore = f.processes.starts.size();
    editor.openHelp();
    editor.openReadme();
    QCOMPARE(f.processes.starts.size(), startedBefore);
}

void PlaylistsTest::victorMusicComesBack()
{
    Fixture f;
    QStringList lines = StandardLayout(MusicGame::Doom);
    lines[7] = u"D_VICTOR CD 05"_s;
    f.addPlaylist(u"Mine"_s, lines);
    f.launcher.settings.PlaylistName = u"Mine"_s;
    PlaylistEditor editor(f.launcher);
    QVERIFY(editor.open());
    editor.ToggleMap();
    QCOMPARE(editor.MusicList(), StandardLayout(MusicGame::Doom2));
    editor.ToggleMap();
    QCOMPARE(editor.MusicList(), lines);
}

void PlaylistsTest::writeFailures()
{
    Fixture f;
    f.addPlaylist(u"Mine"_s);
    f.launcher.settings.PlaylistName = u"Mine"_s;
    PlaylistEditor editor(f.launcher);
    QVERIFY(editor.open());
    editor.setTrack(11, 1);
    const QString path = f.path(Fixture::fileOf(u"Mine"_s));
    f.files.failOn(path, FileError::Kind::PermissionDenied);
    f.prompts.expectMessage(Msg::ResultYes);
    f.prompts.expectMessage();
    QVERIFY(!editor.close()); // the edits are not lost
    QCOMPARE(f.prompts.titles.last(), u" Access error"_s);
    QCOMPARE(f.prompts.texts.last(), u"Unable to make changes to playlist    \r\n"_s);
    QCOMPARE(f.saved(u"Mine"_s), bytesOf(StandardLayout(MusicGame::Doom2)));
    f.files.failOn({}, FileError::Kind::Other);
    f.disk.remove(path); // gone meanwhile: it is written anew
    QVERIFY(editor.save());
    QVERIFY(f.saved(u"Mine"_s).contains("MAP01 CD 01"));
}

void PlaylistsTest::hostileFiles_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("isWhole");
    const QByteArray standard = bytesOf(StandardLayout(MusicGame::Doom2));
    QTest::newRow("8-bit characters") << standard + "MAP01 \\\xFC\x81\x93.ogg\r\n" << true;
    QTest::newRow("with a byte order mark") << "\xEF\xBB\xBF" + standard + "MAP01 \\\xC3\xBC.ogg\r\n" << true;
    QTest::newRow("broken UTF-8") << "\xEF\xBB\xBF" + standard + "MAP01 \\\xC3.ogg\r\n" << false;
    QTest::newRow("binary") << standard + QByteArray("\0\1\2\3", 4) << false;
    QTest::newRow("a long line") << standard + "MAP01 " + QByteArray(5000, 'x') + "\r\n" << false;
    QTest::newRow("too many lines") << standard + QByteArray("MAP01 x\r\n").repeated(400) << false;
    QTest::newRow("too large") << standard + QByteArray(70'000'000, '\n') << false;
}

void PlaylistsTest::hostileFiles()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const bool, isWhole);
    Fixture f;
    f.installation.add(Fixture::fileOf(u"Odd"_s), bytes);
    f.launcher.settings.PlaylistName = u"Odd"_s;
    PlaylistEditor editor(f.launcher);
    if (!isWhole)
        f.prompts.expectMessage();
    QVERIFY(editor.open());
    QVERIFY(editor.MusicList().size() <= 301);
    if (!isWhole) {
        editor.setTrack(11, 4);
        f.prompts.expectMessage();
        QVERIFY(!editor.save());
        QVERIFY(editor.close());
        QCOMPARE(f.installation.read(Fixture::fileOf(u"Odd"_s)), bytes);
        return;
    }
    editor.setTrack(11, 4);
    QVERIFY(editor.save()); // the other lines are the same, byte for byte
    QCOMPARE(f.saved(u"Odd"_s), QByteArray(bytes).replace("MAP01\r\n", "MAP01 CD 04\r\n"));
}

QTEST_GUILESS_MAIN(PlaylistsTest)
#include "PlaylistsTest.moc"
