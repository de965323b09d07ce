// Converting, renaming and removing installed games: what is on disk afterwards, also when a call fails.
#include "launch/LaunchPlan.h"
#include "tests/support/CommercialGame.h"
#include "tests/support/ZipMaker.h"

#include <QDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

using Contents = QMap<QString, QByteArray>;

// Beside the Md2 that is there, where both can be.
const QString Model = OnWindows ? u"Md2/main/model.md2"_s : u"MD2/main/model.md2"_s;

// Three games and two zips, what they left elsewhere, and things that belong to none of them.
class Collection : public CommercialGame
{
public:
    explicit Collection(const QString& selected, View view = View::InstalledGames)
    {
        addWad(u"VYKGames/Alpha/Pwads/main.wad"_s, {u"MAP01"_s, u"MAP02"_s});
        addWad(u"VYKGames/Beta/Gwads/one.wad"_s, {u"E1M1"_s});
        addWad(u"VYKGames/Beta/Gwads/two.wad"_s, {u"E1M2"_s});
        addWad(u"VYKGames/Gamma/Pwads/old.wad"_s, {u"MAP01"_s});
        addWad(u"VYKGames/Gamma/Gwads/new.wad"_s, {u"MAP03"_s});
        const QString others =
            u"VYKGames/Alpha/Pwads/readme.txt|VYKGames/Alpha/Pwads/more/deep.txt|VYKGames/Alpha/savegame/0|"
            "VYKGames/Alpha/Pwads/main.vykchk|VYKGames/Beta/Gwads/one.vykchk|VYKGames/Alphabet/Pwads/x.wad|"
            "VYKGames/Gamma/Pwads/same.deh|VYKGames/Gamma/Gwads/same.deh|"
            "VYKLaunch/GameInfo/Pwads/alpha.vykm|VYKLaunch/GameInfo/Pwads/alphabet.vykm|"
            "VYKLaunch/GameInfo/Gwads/beta.vykm|VYKLaunch/GameInfo/Zips/pack.vykm|"
            "VYKLaunch/GameInfo/Save/alpha.vyks|VYKLaunch/GameInfo/Save/Gwads/beta/one.vyks|"
            "VYKLaunch/GameInfo/Save/Zip/pack.vyks|VYKLaunch/Zips/Checks/Pack.vykchk|"
            "MD2/other/model.md2|Data/Custom.hires/MAIN/wall.png|Data/Custom.music/main/song.ogg|"
            "VYKAnFiles/Main01.gwa|VYKAnFiles/other.gwa|gwa/main.gwa|gwa/one1.gwa|"
            "Desktop/Keldrax Shortcuts/Alpha - Map01.lnk|Desktop/Keldrax Shortcuts/Zeta.lnk|"
            "Menu/Keldrax Shortcuts/Beta - one.lnk|Menu/Keldrax Shortcuts/Beta - two.lnk|"
            "UserSG/main/savegame/KeldraxSav1.vyksg|UserSG/pack/savegame/KeldraxSav0.vyksg"_s;
        for (const QString& file : others.split(u'|') + QStringList{Model})
            installation.add(file, file.toUtf8());
        // The record of the file chosen in the Gwad game.
        installation.add(u"VYKLaunch/GameInfo/Gwads/beta.vykg"_s, "one.wad\r\n");
        const QByteArray wad = TemporaryInstallation::wad("PWAD", {u"MAP01"_s, u"THINGS"_s});
        installation.add(u"VYKArchives/Pack.ZIP"_s, ZipMaker().add("pack.wad", wad).bytes());
        installation.add(u"VYKArchives/other.zip"_s, ZipMaker().add("two.wad", wad).bytes());
        show(view);
        selectGame(selected);
        before = contents();
    }

    // The answers that let a command go on, and the command.
    void run(MenuItem Controls::*command)
    {
        if (command == &Controls::mcRenameFolder || command == &Controls::mcRenameArchive)
            prompts.expectName(u"Omega"_s);
        else if (command != &Controls::mcGwadConvert && command != &Controls::mcUdirConvert)
            prompts.expectMessage(Msg::ResultYes);
        (controls.*command).clicked();
    }

    Controls& controls = launcher.controls;

    // All but what selecting a game writes by the way.
    Contents contents() const
    {
        Contents found;
        for (const QString& file : installation.tree())
            if (!file.endsWith(u"pwad.vyk"_s) && !file.startsWith(u"VYKLaunch/Zips/other"_s) &&
                !file.startsWith(u"VYKLaunch/Zips/pack"_s) && !file.startsWith(u"VYKLaunch/Zips/new"_s))
                found[file] = installation.read(file);
        return found;
    }

    // The paths that are gone since the start, and those that are new.
    QStringList gone() const { return difference(before, contents()); }
    QStringList added() const { return difference(contents(), before); }

    Contents before;

private:
    static QStringList difference(const Contents& from, const Contents& what)
    {
        QStringList paths = from.keys();
        paths.removeIf([&](const QString& path) { return what.contains(path); });
        return paths;
    }
};

// Every file of the games and zips that was there has its bytes somewhere.
bool keepsEveryFile(const Collection& games)
{
    const Contents now = games.contents();
    for (auto file = games.before.cbegin(); file != games.before.cend(); ++file)
        if ((file.key().startsWith(u"VYKGames/"_s) || file.key().startsWith(u"VYKArchives/"_s)) &&
            !file.key().endsWith(u".vykchk"_s) && !now.values().contains(file.value()))
            return false;
    return true;
}

} // namespace

class ChangeGamesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void converting()
    {
        Collection games(u"ALPHA"_s);
        games.controls.mcGwadConvert.clicked();
        QCOMPARE(games.gone(),
                 (QStringList{u"VYKGames/Alpha/Pwads/main.vykchk"_s, u"VYKGames/Alpha/Pwads/main.wad"_s,
                              u"VYKGames/Alpha/Pwads/more/deep.txt"_s, u"VYKGames/Alpha/Pwads/readme.txt"_s,
                              u"VYKLaunch/GameInfo/Pwads/alpha.vykm"_s}));
        QCOMPARE(games.added(),
                 (QStringList{u"VYKGames/Alpha/Gwads/main.wad"_s, u"VYKGames/Alpha/Gwads/more/deep.txt"_s,
                              u"VYKGames/Alpha/Gwads/readme.txt"_s}));
        QCOMPARE(games.controls.PwadList.selectedText(), u"ALPHA"_s);

        // A game with both folders: what the auto-loading one holds wins.
        Collection both(u"GAMMA"_s);
        both.controls.mcUdirConvert.clicked();
        QCOMPARE(both.added(), QStringList{u"VYKGames/Gamma/Pwads/new.wad"_s});
        QCOMPARE(both.gone(),
                 (QStringList{u"VYKGames/Gamma/Gwads/new.wad"_s, u"VYKGames/Gamma/Gwads/same.deh"_s}));
        QCOMPARE(both.installation.read(u"VYKGames/Gamma/Pwads/same.deh"_s), "VYKGames/Gamma/Gwads/same.deh");
        QVERIFY(both.launcher.gameIs(GameKind::Pwad));
    }

    void renaming()
    {
        Collection games(u"ALPHA"_s);
        games.prompts.expectName(u"  \u00dcber Alpha "_s);
        games.controls.mcRenameFolder.clicked();
        QCOMPARE(games.prompts.nameQuestions.last().name, u"Alpha"_s);
        QCOMPARE(games.prompts.nameQuestions.last().button, u"Cancel"_s);
        QVERIFY(keepsEveryFile(games));
        QVERIFY(games.installation.exists(u"VYKGames/\u00dcber Alpha/Pwads/more/deep.txt"_s));
        QStringList gone = games.gone();
        QCOMPARE(gone.removeIf([](const QString& path) { return path.startsWith(u"VYKGames/Alpha/"_s); }), 5);
        QCOMPARE(gone, (QStringList{u"Desktop/Keldrax Shortcuts/Alpha - Map01.lnk"_s,
                                    u"VYKAnFiles/Main01.gwa"_s, u"VYKLaunch/GameInfo/Pwads/alpha.vykm"_s,
                                    u"VYKLaunch/GameInfo/Save/alpha.vyks"_s}));
        QCOMPARE(games.controls.PwadList.selectedText(), u"\u00dcBER ALPHA"_s);
        QCOMPARE(games.launcher.settings.SelectedGame, u"\u00dcber Alpha"_s);
    }

    void refusedNames()
    {
        const auto refuses = [](const std::optional<QString>& name, const QString& title) {
            Collection games(u"ALPHA"_s);
            games.prompts.expectName(name);
            if (!title.isEmpty())
                games.prompts.expectMessage();
            games.controls.mcRenameFolder.clicked();
            return games.prompts.titles.value(0) == title && games.contents() == games.before;
        };
        QVERIFY(refuses(std::nullopt, {}) && refuses(QString(), {}));
        for (const QString& name : {u"beta"_s, u"ALPHA"_s})
            QVERIFY2(refuses(name, u" Duplicate name error"_s), qPrintable(name));
        for (const QString& name : {u"  "_s, u"../Beta2"_s, u"a\\b"_s, u".."_s, u"c:x"_s, u"what?"_s,
                                    u"aux.wad"_s, u"-fast"_s, u".Installing"_s, QString(300, u'x')})
            QVERIFY2(refuses(name, u" Renaming error"_s), qPrintable(name));
    }

    void removing()
    {
        Collection games(u"ALPHA"_s);
        games.prompts.expectMessage(Msg::ResultNo);
        games.controls.mcDeleteFolder.clicked();
        QVERIFY(games.contents() == games.before);

        games.run(&Controls::mcDeleteFolder);
        QCOMPARE(
            games.gone(),
            (QStringList{u"Data/Custom.hires/MAIN/wall.png"_s, u"Data/Custom.music/main/song.ogg"_s,
                         u"Desktop/Keldrax Shortcuts/Alpha - Map01.lnk"_s, Model, u"VYKAnFiles/Main01.gwa"_s,
                         u"VYKGames/Alpha/Pwads/main.vykchk"_s, u"VYKGames/Alpha/Pwads/main.wad"_s,
                         u"VYKGames/Alpha/Pwads/more/deep.txt"_s, u"VYKGames/Alpha/Pwads/readme.txt"_s,
                         u"VYKGames/Alpha/savegame/0"_s, u"VYKLaunch/GameInfo/Pwads/alpha.vykm"_s,
                         u"VYKLaunch/GameInfo/Save/alpha.vyks"_s, u"gwa/main.gwa"_s}));
        QCOMPARE(games.added(), QStringList());
        QCOMPARE(games.controls.PwadList.selectedText(), u"ALPHABET"_s);

        Collection other(u"BETA"_s);
        other.run(&Controls::mcDeleteFolder);
        QCOMPARE(
            other.gone(),
            (QStringList{u"Menu/Keldrax Shortcuts/Beta - one.lnk"_s,
                         u"Menu/Keldrax Shortcuts/Beta - two.lnk"_s, u"VYKGames/Beta/Gwads/one.vykchk"_s,
                         u"VYKGames/Beta/Gwads/one.wad"_s, u"VYKGames/Beta/Gwads/two.wad"_s,
                         u"VYKLaunch/GameInfo/Gwads/beta.vykg"_s, u"VYKLaunch/GameInfo/Gwads/beta.vykm"_s,
                         u"VYKLaunch/GameInfo/Save/Gwads/beta/one.vyks"_s, u"gwa/one1.gwa"_s}));

        Collection file(u"BETA"_s);
        file.run(&Controls::mcDeleteFile);
        QCOMPARE(file.prompts.texts.last(), u"Are you certain you wish to delete ONE.WAD?       "_s);
        QCOMPARE(file.gone(),
                 (QStringList{u"Menu/Keldrax Shortcuts/Beta - one.lnk"_s, u"VYKGames/Beta/Gwads/one.wad"_s,
                              u"VYKLaunch/GameInfo/Save/Gwads/beta/one.vyks"_s, u"gwa/one1.gwa"_s}));
    }

    // What is no WAD takes nothing with it.
    void aReadme()
    {
        Collection text(u"BETA"_s);
        text.installation.add(u"VYKGames/Beta/Gwads/one.txt"_s);
        text.selectGame(u"ALPHA"_s);
        text.selectGame(u"BETA"_s);
        text.pickFile(u"one.txt"_s);
        text.before = text.contents();
        text.run(&Controls::mcDeleteFile);
        QCOMPARE(text.gone(), QStringList{u"VYKGames/Beta/Gwads/one.txt"_s});
    }

    // The trash keeps what is removed, and its records are there when it comes back; what it does not take
    // goes only when the player says so.
    void theTrash()
    {
        const struct
        {
            bool takes;
            int answer;
            qsizetype gone;
        } rows[] = {{true, 0, 11}, {false, Msg::ResultNo, 0}, {false, Msg::ResultYes, 13}};
        for (const auto& row : rows) {
            if (row.takes && OnWindows) // Wine has no trash
                continue;
            Collection games(u"ALPHA"_s);
            games.files.trash = true;
            games.files.trashTakes = row.takes;
            games.prompts.expectMessage(Msg::ResultYes);
            if (!row.takes)
                games.prompts.expectMessage(row.answer);
            games.controls.mcDeleteFolder.clicked();
            QVERIFY(games.prompts.texts.first().endsWith(u"It goes to the trash.    "_s));
            QCOMPARE(games.gone().size(), row.gone);
            QCOMPARE(games.installation.exists(u"VYKLaunch/GameInfo/Pwads/alpha.vykm"_s),
                     row.takes || row.gone == 0);
        }
    }

    // A file whose name means a folder above, a model pack or another game's WAD takes nothing with it.
    void hostileFileNames()
    {
        for (const QString& name : {u"...wad"_s, u"Monsters.wad"_s, u"main.txt"_s}) {
            Collection games(u"ALPHA"_s);
            games.installation.add(u"MD2/Monsters/imp.md2"_s);
            games.before = games.contents();
            games.addWad(u"VYKGames/Evil/Pwads/"_s + name, {u"MAP01"_s});
            games.show(View::InstalledGames);
            games.selectGame(u"EVIL"_s);
            games.controls.chkLaunchPrefs[LaunchPrefs::WadFilesOnly].setTicked(false);
            games.pickFile(name);
            games.run(&Controls::mcDeleteFolder);
            QVERIFY2(games.contents() == games.before, qPrintable(name));
        }
    }

    // A linked folder is no more than the link, and a name with a '\' leads nowhere else.
    void linksAndBackslashes()
    {
        if (OnWindows)
            QSKIP("not everybody makes links here, and a '\\' divides");
        Collection games(u"ALPHA"_s);
        games.installation.add(u"Elsewhere/Pwads/kept.wad"_s, "kept");
        games.installation.add(u"VYKGames/..\\../Pwads/x.wad"_s);
        QVERIFY(QFile::link(games.path(u"Elsewhere"_s), games.path(u"VYKGames/Linked"_s)));
        games.show(View::InstalledGames);
        QVERIFY(!games.controls.PwadList.entries().join(u' ').contains(u'\\'));
        games.selectGame(u"LINKED"_s);
        games.run(&Controls::mcDeleteFolder);
        QVERIFY(!games.installation.exists(u"VYKGames/Linked"_s));
        QCOMPARE(games.installation.read(u"Elsewhere/Pwads/kept.wad"_s), "kept");
    }

    void renamingZips()
    {
        Collection zips(u"PACK"_s, View::ZipLibrary);
        for (const QString& name : {u"OTHER"_s, u"a/b"_s}) {
            zips.prompts.expectName(name);
            zips.prompts.expectMessage();
            zips.controls.mcRenameArchive.clicked();
            QCOMPARE(zips.prompts.texts.last(), u" Illegal naming convention detected. "_s);
            QVERIFY(zips.contents() == zips.before);
            zips.selectGame(u"PACK"_s);
        }
        zips.prompts.expectName(u"pack"_s); // the same name, spelled otherwise: its records stay
        zips.controls.mcRenameArchive.clicked();
        const bool sameFile = OnWindows; // which may keep its spelling
        QVERIFY(zips.gone() == QStringList{u"VYKArchives/Pack.ZIP"_s} || (sameFile && zips.gone().isEmpty()));
        zips.prompts.expectName(u"New & old"_s);
        zips.controls.mcRenameArchive.clicked();
        QCOMPARE(zips.added(), QStringList{u"VYKArchives/New & old.zip"_s});
        QCOMPARE(zips.gone(),
                 (QStringList{u"VYKArchives/Pack.ZIP"_s, u"VYKLaunch/GameInfo/Save/Zip/pack.vyks"_s,
                              u"VYKLaunch/GameInfo/Zips/pack.vykm"_s}));
        QCOMPARE(zips.controls.PwadList.selectedText(), u"NEW & OLD"_s);
        QCOMPARE(zips.controls.MapList.entries(), QStringList{u"MAP01"_s});
    }

    // The savegames go with the zip, unless an installed game has them too.
    void deletingZips()
    {
        for (const bool installedToo : {false, true}) {
            Collection zips(u"PACK"_s, View::ZipLibrary);
            if (installedToo)
                zips.addWad(u"VYKGames/Same/Pwads/PACK.wad"_s, {u"MAP01"_s});
            zips.prompts.expectMessage(Msg::ResultNo);
            zips.controls.mcDeleteArchive.clicked();
            QVERIFY(zips.gone().isEmpty());
            zips.run(&Controls::mcDeleteArchive);
            QVERIFY(!zips.installation.exists(u"VYKArchives/Pack.ZIP"_s));
            QVERIFY(!zips.installation.exists(u"VYKLaunch/GameInfo/Save/Zip/pack.vyks"_s));
            QVERIFY(!zips.installation.exists(u"VYKLaunch/Zips/Checks/Pack.vykchk"_s));
            QCOMPARE(zips.installation.exists(u"UserSG/pack"_s), installedToo);
            QVERIFY(zips.installation.exists(u"UserSG/main"_s));
            QCOMPARE(zips.controls.PwadList.entries(), QStringList{u"OTHER"_s});
            QCOMPARE(zips.controls.PwadShowlist.entries(), QStringList{u"two.wad"_s});
        }
    }

    void deletingSavegames()
    {
        Collection games(u"ALPHA"_s);
        games.installation.add(u"UserSG/main/savegame/KeldraxSav2.vyksg"_s, "Second\0"_ba);
        games.launcher.settings.Skill = 3;
        games.pickSkill(3);
        games.selectGame(u"ALPHA"_s);
        games.pickSavegame(u"2 - Second"_s);
        games.prompts.expectMessage(Msg::ResultNo);
        games.controls.mcDelSaveGame.clicked();
        QVERIFY(games.installation.exists(u"UserSG/main/savegame/KeldraxSav2.vyksg"_s));
        games.prompts.expectMessage(Msg::ResultYes);
        games.controls.mcDelSaveGame.clicked();
        QVERIFY(!games.installation.exists(u"UserSG/main/savegame/KeldraxSav2.vyksg"_s));
        QCOMPARE(games.controls.MapList.selectedText(), u"MAP01"_s);
        QCOMPARE(games.controls.SaveGameList.count(), 1);

        games.files.failOn(u"UserSG/main"_s, FileError::Kind::InUse);
        games.prompts.expectMessage(Msg::ResultYes);
        games.prompts.expectMessage();
        games.controls.ButPurge[Purge::SaveGames].clicked();
        QCOMPARE(games.prompts.titles.last(), u" Access error "_s);
        QVERIFY(games.installation.exists(u"VYKGames/Alpha/savegame/0"_s));

        games.files.failOn({}, FileError::Kind::InUse);
        games.prompts.expectMessage(Msg::ResultYes);
        games.controls.ButPurge[Purge::SaveGames].clicked();
        QVERIFY(!games.installation.exists(u"UserSG/main"_s));
        QVERIFY(!games.installation.exists(u"VYKGames/Alpha/savegame"_s));
        QVERIFY(!games.installation.exists(u"VYKAnFiles"_s));
        QVERIFY(!games.installation.exists(u"VYKLaunch/GameInfo/Save"_s));
        QVERIFY(games.installation.exists(u"VYKGames/Alpha/Pwads/main.wad"_s));
        QVERIFY(games.controls.SaveGameList.isEmpty());
    }
};

QTEST_GUILESS_MAIN(ChangeGamesTest)
#include "ChangeGamesTest.moc"
