// Installed games and zips, from the choice to the engine's command line, or to the message that stops it.
#include "catalogue/ZipLibrary.h"
#include "launch/LaunchButton.h"

#include "platform/DateOrder.h"
#include "platform/Text.h"
#include "tests/support/CommercialGame.h"
#include "tests/support/Packs.h"
#include "tests/support/ZipMaker.h"

#include <QRegularExpression>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

// Installed games, shown in their view; the skill is "Hurt me plenty".
class InstalledGame : public CommercialGame
{
public:
    InstalledGame()
    {
        addWad(u"VYKGames/Manual/Pwads/small.wad"_s, {u"MAP01"_s});
        addWad(u"VYKGames/Manual/Pwads/Main.wad"_s, {u"MAP01"_s, u"MAP02"_s, u"MAP03"_s});
        addWad(u"VYKGames/Manual/Pwads/textures.wad"_s, {});
        installation.add(u"VYKGames/Manual/Pwads/a.deh"_s, "patch");
        installation.add(u"VYKGames/Manual/Pwads/b.DEH"_s, "patch");
        installation.add(u"VYKGames/Manual/Pwads/d.ded"_s, "definition");
        addWad(u"VYKGames/Auto Game/Gwads/first.wad"_s, {u"E1M1"_s, u"E1M2"_s});
        addWad(u"VYKGames/Auto Game/Gwads/second.wad"_s, {u"E2M1"_s});
        addWad(u"VYKGames/Auto Game/Gwads/empty.wad"_s, {});
        installation.add(u"VYKGames/Auto Game/Gwads/info.txt"_s, "read me");
        addWad(u"VYKGames/Auto Game/Gwads/third.wad"_s, {u"MAP05"_s});
        addWad(u"VYKGames/L\u00e4ufer 100% & Co/Pwads/z\u00fc rich.wad"_s, {u"MAP11"_s});
        const QByteArray wad = TemporaryInstallation::wad("PWAD", {u"MAP01"_s, u"MAP02"_s});
        installation.add(u"VYKArchives/some game.zip"_s,
                         ZipMaker()
                             .add({.name = "Pack \xc3\xa9.wad", .bytes = wad, .isUtf8 = true})
                             .add("extra.wad", TemporaryInstallation::wad("PWAD", {u"TEXTURE1"_s}))
                             .add("p.deh", "patch")
                             .add("q.ded", "definition")
                             .bytes());
        pickSkill(3);
        show(View::InstalledGames);
    }

    QString launchedLine()
    {
        return LaunchSelectedGame(launcher) == LaunchResult::Started ? processes.lastCommandLine()
                                                                     : QString();
    }
    void checkPwad(const QByteArray& fields) { installation.add(u"VYKLaunch/Data/checkpwad.vyk"_s, fields); }

    // The launch is refused with that message, and nothing is written or started.
    void verifyRefused(const QString& title, const QString& partOfText)
    {
        prompts.expectMessage();
        QCOMPARE(LaunchSelectedGame(launcher), LaunchResult::Refused);
        QCOMPARE(prompts.titles.last(), title);
        QVERIFY2(prompts.texts.last().contains(partOfText), qPrintable(prompts.texts.last()));
        QCOMPARE(prompts.styles.last(), 64);
        QVERIFY(processes.starts.isEmpty());
        QVERIFY(!installation.exists(u"VYKLaunch/launch.log"_s));
    }
};

} // namespace

class LaunchInstalledGameTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // How each kind of game reaches the engine, with an IWAD that the engine finds itself and with another.
    void wholeCommandLines()
    {
        const struct
        {
            const char* name;
            std::function<void(InstalledGame&)> choose;
            QString known, elsewhere, start;
        } rows[] = {
            {"by hand", [](InstalledGame& game) { game.selectGame(u"MANUAL"_s); }, u"-udir \"Manual\" "_s,
             u"-udir \"Manual\" -f \"Main.wad\" \"small.wad\" \"textures.wad\" -deh \"a.deh\" \"b.DEH\" "
             "-d \"%1/VYKGames/Manual/Pwads/d.ded\" "_s,
             u"-wp 01 "_s},
            {"by hand, another WAD",
             [](InstalledGame& game) {
                 game.selectGame(u"MANUAL"_s);
                 game.pickFile(u"small.wad"_s);
             },
             u"-udir \"Manual\" -f \"small.wad\" \"Main.wad\" \"textures.wad\" -deh \"a.deh\" \"b.DEH\" "
             "-d \"%1/VYKGames/Manual/Pwads/d.ded\" "_s,
             u"-udir \"Manual\" -f \"small.wad\" \"Main.wad\" \"textures.wad\" -deh \"a.deh\" \"b.DEH\" "
             "-d \"%1/VYKGames/Manual/Pwads/d.ded\" "_s,
             u"-wp 01 "_s},
            {"by hand, odd name", [](InstalledGame& game) { game.selectGame(u"L\u00c4UFER 100% & CO"_s); },
             u"-udir \"L\u00e4ufer 100% & Co\" "_s,
             u"-udir \"L\u00e4ufer 100% & Co\" -f \"z\u00fc rich.wad\" "_s, u"-wp 11 "_s},
            {"auto-loading",
             [](InstalledGame& game) {
                 game.selectGame(u"AUTO GAME"_s);
                 game.pickFile(u"third.wad"_s);
             },
             u"-udir \"Auto Game\" -f \"third.wad\" "_s, u"-udir \"Auto Game\" -f \"third.wad\" "_s,
             u"-wp 05 "_s},
            {"zipped",
             [](InstalledGame& game) {
                 game.show(View::ZipLibrary);
                 game.pickMap(u"MAP02"_s);
             },
             u"-f \"%1/VYKLaunch/Zips/some game.zip/Pack \u00e9.wad\" \"%1/VYKLaunch/Zips/some "
             u"game.zip/extra.wad\" "
             "-deh \"%1/VYKLaunch/Zips/some game.zip/p.deh\" -d \"%1/VYKLaunch/Zips/some game.zip/q.ded\" "_s,
             u"-f \"%1/VYKLaunch/Zips/some game.zip/Pack \u00e9.wad\" \"%1/VYKLaunch/Zips/some "
             u"game.zip/extra.wad\" "
             "-deh \"%1/VYKLaunch/Zips/some game.zip/p.deh\" -d \"%1/VYKLaunch/Zips/some game.zip/q.ded\" "_s,
             u"-wp 02 "_s},
        };
        const QString options = u"-np -nht -3d -ch 128 -ro -ct 9 -cmd \"rend-light 1\" \"rend-smoke 0\" "
                                "\"audio-ricoh 4\" -sk 3 "_s;
        for (const auto& row : rows) {
            for (const bool known : {true, false}) {
                InstalledGame game;
                QString iwad = u"-Doom2 "_s;
                if (!known) {
                    game.addWad(u"Elsewhere/Doom2.wad"_s, {u"MAP01"_s});
                    QVERIFY(QFile::remove(game.path(u"Iwads/Doom2.wad"_s)));
                    game.launcher.facts.iwads.of(GameFamily::Doom2) = game.path(u"Elsewhere/Doom2.wad"_s);
                    iwad = u"-iwad \"%1/Elsewhere/Doom2.wad\" "_s;
                }
                row.choose(game);
                QString expected =
                    u"Bin\\Keldrax "_s + iwad + (known ? row.known : row.elsewhere) + options + row.start;
                for (const QRegularExpression path(u"%1/([^\"]*)"_s); expected.contains(u"%1"_s);) {
                    const QRegularExpressionMatch found = path.match(expected);
                    expected.replace(found.captured(), game.nativePath(found.captured(1)));
                }
                const QString line = game.launchedLine();
                QVERIFY2(line == expected,
                         qPrintable(QString::fromLatin1(row.name) + u'\n' + line + u'\n' + expected));
                QCOMPARE(game.installation.read(u"VYKLaunch/launch.log"_s), ToAnsi(line + u"\r\n"_s));
            }
        }
    }

    // Somebody has deleted its files: the zip is opened again.
    void aZipIsOpenedAgain()
    {
        InstalledGame game;
        game.show(View::ZipLibrary);
        game.pickMap(u"MAP02"_s);
        QVERIFY(QFile::remove(game.path(u"VYKLaunch/Zips/some game.zip/Pack \u00e9.wad"_s)));
        QVERIFY(game.launchedLine().endsWith(u"-wp 02 "_s));
        QVERIFY(game.installation.exists(u"VYKLaunch/Zips/some game.zip/Pack \u00e9.wad"_s));
    }

    void eachLauncherHasAFolderForItsZip()
    {
        InstalledGame game;
        game.show(View::ZipLibrary);
        ConnectedLauncher other(game.files, game.processes, game.prompts, game.window,
                                game.installation.root());
        QVERIFY(OpenArchive(other, u"Some Game"_s));
        const QString folder = game.launcher.facts.opened.folder;
        QVERIFY(!folder.isEmpty() && other.facts.opened.folder != folder);
        QVERIFY(game.installation.exists(u"VYKLaunch/Zips/some game.zip/extra.wad"_s));
    }

    // The engine would take the name for a switch.
    void aNameThatBeginsAsASwitch()
    {
        InstalledGame game;
        game.addWad(u"VYKGames/-x/Pwads/a.wad"_s, {u"MAP01"_s});
        game.load();
        game.show(View::InstalledGames);
        game.selectGame(u"-X"_s);
        QVERIFY(PlanLaunch(game.launcher).refusal.value_or(LaunchMessage()).text.contains(u"hyphen"_s));
    }

    void anAutoLoadingGameRemembersFileAndMap()
    {
        InstalledGame game;
        game.selectGame(u"AUTO GAME"_s);
        game.pickFile(u"second.wad"_s);
        game.pickFile(u"first.wad"_s);
        game.pickMap(u"E1M2"_s);
        QCOMPARE(game.installation.read(u"VYKLaunch/GameInfo/Gwads/auto game.vykg"_s),
                 QByteArray("first.wad\r\n"));
        QCOMPARE(game.installation.read(u"VYKLaunch/GameInfo/Gwads/auto game.vykm"_s),
                 QByteArray("second.wad E2M1\r\nfirst.wad E1M2\r\n"));

        game.selectGame(u"MANUAL"_s);
        game.selectGame(u"AUTO GAME"_s);
        QCOMPARE(game.launcher.controls.PwadShowlist.selectedText(), u"first.wad"_s);
        QCOMPARE(game.launcher.controls.MapList.selectedText(), u"E1M2"_s);
    }

    void anAutoLoadingGameNeedsAWadWithMaps()
    {
        InstalledGame game;
        game.selectGame(u"AUTO GAME"_s);
        game.verifyRefused(u" Launch error"_s, u"You have not yet selected a WAD file.     "_s);
        game.pickFile(u"info.txt"_s);
        game.verifyRefused(u" Launch error"_s, u"You have not yet selected a WAD file.     "_s);
        game.pickFile(u"empty.wad"_s);
        game.verifyRefused(u" Launch error"_s, u"The EMPTY.WAD contains no levels.     "_s);
    }

    void compatibilityEntriesChooseTheIwadAndTheMode()
    {
        InstalledGame game;
        game.selectGame(u"MANUAL"_s);
        game.checkPwad("Check2\r\nmain.WAD\r\n");
        game.verifyRefused(u" Missing Final Doom Iwad "_s, u"one of the Final Doom Iwads"_s);
        game.addWad(u"Data/Plutonia.wad"_s, {u"MAP01"_s});
        game.launcher.facts.iwads.of(GameFamily::Plutonia) = game.path(u"Data/Plutonia.wad"_s);
        QVERIFY(game.launchedLine().startsWith(u"Bin\\Keldrax -Plutonia -udir "_s));

        game.checkPwad("Check7,Main.wad\r\n");
        const QString basic = game.launchedLine();
        QVERIFY2(basic.contains(u" -nc -nws "_s) && !basic.contains(u"-cmd"_s), qPrintable(basic));
        QVERIFY(!game.launcher.settings.BasicDoom);

        game.checkPwad("Check3,Main.wad\r\n");
        QVERIFY(game.launchedLine().contains(u" -boom "_s));
    }

    void theChosenMapDecidesTheIwad()
    {
        InstalledGame game;
        game.addWad(u"VYKGames/Both/Pwads/both.wad"_s, {u"MAP01"_s, u"E1M1"_s});
        game.load();
        game.selectGame(u"BOTH"_s);
        game.pickMap(u"E1M1"_s);
        QVERIFY(game.launchedLine().startsWith(u"Bin\\Keldrax -Doom -udir \"Both\" "_s));
    }

    void aMissingIwadIsNamedByTheMaps()
    {
        InstalledGame game;
        game.launcher.facts.iwads.Path.fill({});
        game.selectGame(u"MANUAL"_s);
        game.verifyRefused(u" Iwad not found for current map"_s, u"requires the Doom2.wad before"_s);
        game.selectGame(u"AUTO GAME"_s);
        game.pickFile(u"first.wad"_s);
        game.verifyRefused(u" Iwad not found for current map"_s, u"requires the Doom.wad before"_s);
    }

    void scriptedMapsNeedTheirResources()
    {
        InstalledGame game;
        game.addWad(u"VYKGames/Blackwater Keep/Pwads/blakeep.wad"_s, {u"MAP01"_s});
        game.show(View::InstalledGames);
        game.selectGame(u"BLACKWATER KEEP"_s);
        game.verifyRefused(u" Map error - updated map required"_s, u"Components of this map"_s);
        game.installation.addFolder(u"Md2/blakeep"_s);
        game.installation.addFolder(u"Data/custom.hires/blakeep"_s);
        game.verifyRefused(u" Model packs required"_s, u"require the model packs"_s);
        Packs::add(game.installation, Packs::Models);
        QFile wad(game.path(u"VYKGames/Blackwater Keep/Pwads/blakeep.wad"_s));
        QVERIFY(wad.open(QIODevice::ReadWrite));
        const QDate first = IsDayBeforeMonth() ? QDate(2020, 8, 10) : QDate(2020, 10, 8);
        QVERIFY(wad.setFileTime(QDateTime(first, {10, 10, 9}), QFileDevice::FileModificationTime));
        game.verifyRefused(u" Map update required"_s, u"an older version"_s);
        QVERIFY(wad.setFileTime(QDateTime(first, {10, 10, 10}), QFileDevice::FileModificationTime));
        QVERIFY(game.launchedLine().contains(u" -usb "_s));

        // So does the add-on's level, which needs the add-on besides.
        InstalledGame vex;
        vex.addWad(u"VYKGames/Vex/Pwads/VEXLEV.WAD"_s, {u"MAP01"_s});
        vex.show(View::InstalledGames);
        vex.selectGame(u"VEX"_s);
        vex.verifyRefused(u" VEX Addon required"_s, u"latest version of the Keldrax VEX"_s);
        vex.installation.add(u"Data/VYK_addon/Vexlev/vexlev_addon.wad"_s, "new");
        vex.verifyRefused(u" Model packs required"_s, u"require the model packs"_s);
        Packs::add(vex.installation, Packs::Models);
        QVERIFY(vex.launchedLine().contains(u" -usb "_s));
    }

    void aNameWithAQuoteIsRefused()
    {
        if (OnWindows)
            QSKIP("no name holds one here");
        InstalledGame game;
        game.addWad(u"VYKGames/A \"quoted\" game/Pwads/x.wad"_s, {u"MAP01"_s});
        game.show(View::InstalledGames);
        game.selectGame(u"A \"QUOTED\" GAME"_s);
        game.verifyRefused(u" Launch error"_s, u"double quote"_s);
    }
};

QTEST_GUILESS_MAIN(LaunchInstalledGameTest)
#include "LaunchInstalledGameTest.moc"
