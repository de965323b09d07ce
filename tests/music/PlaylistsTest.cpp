#include "music/Playlists.h"
#include "launch/LaunchPlan.h"
#include "music/AutoPlaylist.h"
#include "music/BuiltInPlaylists.h"
#include "music/MusicFolder.h"
#include "music/PlaylistEditor.h"
#include "platform/Paths.h"
#include "tests/support/CommercialGame.h"

using namespace Qt::StringLiterals;

namespace {

QByteArray bytesOf(const QStringList& lines)
{
    return ToAnsi(lines.join(u"\r\n"_s) + u"\r\n"_s);
}

QString fileOf(const QString& name)
{
    return u"VYKLaunch/Music/"_s + name + u".vym"_s;
}

// Over any of the launchers for tests.
template <class Base>
class MusicLauncher : public Base
{
public:
    using Base::files, Base::installation, Base::launcher, Base::prompts;
    Controls& controls = launcher.controls;
    CheckBox& automatic = controls.chkSound[Sound::AutoPlaylist];
    CheckBox& manual = controls.chkSound[Sound::ManualPlaylist];

    void addPlaylist(const QString& name, const QStringList& lines = StandardLayout(MusicGame::Doom2))
    {
        installation.add(fileOf(name), bytesOf(lines));
        read();
    }
    void read()
    {
        ReadPlaylists(launcher);
        ShowWindow(launcher);
    }
    QByteArray saved(const QString& name) { return installation.read(fileOf(name)); }
    void select(const QString& name) { controls.SelectionList.click(controls.SelectionList.find(name)); }
    void press(PlaylistCommand command) { controls.butMusic[command].clicked(); }
    void assign(AutoGame game)
    {
        prompts.expectMessage();
        controls.mcAutoSelect[game].clicked();
    }

    // What the command line says of music.
    QString music() const
    {
        const QString line = PlanLaunch(launcher).commandLine;
        const qsizetype start = line.indexOf(u"-extmus"_s);
        return start < 0 ? QString() : line.mid(start).section(u'"', 0, 1) + u'"';
    }
};

using Fixture = MusicLauncher<LauncherFixture>;
using PlayingFixture = MusicLauncher<CommercialGame>;

} // namespace

class PlaylistsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void builtInPlaylists()
    {
        Fixture f;
        f.installation.add(u"OggVorbis/Fennic/tnt_stalks2.ogg"_s, "music");
        f.installation.add(u"VYKLaunch/Music/Fennic.vym"_s, "old");
        f.installation.addFolder(u"OggVorbis/tavro"_s);
        f.installation.add(fileOf(u"Tavro - TNT"_s), "changed by the player");
        f.installation.add(fileOf(u"K-Tor - Doom2"_s), "its pack is gone");
        LoadPlaylists(f.launcher);
        QCOMPARE(f.launcher.facts.playlists, QStringList({u"Fennic - TNT"_s, u"Tavro - Doom & Doom2"_s,
                                                          u"Tavro - Plutonia"_s, u"Tavro - TNT"_s}));
        QCOMPARE(f.saved(u"Tavro - TNT"_s), QByteArray("changed by the player"));
        QCOMPARE(f.installation.read(u"VYKLaunch/Music/Fennic.old"_s), QByteArray("old"));
        QVERIFY(f.installation.exists(u"OggVorbis/Fennic/tnt_stlks2.ogg"_s));
        QVERIFY(f.saved(u"Fennic - TNT"_s).contains("\\OggVorbis\\Fennic\\tnt_stlks2.ogg\r\n"));

        QVERIFY(f.saved(u"Fennic - TNT"_s)
                    .startsWith("\r\n # -  INTERMISSION MUSIC FOR TNT\r\n\r\n"
                                "D_DM2TTL \\OggVorbis\\Fennic\\tnt_dm2ttl.ogg\r\n"));
        QVERIFY(f.saved(u"Tavro - Doom & Doom2"_s).contains("\r\nE1M1 \\OggVorbis\\Tavro\\d_e1m1.ogg\r\n"));

        for (const QString& name : f.launcher.facts.playlists) // each opens without a question
            if (name != u"Tavro - TNT"_s) {
                f.launcher.settings.PlaylistName = name;
                PlaylistEditor editor(f.launcher, f.launcher.settings.PlaylistName);
                QVERIFY(editor.open());
                QVERIFY(editor.close());
                QVERIFY(!editor.canToggle());
            }

        f.disk.removeTree(f.path(u"OggVorbis"_s));
        LoadPlaylists(f.launcher);
        QCOMPARE(f.launcher.facts.playlists, QStringList());
    }

    void changedBuiltInPlaylistIsKept()
    {
        Fixture f;
        f.installation.addFolder(u"OggVorbis/K-Tor"_s);
        LoadPlaylists(f.launcher);
        const QByteArray made = f.saved(u"K-Tor - Doom2"_s);
        f.disk.removeTree(f.path(u"OggVorbis"_s));
        LoadPlaylists(f.launcher);
        QVERIFY(!f.installation.exists(u"VYKLaunch/Music/K-Tor - Doom2.old"_s));
        f.installation.add(fileOf(u"K-Tor - Doom2"_s), made + "E1M1 CD 02\r\n");
        LoadPlaylists(f.launcher);
        QVERIFY(!f.installation.exists(fileOf(u"K-Tor - Doom2"_s)));
        QCOMPARE(f.installation.read(u"VYKLaunch/Music/K-Tor - Doom2.old"_s), made + "E1M1 CD 02\r\n");

        // The second one takes the place of no first, and one made with its pack's files is as made.
        f.installation.add(fileOf(u"K-Tor - Doom2"_s), "second");
        f.installation.add(u"OggVorbis/Fennic/d_stalks.ogg"_s);
        LoadPlaylists(f.launcher);
        QCOMPARE(f.installation.read(u"VYKLaunch/Music/K-Tor - Doom2.old"_s), made + "E1M1 CD 02\r\n");
        QCOMPARE(f.installation.read(u"VYKLaunch/Music/K-Tor - Doom2.old2"_s), "second");
        f.disk.removeTree(f.path(u"OggVorbis"_s));
        LoadPlaylists(f.launcher);
        QVERIFY(!f.installation.exists(u"VYKLaunch/Music/Fennic - TNT.old"_s));
    }

    void selectionMode()
    {
        Fixture f;
        f.read();
        QVERIFY(!f.automatic.enabled && !f.manual.enabled);
        QVERIFY(!f.controls.butMusic[PlaylistCommand::Open].enabled);
        f.launcher.settings.AutoPlaylistsOn =
            true; // of playlists that have gone: one can be made all the same
        f.read();
        QVERIFY(f.controls.butMusic[PlaylistCommand::New].enabled);

        f.launcher.settings.AutoPlaylistsOn = false;
        f.addPlaylist(u"Mine"_s);
        f.prompts.expectMessage(); // nothing is selected
        f.manual.setTicked(true);
        QVERIFY(!f.manual.ticked());
        QCOMPARE(f.prompts.titles.last(), u" No auto playlist detected "_s);
        f.select(u"Mine"_s);
        QCOMPARE(f.launcher.settings.PlaylistName, u"Mine"_s);
        f.manual.setTicked(true);
        QCOMPARE(f.manual.caption, u"Load"_s);

        f.prompts.expectMessage(); // no game has a playlist yet
        f.automatic.setTicked(true);
        QVERIFY(!f.automatic.ticked() && f.controls.SelectionList.enabled);
        f.assign(AutoGame::Doom);
        f.automatic.setTicked(true);
        QVERIFY(f.automatic.ticked() && !f.manual.ticked() && !f.controls.SelectionList.enabled);
        for (const Button& button : f.controls.butMusic)
            QVERIFY(!button.enabled);
        f.manual.setTicked(true);
        QVERIFY(!f.automatic.ticked() && f.controls.SelectionList.enabled);
    }

    void launches()
    {
        PlayingFixture f;
        f.addPlaylist(u"One"_s);
        f.addPlaylist(u"Two, too"_s);
        QCOMPARE(f.music(), QString());
        f.select(u"One"_s);
        QCOMPARE(f.music(), QString());
        f.manual.setTicked(true);
        QCOMPARE(f.music(), u"-extmus \"One\""_s);
        f.addWad(u"VYKGames/Game/Pwads/game.wad"_s, {u"MAP01"_s});
        f.show(View::InstalledGames);
        QCOMPARE(f.music(), u"-extmus \"One\""_s);

        QVERIFY(f.controls.SelectionList.taskMenu());
        QVERIFY(f.controls.mcAutoSelect[AutoGame::Doom].enabled &&
                !f.controls.mcAutoSelect[AutoGame::Tnt].enabled);
        f.assign(AutoGame::Doom);
        QCOMPARE(f.prompts.titles.last(), u" Auto playlist selection for DOOM"_s);
        QCOMPARE(f.prompts.texts.last(), u"     One  has been added to your auto selection.         "_s);
        f.select(u"Two, too"_s);
        f.assign(AutoGame::Doom2);
        QCOMPARE(f.installation.read(u"VYKLaunch/Music/auto-playlist.vyk"_s),
                 QByteArray("IMPORTANT: Do not manually edit or change the order of this list\r\n"
                            "One\r\n\"Two, too\"\r\nPlutonia - Placeholder\r\nTNT - Placeholder\r\n"));
        f.files.failOn(u"auto-playlist.vyk"_s, FileError::Kind::PermissionDenied);
        f.assign(AutoGame::Plutonia);
        QCOMPARE(f.prompts.titles.last(), u" Access error"_s);

        f.automatic.setTicked(true);
        QCOMPARE(f.music(), u"-extmus \"Two, too\""_s);
        f.show(View::DoomGames);
        f.selectGame(u"DOOM/ULTIMATE DOOM"_s);
        QCOMPARE(f.music(), u"-extmus \"One\""_s);
        f.disk.remove(f.path(fileOf(u"One"_s)));
        f.read();
        QCOMPARE(f.music(), QString());
    }

    void damagedAutoPlaylists()
    {
        for (const QByteArray& bytes :
             {QByteArray(), QByteArray("\0\xFF\n\r", 4), QByteArray("one line"), QByteArray(1'000'000, ','),
              QByteArray("a\r\nb\r\nc\r\nd\r\ne\r\nmore\r\n")}) {
            PlayingFixture f;
            f.installation.add(u"VYKLaunch/Music/auto-playlist.vyk"_s, bytes);
            f.addPlaylist(u"Mine"_s);
            f.select(u"Mine"_s);
            f.automatic.setTicked(true);
            QCOMPARE(f.music(), QString());
            f.assign(AutoGame::Doom2);
            QCOMPARE(f.music(), u"-extmus \"Mine\""_s);
        }
    }

    void newPlaylist()
    {
        Fixture f;
        const auto create = [&f](const std::optional<QString>& name) {
            f.prompts.expectName(name);
            f.press(PlaylistCommand::New);
        };
        for (const auto& none : {std::optional<QString>(), {u" "_s}, {u".vym"_s}})
            create(none);
        for (const QString& bad : {u"a,b"_s, u"nul"_s, u"say \"it\""_s, u"..\\up"_s}) {
            f.prompts.expectMessage();
            create(bad);
        }
        QCOMPARE(f.window.calls.size(), 0);
        QCOMPARE(f.prompts.nameQuestions.last().name, u"MyDoomMusic"_s);

        f.window.onMusicForm = [&f](PlaylistEditor& editor) {
            QCOMPARE(editor.MusicList(), StandardLayout(MusicGame::Doom2));
            f.prompts.expectMessage(Msg::ResultCancel);
            QVERIFY(!editor.close());
            f.prompts.expectMessage(Msg::ResultNo);
            QVERIFY(editor.close());
        };
        create(u"First"_s);
        QCOMPARE(f.launcher.settings.PlaylistName, QString()); // it was not saved

        f.launcher.facts.iwads.of(GameFamily::Doom) = f.path(u"Doom.wad"_s);
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
        QVERIFY(f.controls.butMusic[PlaylistCommand::Open].enabled && f.manual.enabled);

        f.prompts.expectMessage(Msg::ResultNo); // overwrite it?
        create(u"first"_s);
        QCOMPARE(f.window.calls.size(), 2);
        QCOMPARE(f.launcher.settings.PlaylistName, u"First"_s);
    }

    void deletePlaylist()
    {
        Fixture f;
        f.addPlaylist(u"A"_s);
        f.addPlaylist(u"B"_s);
        f.select(u"A"_s);
        f.prompts.expectMessage(Msg::ResultNo);
        f.press(PlaylistCommand::Delete);
        QCOMPARE(f.prompts.texts.last(), u"Are you certain you wish to delete A   "_s);
        f.files.failOn(f.path(fileOf(u"A"_s)), FileError::Kind::PermissionDenied);
        f.prompts.expectMessage(Msg::ResultYes);
        f.prompts.expectMessage();
        f.press(PlaylistCommand::Delete);
        QCOMPARE(f.controls.SelectionList.count(), 2);
        f.files.failOn({}, FileError::Kind::Other);
        f.prompts.expectMessage(Msg::ResultYes);
        f.press(PlaylistCommand::Delete);
        QVERIFY(!f.installation.exists(fileOf(u"A"_s)));
        QCOMPARE(f.launcher.settings.PlaylistName, u"B"_s);
        f.prompts.expectMessage(Msg::ResultYes);
        f.press(PlaylistCommand::Delete);
        QVERIFY(!f.controls.butMusic[PlaylistCommand::Open].enabled);
        QCOMPARE(f.launcher.settings.PlaylistName, QString());
    }

    void openingOldLayouts()
    {
        Fixture f;
        QStringList missing = StandardLayout(MusicGame::Doom2);
        missing.removeAt(20);
        f.addPlaylist(u"Missing"_s, missing);
        f.addPlaylist(u"Maps"_s, StandardLayout(MusicGame::Doom).mid(11));
        f.select(u"Missing"_s);

        f.prompts.expectMessage(Msg::ResultNo);
        f.press(PlaylistCommand::Open);
        QCOMPARE(f.prompts.titles.last(), u" Non Standard Format"_s);
        QCOMPARE(f.window.calls.size(), 0);

        f.window.onMusicForm = [&f](PlaylistEditor& editor) {
            QCOMPARE(editor.MusicList(), StandardLayout(MusicGame::Doom2));
            f.prompts.expectMessage(Msg::ResultCancel);
            QVERIFY(!editor.close());
            f.prompts.expectMessage(Msg::ResultNo);
            QVERIFY(editor.close());
            QCOMPARE(f.prompts.titles.last(), u" Save playlist to new format"_s);
        };
        f.prompts.expectMessage(Msg::ResultYes);
        f.press(PlaylistCommand::Open);
        QCOMPARE(f.saved(u"Missing"_s), bytesOf(missing));

        f.select(u"Maps"_s);
        f.window.onMusicForm = [&f](PlaylistEditor& editor) { // the edits are not wanted, the new layout is
            editor.setTrack(11, 3);
            f.prompts.expectMessage(Msg::ResultNo);
            f.prompts.expectMessage(Msg::ResultYes);
            QVERIFY(editor.close());
        };
        f.press(PlaylistCommand::Open);
        QCOMPARE(f.saved(u"Maps"_s), bytesOf(StandardLayout(MusicGame::Doom)));
    }

    void editing()
    {
        Fixture f;
        QStringList lines = StandardLayout(MusicGame::Doom2);
        lines[11] = u"MAP01 \\OggVorbis\\a.ogg"_s;
        lines[3] = u"D_DM2TTL CD 04"_s;
        f.addPlaylist(u"Mine"_s, lines);
        f.launcher.settings.PlaylistName = u"Mine"_s;
        f.installation.add(u"OggVorbis/own/b.OGG"_s);
        PlaylistEditor editor(f.launcher, f.launcher.settings.PlaylistName);
        QVERIFY(editor.open());

        for (const int line : {-1, 0, 1, 43}) // no entry: no dialog
            editor.AddMusic(line);
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
        QCOMPARE(f.prompts.fileQuestions.last().folder, f.launcher.paths.MusicLaunchPath); // for want of it
        editor.removeMusic({1, 11, 12});
        QCOMPARE(editor.MusicList().mid(11, 3),
                 QStringList({u"MAP01"_s, u"MAP02"_s, u"MAP03 \""_s + NativePath(elsewhere) + u'"'}));
        QCOMPARE(editor.MusicList().at(1), u" # INTERMISSION MUSIC FOR DOOM II"_s);
        editor.removeAllMusic();
        QCOMPARE(editor.MusicList(), StandardLayout(MusicGame::Doom2));

        QVERIFY(editor.canToggle() && editor.canClone());
        f.prompts.expectMessage(Msg::ResultYes);
        editor.Clone();
        QVERIFY(!editor.canToggle() && !editor.canClone());
        QVERIFY(editor.save());
        QVERIFY(editor.close());
        QCOMPARE(f.saved(u"Mine"_s),
                 bytesOf(StandardLayout(MusicGame::Doom2) + StandardLayout(MusicGame::Doom)));

        // The player's own text editor.
        f.installation.add(u"VYKLaunch/Data/editor.vyk"_s, "\"/opt/an editor\"\r\n");
        editor.openInTextEditor();
        QVERIFY(f.processes.lastCommandLine().startsWith(u"\"/opt/an editor\" \""_s));
    }

    void hostileFiles()
    {
        const QByteArray standard = bytesOf(StandardLayout(MusicGame::Doom2));
        const struct
        {
            QByteArray bytes;
            bool isWhole;
        } rows[] = {{standard + "MAP01 \\\xFC\x81\x93.ogg\r\n", true},
                    {"\xEF\xBB\xBF" + standard + "MAP01 \\\xC3\xBC.ogg\r\n", true},
                    {"\xEF\xBB\xBF" + standard + "MAP01 \\\xC3.ogg\r\n", false},
                    {standard + QByteArray("\0\1\2\3", 4), false},
                    {standard + "MAP01 " + QByteArray(5000, 'x') + "\r\n", false},
                    {standard + QByteArray("MAP01 x\r\n").repeated(400), false},
                    {standard + QByteArray(70'000'000, '\n'), false}};
        for (const auto& [bytes, isWhole] : rows) {
            Fixture f;
            f.installation.add(fileOf(u"Odd"_s), bytes);
            f.launcher.settings.PlaylistName = u"Odd"_s;
            PlaylistEditor editor(f.launcher, f.launcher.settings.PlaylistName);
            if (!isWhole)
                f.prompts.expectMessage();
            QVERIFY(editor.open());
            QVERIFY(editor.MusicList().size() <= 301);
            editor.setTrack(11, 4);
            if (!isWhole)
                f.prompts.expectMessage();
            QCOMPARE(editor.save(), isWhole); // the other lines are the same, byte for byte
            QVERIFY(editor.close());
            QCOMPARE(f.saved(u"Odd"_s),
                     isWhole ? QByteArray(bytes).replace("MAP01\r\n", "MAP01 CD 04\r\n") : bytes);
        }
    }
};

QTEST_GUILESS_MAIN(PlaylistsTest)
#include "PlaylistsTest.moc"
