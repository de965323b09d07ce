// The engines of a machine: found, told apart, chosen, and what the window says of the chosen one.
#include "engines/FoundEngines.h"
#include "engines/EngineFailure.h"
#include "engines/EngineSwitches.h"
#include "platform/Paths.h"
#include "tests/support/CommercialGame.h"

#include <QProcess>
#include <QTest>

using namespace Qt::StringLiterals;

class FoundEnginesTest : public QObject
{
    Q_OBJECT

    TemporaryInstallation m_disk;
    DiskFileSystem m_files;
    QProcessEnvironment m_environment;

    QString found(const QString& wanted, const QString& root) const
    {
        const QString program = FindEngine(wanted, root, m_environment).program;
        return BaseNameOf(FolderOf(program)) + u'/' + BaseNameOf(program);
    }
    QString found(const QString& wanted = {}) const { return found(wanted, m_disk.root()); }

private Q_SLOTS:
    void init()
    {
        m_disk.addBuilt(u"Engine/woof"_s, RECORDER_PROGRAM);
        m_disk.addBuilt(u"Elsewhere/crispy-doom"_s, RECORDER_PROGRAM);
        m_disk.addBuilt(u"Elsewhere/my-engine"_s, RECORDER_PROGRAM);
        m_environment = {};
        m_environment.insert(u"PATH"_s, m_disk.nativePath(u"Elsewhere"_s));
    }

    void places()
    {
        QCOMPARE(found(), u"Engine/woof"_s);
        QCOMPARE(found({}, m_disk.path(u"none"_s)), u"Elsewhere/crispy-doom"_s);
        for (const QString& wanted : {u"CRISPY-doom"_s, u"crispy Doom"_s})
            QCOMPARE(found(wanted), u"Elsewhere/crispy-doom"_s);
        m_environment.insert(u"KELDRAX_ENGINE"_s, u"my-engine"_s);
        QCOMPARE(found(), u"Elsewhere/my-engine"_s);
        QCOMPARE(found(u"woof"_s), u"Engine/woof"_s); // a choice comes before the environment's
        QVERIFY_THROWS_EXCEPTION(EngineFailure, found(u"gone"_s));
        m_environment.insert(u"KELDRAX_ENGINE"_s, u"no-such-engine-anywhere"_s);
        QVERIFY_THROWS_EXCEPTION(EngineFailure, found());
        QCOMPARE(ConventionsOf(u"/opt/Woof.exe"_s).savegame, u"woofsav%1.dsg"_s);
        QCOMPARE(ConventionsOf(u"/opt/my-engine"_s).saveFolderSwitch, u"-savedir"_s);
    }

    // The version stands anywhere in a program, also across the pieces in which it is read.
    void versions()
    {
        constexpr qsizetype piece = 1024 * 1024;
        const QByteArray older = "Woof 6.0 Woof x";
        for (const qsizetype at : {older.size(), piece - 10, piece - 3, piece - 1, piece, 2 * piece - 7}) {
            m_disk.add(u"woof"_s, older + QByteArray(at - older.size(), 'a') + "Woof 10.5.1");
            QCOMPARE(VersionOf(m_files, m_disk.path(u"woof"_s)), u"10.5.1"_s);
        }
        m_disk.add(u"woof"_s, "Woof 99999999999999999999.1 Woof ");
        VersionOf(m_files, m_disk.path(u"woof"_s));
        for (const QString& none : {u"woof-gone"_s, u"my-engine"_s, u"crispy-doom"_s})
            QCOMPARE(VersionOf(m_files, m_disk.path(none)), QString());
    }

    // What was chosen is kept as a path that moves along with the installation.
    void choice()
    {
        m_disk.addFolder(u"VYKLaunch"_s);
        const QString program = FindEngine(u"woof"_s, m_disk.root(), m_environment).program;
        SaveEngineChoice(m_files, m_disk.root(), program);
        QVERIFY(m_disk.read(u"VYKLaunch/engine.vyk"_s).startsWith("Engine/woof"));
        QCOMPARE(LoadEngineChoice(m_files, m_disk.root()), program);
        SaveEngineChoice(m_files, m_disk.root(), {});
        QVERIFY(!m_disk.exists(u"VYKLaunch/engine.vyk"_s));
    }

    void theWindow()
    {
        CommercialGame game;
        Controls& controls = game.launcher.controls;
        game.load();
        QVERIFY(!controls.EngineList.visible); // the engine itself
        const QString fastTip = controls.chkVYKOpts[VYKOpts::FastMonsters].toolTip;
        const QString fpTip = controls.chkAltModels[AltModels::Kelspack].toolTip;

        game.installation.addBuilt(u"Bin/Keldrax"_s, KELDRAX_PROGRAM);
        game.installation.addBuilt(u"Engine/woof"_s, RECORDER_PROGRAM);
        game.load();
        QVERIFY(controls.EngineList.visible);
        const int woof = controls.EngineList.find(u"Woof"_s);
        QVERIFY(woof > 0);
        controls.EngineList.click(woof);
        QCOMPARE(game.launcher.settings.Engine, controls.EngineList.name(woof));
        QCOMPARE(controls.chkVYKOpts[VYKOpts::FastMonsters].toolTip, fastTip);
        QCOMPARE(controls.chkAltModels[AltModels::Kelspack].toolTip,
                 fpTip + u"\r\nWoof does nothing with this."_s);
        game.load();
        QCOMPARE(controls.EngineList.selected(), woof);

        game.files.failOn(u"engine.vyk"_s, FileError::Kind::Other);
        game.prompts.expectMessage();
        controls.EngineList.click(0);
        QCOMPARE(controls.EngineList.selected(), woof); // as it is kept
        game.installation.add(u"VYKLaunch/engine.vyk"_s, "Engine/gone\r\n");
        game.load();
        QCOMPARE(controls.EngineList.currentText(), u"Not found: gone"_s);
    }

    // The table's answer is the adapter's.
    void abilities()
    {
        m_disk.addBuilt(u"Bin/Keldrax"_s, KELDRAX_PROGRAM);
        QProcess adapter;
        adapter.start(m_disk.path(u"Bin/Keldrax"_s), {u"--engine"_s, u"woof"_s, u"--can"_s});
        QVERIFY(adapter.waitForFinished() && adapter.exitCode() == 0);
        const QByteArray said = adapter.readAllStandardOutput().replace("\r", "");
        QVERIFY(said.contains("\n-boom\t-complevel boom\n"));
        for (const EngineSwitch& known : EngineSwitches())
            QVERIFY(said.contains("\n" + known.text.toUtf8() + '\t'));
        QVERIFY(!m_disk.exists(u"Keldrax.out"_s));
    }
};

QTEST_MAIN(FoundEnginesTest)
#include "FoundEnginesTest.moc"
