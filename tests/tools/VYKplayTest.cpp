#include "tests/support/TemporaryInstallation.h"
#include "tests/support/ZipMaker.h"
#include "tools/VYKplay/Play.h"

#include <QProcess>
#include <QtTest>

using namespace Qt::StringLiterals;

// The real program in a temporary installation, with the real game-file tool and a recorder as the engine.
class VYKplayTest : public QObject
{
    Q_OBJECT

private:
    struct Result
    {
        int status;
        QString out, err;
    };
    Result run(const QStringList& arguments) const
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(u"DOOMWADDIR"_s);
        process.setProcessEnvironment(environment);
        process.start(m_installation->path(u"Bin/VYKplay"_s), arguments);
        if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit)
            return {-1, {}, {}};
        const auto text = [](const QByteArray& bytes) { // with the line ends that the system's consoles have
            return QString::fromUtf8(bytes).remove(u'\r');
        };
        return {process.exitCode(), text(process.readAllStandardOutput()),
                text(process.readAllStandardError())};
    }

    std::unique_ptr<TemporaryInstallation> m_installation;

private Q_SLOTS:
    void init()
    {
        m_installation = std::make_unique<TemporaryInstallation>();
        m_installation->makeComplete();
        m_installation->addBuilt(u"Bin/VYKplay"_s, VYKPLAY_PROGRAM);
        m_installation->addBuilt(u"Bin/VYKgFiles"_s, VYKGFILES_PROGRAM);
        m_installation->addBuilt(u"Bin/Keldrax"_s, RECORDER_PROGRAM);
        m_installation->add(u"Data/Doom2.wad"_s,
                            TemporaryInstallation::wad("IWAD", {u"MAP01"_s, u"MAP07"_s}));
        m_installation->add(u"VYKGames/Läufer 100%/Pwads/run.wad"_s,
                            TemporaryInstallation::wad("PWAD", {u"MAP03"_s}));
        m_installation->add(
            u"VYKArchives/Some.ZIP"_s,
            ZipMaker().add("in/some.wad", TemporaryInstallation::wad("PWAD", {u"MAP08"_s})).bytes());
        m_installation->add(u"UserSG/doom2/savegame/KeldraxSav5.vyksg"_s,
                            QByteArray("Old friend").leftJustified(40, 0));
    }

    void aFailedStartIsOne()
    {
        m_installation->addBuilt(u"Bin/Keldrax"_s, KELDRAX_PROGRAM);
        qputenv("KELDRAX_ENGINE", "no-such-engine");
        const Result result = run({u"play"_s, u"Doom II"_s});
        qunsetenv("KELDRAX_ENGINE");
        QCOMPARE(result.status, 1);
        QVERIFY2(result.err.contains(u"\"no-such-engine\""_s), qPrintable(result.err));
    }

    void wrongUsageIsTwo()
    {
        const QString lines = u"|dance|list nowhere|list doom zips|maps|play|play a b|play a --map 1 --new|"
                              "play a --save 1 --map 2|play a --skill 6|play a --skill 0|play a --skill x|"
                              "play a --new --skill 3|maps a --dry-run|install|list --gwad|integrate now|"
                              "list --remove|play a --view attic|list --nonsense|play a --map"_s;
        for (const QString& line : lines.split(u'|')) {
            QString outText, errText;
            QTextStream out(&outText), err(&errText);
            const Arguments arguments = ParseArguments(line.split(u' ', Qt::SkipEmptyParts));
            QVERIFY2(RunVYKplay(arguments, m_installation->root(), out, err) == 2, qPrintable(line));
            QVERIFY(outText.isEmpty());
            QVERIFY(errText.contains(u"VYKplay list"_s));
        }
    }

    void aDryRunPrintsTheLineAndChangesNothing()
    {
        const QStringList before = m_installation->tree();
        const Result result =
            run({u"play"_s, u"doom II"_s, u"--map"_s, u"map07"_s, u"--skill"_s, u"4"_s, u"--dry-run"_s});
        QCOMPARE(result.status, 0);
        QVERIFY2(result.out.startsWith(u"Bin\\Keldrax -Doom2 "_s), qPrintable(result.out));
        QVERIFY(result.out.endsWith(u"-sk 4 -wp 07 \n"_s));
        QCOMPARE(result.out.count(u'\n'), 1);
        QCOMPARE(result.err, QString());
        QCOMPARE(m_installation->tree(), before);

        // Without a choice the settings' own: a new game.
        QVERIFY(!run({u"play"_s, u"doom ii"_s, u"--dry-run"_s}).out.contains(u"-sk"_s));
        QVERIFY(!run({u"play"_s, u"doom ii"_s, u"--new"_s, u"--dry-run"_s}).out.contains(u"-wp"_s));
        QVERIFY(run({u"play"_s, u"doom ii"_s, u"--save"_s, u"5"_s, u"--dry-run"_s})
                    .out.endsWith(u"-loadgame 5 \n"_s));
    }

    void playStartsTheEngineAndRemembersTheMap()
    {
        const QString dry = run({u"play"_s, u"doom ii"_s, u"--map"_s, u"MAP07"_s, u"--dry-run"_s}).out;
        const Result result = run({u"play"_s, u"doom ii"_s, u"--map"_s, u"MAP07"_s});
        QCOMPARE(result.status, 0);
        QVERIFY(QTest::qWaitFor([this] { return m_installation->exists(u"arguments.txt"_s); }, 60000));
        QCOMPARE(
            QString::fromLatin1(m_installation->read(u"VYKLaunch/launch.log"_s)).replace(u"\r\n"_s, u"\n"_s),
            dry);
        QCOMPARE(m_installation->read(u"VYKLaunch/GameInfo/Iwads/doom2.vykm"_s), QByteArray("MAP07\r\n"));
        QVERIFY(!m_installation->exists(u"VYKLaunch/config.vyk"_s));
    }

    void zipsAreExtractedAndPlayed()
    {
        const QStringList before = m_installation->tree();
        QCOMPARE(run({u"maps"_s, u"some"_s}).out, u"MAP08\n"_s);
        const QString line = run({u"play"_s, u"some"_s, u"--map"_s, u"map08"_s, u"--dry-run"_s}).out;
        QVERIFY2(line.contains(
                     u" -f \"%1\" "_s.arg(m_installation->nativePath(u"VYKLaunch/Zips/some.zip/some.wad"_s))),
                 qPrintable(line));
        QStringList extracted = m_installation->tree();
        QVERIFY(extracted.removeOne(u"VYKLaunch/Zips/some.zip/some.wad"_s));
        QCOMPARE(extracted, before);
    }

    void installs()
    {
        const QString zip = m_installation->path(u"VYKArchives/Some.ZIP"_s);
        QCOMPARE(run({u"install"_s, zip}).status, 0);
        QVERIFY(m_installation->exists(u"VYKGames/Some/Pwads/some.wad"_s));
        const Result again = run({u"install"_s, zip, u"nothing.wad"_s});
        QCOMPARE(again.status, 1);
        QVERIFY(again.err.contains(u"Duplicate name error"_s) && again.err.contains(u"nothing.wad"_s));
        m_installation->add(u"more.wad"_s, TemporaryInstallation::wad("PWAD", {u"E1M4"_s}));
        QCOMPARE(run({u"install"_s, m_installation->path(u"more.wad"_s), u"--gwad"_s}).status, 0);
        QVERIFY(m_installation->exists(u"VYKGames/more/Gwads/more.wad"_s));
        QCOMPARE(run({u"maps"_s, u"More"_s}).out, u"E1M4\n"_s); // its only WAD is chosen
    }

    void refusalsAreOneWithAMessage()
    {
        const QList<QPair<QStringList, QString>> rows{
            {{u"play"_s, u"Doom III"_s}, u"Doom III"_s},
            {{u"play"_s, u"a\u001b[2Jb\u007f"_s}, u"\"a?[2Jb?\""_s}, // no commands for the terminal
            {{u"maps"_s, u"doom ii"_s, u"--view"_s, u"zips"_s}, u"doom ii"_s},
            {{u"play"_s, u"doom ii"_s, u"--map"_s, u"MAP33"_s}, u"MAP33"_s},
            {{u"play"_s, u"doom ii"_s, u"--save"_s, u"4"_s}, u"\"4\""_s},
            {{u"list"_s, u"--root"_s, u"/nowhere"_s}, u"has not been detected"_s}};
        for (const auto& [arguments, message] : rows) {
            const Result result = run(arguments);
            QCOMPARE(result.status, 1);
            QVERIFY(result.out.isEmpty());
            QVERIFY2(result.err.contains(message), qPrintable(result.err));
            QVERIFY(!m_installation->exists(u"VYKLaunch/launch.log"_s));
        }
    }

    void aDamagedConfigIsLeftAlone()
    {
        m_installation->add(u"VYKLaunch/config.vyk"_s, "v9.1\r\nabc\r\n");
        const Result result = run({u"play"_s, u"doom ii"_s, u"--map"_s, u"MAP01"_s});
        QCOMPARE(result.status, 0);
        QVERIFY(result.err.contains(u"config.vyk"_s));
        QCOMPARE(m_installation->read(u"VYKLaunch/config.vyk"_s), QByteArray("v9.1\r\nabc\r\n"));
        QVERIFY(QTest::qWaitFor([this] { return m_installation->exists(u"arguments.txt"_s); }, 60000));
    }
};

QTEST_GUILESS_MAIN(VYKplayTest)
#include "VYKplayTest.moc"
