#include "app/StartUp.h"

#include "app/MainWindowLoad.h"
#include "tests/support/LauncherFixture.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;
using Kind = FileError::Kind;

namespace {

const QString accessText =
    u"   You appear to have restricted access with this user account, Keldrax        \r\n"
    "    requires a UAC with a higher privilege level before it will run."_s;
const QString accessTitle = u"Restricted Window's User Account Control"_s;
const QString unknownText = u"   Unable to run the VYKlauncher due to unknown error      \r\n"
                            "  please report error to the Keldrax development team."_s;

// The services note their calls among those of the window, so that one list has the order of all.
class StartFixture : public LauncherFixture
{
public:
    StartFixture() { addIwad(u"Data/Doom2.wad"_s); }

    bool placeIsFree = true;
    bool otherAnswers = true;
    bool loadedAtClaim = false;
    bool hasComponents = true;

    StartResult start(const QString& arguments = {})
    {
        const auto note = [this](const QString& call) {
            window.calls << call;
            loadedAtClaim = installation.exists(u"VYKGames"_s);
        };
        return Main(launcher, arguments,
                    {.claimInstance = [=, this] { return note(u"claim"_s), placeIsFree; },
                     .activateRunningInstance = [=, this] { return note(u"activate"_s), otherAnswers; },
                     .claimInstanceWhenFree = [=] { note(u"claimWhenFree"_s); },
                     .componentsPresent = [this] { return hasComponents; },
                     .showTips = [this] { window.calls << u"tips"_s; }});
    }
};

} // namespace

class StartUpTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QDir::setCurrent(QDir::tempPath()); } // the installation's folder is gone

    void secondStart()
    {
        StartFixture f;
        f.placeIsFree = false;
        QCOMPARE(f.start(), StartResult::Ended);
        QCOMPARE(f.window.calls, QStringList({u"claim"_s, u"activate"_s}));

        f.otherAnswers = false;
        f.prompts.expectMessage();
        QCOMPARE(f.start(), StartResult::Ended);
        QVERIFY(!f.window.shown);
        QVERIFY(!f.installation.exists(u"VYKGames"_s));
    }

    void requiredFiles()
    {
        const std::pair<QStringList, QString> rows[] = {
            {{u"Keldrax"_s, u"VYKgFiles"_s}, u"Keldrax.exe"_s},
            {{u"VYKgFiles"_s, u"unzip32.dll"_s}, u"VYKgFiles.exe"_s},
            {{u"unzip32.dll"_s, u"fmodex.dll"_s}, u"unzip32.dll"_s},
            {{u"fmodex.dll"_s}, u"fmodex.dll"_s}};
        for (const auto& [missing, reported] : rows) {
            StartFixture f;
            f.setConfig("v9.1\r\n");
            for (const QString& name : missing)
                QVERIFY(QFile::remove(f.path(u"Bin/"_s + name)));
            f.prompts.expectMessage();
            QCOMPARE(f.start(), StartResult::Ended);
            QCOMPARE(f.window.calls, QStringList({u"claim"_s, u"show"_s, u"hide"_s, u"endProgram"_s}));
            QCOMPARE(f.prompts.texts, {reported + u" has not been detected - re-install Keldrax.    "_s});
            QCOMPARE(f.prompts.titles, {u"Startup error"_s});
            QCOMPARE(f.prompts.styles, {4096});
            UnloadMainWindow(f.launcher);
            QCOMPARE(f.config(), "v9.1\r\n"); // ended without saving
        }
    }

    // What an end in the middle of a write left goes, but not what another launcher writes at the moment.
    void cutOffWrites()
    {
        if (OnWindows)
            QSKIP("Wine has no trash");
        StartFixture f;
        f.files.trash = true;
        const QString old[] = {u"VYKLaunch/config.vyk.QwErTy"_s, u"VYKLaunch/Music/a.vym.AbCdEf"_s,
                               u"VYKLaunch/config.vyk.bak"_s};
        for (const QString& name : old) {
            f.installation.add(name);
            QFile file(f.path(name));
            QVERIFY(file.open(QFile::ReadWrite) &&
                    file.setFileTime(QDateTime(QDate(2020, 1, 1), QTime()), QFile::FileModificationTime));
        }
        f.installation.add(u"VYKLaunch/config.vyk.UiOpAs"_s);
        QCOMPARE(f.start(), StartResult::Running);
        QVERIFY(!f.installation.exists(old[0]) && !f.installation.exists(old[1]));
        QVERIFY(f.installation.exists(old[2]) && f.installation.exists(u"VYKLaunch/config.vyk.UiOpAs"_s));
    }

    void aMissingComponentEndsTheStart()
    {
        StartFixture f;
        f.hasComponents = false;
        f.prompts.expectMessage();
        QCOMPARE(f.start(), StartResult::Ended);
        QCOMPARE(f.prompts.titles, {u"Installation error"_s});
        QCOMPARE(f.prompts.texts,
                 {u"   Unable to run the VYKlauncher due to missing or unregistered       \r\n"
                  "   dependencies, re-install the program using the Keldrax setup."_s});
        QCOMPARE(f.prompts.styles, {16});
        QVERIFY(!f.window.shown);
    }

    void failures()
    {
        const struct
        {
            QString at;
            Kind kind;
            bool access;
        } rows[] = {{u"Admin"_s, Kind::PermissionDenied, true},
                    {u"Admin"_s, Kind::InUse, true},
                    {u"Admin"_s, Kind::NotFound, false},
                    {u"VYKGames"_s, Kind::Other, false}};
        for (const auto& [at, kind, access] : rows) {
            StartFixture f;
            if (at == u"Admin"_s) // the write test comes before the check of the files
                QVERIFY(QFile::remove(f.path(u"Bin/fmodex.dll"_s)));
            f.files.failOn(at, kind);
            f.prompts.expectMessage();
            QCOMPARE(f.start(), StartResult::Ended);
            QCOMPARE(f.prompts.texts, {access ? accessText : unknownText});
            QCOMPARE(f.prompts.titles, {access ? accessTitle : u"Unknown Error"_s});
            QCOMPARE(f.prompts.styles, {access ? 48 : 16});
            QCOMPARE(f.window.calls.last(), u"endProgram"_s);
            QVERIFY(!f.window.shown);
            UnloadMainWindow(f.launcher);
            QVERIFY(!f.hasConfig());
        }
    }

    void firstConfigLine()
    {
        const QString upgrade = u"The latest version upgrade"_s;
        const QByteArray rest = LauncherFixture::configWith({{4, u" 77 "_s}}).mid(4);
        const std::pair<QByteArray, QString> rows[] = {{"V9.1" + rest, {}},
                                                       {"\xEF\xBB\xBFv9.1" + rest, {}},
                                                       {"v9.0" + rest, upgrade},
                                                       {"v9.1 " + rest, upgrade},
                                                       {rest, upgrade},
                                                       {QByteArray("\0\xff\x1a\x80\0\r\n\0", 8), upgrade},
                                                       {"", u"Corrupt config file detected"_s}};
        for (const auto& [before, reason] : rows) { // without a reason the settings stay
            const bool reset = !reason.isEmpty();
            StartFixture f;
            f.setConfig(before);
            QVERIFY(QFile::setPermissions(f.path(u"VYKLaunch/config.vyk"_s), QFile::ReadOwner));
            if (reset)
                f.prompts.expectMessage();
            QCOMPARE(f.start(), StartResult::Running);
            QCOMPARE(f.launcher.settings.TipNumber, reset ? 0 : 77);
            QCOMPARE(f.hasConfig(), !reset);
            if (!reset)
                continue;
            QCOMPARE(f.prompts.texts,
                     {reason + u" required the launcher configurations to     \r\n"
                               " be reset to the default settings, please reconfigure your settings. "_s});
            QCOMPARE(f.prompts.titles, {u" Version update v9.1"_s});
            QCOMPARE(f.prompts.styles, {4096});
            QCOMPARE(f.installation.read(u"VYKLaunch/config.vyk.bak"_s), before);
            UnloadMainWindow(f.launcher);
            QCOMPARE(f.config().count("\r\n"), 83);
        }
    }

    // Defaults must not replace a file of which there is no copy, nor a restart find it again.
    void oldSettingsStayWithoutACopy()
    {
        for (const QByteArray& before : {"v1.0\r\nold"_ba, LauncherFixture::configWith({{43, u"abc"_s}})})
            for (const QString& failing : {u".bak"_s, u"config.vyk"_s}) {
                StartFixture f;
                f.setConfig(before);
                f.files.failOn(failing, Kind::PermissionDenied);
                f.prompts.expectMessage();
                QCOMPARE(f.start(), StartResult::Ended);
                QCOMPARE(f.prompts.titles, {accessTitle});
                UnloadMainWindow(f.launcher);
                QCOMPARE(f.config(), before);
                QVERIFY(f.processes.starts.isEmpty());
            }
    }
};

QTEST_GUILESS_MAIN(StartUpTest)
#include "StartUpTest.moc"
