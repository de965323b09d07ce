#include "music/MusicForm.h"
#include "music/PlaylistView.h"
#include "music/TrackMenuView.h"
#include "platform/Paths.h"
#include "tests/support/LauncherFixture.h"

#include <QAction>
#include <QDir>
#include <QDropEvent>
#include <QMimeData>
#include <QToolButton>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

constexpr auto File = "VYKLaunch/Music/Mine.vym";

// The editor of a Doom II playlist in its window.
class Fixture : public LauncherFixture
{
public:
    Fixture()
    {
        installation.add(QLatin1String(File),
                         ToAnsi(StandardLayout(MusicGame::Doom2).join(u"\r\n"_s) + u"\r\n"_s));
        launcher.settings.PlaylistName = u"Mine"_s;
        editor.open();
        form = std::make_unique<MusicForm>(editor, nullptr);
        form->show();
    }

    PlaylistEditor editor{launcher, QStringLiteral("Mine")};
    std::unique_ptr<MusicForm> form;

    PlaylistView& list() { return *form->findChild<PlaylistView*>(u"MusicList"_s); }
    QAction& action(const QString& name) { return *form->findChild<QAction*>(name); }
    QString line(int line) { return list().model()->index(line, 0).data().toString(); }
    QPoint centreOf(int line) { return list().visualRect(list().model()->index(line, 0)).center(); }
    void click(int line, Qt::KeyboardModifiers keys = Qt::NoModifier)
    {
        QTest::mouseClick(list().viewport(), Qt::LeftButton, keys, centreOf(line));
    }
};

// A file of no installation's folder.
QString outside(const QString& name)
{
    return QDir::rootPath() + u"music/"_s + name;
}

} // namespace

class MusicFormWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void addingByMouseAndKeys()
    {
        Fixture f;
        QCOMPARE(f.form->windowTitle(), u"Opening Mine"_s);
        f.click(11);
        f.prompts.expectFile(outside(u"a.mp3"_s));
        QTest::mouseDClick(f.list().viewport(), Qt::LeftButton, Qt::NoModifier, f.centreOf(11));
        QCOMPARE(f.line(11), u"MAP01 \""_s + NativePath(outside(u"a.mp3"_s)) + u'"');
        QCOMPARE(f.list().selectedLines(), QList<int>{11});
        QTest::keyClick(&f.list(), Qt::Key_Down);
        f.prompts.expectFile(outside(u"b.it"_s));
        QTest::keyClick(&f.list(), Qt::Key_Return);
        QCOMPARE(f.line(12), u"MAP02 \""_s + NativePath(outside(u"b.it"_s)) + u'"');
        f.action(u"mSave"_s).trigger();
        QVERIFY(f.installation.read(QLatin1String(File))
                    .contains("\r\nMAP02 \"" + ToAnsi(NativePath(outside(u"b.it"_s))) + "\"\r\n"));
    }

    void closing()
    {
        Fixture f;
        f.editor.setTrack(11, 2);
        f.files.failOn(u"Mine"_s, FileError::Kind::PermissionDenied);
        f.prompts.expectMessage(Msg::ResultYes);
        f.prompts.expectMessage();
        f.form->close();
        QVERIFY(f.form->isVisible()); // the changes are still there
        f.prompts.expectMessage(Msg::ResultNo);
        f.form->close();
        QVERIFY(!f.form->isVisible());
    }
};

QTEST_MAIN(MusicFormWindowTest)
#include "MusicFormWindowTest.moc"
