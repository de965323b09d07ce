#include "app/FontForm.h"
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

QString captionOf(const QWidget& form, const QString& name)
{
    return form.findChild<QLabel*>(name)->text();
}

void click(const QWidget& form, const QString& name)
{
    form.findChild<QAbstractButton*>(name)->click();
}

QStringList entriesOf(const QListWidget& list)
{
    QStringList entries;
    for (int i = 0; i < list.count(); ++i)
        entries << list.item(i)->text();
    return entries;
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
    void tips();
    void fontSizes();
    void unknownFont();
    void fontButtons();
    void texturePath();
    void confirmation();
};

void DialogsWindowTest::tips()
{
    LauncherFixture f;
    f.installation.add(u"VYKLaunch/Data/tips.txt"_s, "<b>one</b>\r\ntwo\r\n");
    const TipsForm form(f.launcher, nullptr);
    QCOMPARE(captionOf(form, u"lblTipText"_s), u"<b>one</b>"_s);
    QCOMPARE(form.findChild<QLabel*>(u"lblTipText"_s)->textFormat(), Qt::PlainText);
    click(form, u"cmdNextTip"_s);
    QCOMPARE(captionOf(form, u"lblTipText"_s), u"two"_s);
    QVERIFY(form.findChild<QAbstractButton*>(u"chkShowTips"_s)->isChecked());
    click(form, u"chkShowTips"_s);
    QVERIFY(!f.launcher.controls.chkLaunchPrefs[5].ticked());
}

void DialogsWindowTest::fontSizes()
{
    LauncherFixture f;
    f.launcher.font = {.CustomFontOn = true, .FontName = u"arial"_s, .FontSize = 8, .FontBold = true};
    const FontForm form(f.launcher, nullptr);
    auto& fonts = *form.findChild<QListWidget*>(u"ListFont"_s);
    auto& sizes = *form.findChild<QListWidget*>(u"ListSize"_s);
    const QFont& preview = form.findChild<QLabel*>(u"PreviewLabel"_s)->font();
    QCOMPARE(selectedIn(fonts), u"Arial"_s);
    QCOMPARE(selectedIn(*form.findChild<QListWidget*>(u"ListStyle"_s)), u"Bold"_s);
    QCOMPARE(entriesOf(sizes), QStringList({u"8"_s, u"9"_s, u"10"_s}));
    QCOMPARE(selectedIn(sizes), u"8"_s);
    QVERIFY(preview.bold());

    fonts.setCurrentRow(1);
    QCOMPARE(entriesOf(sizes), QStringList(u"10"_s));
    QCOMPARE(selectedIn(sizes), QString());
    sizes.setCurrentRow(0);
    form.findChild<QListWidget*>(u"ListStyle"_s)->setCurrentRow(0);
    QCOMPARE(selectedIn(sizes), u"10"_s);
    QCOMPARE(preview.family(), u"Calibri"_s);
    QCOMPARE(preview.pointSize(), 10);
    QVERIFY(!preview.bold());
    click(form, u"FontBut_1"_s);
    QCOMPARE(f.installation.read(u"VYKLaunch/font.vyk"_s), QByteArray("Calibri,10\r\n"));
    QCOMPARE(f.window.calls.last(), u"endProgram"_s);
}

void DialogsWindowTest::unknownFont()
{
    LauncherFixture f;
    f.launcher.font = {.CustomFontOn = true, .FontName = u"No such font"_s, .FontSize = 12};
    const FontForm form(f.launcher, nullptr);
    QCOMPARE(selectedIn(*form.findChild<QListWidget*>(u"ListFont"_s)), QString());
    QCOMPARE(form.findChild<QListWidget*>(u"ListSize"_s)->count(), 0);
}

void DialogsWindowTest::fontButtons()
{
    LauncherFixture f;
    f.installation.add(u"VYKLaunch/font.vyk"_s, "Arial,8\r\n");
    const FontForm form(f.launcher, nullptr);
    QCOMPARE(selectedIn(*form.findChild<QListWidget*>(u"ListFont"_s)), u"MS Sans Serif"_s);
    click(form, u"FontBut_2"_s);
    QVERIFY(f.window.calls.isEmpty() && f.installation.exists(u"VYKLaunch/font.vyk"_s));
    click(form, u"FontBut_0"_s);
    QVERIFY(!f.installation.exists(u"VYKLaunch/font.vyk"_s));
    QCOMPARE(f.processes.starts.size(), 1);
}

void DialogsWindowTest::texturePath()
{
    LauncherFixture f;
    f.installation.addFolder(u"Mine/Textures"_s);
    TexForm form(f.launcher, nullptr);
    auto* path = form.findChild<QLineEdit*>(u"HiResText"_s);
    QCOMPARE(path->text(), u"Not installed or the specified path is invalid"_s);
    f.prompts.expectFile(f.path(u"Mine"_s));
    click(form, u"TexButton"_s);
    QCOMPARE(path->text(), f.nativePath(u"Mine"_s));
    QCOMPARE(f.installation.read(u"VYKLaunch/Data/texpath.vyk"_s), ToAnsi(f.nativePath(u"Mine"_s)) + "\r\n");
    f.disk.removeTree(f.path(u"Mine"_s)); // gone while the dialog is open
    form.done(0);
    QVERIFY(!f.installation.exists(u"VYKLaunch/Data/texpath.vyk"_s));
    QVERIFY(!f.launcher.controls.chkMain[1].enabled);
}

void DialogsWindowTest::confirmation()
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

QTEST_MAIN(DialogsWindowTest)
#include "DialogsWindowTest.moc"
