// The launcher's command line turned into an engine's: lines in, lines out.
#include "tools/engine/EngineTranslation.h"
#include "engines/EngineFailure.h"
#include "platform/DiskFileSystem.h"
#include "platform/Paths.h"
#include "tests/support/TemporaryInstallation.h"

#include <QDir>
#include <QProcess>
#include <QTest>

using namespace Qt::StringLiterals;

class EngineTranslationTest : public QObject
{
    Q_OBJECT

    TemporaryInstallation m_disk;
    DiskFileSystem m_files;
    QProcessEnvironment m_environment;

    // ROOT stands for the installation's folder, in what is given and in what is returned: the arguments, and
    // in brackets what is left out. A WAD of these tests holds the number of its maps.
    QString translate(const QString& line) const
    {
        KnownEngine engine = ConventionsOf(u"crispy-doom"_s);
        engine.quietSwitch = {};
        return translate(line, engine);
    }

    QString translate(const QString& line, const KnownEngine& engine) const
    {
        const QStringList arguments = QProcess::splitCommand(QString(line).replace(u"ROOT"_s, m_disk.root()));
        const EnginePlan plan = TranslateCommandLine(
            m_files, {m_disk.root(), arguments, m_environment, engine,
                      [this](const QString& path) { return m_files.read(path, 9).toInt(); }});
        const QString words = AsLine(plan.arguments) + u" ["_s + plan.leftOut.join(u", "_s) + u']';
        return WithSlashes(words).replace(m_disk.root(), u"ROOT"_s);
    }

private Q_SLOTS:
    void initTestCase()
    {
        const std::pair<QString, QString> folders[] = {
            {u""_s,
             u"Data/DOOM2.WAD;Doom1.wad;Elsewhere/Tnt.wad;Data/sfx.wad;Elsewhere/My IWAD.wad;UserSG/DOOM2/savegame/x"_s},
            {u""_s,
             u"Iwads/Doom.wad;Iwads/Doom1.wad;VYKLaunch/Zips/z main.wad=1;VYKLaunch/Zips/y.wad=5;VYKLaunch/Zips/z.bex;VYKLaunch/Zips/z.deh"_s},
            {u"VYKGames/My Hell/Pwads/"_s,
             u"fix.deh;Fix2.BEX;x.ded=99;Doom2.wad=99;a.wad=0;b.WAD=3;d.wad=12;E.wad=12"_s},
            {u"VYKGames/Auto/"_s,
             u"Gwads/one.wad=1;Gwads/two.wad=9;Gwads/res.wad=0;Gwads/p.deh;Pwads/no.wad"_s},
            {u"VYKGames/"_s, u"Patch/Pwads/only.deh;Dots/Pwads/...wad;Bare/x.wad"_s},
        };
        for (const auto& [folder, files] : folders)
            for (const QString& file : files.split(u';'))
                m_disk.add(folder + file.section(u'=', 0, 0), file.section(u'=', 1).toUtf8());
    }

    void init()
    {
        m_environment = {};
        m_environment.insert(u"DOOMWADDIR"_s, u"Elsewhere"_s);
    }

    void lines()
    {
        const QString doom2 = u"-iwad ROOT/Data/DOOM2.WAD "_s;
        const QString doom = u"-iwad ROOT/Iwads/Doom.wad -savedir ROOT/UserSG/doom/savegame "_s;
        const QString hell = u"\"ROOT/VYKGames/My Hell/Pwads/"_s;
        // A switch missing from the table would reach the engine as the player's own text.
        const QString useless =
            u"-devmap, -debug_scp, -listloresfm, -fp, -ap, -am, -np, -nht, -3d, -FMODmidi, -boom, -xa, "
            u"-spf, "
            "-noamwds, -fx, -spz, -spx, -noif1, -noif2, -pbm, -dt, -usb, -fsb, -ro, -nc, -nws, -stx, "
            "-c_nextmap, -mfo, -smn, -v, -txe, -lean, -txn, -ch 128, -dsst 3, -gnd "
            "5, -ct 30, "
            "-txa c, -td \"C:/My textures\", -cmd \"audio-ricoh 40\" \"rend-light 1\""_s;
        const std::pair<QString, QString> rows[] = {
            {u"-DOOM2 "_s + QString(useless).remove(u',') +
                 u" -ReSpawn -nomusic -fast -sk 4 -wp 07 -nomouse -turbo 200"_s,
             doom2 +
                 u"-savedir ROOT/UserSG/DOOM2/savegame -respawn -nomusic -fast -skill 4 -warp 7 -nomouse "
                 "-turbo 200 ["_s +
                 useless + u"]"_s},
            {u"-doom -nm -wp 2 5 -nosound"_s, doom + u"-nomonsters -warp 2 5 -nosound []"_s},
            {u"-doom -wp 31 2 -loadgame 7 3"_s, doom + u"-warp 31 2 -loadgame 7 3 []"_s},
            {u"-doom -ch -3d -f -3d -wp x -td"_s, doom + u"x [-ch, -3d, -f, -3d, -wp, -td]"_s},
            // The shareware's folders come in another order.
            {u"-Doom1"_s, u"-iwad ROOT/Iwads/Doom1.wad -savedir ROOT/UserSG/doom1/savegame []"_s},
            {u"-TNT"_s, u"-iwad ROOT/Elsewhere/Tnt.wad -savedir ROOT/UserSG/tnt/savegame []"_s},
            {u"-iwad \"ROOT\\elsewhere\\my iwad.WAD\""_s,
             u"-iwad \"ROOT/Elsewhere/My IWAD.wad\" -savedir \"ROOT/UserSG/my iwad/savegame\" []"_s},
            {u"-doom2 -udir \"my hell\" -sk 1"_s,
             doom2 + u"-file %1b.WAD\" %1d.wad\" %1a.wad\" %1E.wad\" -deh %1fix.deh\" %1Fix2.BEX\" "
                     "-savedir ROOT/UserSG/E/savegame -skill 1 []"_s.arg(hell)},
            {u"-iwad Data/doom2.wad -udir \"My Hell\" -f \"d.wad\" \"A.wad\" -deh FIX2.bex -d \"x.ded\""_s,
             doom2 +
                 u"-file %1a.wad\" %1d.wad\" -deh %1Fix2.BEX\" %1fix.deh\" -savedir ROOT/UserSG/d/savegame "
                 "[-d x.ded]"_s.arg(hell)},
            // What was chosen comes last, the sounds that a game may replace come first.
            {u"-doom2 -udir Auto -f One.wad -data none.wad -data SFX.wad -file extra.wad"_s,
             doom2 +
                 u"-file ROOT/Data/sfx.wad %1two.wad %1res.wad extra.wad %1one.wad -deh %1p.deh "
                 "-savedir ROOT/UserSG/one/savegame [-data none.wad: The file \"none.wad\" was not found.]"_s
                     .arg(u"ROOT/VYKGames/Auto/Gwads/"_s)},
            {u"-doom2 -f \"ROOT/VYKLaunch/Zips/z main.wad\" VYKLaunch/Zips/y.wad"_s,
             doom2 + u"-file ROOT/VYKLaunch/Zips/y.wad \"ROOT/VYKLaunch/Zips/z main.wad\" "
                     "-deh ROOT/VYKLaunch/Zips/z.bex -savedir \"ROOT/UserSG/z main/savegame\" []"_s},
        };
        for (const auto& [given, expected] : rows)
            QCOMPARE(translate(given), expected);
        QVERIFY(!m_disk.exists(u"UserSG/doom"_s)); // planning changes nothing

        m_environment.insert(u"$DOOMWADDIR"_s, m_disk.path(u"Elsewhere"_s));
        m_environment.insert(u"DOOMWADDIR"_s, m_disk.path(u"Iwads"_s));
        m_disk.add(u"Iwads/Tnt.wad"_s); // the literal variable comes first
        QVERIFY(translate(u"-tnt"_s).startsWith(u"-iwad ROOT/Elsewhere/Tnt.wad"_s));
    }

    void refusals()
    {
        // The message names what the line ends in.
        for (const QString& line :
             {u""_s, u"-plutonia"_s, u"-iwad Data/none.wad"_s, u"-doom -udir None"_s, u"-doom -udir Bare"_s,
              u"-doom -udir ../VYKGames/Auto"_s, u"-doom -udir Auto\\..\\Auto"_s, u"-doom -udir .."_s,
              u"-doom -udir Patch"_s, u"-doom -udir Dots"_s, u"-doom -udir Auto -f none.wad"_s,
              u"-doom -deh none.deh"_s}) {
            try {
                QFAIL(qPrintable(translate(line)));
            } catch (const EngineFailure& failure) {
                const QString named = line.section(u' ', -1).remove(u'-'),
                              why = QString::fromUtf8(failure.what());
                QVERIFY2(why.contains(named, Qt::CaseInsensitive), failure.what());
            }
        }
    }

    // A playlist replaces what comes before its WAD: the add-on's own music too, unless that is to be heard.
    void playlists()
    {
        m_disk.add(u"VYKLaunch/Music/b.vym"_s, "MAP01 CD 02\r\n");
        const QString game = u"-doom2 -udir Auto -extmus b"_s, last = u"Gwads/one.wad"_s,
                      pack = u"Engines/Music/"_s;
        for (const auto& name : {u"crispy-doom"_s, u"woof"_s}) {
            const QString over = translate(game + u" -f one.wad"_s, ConventionsOf(name));
            const QString under = translate(game + u" -upm -f one.wad"_s, ConventionsOf(name));
            QVERIFY(over.indexOf(pack) > over.indexOf(last));
            QVERIFY(under.contains(pack) && under.indexOf(pack) < under.indexOf(u"Gwads/"_s));
        }
        QVERIFY(translate(game, ConventionsOf(u"my-engine"_s)).contains(u"[-extmus b]"_s));
    }

    // What one engine has and another has not.
    void eachEngine()
    {
        const std::pair<QString, QString> rows[] = {
            {u"crispy-doom"_s, u"-file %1 -savedir S -nogui -nomouse [-boom, -v]"_s},
            {u"chocolate-doom"_s, u"-merge %1 -dehlump -savedir S -nogui -nomouse [-boom, -v]"_s},
            {u"woof"_s, u"-file %1 -save S -nogui -complevel boom [-v, -nojoy, -nomouse]"_s},
            {u"dsda-doom"_s,
             u"-file %1 -assign dsda_organized_saves=0 -save S -no_message_box -complevel 9 -verbose -nojoy "
             "-nomouse []"_s},
        };
        for (const auto& [name, expected] : rows) {
            const QString line =
                translate(u"-doom2 -f Data/sfx.wad -boom -v -nojoy -nomouse"_s, ConventionsOf(name));
            QCOMPARE(QString(line).replace(u"ROOT/UserSG/sfx/savegame"_s, u"S"_s),
                     u"-iwad ROOT/Data/DOOM2.WAD "_s + expected.arg(u"ROOT/Data/sfx.wad"_s));
        }
        // Rather nothing than another game than the chosen one.
        QVERIFY_THROWS_EXCEPTION(EngineFailure,
                                 translate(u"-doom2 -loadgame 1"_s, ConventionsOf(u"dsda-doom"_s)));
    }
};

QTEST_GUILESS_MAIN(EngineTranslationTest)
#include "EngineTranslationTest.moc"
