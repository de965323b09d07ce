// Converting, renaming and removing installed games: what is on disk afterwards, also when a call fails.
#include "catalogue/ConvertGame.h"
#include "catalogue/GameLists.h"
#include "catalogue/RemoveGame.h"
#include "catalogue/RenameGame.h"
#include "savegames/DeleteSaveGames.h"
#include "tests/support/CommercialGame.h"
#include "tests/support/ZipMaker.h"

#include <QDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

using Contents = QMap<QString, QByteArray>;

// Beside the Md2 that is there, where both can be.
const QString Model = OnWindows ? u"Md2/main/model.md2"_s : u"MD2/main/model.md2"_s;

// Three games, what they left elsewhere, and things that belong to none of them.
class Collection : public CommercialGame
{
public:
    explicit Collection(const QString& selected)
    {
        addWad(u"VYKGames/Alpha/Pwads/main.wad"_s, {u"MAP01"_s, u"MAP02"_s});
        addWad(u"VYKGames/Beta/Gwads/one.wad"_s, {u"E1M1"_s});
        addWad(u"VYKGames/Beta/Gwads/two.wad"_s, {u"E1M2"_s});
        addWad(u"VYKGames/Gamma/Pwads/old.wad"_s, {u"MAP01"_s});
        addWad(u"VYKGames/Gamma/Gwads/new.wad"_s, {u"MAP03"_s});
        for (const QString& file : {u"VYKGames/Alpha/Pwads/readme.txt"_s,
                                    u"VYKGames/Alpha/Pwads/more/deep.txt"_s,
                                    u"VYKGames/Alpha/Pwads/main.vykchk"_s,
                                    u"VYKGames/Alpha/savegame/0"_s,
                                    u"VYKGames/Beta/Gwads/one.vykchk"_s,
                                    u"VYKGames/Gamma/Pwads/same.deh"_s,
                                    u"VYKGames/Gamma/Gwads/same.deh"_s,
                                    u"VYKGames/Alphabet/Pwads/x.wad"_s,
                                    u"VYKLaunch/GameInfo/Pwads/alpha.vykm"_s,
                                    u"VYKLaunch/GameInfo/Save/alpha.vyks"_s,
                                    u"VYKLaunch/GameInfo/Gwads/beta.vykm"_s,
                                    u"VYKLaunch/GameInfo/Save/Gwads/beta/one.vyks"_s,
                                    u"VYKLaunch/GameInfo/Pwads/alphabet.vykm"_s,
                                    Model,
                                    u"MD2/other/model.md2"_s,
                                    u"Data/Custom.hires/MAIN/wall.png"_s,
                                    u"Data/Custom.music/main/song.ogg"_s,
                                    u"VYKAnFiles/Main01.gwa"_s,
                                    u"VYKAnFiles/other.gwa"_s,
                                    u"gwa/main.gwa"_s,
                                    u"gwa/one1.gwa"_s,
                                    u"Desktop/Keldrax Shortcuts/Alpha - Map01.lnk"_s,
                                    u"Desktop/Keldrax Shortcuts/Zeta.lnk"_s,
                                    u"Menu/Keldrax Shortcuts/Beta - one.lnk"_s,
                                    u"Menu/Keldrax Shortcuts/Beta - two.lnk"_s,
                                    u"UserSG/main/savegame/KeldraxSav1.vyksg"_s})
            installation.add(file, file.toUtf8());
        // The record of the file chosen in the Gwad game.
        installation.add(u"VYKLaunch/GameInfo/Gwads/beta.vykg"_s, "one.wad\r\n");
        OptionUdirClick(launcher, installedGames);
        selectGame(selected);
        before = contents();
    }

    // All but what selecting a game writes by the way.
    Contents contents() const
    {
        Contents found;
        for (const QString& file : installation.tree())
            if (!file.endsWith(u"pwad.vyk"_s))
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

struct Operation
{
    const char* name;
    QString game;
    std::function<void(Collection&)> run;
    QString title, denied, otherTitle, other;
    bool keepsEveryFile;
};

const QString partlyRemoved = u"Unable to fully remove the selected item from the games list,       \r\n"
                              "associated files or folders may be in use by another program."_s;

QList<Operation> operations()
{
    const QString conversion = u" Conversion error"_s;
    const QString access = u" Access error"_s;
    const QString unknown = u"ERROR: Unknown error     "_s;
    return {
        {"to Gwad", u"ALPHA"_s, [](Collection& games) { ConvertToGwad(games.launcher); }, conversion,
         u"Access denied: File or folder may be in use     "_s, conversion, unknown, true},
        {"to Pwad", u"BETA"_s, [](Collection& games) { ConvertToPwad(games.launcher); }, conversion,
         u"Read only error, file can't be overwritten     "_s, conversion, unknown, true},
        {"rename", u"ALPHA"_s,
         [](Collection& games) {
             games.prompts.expectName(u"Omega"_s);
             RenameInstalledGame(games.launcher);
         },
         access,
         u"Unable to rename the selected item in this list,       \r\n"
         "  the item may be in use by another program."_s,
         u" Renaming error"_s, u" Illegal naming convention detected.    "_s, true},
        {"remove", u"ALPHA"_s,
         [](Collection& games) {
             games.prompts.expectMessage(Msg::ResultYes);
             RemoveInstalledGame(games.launcher);
         },
         access, partlyRemoved, access, partlyRemoved, false},
        {"delete file", u"BETA"_s,
         [](Collection& games) {
             games.prompts.expectMessage(Msg::ResultYes);
             DeleteGameFile(games.launcher);
         },
         access, partlyRemoved, access, partlyRemoved, false},
    };
}

// Two zips, of which the one with records and savegames is selected.
class Zips : public Collection
{
public:
    Zips() : Collection(u"ALPHA"_s)
    {
        const QByteArray wad = TemporaryInstallation::wad("PWAD", {u"MAP01"_s, u"THINGS"_s});
        installation.add(u"VYKArchives/Pack.ZIP"_s, ZipMaker().add("pack.wad", wad).bytes());
        installation.add(u"VYKArchives/other.zip"_s, ZipMaker().add("two.wad", wad).bytes());
        for (const QString& file :
             {u"VYKLaunch/GameInfo/Zips/pack.vykm"_s, u"VYKLaunch/Zips/Checks/Pack.vykchk"_s,
              u"VYKLaunch/GameInfo/Save/Zip/pack.vyks"_s, u"UserSG/pack/savegame/KeldraxSav0.vyksg"_s})
            installation.add(file);
        OptionUdirClick(launcher, zipLibrary);
        selectGame(u"PACK"_s);
        before = contents();
    }
};

// Every file of the games that was there has its bytes somewhere in the games.
bool keepsEveryFile(const Collection& games)
{
    const Contents now = games.contents();
    for (auto file = games.before.cbegin(); file != games.before.cend(); ++file)
        if (file.key().startsWith(u"VYKGames/"_s) && !file.key().endsWith(u".vykchk"_s) &&
            !now.values().contains(file.value()))
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
        ConvertToGwad(games.launcher);
        QCOMPARE(games.gone(),
                 (QStringList{u"VYKGames/Alpha/Pwads/main.vykchk"_s, u"VYKGames/Alpha/Pwads/main.wad"_s,
                              u"VYKGames/Alpha/Pwads/more/deep.txt"_s, u"VYKGames/Alpha/Pwads/readme.txt"_s,
                              u"VYKLaunch/GameInfo/Pwads/alpha.vykm"_s}));
        QCOMPARE(games.added(),
                 (QStringList{u"VYKGames/Alpha/Gwads/main.wad"_s, u"VYKGames/Alpha/Gwads/more/deep.txt"_s,
                              u"VYKGames/Alpha/Gwads/readme.txt"_s}));
        QVERIFY(games.launcher.selection.GwadSelected);
        QCOMPARE(games.launcher.controls.PwadList.selectedText(), u"ALPHA"_s);

        // A game with both folders: what the auto-loading one holds wins.
        Collection both(u"GAMMA"_s);
        ConvertToPwad(both.launcher);
        QCOMPARE(both.added(), QStringList{u"VYKGames/Gamma/Pwads/new.wad"_s});
        QCOMPARE(both.gone(),
                 (QStringList{u"VYKGames/Gamma/Gwads/new.wad"_s, u"VYKGames/Gamma/Gwads/same.deh"_s}));
        QCOMPARE(both.installation.read(u"VYKGames/Gamma/Pwads/same.deh"_s), "VYKGames/Gamma/Gwads/same.deh");
        QVERIFY(both.launcher.selection.PwadSelected);
    }

    // With a WAD below the third place the files may be more than a game that is loaded by hand wants.
    void convertingManyFilesAsks()
    {
        for (const bool agreed : {false, true}) {
            Collection games(u"BETA"_s);
            for (const QString& name : {u"three"_s, u"zwo"_s})
                games.addWad(u"VYKGames/Beta/Gwads/"_s + name + u".wad"_s, {u"E1M3"_s});
            games.selectGame(u"BETA"_s);
            games.prompts.expectMessage(agreed ? Msg::ResultYes : Msg::ResultNo);
            ConvertToPwad(games.launcher);
            QCOMPARE(games.prompts.titles.last(), u" User Directory Conversion"_s);
            QCOMPARE(games.installation.exists(u"VYKGames/Beta/Pwads/zwo.wad"_s), agreed);
            QCOMPARE(games.installation.exists(u"VYKGames/Beta/Gwads"_s), !agreed);
        }
    }

    void renaming()
    {
        Collection games(u"ALPHA"_s);
        games.prompts.expectName(u"  \u00dcber Alpha "_s);
        RenameInstalledGame(games.launcher);
        QCOMPARE(games.prompts.nameQuestions.last().name, u"Alpha"_s);
        QCOMPARE(games.prompts.nameQuestions.last().button, u"Cancel"_s);
        QVERIFY(keepsEveryFile(games));
        QVERIFY(games.installation.exists(u"VYKGames/\u00dcber Alpha/Pwads/more/deep.txt"_s));
        QVERIFY(!games.installation.exists(u"VYKGames/Alpha"_s));
        for (const QString& left :
             {u"VYKLaunch/GameInfo/Pwads/alpha.vykm"_s, u"VYKAnFiles/Main01.gwa"_s,
              u"VYKLaunch/GameInfo/Save/alpha.vyks"_s, u"Desktop/Keldrax Shortcuts/Alpha - Map01.lnk"_s})
            QVERIFY2(!games.installation.exists(left), qPrintable(left));
        for (const QString& kept :
             {u"VYKAnFiles/other.gwa"_s, u"gwa/main.gwa"_s, Model,
              u"VYKLaunch/GameInfo/Pwads/alphabet.vykm"_s, u"Desktop/Keldrax Shortcuts/Zeta.lnk"_s})
            QVERIFY2(games.installation.exists(kept), qPrintable(kept));
        QCOMPARE(games.launcher.controls.PwadList.selectedText(), u"\u00dcBER ALPHA"_s);
        QCOMPARE(games.launcher.settings.SelectedGame, u"\u00dcber Alpha"_s);
        QCOMPARE(games.launcher.controls.PwadList.count(), 4);
    }

    void refusedNames()
    {
        const QList<QPair<QString, QString>> rows{
            {QString(), QString()},
            {u"beta"_s, u" Duplicate name error"_s},
            {u"ALPHA"_s, u" Duplicate name error"_s},
            {u"  "_s, u" Renaming error"_s},
            {u"../Beta2"_s, u" Renaming error"_s},
            {u"a\\b"_s, u" Renaming error"_s},
            {u".."_s, u" Renaming error"_s},
            {u"c:x"_s, u" Renaming error"_s},
            {u"what?"_s, u" Renaming error"_s},
            {u"aux.wad"_s, u" Renaming error"_s},
            {u".Installing"_s, u" Renaming error"_s},
            {QString(300, u'x'), u" Renaming error"_s},
        };
        for (const auto& [name, title] : rows) {
            Collection games(u"ALPHA"_s);
            games.prompts.expectName(name);
            if (!title.isEmpty())
                games.prompts.expectMessage();
            RenameInstalledGame(games.launcher);
            QCOMPARE(games.prompts.titles.value(0), title);
            QVERIFY2(games.contents() == games.before, qPrintable(name));
        }
        Collection games(u"ALPHA"_s);
        games.prompts.expectName(std::nullopt);
        RenameInstalledGame(games.launcher);
        QVERIFY(games.contents() == games.before);
    }

    void removing()
    {
        Collection games(u"ALPHA"_s);
        games.prompts.expectMessage(Msg::ResultNo);
        RemoveInstalledGame(games.launcher);
        QVERIFY(games.contents() == games.before);

        games.prompts.expectMessage(Msg::ResultYes);
        RemoveInstalledGame(games.launcher);
        QCOMPARE(
            games.gone(),
            (QStringList{u"Data/Custom.hires/MAIN/wall.png"_s, u"Data/Custom.music/main/song.ogg"_s,
                         u"Desktop/Keldrax Shortcuts/Alpha - Map01.lnk"_s, Model, u"VYKAnFiles/Main01.gwa"_s,
                         u"VYKGames/Alpha/Pwads/main.vykchk"_s, u"VYKGames/Alpha/Pwads/main.wad"_s,
                         u"VYKGames/Alpha/Pwads/more/deep.txt"_s, u"VYKGames/Alpha/Pwads/readme.txt"_s,
                         u"VYKGames/Alpha/savegame/0"_s, u"VYKLaunch/GameInfo/Pwads/alpha.vykm"_s,
                         u"VYKLaunch/GameInfo/Save/alpha.vyks"_s, u"gwa/main.gwa"_s}));
        QCOMPARE(games.added(), QStringList());
        QCOMPARE(games.launcher.controls.PwadList.selectedText(), u"ALPHABET"_s);

        Collection other(u"BETA"_s);
        other.prompts.expectMessage(Msg::ResultYes);
        RemoveInstalledGame(other.launcher);
        QVERIFY(!other.installation.exists(u"VYKGames/Beta"_s));
        QVERIFY(!other.installation.exists(u"VYKLaunch/GameInfo/Save/Gwads/beta"_s));
        QVERIFY(!other.installation.exists(u"VYKLaunch/GameInfo/Gwads/beta.vykg"_s));
        QVERIFY(!other.installation.exists(u"Menu/Keldrax Shortcuts/Beta - two.lnk"_s));

        Collection file(u"BETA"_s);
        file.prompts.expectMessage(Msg::ResultYes);
        DeleteGameFile(file.launcher);
        QCOMPARE(file.prompts.texts.last(), u"Are you certain you wish to delete ONE.WAD?       "_s);
        QCOMPARE(file.gone(),
                 (QStringList{u"Menu/Keldrax Shortcuts/Beta - one.lnk"_s, u"VYKGames/Beta/Gwads/one.wad"_s,
                              u"VYKLaunch/GameInfo/Save/Gwads/beta/one.vyks"_s, u"gwa/one1.gwa"_s}));
    }

    // A file whose name means a folder above, a model pack or another game's WAD takes nothing with it.
    void hostileFileNames()
    {
        for (const QString& name : {u"...wad"_s, u"Monsters.wad"_s, u"main.txt"_s}) {
            Collection games(u"ALPHA"_s);
            games.installation.add(u"MD2/Monsters/imp.md2"_s);
            games.before = games.contents();
            games.addWad(u"VYKGames/Evil/Pwads/"_s + name, {u"MAP01"_s});
            OptionUdirClick(games.launcher, installedGames);
            games.selectGame(u"EVIL"_s);
            games.launcher.controls.PwadShowlist.click(0);
            games.prompts.expectMessage(Msg::ResultYes);
            RemoveInstalledGame(games.launcher);
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
        OptionUdirClick(games.launcher, installedGames);
        QVERIFY(!games.launcher.controls.PwadList.entries().join(u' ').contains(u'\\'));
        games.selectGame(u"LINKED"_s);
        games.prompts.expectMessage(Msg::ResultYes);
        RemoveInstalledGame(games.launcher);
        QVERIFY(!games.installation.exists(u"VYKGames/Linked"_s));
        QCOMPARE(games.installation.read(u"Elsewhere/Pwads/kept.wad"_s), "kept");
    }

    // A game that went while it was listed leaves the lists empty, and no other folder is taken for it.
    void vanishedGame()
    {
        Collection games(u"ALPHA"_s);
        QVERIFY(QDir(games.path(u"VYKGames/Beta"_s)).removeRecursively());
        games.selectGame(u"BETA"_s);
        QVERIFY(games.launcher.controls.PwadShowlist.isEmpty());
        QCOMPARE(games.launcher.selection.SelectedGameFolder,
                 games.launcher.paths.GamesPath + u"Beta/Pwads/"_s);
        QVERIFY(!games.launcher.controls.LaunchButton.enabled);
    }

    void failingCalls()
    {
        using Kind = FileError::Kind;
        for (const Operation& operation : operations()) {
            for (const Kind kind : {Kind::PermissionDenied, Kind::Other}) {
                int reported = 0;
                for (int call = 1;; ++call) {
                    Collection games(operation.game);
                    games.files.failAt(call, kind);
                    games.prompts.allowMessages = true;
                    operation.run(games);
                    const bool failed = games.files.calls() >= call;
                    games.files.failAt(0, kind);
                    const QByteArray where =
                        QByteArray(operation.name) + ", call " + QByteArray::number(call);
                    if (operation.keepsEveryFile)
                        QVERIFY2(keepsEveryFile(games), where.constData());
                    QVERIFY2(games.installation.exists(u"VYKGames/Gamma/Pwads/old.wad"_s), where.constData());
                    const bool denied = kind != Kind::Other;
                    const qsizetype at =
                        games.prompts.titles.indexOf(denied ? operation.title : operation.otherTitle);
                    if (at >= 0) {
                        ++reported;
                        QCOMPARE(games.prompts.texts.at(at), denied ? operation.denied : operation.other);
                    }
                    QVERIFY(!games.launcher.controls.PwadList.isEmpty());
                    if (!failed)
                        break;
                }
                QVERIFY2(reported > 0, operation.name);
            }
        }
    }

    void renamingZips()
    {
        Zips zips;
        for (const QString& name : {u"OTHER"_s, u"a/b"_s}) {
            zips.prompts.expectName(name);
            zips.prompts.expectMessage();
            RenameArchive(zips.launcher);
            QCOMPARE(zips.prompts.texts.last(), u" Illegal naming convention detected. "_s);
            QVERIFY(zips.contents() == zips.before);
            zips.selectGame(u"PACK"_s);
        }
        zips.prompts.expectName(u"pack"_s); // the same name, spelled otherwise: its records stay
        RenameArchive(zips.launcher);
        const bool sameFile = OnWindows; // which may keep its spelling
        QVERIFY(zips.gone() == QStringList{u"VYKArchives/Pack.ZIP"_s} || (sameFile && zips.gone().isEmpty()));
        zips.prompts.expectName(u"New & old"_s);
        RenameArchive(zips.launcher);
        QCOMPARE(zips.added(), QStringList{u"VYKArchives/New & old.zip"_s});
        QCOMPARE(zips.gone(),
                 (QStringList{u"VYKArchives/Pack.ZIP"_s, u"VYKLaunch/GameInfo/Save/Zip/pack.vyks"_s,
                              u"VYKLaunch/GameInfo/Zips/pack.vykm"_s}));
        QCOMPARE(zips.launcher.controls.PwadList.selectedText(), u"NEW & OLD"_s);
        QCOMPARE(zips.launcher.controls.MapList.entries(), QStringList{u"MAP01"_s});
    }

    // A zip that went meanwhile has no files: those of the last one are not taken for its own.
    void vanishedZip()
    {
        Zips zips;
        QVERIFY(QFile::remove(zips.path(u"VYKArchives/other.zip"_s)));
        zips.prompts.expectMessage();
        zips.selectGame(u"OTHER"_s);
        QCOMPARE(zips.prompts.titles.last(), u" File error"_s);
        QVERIFY(zips.launcher.controls.PwadShowlist.isEmpty());
        QVERIFY(zips.launcher.selection.SelectedGameFile.isEmpty());
    }

    // The savegames go with the zip, unless an installed game has them too.
    void deletingZips()
    {
        for (const bool installedToo : {false, true}) {
            Zips zips;
            if (installedToo)
                zips.addWad(u"VYKGames/Same/Pwads/PACK.wad"_s, {u"MAP01"_s});
            zips.prompts.expectMessage(Msg::ResultNo);
            DeleteArchive(zips.launcher);
            QVERIFY(zips.gone().isEmpty());
            zips.prompts.expectMessage(Msg::ResultYes);
            DeleteArchive(zips.launcher);
            QVERIFY(!zips.installation.exists(u"VYKArchives/Pack.ZIP"_s));
            QVERIFY(!zips.installation.exists(u"VYKLaunch/GameInfo/Save/Zip/pack.vyks"_s));
            QVERIFY(!zips.installation.exists(u"VYKLaunch/Zips/Checks/Pack.vykchk"_s));
            QCOMPARE(zips.installation.exists(u"UserSG/pack"_s), installedToo);
            QVERIFY(zips.installation.exists(u"UserSG/main"_s));
            QCOMPARE(zips.launcher.controls.PwadList.entries(), QStringList{u"OTHER"_s});
            QCOMPARE(zips.launcher.controls.PwadShowlist.entries(), QStringList{u"two.wad"_s});
        }
    }

    void failingCallsOfZips()
    {
        using Kind = FileError::Kind;
        const auto rename = [](Zips& zips) {
            zips.prompts.expectName(u"New"_s);
            RenameArchive(zips.launcher);
        };
        const auto remove = [](Zips& zips) {
            zips.prompts.expectMessage(Msg::ResultYes);
            DeleteArchive(zips.launcher);
        };
        const QString inUse = u"       \r\n  the file may be in use by another program."_s;
        const struct
        {
            std::function<void(Zips&)> run;
            int calls; // the zip itself first
            QString denied, other;
        } rows[] = {{rename, 3, u"Unable to rename the selected item in this list,"_s + inUse,
                     u" Illegal naming convention detected. "_s},
                    {remove, 5,
                     u"Unable to remove the selected item from this list,       \r\n"
                     "   the file may be in use by another program."_s,
                     u"Unable to remove the selected item from this list,       \r\n"
                     "   the file may be in use by another program."_s}};
        for (const auto& row : rows) {
            for (const Kind kind : {Kind::InUse, Kind::Other}) {
                for (int call = 1; call <= row.calls; ++call) {
                    Zips zips;
                    zips.prompts.allowMessages = true;
                    zips.files.failAt(call, kind);
                    row.run(zips);
                    QVERIFY(zips.prompts.texts.contains(kind == Kind::InUse ? row.denied : row.other));
                    QCOMPARE(zips.gone().contains(u"VYKArchives/Pack.ZIP"_s), call > 1);
                    QVERIFY(zips.installation.exists(u"VYKArchives/other.zip"_s));
                }
            }
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
        DeleteSaveGame(games.launcher);
        QVERIFY(games.installation.exists(u"UserSG/main/savegame/KeldraxSav2.vyksg"_s));
        games.prompts.expectMessage(Msg::ResultYes);
        DeleteSaveGame(games.launcher);
        QVERIFY(!games.installation.exists(u"UserSG/main/savegame/KeldraxSav2.vyksg"_s));
        QCOMPARE(games.launcher.controls.MapList.selectedText(), u"MAP01"_s);
        QCOMPARE(games.launcher.controls.SaveGameList.count(), 1);

        games.files.failOn(u"UserSG/main"_s, FileError::Kind::InUse);
        games.prompts.expectMessage();
        PurgeSaveGames(games.launcher);
        QCOMPARE(games.prompts.titles.last(), u" Access error "_s);
        QVERIFY(games.installation.exists(u"VYKGames/Alpha/savegame/0"_s));

        games.files.failOn({}, FileError::Kind::InUse);
        games.prompts.expectMessage(Msg::ResultYes);
        games.launcher.controls.ButPurge[0].clicked();
        QVERIFY(!games.installation.exists(u"UserSG/main"_s));
        QVERIFY(!games.installation.exists(u"VYKGames/Alpha/savegame"_s));
        QVERIFY(!games.installation.exists(u"VYKAnFiles"_s));
        QVERIFY(!games.installation.exists(u"VYKLaunch/GameInfo/Save"_s));
        QVERIFY(games.installation.exists(u"VYKGames/Alpha/Pwads/main.wad"_s));
        QVERIFY(games.launcher.controls.SaveGameList.isEmpty());
    }
};

QTEST_GUILESS_MAIN(ChangeGamesTest)
#include "ChangeGamesTest.moc"
