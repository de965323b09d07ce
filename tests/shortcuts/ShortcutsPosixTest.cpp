#include "catalogue/GameLists.h"
#include "launch/LaunchButton.h"
#include "shortcuts/MakeShortcut.h"
#include "shortcuts/ShortcutNames.h"
#include "tests/support/CommercialGame.h"
#include "tests/support/DesktopEntryReader.h"
#include "tests/support/ZipMaker.h"

#include <QProcess>
#include <QStandardPaths>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

constexpr ShortcutChoice everything{
    .StartMenuShortcut = true, .DesktopShortcut = true, .IncludeMapInShortcut = true};
constexpr ShortcutChoice desktopOnly{.DesktopShortcut = true};

const QString desktop = u"Desktop/Keldrax Shortcuts/"_s;
const QString menu = u"Menu/Keldrax Shortcuts/"_s;
const QString turkish = ShortcutFileName(u"DİS"_s, {}) + u".lnk"_s;

// The names in a shortcut folder.
QStringList madeIn(const LauncherFixture& game, const QString& folder)
{
    return QDir(game.path(folder)).entryList(QDir::Files, QDir::Name);
}

void press(CommercialGame& game, const std::optional<ShortcutChoice>& choice)
{
    game.prompts.expectShortcut(choice);
    game.launcher.controls.AuxButton[2].clicked();
}

// What a program of the system says about a file; empty, with `found` false, where it is not installed.
QString saidBy(const QString& program, const QStringList& arguments, bool& found)
{
    found = !QStandardPaths::findExecutable(program).isEmpty();
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    process.waitForFinished(-1);
    return found ? QString::fromUtf8(process.readAll()) : QString();
}

} // namespace

class ShortcutsPosixTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void names_data();
    void names();
    void labels();
    void aDoomGameOnBothPlaces();
    void nothingIsMade();
    void gamesOfFiles();
    void aFolderThatCannotBeWritten();
    void aWindowsEngine();
    void hostileNames_data();
    void hostileNames();
    void deletion_data();
    void deletion();
    void foldersOfTheUser();
};

void ShortcutsPosixTest::names_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<QString>("file");
    QTest::newRow("plain") << u"MyWad"_s << QString() << u"Mywad"_s;
    QTest::newRow("map") << u"Doom2"_s << u" - MAP07"_s << u"Doom2 - Map07"_s;
    QTest::newRow("map, small") << u"DOOM2"_s << u" - map07"_s << u"Doom2 - Map07"_s;
    QTest::newRow("episode") << u"Doom"_s << u" - E1M1"_s << u"Doom - E1M1"_s;
    QTest::newRow("file of a game") << u"HELL - Level1"_s << u" - MAP01"_s << u"Hell - level1 - Map01"_s;
    QTest::newRow("letters") << u"äÖß"_s << QString() << u"Äöß"_s;
    QTest::newRow("no capital") << u"ßA"_s << QString() << u"ßa"_s;
}

void ShortcutsPosixTest::names()
{
    QFETCH(QString, name);
    QFETCH(QString, suffix);
    QTEST(ShortcutFileName(name, suffix), "file");
}

void ShortcutsPosixTest::labels()
{
    LauncherFixture game;
    Launcher& launcher = game.launcher;
    launcher.selection.GwadSelected = true;
    for (const auto& [name, label] : {std::pair(QString(30, u'x'), QString(30, u'x')),
                                      {QString(31, u'x'), QString(27, u'x') + u" ..."_s}}) {
        launcher.selection.SelectedGwadGame = name;
        QCOMPARE(GetShortcutName(launcher), label);
    }
    launcher.selection = {};
    launcher.selection.PwadSelected = true;
    launcher.selection.SelectedGameFile = u"/x/VYKGames/Other/Pwads/main.v2.wad"_s;
    QCOMPARE(GetShortcutName(launcher), u"MAIN.V2"_s);
    launcher.selection = {};
    launcher.selection.DoomGameSelected = true;
    launcher.settings.SelectedDoomGame = u"The Plutonia Experiment"_s;
    QCOMPARE(GetShortcutName(launcher), u"Plutonia Experiment"_s);
}

void ShortcutsPosixTest::aDoomGameOnBothPlaces()
{
    const QStringList withMap{u"Doom2 - Map07.desktop"_s, u"Doom2 - Map07.lnk"_s};
    CommercialGame game;
    game.pickSkill(2);
    game.pickMap(u"MAP07"_s);
    game.launcher.settings.LastLaunchMode = 1;
    game.launcher.settings.LaunchMode = 2;
    press(game, everything);
    QCOMPARE(madeIn(game, desktop), withMap);
    QCOMPARE(madeIn(game, menu), withMap);
    constexpr qsizetype showCommand = 60;
    QCOMPARE(game.installation.read(desktop + withMap.last()).at(showCommand), 1);
    QCOMPARE(game.prompts.shortcutNames, QStringList{u"DOOM II"_s});

    QVERIFY(game.processes.starts.isEmpty() && game.window.calls.isEmpty());
    QVERIFY(!game.installation.exists(u"VYKLaunch/launch.log"_s));
    QVERIFY(!game.launcher.launch.ShortcutMode && !game.launcher.launch.AfterLaunch);
    QCOMPARE(game.launcher.settings.LastLaunchMode, 1);

    // Again, with other options: replaced. From the engine's own menu, no map is in the name.
    const QByteArray before = game.installation.read(desktop + withMap.last());
    game.launcher.controls.chkMain[6].setTicked(true);
    press(game, everything);
    QCOMPARE(madeIn(game, desktop), withMap);
    QVERIFY(game.installation.read(desktop + withMap.last()) != before);
    game.pickSkill(0);
    game.launcher.controls.MapList.startAs(1);
    press(game, everything);
    QCOMPARE(madeIn(game, menu),
             (QStringList{withMap.first(), withMap.last(), u"Doom2.desktop"_s, u"Doom2.lnk"_s}));
}

void ShortcutsPosixTest::nothingIsMade()
{
    CommercialGame game;
    const QByteArray wad = TemporaryInstallation::wad("PWAD", {u"MAP01"_s});
    game.installation.add(u"VYKArchives/some.zip"_s, ZipMaker().add("some.wad", wad).bytes());
    press(game, std::nullopt);
    game.launcher.controls.OptionTabs.select(1);
    press(game, everything);
    game.launcher.controls.OptionTabs.select(0);
    OptionUdirClick(game.launcher, zipLibrary);
    press(game, everything);
    OptionUdirClick(game.launcher, installedGames); // there are none
    press(game, everything);
    OptionUdirClick(game.launcher, doomGames);
    QVERIFY(QFile::remove(game.path(u"Iwads/Doom2.wad"_s)));
    game.prompts.expectMessage(); // a launch refuses this too
    press(game, everything);
    QVERIFY(!game.installation.exists(u"Desktop"_s) && !game.installation.exists(u"Menu"_s));
    QVERIFY(!game.launcher.launch.ShortcutMode);
}

void ShortcutsPosixTest::gamesOfFiles()
{
    CommercialGame game;
    game.addWad(u"VYKGames/HELL/Gwads/Level1.wad"_s, {u"MAP01"_s});
    game.addWad(u"VYKGames/MyWad/Pwads/other.wad"_s, {u"E2M1"_s});
    OptionUdirClick(game.launcher, installedGames);
    game.selectGame(u"HELL"_s);
    game.launcher.controls.PwadShowlist.click(0);
    game.pickSkill(3);
    press(game, everything);
    QCOMPARE(madeIn(game, menu),
             (QStringList{u"Hell - level1 - Map01.desktop"_s, u"Hell - level1 - Map01.lnk"_s}));
    game.selectGame(u"MyWad"_s);
    press(game, desktopOnly);
    QVERIFY(madeIn(game, desktop).contains(u"Mywad.lnk"_s));
    QCOMPARE(madeIn(game, menu).size(), 2);
}

void ShortcutsPosixTest::aFolderThatCannotBeWritten()
{
    CommercialGame game;
    game.files.failOn(u"Desktop/"_s, FileError::Kind::PermissionDenied);
    game.prompts.expectMessage();
    press(game, everything);
    QCOMPARE(game.prompts.texts, QStringList{u" It appears you don't have adequate UAC privileges    "_s});
    QCOMPARE(game.prompts.titles, QStringList{u"Permissions"_s});
    QCOMPARE(game.prompts.styles, QList<int>{Msg::Ok + Msg::Information});
    QCOMPARE(madeIn(game, menu).size(), 2);

    // More than a shell link can hold, and a name that leads elsewhere.
    game.files.failOn({}, {});
    game.prompts.expectMessage();
    CreateShortcuts(game.launcher, desktopOnly, u"Long"_s, QString(65536, u'x'));
    game.prompts.expectMessage();
    CreateShortcuts(game.launcher, desktopOnly, u"../Elsewhere"_s, {});
    QVERIFY(madeIn(game, desktop).isEmpty() && madeIn(game, u"Desktop"_s).isEmpty());
}

// The desktop entry starts what a launch would: through Wine, or the native program that lies beside.
void ShortcutsPosixTest::aWindowsEngine()
{
    CommercialGame game;
    game.installation.add(u"Bin/Keldrax.exe"_s, "MZ");
    press(game, desktopOnly);
    const auto program = [&game] {
        return DesktopEntryReader(game.installation.read(desktop + u"Doom2.desktop"_s)).command().value(0);
    };
    QCOMPARE(program(), game.path(u"Bin/Keldrax"_s));
    QVERIFY(QFile::remove(game.path(u"Bin/Keldrax"_s)));
    game.installation.addProgram(u"path/wine"_s);
    const QByteArray oldPath = qgetenv("PATH");
    qputenv("PATH", QFile::encodeName(game.path(u"path"_s)));
    press(game, desktopOnly);
    qputenv("PATH", oldPath);
    QCOMPARE(program(), game.path(u"path/wine"_s));
}

void ShortcutsPosixTest::hostileNames_data()
{
    QTest::addColumn<QString>("root");
    QTest::addColumn<QString>("game");
    const QString names[] = {u"Zwei  Läufer "_s,
                             u"100% %f %%"_s,
                             u"it's"_s,
                             u"$HOME `id` $(id)"_s,
                             u"a;b&c|d(e)<f>*[g]#~!"_s,
                             u"= x=y"_s,
                             u"Ærøå 日本"_s,
                             u"v1.5"_s,
                             u"-dash"_s};
    for (const QString& root : names)
        for (const QString& name : {names[0], root})
            QTest::addRow("%s / %s", qPrintable(root), qPrintable(name)) << root << name;
}

// Whatever names hold, both files start the engine with the arguments of a launch.
void ShortcutsPosixTest::hostileNames()
{
    QFETCH(QString, root);
    QFETCH(QString, game);
    CommercialGame fixture; // for its doubles and folders
    const QString base = root + u'/';
    fixture.installation.addFolder(base + u"Data"_s);
    fixture.installation.add(base + u"Data/Doom2.wad"_s);
    fixture.addWad(base + u"VYKGames/"_s + game + u"/Pwads/main file.wad"_s, {u"MAP03"_s});
    fixture.installation.addProgram(base + u"Bin/Keldrax"_s,
                                    "#!/bin/sh\nprintf '%s\\n' \"$PWD\" \"$@\" > arguments.txt\n");
    QVERIFY(QFile::link(QStringLiteral(VYKGFILES_PROGRAM), fixture.path(base + u"Bin/VYKgFiles"_s)));
    Launcher launcher(fixture.files, fixture.processes, fixture.prompts, fixture.window, fixture.path(root));
    launcher.environment = {};
    launcher.shortcutFolders = fixture.launcher.shortcutFolders;
    BuildIwadList(launcher.iwads, fixture.files, launcher.paths, launcher.environment);
    OptionUdirClick(launcher, installedGames);
    launcher.controls.SkillsLevel[1].click(4);
    launcher.settings.CustomText = launcher.controls.edCustom.text = u"-file \"two words\" \"\" -x 'y"_s;

    const QString line = PlanSelectedGame(launcher, [](const QString&) { return 1; }).commandLine;
    QVERIFY(line.startsWith(u"Bin\\Keldrax "_s));
    const QStringList expected = SplitCommandLine(line).sliced(1);
    QVERIFY(expected.contains(game));
    fixture.prompts.expectShortcut(desktopOnly);
    MakeShortcut(launcher);
    const QString path = desktop + ShortcutFileName(game, {});

    const DesktopEntryReader entry(fixture.installation.read(path + u".desktop"_s));
    QStringList command = entry.command();
    QCOMPARE(command.last(expected.size()), expected);
    QCOMPARE(entry.values.value(u"Name"_s), ShortcutFileName(game, {}));
    QVERIFY(QFileInfo(fixture.path(path + u".desktop"_s)).permissions().testFlag(QFile::ExeOwner));
    QProcess engine;
    engine.setWorkingDirectory(entry.values.value(u"Path"_s));
    engine.start(command.takeFirst(), command);
    QVERIFY(engine.waitForFinished(-1) && engine.exitCode() == 0);
    const QString recorded = QString::fromUtf8(fixture.installation.read(base + u"arguments.txt"_s));
    QCOMPARE(recorded, (QStringList{fixture.path(root)} + expected).join(u'\n') + u'\n');

    bool found = false;
    const QString complaints =
        saidBy(u"desktop-file-validate"_s, {fixture.path(path + u".desktop"_s)}, found);
    QCOMPARE(complaints, QString());
    const QString link = saidBy(u"lnkinfo"_s, {fixture.path(path + u".lnk"_s)}, found);
    const struct
    {
        QString key, value;
    } properties[] = {
        {u"Local path"_s, fixture.path(base + u"Bin/Keldrax.exe"_s)},
        {u"Relative path"_s, u"../../"_s + base + u"Bin/Keldrax.exe"_s},
        {u"Working directory"_s, fixture.path(desktop).chopped(1)},
        {u"Command line arguments"_s, line.sliced(12)},
        {u"Icon location"_s, fixture.path(base + u"Bin/Keldrax.exe"_s)},
    };
    for (const auto& property : properties)
        QVERIFY2(!found || link.contains(QRegularExpression(u"%1\\s+: %2\\n"_s.arg(
                               property.key, QRegularExpression::escape(property.value)))),
                 qPrintable(property.key + u'\n' + link));
}

void ShortcutsPosixTest::deletion_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("gone");
    const QStringList level1{u"Hell - level1.lnk"_s, u"Hell - level1 - Map01.lnk"_s};
    QTest::newRow("no name") << QString() << QStringList();
    QTest::newRow("a game") << u"MYWAD"_s << QStringList{u"Mywad.lnk"_s, u"Mywad.desktop"_s, u"Mywad2.lnk"_s};
    QTest::newRow("a file") << u"Hell - Level1"_s << level1;
    QTest::newRow("all files") << u"Hell"_s << level1 + QStringList{u"Hell - level2.lnk"_s};
    QTest::newRow("a letter that changes") << u"DİS"_s << QStringList{turkish};
}

void ShortcutsPosixTest::deletion()
{
    QFETCH(QString, name);
    QFETCH(QStringList, gone);
    QStringList left{u"Mywad.lnk"_s,
                     u"Mywad.desktop"_s,
                     u"Mywad2.lnk"_s,
                     u"Hell - level1.lnk"_s,
                     u"Hell - level2.lnk"_s,
                     u"Hell - level1 - Map01.lnk"_s,
                     turkish};
    left.sort();
    LauncherFixture game;
    for (const QString& folder : {desktop, menu}) {
        for (const QString& file : left) {
            game.installation.add(folder + file);
            QVERIFY(QFile::setPermissions(game.path(folder + file), QFile::ReadOwner));
        }
    }
    DeleteShortcuts(game.files, game.launcher.shortcutFolders, name);
    left.removeIf([&gone](const QString& file) { return gone.contains(file); });
    QCOMPARE(madeIn(game, desktop), left);
    QCOMPARE(madeIn(game, menu), left);
    DeleteShortcuts(game.files, {game.path(u"nowhere"_s), game.path(u"nowhere"_s)}, name);
}

// A user without a desktop, by the system's rule one whose desktop is the home folder, has the shortcuts in
// the installation.
void ShortcutsPosixTest::foldersOfTheUser()
{
    TemporaryInstallation home;
    const std::pair<const char*, QString> variables[] = {
        {"HOME", home.root()},
        {"XDG_CONFIG_HOME", home.path(u"config"_s)},
        {"XDG_DATA_HOME", home.path(u"share"_s)},
    };
    QList<QByteArray> before;
    for (const auto& [name, value] : variables) {
        before << qgetenv(name);
        qputenv(name, QFile::encodeName(value));
    }
    home.add(u"config/user-dirs.dirs"_s, "XDG_DESKTOP_DIR=\"$HOME/Schreibtisch\"\n");
    const ShortcutFolders usual = ShortcutFolders::ofUser(u"/games"_s);
    home.add(u"config/user-dirs.dirs"_s, "XDG_DESKTOP_DIR=\"$HOME/\"\n");
    const ShortcutFolders without = ShortcutFolders::ofUser(u"/games"_s);
    for (size_t i = 0; i < std::size(variables); ++i)
        qputenv(variables[i].first, before.at(static_cast<qsizetype>(i)));
    QCOMPARE(usual.desktop, home.path(u"Schreibtisch/Keldrax Shortcuts"_s));
    QCOMPARE(usual.programs, home.path(u"share/applications/Keldrax Shortcuts"_s));
    QCOMPARE(without.desktop, u"/games/Keldrax Shortcuts"_s);
}

QTEST_GUILESS_MAIN(ShortcutsPosixTest)
#include "ShortcutsPosixTest.moc"
