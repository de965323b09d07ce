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

    PlaylistEditor editor{launcher};
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
    void addingByMouseAndKeys();
    void tracks();
    void severalLines();
    void droppedFile();
    void menus();
    void findingALine();
    void closing();
};

void MusicFormWindowTest::addingByMouseAndKeys()
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

void MusicFormWindowTest::tracks()
{
    Fixture f;
    auto* menu = f.form->findChild<TrackMenuView*>(u"mCD"_s);
    for (const int track : {0, 8, 9, 35})
        QCOMPARE(menu->findChild<QToolButton*>(u"rTrack_%1"_s.arg(track))->text(),
                 u"Track %1"_s.arg(track + 1, 2, 10, QChar(u'0')));
    f.click(11);
    menu->findChild<QToolButton*>(u"rTrack_8"_s)->click();
    QCOMPARE(f.line(11), u"MAP01 CD 09"_s);
    menu->popup({});
    for (const Qt::Key key :
         {Qt::Key_Up, Qt::Key_Down, Qt::Key_Right, Qt::Key_Right, Qt::Key_Left, Qt::Key_Return})
        QTest::keyClick(menu, key);
    QCOMPARE(f.line(11), u"MAP01 CD 11"_s);
    QVERIFY(!menu->isVisible());
}

void MusicFormWindowTest::severalLines()
{
    Fixture f;
    for (const int line : {11, 12, 13})
        f.editor.setTrack(line, 2);
    f.click(10);
    f.click(13, Qt::ShiftModifier);
    QTest::keyClick(&f.list(), Qt::Key_Delete);
    QCOMPARE(f.editor.MusicList(), StandardLayout(MusicGame::Doom2));
    QCOMPARE(f.list().selectedLines(), QList<int>({10, 11, 12, 13}));
}

void MusicFormWindowTest::droppedFile()
{
    Fixture f;
    QMimeData dragged;
    dragged.setUrls({QUrl::fromLocalFile(outside(u"c.ogg"_s))});
    QDragEnterEvent enter(f.centreOf(1), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(f.list().viewport(), &enter);
    QDropEvent drop(f.centreOf(14), Qt::CopyAction | Qt::MoveAction, &dragged, Qt::LeftButton,
                    Qt::NoModifier);
    QCoreApplication::sendEvent(f.list().viewport(), &drop);
    QTRY_COMPARE(f.line(14), u"MAP04 \""_s + NativePath(outside(u"c.ogg"_s)) + u'"');
    QCOMPARE(f.list().currentLine(), 14);
}

void MusicFormWindowTest::menus()
{
    Fixture f;
    QVERIFY(!f.action(u"mReadme"_s).isEnabled());
    f.action(u"mMap"_s).trigger();
    QCOMPARE(f.line(38), u"E4M1"_s);
    f.prompts.expectMessage(Msg::ResultYes);
    f.action(u"mClone"_s).trigger();
    QCOMPARE(f.list().model()->rowCount(), 90);
    QVERIFY(!f.action(u"mMap"_s).isEnabled());
    QVERIFY(!f.action(u"mClone"_s).isEnabled());
    f.prompts.expectMessage(Msg::ResultYes);
    f.action(u"mTextEdit"_s).trigger();
    QVERIFY(!f.form->isVisible());
    QVERIFY(f.processes.lastCommandLine().contains(u"Mine.vym"_s));
    QVERIFY(f.installation.read(QLatin1String(File)).contains("E4M1"));
}

void MusicFormWindowTest::findingALine()
{
    Fixture f;
    QWidget* box = f.form->findChild<QWidget*>(u"FocusBox"_s);
    QTest::keyClicks(box, u"map31"_s);
    QCOMPARE(f.list().currentLine(), 41);
    QVERIFY(f.list().viewport()->rect().contains(f.centreOf(41)));
    f.form->resize(f.form->width(), 250);
    QVERIFY(f.list().viewport()->rect().contains(f.centreOf(41)));
}

void MusicFormWindowTest::closing()
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

QTEST_MAIN(MusicFormWindowTest)
#include "MusicFormWindowTest.moc"
