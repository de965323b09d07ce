#include "tests/support/DesktopEntryReader.h"
#include "tests/support/TemporaryInstallation.h"

#include <QProcess>
#include <QProcessEnvironment>
#include <QStandardPaths>
#include <QTest>

using namespace Qt::StringLiterals;

class IntegratePosixTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void integratesAndUndoesIt();
};

// With a folder of hostile characters as the installation; nothing of the user's own is touched.
void IntegratePosixTest::integratesAndUndoesIt()
{
    TemporaryInstallation home;
    const QString root = u"Spiele 100% $HOME `id` 'ä' \"q\" =x"_s;
    home.addBuilt(root + u"/Bin/VYKplay"_s, VYKPLAY_PROGRAM);
    home.addBuilt(root + u"/Bin/VYKgFiles"_s, VYKGFILES_PROGRAM);
    home.addProgram(root + u"/Bin/Keldrax"_s);
    home.add(root + u"/Bin/unzip32.dll"_s);
    home.add(root + u"/Bin/fmodex.dll"_s);
    const auto integrate = [&](const QStringList& options) {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"XDG_DATA_HOME"_s, home.path(u"share"_s));
        process.setProcessEnvironment(environment);
        process.start(home.path(root + u"/Bin/VYKplay"_s), QStringList{u"integrate"_s} + options);
        process.waitForFinished(-1);
        return std::pair(process.exitCode(), QString::fromUtf8(process.readAllStandardError()));
    };
    const QString entry = u"share/applications/VYKLauncher.desktop"_s;
    QCOMPARE(integrate({}).first, 1); // no launcher
    home.addProgram(root + u"/Bin/VYKlauncher"_s, "#!/bin/sh\nprintf '%s' \"$PWD|$0|$#\" > started.txt\n");
    QVERIFY(integrate({}).second.contains(u"icon"_s));
    QVERIFY(!home.exists(entry));

    home.add(root + u"/VYKLaunch/Icons/VYKlauncher-48.png"_s, "small");
    home.add(root + u"/VYKLaunch/Icons/VYKlauncher-256.png"_s, "large");
    QCOMPARE(integrate({}), std::pair(0, QString()));
    const QString icons = u"share/icons/hicolor/%1x%1/apps/VYKlauncher.png"_s;
    QCOMPARE(home.read(icons.arg(48)), "small"_ba);
    QCOMPARE(home.read(icons.arg(256)), "large"_ba);
    if (!QStandardPaths::findExecutable(u"desktop-file-validate"_s).isEmpty())
        QCOMPARE(QProcess::execute(u"desktop-file-validate"_s, {home.path(entry)}), 0);

    const DesktopEntryReader reader(home.read(entry));
    QStringList command = reader.command();
    QVERIFY(!command.isEmpty());
    QProcess launcher;
    launcher.setWorkingDirectory(reader.values.value(u"Path"_s));
    launcher.start(command.takeFirst(), command);
    QVERIFY(launcher.waitForFinished(-1));
    QCOMPARE(QString::fromUtf8(home.read(root + u"/started.txt"_s)),
             u"%1|%1/Bin/VYKlauncher|0"_s.arg(home.path(root)));

    home.add(u"share/applications/other.desktop"_s);
    QVERIFY(QFile::remove(home.path(root + u"/Bin/fmodex.dll"_s))); // an installation in pieces
    for (int time = 0; time < 2; ++time)
        QCOMPARE(integrate({u"--remove"_s}), std::pair(0, QString()));
    QVERIFY(home.tree().filter(u"share/"_s) == QStringList{u"share/applications/other.desktop"_s});
}

QTEST_GUILESS_MAIN(IntegratePosixTest)
#include "IntegratePosixTest.moc"
