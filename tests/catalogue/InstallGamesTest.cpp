// Installing games: what is in the catalogue afterwards, also when a call fails or the player cancels.
#include "catalogue/GameStaging.h"
#include "catalogue/InstallGame.h"
#include "tests/support/CommercialGame.h"
#include "tests/support/ZipMaker.h"

#include <QDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// Two files to install, a zip library with one game, and an installed game of each kind.
class Library : public CommercialGame
{
public:
    Library()
    {
        addWad(u"Downloads/My Levels.WAD"_s, {u"MAP01"_s, u"MAP02"_s});
        const QByteArray wad = TemporaryInstallation::wad("PWAD", {u"E1M1"_s, u"THINGS"_s});
        const QByteArray zip = ZipMaker()
                                   .add("Levels/Pack.wad", wad)
                                   .add("Levels/Docs/read me.txt", "text")
                                   .add("Levels/pack.DEH", "patch")
                                   .bytes();
        installation.add(u"Downloads/Pack.zip"_s, zip);
        installation.add(u"VYKArchives/Pack.zip"_s, zip);
        addWad(u"VYKGames/Hand/Pwads/hand.wad"_s, {u"MAP01"_s});
        addWad(u"VYKGames/Auto/Gwads/auto.wad"_s, {u"MAP01"_s});
        installation.add(u"VYKGames/Auto/Gwads/pack.deh"_s, "old patch");
        installation.add(u"VYKGames/Auto/notes.txt"_s, "mine");
        show(View::InstalledGames);
    }

    Controls& controls = launcher.controls;

    Installed install(const QString& file) { return InstallPwadGame(launcher, path(file)); }

    // The selected zip of the library, as a game of either kind.
    void byHand(const QString& name) { unzip(name, controls.mcUdirUnZip); }
    void autoLoading(const QString& name) { unzip(name, controls.mcGwadUnZip); }

    QMap<QString, QByteArray> games() const
    {
        QMap<QString, QByteArray> found;
        for (const QString& file : installation.tree())
            if (file.startsWith(u"VYKGames/"_s))
                found[file.mid(9)] = installation.read(file);
        return found;
    }

private:
    void unzip(const QString& name, const MenuItem& item)
    {
        show(View::ZipLibrary);
        prompts.expectName(name);
        item.clicked();
    }
};

const QStringList packFiles{u"Pack.wad"_s, u"pack.DEH"_s, u"read me.txt"_s};

QStringList below(const QStringList& files, const QString& folder)
{
    QStringList found;
    for (const QString& file : files)
        if (file.startsWith(folder + u'/'))
            found << file.mid(folder.size() + 1);
    return found;
}

} // namespace

class InstallGamesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fromTheDialog()
    {
        Library library;
        Launcher& launcher = library.launcher;
        Controls& controls = library.controls;
        controls.edFilter.text = u"hand"_s;
        controls.edFilter.typed();
        library.prompts.expectFile(library.path(u"Downloads/My Levels.WAD"_s));
        controls.AuxButton[Tool::Install].clicked();
        QCOMPARE(library.prompts.fileQuestions.last().pattern, u"*.zip;*.wad;"_s);
        QCOMPARE(library.prompts.fileQuestions.last().folder, launcher.paths.ArchivesPath);
        QCOMPARE(below(library.games().keys(), u"My Levels"_s), QStringList{u"Pwads/My Levels.WAD"_s});
        QCOMPARE(controls.PwadList.selectedText(), u"MY LEVELS"_s);
        QVERIFY(controls.PwadList.isInSight(controls.PwadList.selected()));
        QCOMPARE(controls.MapList.entries(), (QStringList{u"MAP01"_s, u"MAP02"_s}));
        QCOMPARE(LoadLastInstallFolder(launcher.files, launcher.paths), library.path(u"Downloads"_s));
        QVERIFY(library.hasConfig());

        // The second time it is there already, and nothing changes.
        const auto before = library.games();
        library.installation.add(u"VYKLaunch/Data/pwads.vyk"_s, "/elsewhere\r\n");
        library.prompts.expectFile(library.path(u"Downloads/My Levels.WAD"_s));
        library.prompts.expectMessage();
        controls.AuxButton[Tool::Install].clicked();
        QCOMPARE(library.prompts.titles.last(), u" Duplicate name error"_s);
        QCOMPARE(library.installation.read(u"VYKLaunch/Data/pwads.vyk"_s), "/elsewhere\r\n");

        // Cancelling writes the folder anew; a file of another kind is left alone.
        library.prompts.expectFile({});
        controls.AuxButton[Tool::Install].clicked();
        QCOMPARE(LoadLastInstallFolder(launcher.files, launcher.paths), launcher.paths.ArchivesPath);
        QCOMPARE(library.install(u"VYKGames/Auto/notes.txt"_s), Installed::NotAGame);
        QVERIFY(library.games() == before);
    }

    void droppedFiles()
    {
        Library library;
        const QStringList dropped{library.path(u"Downloads/My Levels.WAD"_s), library.path(u"notes.txt"_s),
                                  library.path(u"Downloads/Pack.zip"_s)};
        library.controls.MainForm.filesDropped(dropped);
        QCOMPARE(below(library.games().keys(), u"Pack/Pwads"_s), packFiles);
        QCOMPARE(library.controls.PwadList.selectedText(), u"PACK"_s);
        QVERIFY(library.controls.PwadList.find(u"my levels"_s) >= 0);
    }

    void fromTheZipLibrary()
    {
        Library library;
        const Controls& controls = library.controls;
        library.show(View::ZipLibrary);
        QCOMPARE(controls.PwadShowlist.entries(),
                 (QStringList{u"pack.DEH"_s, u"Pack.wad"_s, u"read me.txt"_s}));
        QCOMPARE(controls.PwadShowlist.selectedText(), u"Pack.wad"_s);
        QCOMPARE(controls.MapList.entries(), QStringList{u"E1M1"_s});
        QVERIFY(controls.LaunchButton.enabled);
        library.byHand(u"Two"_s);
        QCOMPARE(library.prompts.nameQuestions.last().name, u"Pack"_s);
        QCOMPARE(below(library.games().keys(), u"Two/Pwads"_s), packFiles);
        QCOMPARE(controls.PwadList.selectedText(), u"TWO"_s);
        library.prompts.expectMessage();
        library.byHand(u"HAND"_s);
        QCOMPARE(library.prompts.titles.last(), u" Duplicate name error"_s);

        // Over an auto-loading game: only when the player agrees, and then the whole game goes.
        const auto before = library.games();
        library.prompts.expectMessage(Msg::ResultNo);
        library.byHand(u"auto"_s);
        QVERIFY(library.games() == before);
        library.prompts.expectMessage(Msg::ResultYes);
        library.byHand(u"auto"_s);
        QCOMPARE(below(library.games().keys(), u"auto/Pwads"_s), packFiles);
        QVERIFY(below(library.games().keys(), u"Auto"_s).isEmpty());
    }

    // New, then into the existing one, whatever the spelling of its files; never over one loaded by hand.
    void asAnAutoLoadingGame()
    {
        Library library;
        for (const QString& title : {u" User Directory Conversion"_s, u"User Directory Conversion"_s}) {
            library.prompts.expectMessage();
            library.autoLoading(u"Fresh"_s);
            QCOMPARE(library.prompts.titles.last(), title);
            QCOMPARE(below(library.games().keys(), u"Fresh/Gwads"_s), packFiles);
            QVERIFY(library.launcher.gameIs(GameKind::Gwad));
        }
        library.prompts.expectMessage();
        library.autoLoading(u"Auto"_s);
        const auto games = library.games();
        QCOMPARE(games.value(u"Auto/Gwads/pack.DEH"_s), "patch");
        QVERIFY(!games.contains(u"Auto/Gwads/pack.deh"_s));
        QVERIFY(games.contains(u"Auto/Gwads/auto.wad"_s) && games.contains(u"Auto/notes.txt"_s));
        const QString isThere = u" The hand folder already exists as an auto-loading User Directory     "_s;
        const QString illegal = u" Illegal naming convention detected.    "_s;
        for (const QString& name : {u"hand"_s, u"../x"_s, u"nul"_s, u" "_s}) {
            library.prompts.expectMessage();
            library.autoLoading(name);
            QCOMPARE(library.prompts.texts.last(), name == u"hand"_s ? isThere : illegal);
        }
        QVERIFY(library.games() == games);
    }

    // What cannot be replaced stays, and so does everything else.
    void intoAGameThatResists()
    {
        for (const bool readOnly : {true, false}) {
            Library library;
            const QString file = u"VYKGames/Auto/Gwads/pack.deh"_s;
            if (readOnly)
                QVERIFY(QFile::setPermissions(library.path(file), QFile::ReadOwner));
            else
                library.installation.add(u"VYKGames/Auto/Gwads/read me.txt/mine"_s, "kept");
            const auto before = library.games();
            library.prompts.expectMessage();
            library.autoLoading(u"Auto"_s);
            QCOMPARE(library.prompts.texts.last(),
                     readOnly ? u" Read only error, file can't be overwritten      "_s
                              : u"ERROR: Unknown error     "_s);
            QVERIFY(library.games() == before);
        }
    }

    // Only a living holder keeps others waiting, and then it is said who that is.
    void locks()
    {
        const QString lock = u"VYKGames/.installing.lock"_s;
        for (const char* dead : {"", "123\nVYKlauncher\nanother-machine\n\n\n"}) {
            Library library;
            library.installation.add(lock, dead);
            QCOMPARE(library.install(u"Downloads/Pack.zip"_s), Installed::Done);
        }
        Library library;
        QLockFile held(library.path(lock));
        QVERIFY(held.lock());
        library.prompts.expectMessage();
        QCOMPARE(library.install(u"Downloads/Pack.zip"_s), Installed::Refused);
        QVERIFY(
            library.prompts.texts.last().contains(u"process %1"_s.arg(QCoreApplication::applicationPid())));
        held.unlock();
        QCOMPARE(library.install(u"Downloads/Pack.zip"_s), Installed::Done);
    }

    void badZips()
    {
        Library library;
        const auto before = library.games();
        library.installation.add(u"Downloads/text.zip"_s, "no zip at all");
        library.installation.add(u"VYKArchives/bad.zip"_s, "no zip at all");
        library.prompts.expectMessage();
        QCOMPARE(library.install(u"Downloads/text.zip"_s), Installed::Refused);
        QCOMPARE(library.prompts.titles.last(), u" File error"_s);
        library.prompts.expectMessage();
        library.launcher.settings.SelectedArchive = u"bad"_s;
        library.show(View::ZipLibrary);
        QVERIFY(library.controls.PwadShowlist.isEmpty());
        QVERIFY(!library.controls.LaunchButton.enabled);
        // A zip that cannot be opened is no game to install.
        library.prompts.expectMessage();
        library.controls.mcUdirUnZip.clicked();
        QVERIFY(library.games() == before);
    }

    // Once the player has no password, none is asked for again.
    void passwords()
    {
        Library library;
        library.installation.add(u"Downloads/locked.zip"_s, LockedZip("door.wad", "wad", "sesame", "aes256"));
        library.prompts.expectPassword(u"wrong"_s);
        library.prompts.expectPassword(u"sesame"_s);
        QCOMPARE(library.install(u"Downloads/locked.zip"_s), Installed::Done);
        QCOMPARE(library.games().value(u"locked/Pwads/door.wad"_s), "wad");
        library.installation.add(u"Downloads/other.zip"_s, LockedZip("door.wad", "wad", "sesame", "aes256"));
        library.prompts.expectPassword({});
        for (int attempt = 0; attempt < 2; ++attempt) {
            library.prompts.expectMessage();
            QCOMPARE(library.install(u"Downloads/other.zip"_s), Installed::Refused);
        }
    }

    void cancelling()
    {
        for (const QString& file : {u"Downloads/My Levels.WAD"_s, u"Downloads/Pack.zip"_s}) {
            Library library;
            const auto before = library.games();
            library.prompts.stepsUntilCancelled = 0;
            QCOMPARE(library.install(file), Installed::Refused);
            QVERIFY(library.games() == before);
            QVERIFY(!QDir(library.path(u"VYKGames/.installing"_s)).exists());
        }
    }

    // What an installation that was cut off had moved aside comes back, an addition that was decided is done,
    // and what was replaced for good goes.
    void recovering()
    {
        Library library;
        const auto before = library.games();
        const QString work = u"VYKGames/.installing/"_s;
        library.addWad(work + u"new/Half/Pwads/half.wad"_s, {u"MAP01"_s});
        QDir(library.path(u"VYKGames"_s)).rename(u"Hand"_s, u".installing/hand"_s);
        QDir(library.path(work)).mkdir(u"games"_s);
        QDir(library.path(work)).rename(u"hand"_s, u"games/Hand"_s);
        library.installation.add(work + u"games/Auto/Gwads/auto.wad"_s, "replaced");
        library.installation.add(work + u"gone/Old/Pwads/old.wad"_s, "removed");
        library.installation.add(work + u"Pwads/own.wad"_s, "somebody's game of that name");
        library.installation.add(work + u"adding/Auto/Gwads/pack.deh"_s, "new");
        library.installation.add(work + u"adding/Auto/Gwads/more.wad"_s, "more");
        RecoverGames(library.files, library.launcher.paths.GamesPath);
        auto games = library.games();
        QCOMPARE(games.take(u".installing/Pwads/own.wad"_s), "somebody's game of that name");
        QCOMPARE(std::exchange(games[u"Auto/Gwads/pack.deh"_s], before[u"Auto/Gwads/pack.deh"_s]), "new");
        QCOMPARE(games.take(u"Auto/Gwads/more.wad"_s), "more");
        QVERIFY(games == before);
    }
};

QTEST_GUILESS_MAIN(InstallGamesTest)
#include "InstallGamesTest.moc"
