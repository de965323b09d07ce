// The real adapter program in an installation of its own, with a script standing in for the engine.
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class EngineAdapterPosixTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_root;

    QString path(const QString& name) const { return m_root->filePath(name); }

    void put(const QString& name, const QByteArray& content) const
    {
        QVERIFY(QDir().mkpath(QFileInfo(path(name)).path()));
        QFile file(path(name));
        QVERIFY(file.open(QFile::WriteOnly));
        file.write(content);
    }

    QByteArray content(const QString& name) const
    {
        QFile file(path(name));
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray("no such file");
    }

    void putEngine(const QByteArray& body) const
    {
        put(u"engine.sh"_s, "#!/bin/sh\n"
                            "for argument; do echo \"$argument\" >>arguments; done\n"
                            "while [ \"$1\" != -savedir ]; do shift; done\n" +
                                body);
        QFile::setPermissions(path(u"engine.sh"_s), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    struct Run
    {
        int status = -1;
        QByteArray errors;
    };

    Run run(const QStringList& arguments, const QString& engine) const
    {
        QProcess adapter;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"KELDRAX_ENGINE"_s, engine);
        adapter.setProcessEnvironment(environment);
        adapter.setWorkingDirectory(QDir::tempPath()); // the root follows from where the program lies
        adapter.start(path(u"Bin/Keldrax"_s), arguments);
        if (!adapter.waitForFinished() || adapter.exitStatus() != QProcess::NormalExit)
            return {-1, "the adapter did not end normally"};
        return {adapter.exitCode(), adapter.readAllStandardError()};
    }

private Q_SLOTS:
    void init()
    {
        m_root = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir().mkpath(path(u"Bin"_s)));
        QVERIFY(QFile::copy(QStringLiteral(KELDRAX_PROGRAM), path(u"Bin/Keldrax"_s)));
        put(u"Data/Doom2.wad"_s, "IWAD");
    }

    void aGame()
    {
        put(u"UserSG/doom2/savegame/KeldraxSav1.vyksg"_s, "earlier");
        putEngine("cp \"$2/doomsav1.dsg\" seen\n"
                  "printf later >\"$2/doomsav4.dsg\"\n"
                  "echo engine speaks\n"
                  "exit 7\n");
        const Run game = run({u"-DOOM2"_s, u"-np"_s, u"-cmd"_s, u"rend-light 1"_s, u"-loadgame"_s, u"1"_s},
                             path(u"engine.sh"_s));
        QCOMPARE(game.errors, QByteArray());
        QCOMPARE(game.status, 7);
        QCOMPARE(content(u"arguments"_s), "-iwad\n" + path(u"Data/Doom2.wad"_s).toUtf8() + "\n-savedir\n" +
                                              path(u"UserSG/doom2/savegame"_s).toUtf8() + "\n-loadgame\n1\n");
        QCOMPARE(content(u"seen"_s), "earlier");
        const QDir saves(path(u"UserSG/doom2/savegame"_s));
        QCOMPARE(saves.entryList(QDir::Files | QDir::Hidden),
                 (QStringList{u"KeldraxSav1.vyksg"_s, u"KeldraxSav4.vyksg"_s}));
        QCOMPARE(content(u"UserSG/doom2/savegame/KeldraxSav4.vyksg"_s), "later");

        const QList<QByteArray> report = content(u"Keldrax.out"_s).replace('\r', "").split('\n');
        QCOMPARE(report.value(0), "Given: -DOOM2 -np -cmd \"rend-light 1\" -loadgame 1");
        QVERIFY(report.value(1).startsWith("Started: " + path(u"engine.sh"_s).toUtf8()));
        QCOMPARE(report.mid(2), (QList<QByteArray>{"Left out: -np", "Left out: -cmd \"rend-light 1\"",
                                                   "engine speaks", "Exit status: 7", ""}));
    }

    // The launcher lists a new savegame while the game goes on: the engine here ends only when it has
    // seen its savegame published.
    void savegamesArePublishedDuringTheGame()
    {
        putEngine("printf now >\"$2/doomsav2.dsg\"\n"
                  "tries=0\n"
                  "until [ -e \"$2/KeldraxSav2.vyksg\" ]; do\n"
                  "  tries=$((tries + 1)); [ $tries -gt 200 ] && exit 9\n"
                  "  sleep 0.1\n"
                  "done\n");
        QCOMPARE(run({u"-doom2"_s}, path(u"engine.sh"_s)).status, 0);
    }

    void aCrashKeepsTheSavegames()
    {
        putEngine("printf saved >\"$2/doomsav2.dsg\"\nkill -9 $$\n");
        const Run game = run({u"-doom2"_s}, path(u"engine.sh"_s));
        QCOMPARE(game.status, 1);
        QVERIFY(game.errors.contains("crashed"));
        QCOMPARE(content(u"UserSG/doom2/savegame/KeldraxSav2.vyksg"_s), "saved");
    }

    void failures_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("engine");
        QTest::addColumn<QByteArray>("reason");
        QTest::newRow("no engine") << QStringList{u"-doom2"_s} << u"no-such-engine"_s
                                   << QByteArray("no-such-engine");
        QTest::newRow("no IWAD") << QStringList{u"-tnt"_s} << u"sh"_s << QByteArray("Tnt.wad was not found");
        QTest::newRow("bad game") << QStringList{u"-doom2"_s, u"-udir"_s, u".."_s} << u"sh"_s
                                  << QByteArray("no name of an installed game");
        QTest::newRow("no program after all")
            << QStringList{u"-doom2"_s} << u"BROKEN"_s << QByteArray("could not be started");
    }

    void failures()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, engine);
        QFETCH(QByteArray, reason);
        put(u"broken.sh"_s, "#!/no/such/interpreter\n");
        QFile::setPermissions(path(u"broken.sh"_s), QFile::ReadOwner | QFile::ExeOwner);
        put(u"Keldrax.out"_s, "an earlier game's");
        put(u"UserSG/doom2/savegame/KeldraxSav1.vyksg"_s, "earlier");
        const Run game = run(arguments, engine == u"BROKEN"_s ? path(u"broken.sh"_s) : engine);
        QCOMPARE(game.status, 1);
        QVERIFY2(game.errors.contains(reason), game.errors.constData());
        const QByteArray report = content(u"Keldrax.out"_s);
        QVERIFY2(report.contains(reason) && report.startsWith("Given: "), report.constData());
        QCOMPARE(QDir(path(u"UserSG/doom2/savegame"_s)).entryList(QDir::Files),
                 QStringList{u"KeldraxSav1.vyksg"_s});
    }
};

QTEST_GUILESS_MAIN(EngineAdapterPosixTest)
#include "EngineAdapterPosixTest.moc"
