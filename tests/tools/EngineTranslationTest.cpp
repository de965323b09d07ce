// The launcher's command line turned into an engine's: lines in, lines out.
#include "tools/engine/EngineTranslation.h"
#include "platform/DiskFileSystem.h"
#include "platform/Paths.h"
#include "tools/engine/EngineFailure.h"
#include "tests/support/TemporaryInstallation.h"
#include "tools/engine/EngineSwitches.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class EngineTranslationTest : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;
    DiskFileSystem m_files;
    QProcessEnvironment m_environment;

    QString root() const { return m_folder.path(); }

    // A WAD of these tests holds the number of its maps.
    void put(const QString& path, const QByteArray& content = "0") const
    {
        const QString full = m_folder.filePath(path);
        QVERIFY(QDir().mkpath(QFileInfo(full).path()));
        QFile file(full);
        QVERIFY(file.open(QFile::WriteOnly));
        file.write(content);
    }

    EnginePlan translate(const QString& line) const
    {
        const auto countMaps = [](const QString& path) {
            QFile file(path);
            return file.open(QFile::ReadOnly) ? file.readAll().toInt() : -1;
        };
        // In the expected and the given lines ROOT stands for the installation's folder.
        const QStringList arguments = QProcess::splitCommand(QString(line).replace(u"ROOT"_s, root()));
        return TranslateCommandLine(
            m_files, {root(), arguments, m_environment, ConventionsOf(u"crispy-doom"_s), countMaps});
    }

    QString started(const EnginePlan& plan) const
    {
        return WithSlashes(AsLine(plan.arguments)).replace(root(), u"ROOT"_s);
    }

private Q_SLOTS:
    void initTestCase()
    {
        for (const char* iwad : {"Data/DOOM2.WAD", "Iwads/Doom.wad", "Iwads/Doom1.wad", "Doom1.wad",
                                 "Elsewhere/Tnt.wad", "Elsewhere/My IWAD.wad"})
            put(QString::fromLatin1(iwad));
        for (const char* file : {"fix.deh", "Fix2.BEX", "readme.txt", "Doom2.wad", "defs.ded"})
            put(u"VYKGames/My Hell/Pwads/"_s + QString::fromLatin1(file), "99");
        put(u"VYKGames/My Hell/Pwads/a.wad"_s, "0");
        put(u"VYKGames/My Hell/Pwads/b.WAD"_s, "3");
        put(u"VYKGames/My Hell/Pwads/c.wad"_s, "0");
        put(u"VYKGames/My Hell/Pwads/d.wad"_s, "12");
        put(u"VYKGames/My Hell/Pwads/E.wad"_s, "12");
        put(u"VYKGames/Auto/Gwads/one.wad"_s, "1");
        put(u"VYKGames/Auto/Gwads/two.wad"_s, "9");
        put(u"VYKGames/Auto/Gwads/res.wad"_s, "0");
        put(u"VYKGames/Auto/Gwads/p.deh"_s);
        put(u"VYKGames/Auto/Pwads/no.wad"_s, "1");
        put(u"VYKGames/Patch/Pwads/only.deh"_s);
        put(u"VYKGames/Dots/Pwads/...wad"_s);
        QVERIFY(QDir(root()).mkpath(u"VYKGames/Bare"_s));
        put(u"VYKLaunch/Zips/z main.wad"_s, "1");
        put(u"VYKLaunch/Zips/y.wad"_s, "5");
        put(u"VYKLaunch/Zips/z.deh"_s);
        put(u"UserSG/DOOM2/savegame/KeldraxSav1.vyksg"_s);
    }

    void init()
    {
        m_environment = {};
        m_environment.insert(u"DOOMWADDIR"_s, u"Elsewhere"_s);
    }

    void lines_data()
    {
        QTest::addColumn<QString>("given");
        QTest::addColumn<QString>("expected");
        QTest::addColumn<QStringList>("leftOut");

        const QString doom2 = u"-iwad ROOT/Data/DOOM2.WAD"_s;
        const QString doom = u"-iwad ROOT/Iwads/Doom.wad"_s;
        const QString saves2 = u" -savedir ROOT/UserSG/DOOM2/savegame"_s;
        const QString saves = u" -savedir ROOT/UserSG/doom/savegame"_s;
        const QString game = u"ROOT/VYKGames/My Hell/Pwads/"_s;

        QTest::newRow("a whole commercial line")
            << u"-DOOM2 -fp -np -td \"C:/My textures\" -data hv_doom_sfx.wad -3d -ch 128 -dsst 3 -extmus "
               "\"My list\" -upm -xa -spf -ReSpawn -gnd 5 -ct 30 -cmd \"audio-ricoh 40\" \"rend-light 1\" "
               "-smn -fast -v -sk 4 -wp 07 -turbo 200"_s
            << doom2 + saves2 + u" -respawn -fast -skill 4 -warp 7 -turbo 200"_s
            << QStringList{u"-fp"_s,
                           u"-np"_s,
                           u"-td \"C:/My textures\""_s,
                           u"-data hv_doom_sfx.wad"_s,
                           u"-3d"_s,
                           u"-ch 128"_s,
                           u"-dsst 3"_s,
                           u"-extmus \"My list\""_s,
                           u"-upm"_s,
                           u"-xa"_s,
                           u"-spf"_s,
                           u"-gnd 5"_s,
                           u"-ct 30"_s,
                           u"-cmd \"audio-ricoh 40\" \"rend-light 1\""_s,
                           u"-smn"_s,
                           u"-v"_s};
        QTest::newRow("an episode's map, a lower-case folder")
            << u"-doom -nm -wp 2 5 -nosound"_s << doom + saves + u" -nomonsters -warp 2 5 -nosound"_s
            << QStringList{};
        QTest::newRow("a savegame and the player's own numbers")
            << u"-doom -wp 31 2 -loadgame 7 3"_s << doom + saves + u" -warp 31 2 -loadgame 7 3"_s
            << QStringList{};
        QTest::newRow("values missing")
            << u"-doom -ch -3d -f -3d -wp x -td"_s << doom + saves + u" x"_s
            << QStringList{u"-ch"_s, u"-3d"_s, u"-f"_s, u"-3d"_s, u"-wp"_s, u"-td"_s};
        QTest::newRow("shareware: another order")
            << u"-Doom1"_s << u"-iwad ROOT/Iwads/Doom1.wad -savedir ROOT/UserSG/doom1/savegame"_s
            << QStringList{};
        QTest::newRow("the variable's folder")
            << u"-TNT"_s << u"-iwad ROOT/Elsewhere/Tnt.wad -savedir ROOT/UserSG/tnt/savegame"_s
            << QStringList{};
        QTest::newRow("an IWAD named itself")
            << u"-iwad \"ROOT\\elsewhere\\my iwad.WAD\""_s
            << u"-iwad \"ROOT/Elsewhere/My IWAD.wad\" -savedir \"ROOT/UserSG/my iwad/savegame\""_s
            << QStringList{};
        QTest::newRow("a game's folder")
            << u"-doom2 -udir \"my hell\" -sk 1"_s
            << doom2 +
                   u" -file \"%1E.wad\" \"%1b.WAD\" \"%1d.wad\" \"%1a.wad\" \"%1c.wad\" -deh \"%1fix.deh\" "
                   "\"%1Fix2.BEX\" -savedir ROOT/UserSG/E/savegame -skill 1"_s.arg(game)
            << QStringList{};
        QTest::newRow("a game's folder, its files named")
            << u"-iwad Data/doom2.wad -udir \"My Hell\" -f \"d.wad\" \"A.wad\" -deh FIX2.bex -d \"x.ded\""_s
            << doom2 + u" -file \"%1d.wad\" \"%1a.wad\" -deh \"%1Fix2.BEX\" \"%1fix.deh\" "
                       "-savedir ROOT/UserSG/d/savegame"_s.arg(game)
            << QStringList{u"-d x.ded"_s};
        QTest::newRow("an auto-loading game")
            << u"-doom2 -udir Auto -f One.wad -file extra.wad"_s
            << doom2 + u" -file %1one.wad %1two.wad %1res.wad extra.wad -deh %1p.deh "
                       "-savedir ROOT/UserSG/one/savegame"_s.arg(u"ROOT/VYKGames/Auto/Gwads/"_s)
            << QStringList{};
        QTest::newRow("a game of the zip library")
            << u"-doom2 -f \"ROOT/VYKLaunch/Zips/z main.wad\" VYKLaunch/Zips/y.wad -deh ROOT/VYKLaunch/Zips/z.deh"_s
            << doom2 +
                   u" -file \"%1z main.wad\" %1y.wad -deh %1z.deh -savedir \"ROOT/UserSG/z main/savegame\""_s
                       .arg(u"ROOT/VYKLaunch/Zips/"_s)
            << QStringList{};
    }

    void lines()
    {
        QFETCH(QString, given);
        QFETCH(QString, expected);
        QFETCH(QStringList, leftOut);
        const EnginePlan plan = translate(given);
        QCOMPARE(started(plan), expected);
        QCOMPARE(plan.leftOut, leftOut);
        QVERIFY(!m_files.folderExists(root() + u"/UserSG/doom"_s)); // planning changes nothing
    }

    void theLiteralVariableComesFirst()
    {
        m_environment.insert(u"$DOOMWADDIR"_s, root() + u"/Iwads"_s);
        m_environment.insert(u"DOOMWADDIR"_s, root() + u"/Data"_s);
        put(u"Data/Doom.wad"_s);
        QCOMPARE(started(translate(u"-doom"_s)).section(u' ', 0, 1), u"-iwad ROOT/Iwads/Doom.wad"_s);
        QVERIFY(QFile::remove(root() + u"/Data/Doom.wad"_s));
    }

    void refusals_data()
    {
        QTest::addColumn<QString>("given");
        QTest::addColumn<QString>("named"); // what the message must name
        QTest::newRow("no IWAD") << u"-sk 3"_s << u"-Doom2"_s;
        QTest::newRow("IWAD not found") << u"-plutonia"_s << u"Plutonia.wad"_s;
        QTest::newRow("named IWAD not found") << u"-iwad Data/none.wad"_s << u"Data/none.wad"_s;
        QTest::newRow("no such game") << u"-doom -udir None"_s << u"None"_s;
        QTest::newRow("a folder that is no game") << u"-doom -udir Bare"_s << u"Bare"_s;
        QTest::newRow("out of the folder") << u"-doom -udir ../VYKGames/Auto"_s << u"../VYKGames/Auto"_s;
        QTest::newRow("out of the folder, backslash")
            << u"-doom -udir Auto\\..\\Auto"_s << u"Auto\\..\\Auto"_s;
        QTest::newRow("the folder above") << u"-doom -udir .."_s << u".."_s;
        QTest::newRow("no WAD in it") << u"-doom -udir Patch"_s << u"Patch"_s;
        QTest::newRow("file not found") << u"-doom -udir Auto -f none.wad"_s << u"none.wad"_s;
        QTest::newRow("patch not found") << u"-doom -deh none.deh"_s << u"none.deh"_s;
        QTest::newRow("savegames outside") << u"-doom -udir Dots"_s << u"...wad"_s;
    }

    void refusals()
    {
        QFETCH(QString, given);
        QFETCH(QString, named);
        try {
            translate(given);
            QFAIL("was translated");
        } catch (const EngineFailure& failure) {
            QVERIFY2(QString::fromUtf8(failure.what()).contains(named), failure.what());
        }
    }

    // A switch missing from the table would reach the engine as the player's own text.
    void everySwitchOfTheLauncherIsKnown()
    {
        const QString all =
            u"-devmap -debug_scp -listloresfm -fp -ap -am -np -nht -td -nosound -data -3d -ch -dsst "
            "-nomusic -extmus -upm -FMODmidi -boom -xa -spf -noamwds -fx -spz -nomouse -spx -respawn "
            "-ReSpawn -noif1 -noif2 -gnd -pbm -nm -dt -nojoy -usb -fsb -ro -ct -cmd -smn -fast -nc -nws "
            "-stx -c_nextmap -mfo -v -sk -txe -lean -txn -txa -wp -loadgame -udir -f -deh -d -iwad"_s;
        for (const QString& text : all.split(u' '))
            QVERIFY2(FindEngineSwitch(text) != nullptr, qPrintable(text));
        QVERIFY(FindEngineSwitch(u"-turbo"_s) == nullptr);
    }

    void engines()
    {
        QCOMPARE(ConventionsOf(u"/usr/games/dsda-doom"_s).savegame, u"dsda-doom-savegame%1.dsg"_s);
        QCOMPARE(ConventionsOf(u"/opt/Woof.exe"_s).saveFolderSwitch, u"-save"_s);
        QCOMPARE(ConventionsOf(u"/opt/my-engine"_s).savegame, u"doomsav%1.dsg"_s);
        m_environment.insert(u"KELDRAX_ENGINE"_s, u"no-such-engine-anywhere"_s);
        QVERIFY_THROWS_EXCEPTION(EngineFailure, FindEngine(root(), m_environment));
        const QFileInfo program(QCoreApplication::applicationFilePath());
        m_environment.insert(u"KELDRAX_ENGINE"_s, program.completeBaseName());
        m_environment.insert(u"PATH"_s, QDir::toNativeSeparators(program.path()));
        QCOMPARE(FindEngine(root(), m_environment), program.filePath());
        m_environment.remove(u"KELDRAX_ENGINE"_s);
        TemporaryInstallation own;
        own.addBuilt(u"Engine/woof"_s, RECORDER_PROGRAM);
        own.addBuilt(u"elsewhere/crispy-doom"_s, RECORDER_PROGRAM);
        m_environment.insert(u"PATH"_s, own.nativePath(u"elsewhere"_s));
        QVERIFY(FindEngine(own.root(), m_environment).contains(u"/Engine/woof"_s));
        QVERIFY(FindEngine(own.path(u"none"_s), m_environment).contains(u"/elsewhere/crispy-doom"_s));
    }
};

QTEST_GUILESS_MAIN(EngineTranslationTest)
#include "EngineTranslationTest.moc"
