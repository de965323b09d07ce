// The real adapter program in an installation of its own, with a script standing in for the engine.
#include "tests/support/TemporaryInstallation.h"

#include <QDir>
#include <QProcess>
#include <QTest>

using namespace Qt::StringLiterals;

class EngineAdapterPosixTest : public QObject
{
    Q_OBJECT

    const QString m_saves = u"UserSG/doom2/savegame/"_s;
    std::unique_ptr<TemporaryInstallation> m_disk;

    // What the adapter returned and wrote to its standard error.
    QByteArray run(const QString& line, const QString& engine) const
    {
        QProcess adapter;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"KELDRAX_ENGINE"_s, engine);
        adapter.setProcessEnvironment(environment);
        adapter.setWorkingDirectory(QDir::tempPath()); // the root follows from where the program lies
        adapter.start(m_disk->path(u"Bin/Keldrax"_s), QProcess::splitCommand(line));
        if (!adapter.waitForFinished() || adapter.exitStatus() != QProcess::NormalExit)
            return "the adapter did not end normally";
        return QByteArray::number(adapter.exitCode()) + ": " + adapter.readAllStandardError();
    }

    QByteArray runScript(const QString& line, const QByteArray& body) const
    {
        m_disk->addProgram(u"engine.sh"_s, "#!/bin/sh\n"
                                           "for argument; do echo \"$argument\" >>arguments; done\n"
                                           "while [ \"$1\" != -savedir ]; do shift; done\n" +
                                               body);
        return run(line, m_disk->path(u"engine.sh"_s));
    }

private Q_SLOTS:
    void init()
    {
        m_disk = std::make_unique<TemporaryInstallation>();
        m_disk->addBuilt(u"Bin/Keldrax"_s, KELDRAX_PROGRAM);
        m_disk->add(u"Data/Doom2.wad"_s, "IWAD");
        m_disk->add(m_saves + u"KeldraxSav1.vyksg"_s, "earlier");
    }

    // The launcher lists a new savegame while the game goes on: the engine here ends only when it has
    // seen its savegame published.
    void aGame()
    {
        const QByteArray game =
            runScript(u"-DOOM2 -np -cmd \"rend-light 1\" -loadgame 1"_s,
                      "cp \"$2/doomsav1.dsg\" seen; printf now >\"$2/doomsav2.dsg\"; tries=0\n"
                      "until [ -e \"$2/KeldraxSav2.vyksg\" ]; do\n"
                      "  tries=$((tries + 1)); [ $tries -gt 200 ] && exit 9; sleep 0.1\n"
                      "done\n"
                      "printf later >\"$2/doomsav4.dsg\"; echo engine speaks; exit 7\n");
        QCOMPARE(game, "7: Keldrax: engine has ended with an error.\nengine speaks\n");
        const QString folder = m_disk->path(m_saves).chopped(1);
        QCOMPARE(QString::fromUtf8(m_disk->read(u"arguments"_s)),
                 u"-iwad\n%1\n-savedir\n%2\n-nogui\n-loadgame\n1\n"_s.arg(m_disk->path(u"Data/Doom2.wad"_s),
                                                                          folder));
        QCOMPARE(m_disk->read(u"seen"_s), "earlier");
        QCOMPARE(QDir(folder).entryList(QDir::Files | QDir::Hidden).join(u' '),
                 u"KeldraxSav1.vyksg KeldraxSav2.vyksg KeldraxSav4.vyksg"_s);
        QCOMPARE(m_disk->read(m_saves + u"KeldraxSav4.vyksg"_s), "later");

        QList<QByteArray> report = m_disk->read(u"Keldrax.out"_s).replace('\r', "").split('\n');
        QVERIFY(report.takeAt(1).startsWith("Started: " + m_disk->path(u"engine.sh"_s).toUtf8()));
        QCOMPARE(report.join('|'), "Given: -DOOM2 -np -cmd \"rend-light 1\" -loadgame 1|Left out: -np|"
                                   "Left out: -cmd \"rend-light 1\"|engine speaks|Exit status: 7|");
    }

    void aCrashKeepsTheSavegames()
    {
        const QByteArray game = runScript(u"-doom2"_s, "printf saved >\"$2/doomsav2.dsg\"\nkill -9 $$\n");
        QVERIFY2(game.startsWith("1: ") && game.contains("crashed"), game.constData());
        QCOMPARE(m_disk->read(m_saves + u"KeldraxSav2.vyksg"_s), "saved");
    }

    void failures()
    {
        m_disk->addProgram(u"broken.sh"_s, "#!/no/such/interpreter\n");
        const std::tuple<QString, QString, QByteArray> rows[] = {
            {u"-doom2"_s, u"no-such-engine"_s, "no-such-engine"},
            {u"-tnt"_s, u"sh"_s, "Tnt.wad was not found"},
            {u"-doom2 -udir .."_s, u"sh"_s, "no name of an installed game"},
            {u"-doom2"_s, m_disk->path(u"broken.sh"_s), "could not be started"},
        };
        for (const auto& [line, engine, reason] : rows) {
            m_disk->add(u"Keldrax.out"_s, "an earlier game's");
            const QByteArray game = run(line, engine), report = m_disk->read(u"Keldrax.out"_s);
            QVERIFY2(game.startsWith("1: ") && game.contains(reason), game.constData());
            QVERIFY2(report.startsWith("Given: ") && report.contains(reason), report.constData());
            QCOMPARE(m_disk->tree().filter(m_saves), QStringList(m_saves + u"KeldraxSav1.vyksg"_s));
        }
    }
};

QTEST_GUILESS_MAIN(EngineAdapterPosixTest)
#include "EngineAdapterPosixTest.moc"
