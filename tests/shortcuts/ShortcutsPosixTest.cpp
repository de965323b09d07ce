#include "launch/LaunchPlan.h"
#include "shell/DeleteShortcuts.h"
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
    game.launcher.controls.AuxButton[Tool::Shortcut].clicked();
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
    void aDoomGameOnBothPlaces()
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
        QVERIFY(!game.launcher.session.AfterLaunch);
        QCOMPARE(game.launcher.settings.LastLaunchMode, 1);

        // Again, with other options: replaced. From the engine's own menu, no map is in the name.
        const QByteArray before = game.installation.read(desktop + withMap.last());
        game.launcher.controls.chkMain[Main::NoMonsters].setTicked(true);
        press(game, everything);
        QCOMPARE(madeIn(game, desktop), withMap);
        QVERIFY(game.installation.read(desktop + withMap.last()) != before);
        game.pickSkill(0);
        press(game, everything);
        QCOMPARE(madeIn(game, menu),
                 (QStringList{withMap.first(), withMap.last(), u"Doom2.desktop"_s, u"Doom2.lnk"_s}));
    }

    void nothingIsMade()
    {
        CommercialGame game;
        const QByteArray wad = TemporaryInstallation::wad("PWAD", {u"MAP01"_s});
        game.installation.add(u"VYKArchives/some.zip"_s, ZipMaker().add("some.wad", wad).bytes());
        const Control& button = game.launcher.controls.AuxButton[Tool::Shortcut];
        press(game, std::nullopt);
        game.launcher.controls.OptionTabs.click(Tab::Options);
        QVERIFY(!button.enabled);
        game.launcher.controls.OptionTabs.click(Tab::Games);
        game.show(View::ZipLibrary);
        QVERIFY(!button.enabled);
        game.launcher.controls.AuxButton[Tool::Shortcut].clicked(); // asks nothing
        game.show(View::InstalledGames);                            // there are none
        QVERIFY(!button.enabled);
        game.show(View::DoomGames);
        QVERIFY(button.enabled);
        QVERIFY(QFile::remove(game.path(u"Iwads/Doom2.wad"_s)));
        game.prompts.expectMessage(); // a launch refuses this too
        press(game, everything);
        QVERIFY(!game.installation.exists(u"Desktop"_s) && !game.installation.exists(u"Menu"_s));
    }

    void gamesOfFiles()
    {
        CommercialGame game;
        game.addWad(u"VYKGames/HELL/Gwads/Level1.wad"_s, {u"MAP01"_s});
        game.addWad(u"VYKGames/MyWad/Pwads/other.wad"_s, {u"E2M1"_s});
        game.show(View::InstalledGames);
        game.selectGame(u"HELL"_s);
        game.pickFile(u"Level1.wad"_s);
        game.pickSkill(3);
        press(game, everything);
        QCOMPARE(madeIn(game, menu),
                 (QStringList{u"Hell - level1 - Map01.desktop"_s, u"Hell - level1 - Map01.lnk"_s}));
        game.selectGame(u"MyWad"_s);
        press(game, desktopOnly);
        QVERIFY(madeIn(game, desktop).contains(u"Mywad.lnk"_s));
        QCOMPARE(madeIn(game, menu).size(), 2);
    }

    void aFolderThatCannotBeWritten()
    {
        CommercialGame game;
        game.files.failOn(u"Desktop/"_s, FileError::Kind::PermissionDenied);
        game.prompts.expectMessage();
        press(game, everything);
        QCOMPARE(game.prompts.texts,
                 QStringList{u" It appears you don't have adequate UAC privileges    "_s});
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

    // Whatever names hold, both files start the engine with the arguments of a launch.
    void hostileNames()
    {
        // Of the installation's folder, and of the game.
        const QString names[] = {
            u"Zwei  Läufer "_s,        u"100% %f %%"_s, u"it's"_s,      u"$HOME `id` $(id)"_s,
            u"a;b&c|d(e)<f>*[g]#~!"_s, u"= x=y"_s,      u"Ærøå 日本"_s, u"v1.5"_s};
        for (const QString& root : names) {
            const QString& game = root;
            CommercialGame fixture; // for its doubles and folders
            const QString base = root + u'/';
            fixture.installation.addFolder(base + u"Data"_s);
            fixture.installation.add(base + u"Data/Doom2.wad"_s);
            fixture.addWad(base + u"VYKGames/"_s + game + u"/Pwads/main file.wad"_s, {u"MAP03"_s});
            fixture.installation.addProgram(base + u"Bin/Keldrax"_s,
                                            "#!/bin/sh\nprintf '%s\\n' \"$PWD\" \"$@\" > arguments.txt\n");
            QVERIFY(QFile::link(QStringLiteral(VYKGFILES_PROGRAM), fixture.path(base + u"Bin/VYKgFiles"_s)));
            ConnectedLauncher launcher(fixture.files, fixture.processes, fixture.prompts, fixture.window,
                                       fixture.path(root));
            launcher.environment = {};
            launcher.shortcutFolders = fixture.launcher.shortcutFolders;
            ReadFacts(launcher);
            launcher.controls.OptionUdir.click(View::InstalledGames);
            launcher.controls.SkillsLevel[SkillList::Basic].click(4);
            launcher.settings.CustomText = u"-file \"two words\" \"\" -x 'y"_s;

            const QString line = PlanLaunch(launcher).commandLine;
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
    }

    void deletion()
    {
        const QStringList mywad{u"Mywad.lnk"_s, u"Mywad.desktop"_s, u"Mywad2.lnk"_s};
        const QStringList level1{u"Hell - level1.lnk"_s, u"Hell - level1 - Map01.lnk"_s};
        const QStringList level2{u"Hell - level2.lnk"_s};
        const std::pair<QString, QStringList> rows[] = {{QString(), {}},
                                                        {u"MYWAD"_s, mywad},
                                                        {u"Hell - Level1"_s, level1},
                                                        {u"Hell"_s, level1 + level2},
                                                        {u"DİS"_s, {turkish}}}; // a letter that changes
        for (const auto& [name, gone] : rows) {
            QStringList left = mywad + level1 + level2 + QStringList{turkish};
            left.sort();
            LauncherFixture game;
            for (const QString& file : left) {
                game.installation.add(desktop + file);
                QVERIFY(QFile::setPermissions(game.path(desktop + file), QFile::ReadOwner));
            }
            // The other folder is not there.
            DeleteShortcuts(game.files, {game.path(desktop), game.path(u"nowhere"_s)}, name);
            left.removeIf([&gone](const QString& file) { return gone.contains(file); });
            QCOMPARE(madeIn(game, desktop), left);
        }
    }
};

QTEST_GUILESS_MAIN(ShortcutsPosixTest)
#include "ShortcutsPosixTest.moc"
