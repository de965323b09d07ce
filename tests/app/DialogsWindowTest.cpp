#include "app/FontForm.h"
#include "app/ShowAll.h"
#include "app/TipsForm.h"
#include "options/ConfirmForm.h"
#include "options/TexForm.h"
#include "tests/support/LauncherFixture.h"

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>

using namespace Qt::StringLiterals;

namespace {

void click(const QWidget& form, const QString& name)
{
    form.findChild<QAbstractButton*>(name)->click();
}

QString selectedIn(const QListWidget& list)
{
    return list.currentItem() ? list.currentItem()->text() : QString();
}

} // namespace

class DialogsWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fontButtons()
    {
        LauncherFixture f;
        f.launcher.font = {.CustomFontOn = true, .FontName = u"No such font"_s, .FontSize = 12};
        const FontForm unknown(f.launcher, nullptr);
        QCOMPARE(unknown.findChild<QListWidget*>(u"ListSize"_s)->count(), 0);
        f.launcher.font = {};
        f.installation.add(u"VYKLaunch/font.vyk"_s, "Arial,8\r\n");
        const FontForm form(f.launcher, nullptr);
        QCOMPARE(selectedIn(*form.findChild<QListWidget*>(u"ListFont"_s)), u"MS Sans Serif"_s);
        click(form, u"FontBut_2"_s);
        QVERIFY(f.window.calls.isEmpty() && f.installation.exists(u"VYKLaunch/font.vyk"_s));
        click(form, u"FontBut_0"_s);
        QVERIFY(!f.installation.exists(u"VYKLaunch/font.vyk"_s));
        QCOMPARE(f.processes.starts.size(), 1);
    }

    void texturePath()
    {
        LauncherFixture f;
        f.installation.addFolder(u"Mine/Textures"_s);
        TexForm form(f.launcher, nullptr);
        auto* path = form.findChild<QLineEdit*>(u"HiResText"_s);
        QCOMPARE(path->text(), u"Not installed or the specified path is invalid"_s);
        f.prompts.expectFile(f.path(u"Mine"_s));
        click(form, u"TexButton"_s);
        QCOMPARE(path->text(), f.nativePath(u"Mine"_s));
        QCOMPARE(f.installation.read(u"VYKLaunch/Data/texpath.vyk"_s),
                 ToAnsi(f.nativePath(u"Mine"_s)) + "\r\n");
        f.disk.removeTree(f.path(u"Mine"_s)); // gone while the dialog is open
        form.done(0);
        QVERIFY(!f.installation.exists(u"VYKLaunch/Data/texpath.vyk"_s));
        ShowWindow(f.launcher);
        QVERIFY(!f.launcher.controls.chkMain[Main::HighResTextures].enabled);
    }

    void confirmation()
    {
        QList<bool> told;
        ConfirmForm form([&told](bool never) { told << never; });
        click(form, u"ChkConfirm"_s);
        click(form, u"ChkConfirm"_s);
        QCOMPARE(told, QList({true, false}));
        click(form, u"CancelButton"_s);
        QCOMPARE(form.result(), static_cast<int>(QDialog::Rejected));
        click(form, u"OKButton"_s);
        QCOMPARE(form.result(), static_cast<int>(QDialog::Accepted));
    }
};

QTEST_MAIN(DialogsWindowTest)
#include "DialogsWindowTest.moc"
