#include "ui/AskForm.h"
#include "ui/PromptsView.h"

#include <QDeadlineTimer>
#include <QLineEdit>
#include <QProgressDialog>
#include <QPushButton>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

const NameQuestion newName{u" Rename "_s, u" New name "_s, u"Cancel"_s, u"Old"_s};
const NameQuestion firstName{u" New "_s, u" Game "_s, u"OK"_s, u" Name "_s};

} // namespace

class PromptsWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anUnchangedNameCancels();
    void typingTurnsTheButtonIntoOk();
    void theFirstKeyReplacesTheMissingName();
    void escapeCancels();
    void cancellingStopsTheWork();
};

void PromptsWindowTest::anUnchangedNameCancels()
{
    AskForm form(newName);
    form.show();
    QCOMPARE(form.findChild<QLineEdit*>(u"edProfName"_s)->selectedText(), u"Old"_s);
    QTest::keyClick(&form, Qt::Key_Return);
    QVERIFY(!form.isVisible());
    QCOMPARE(form.result(), int{QDialog::Rejected});

    AskForm proposed(firstName);
    proposed.show();
    proposed.findChild<QPushButton*>(u"OKButton"_s)->click();
    QCOMPARE(proposed.result(), int{QDialog::Accepted});
    QCOMPARE(proposed.name(), u" Name "_s);
}

void PromptsWindowTest::typingTurnsTheButtonIntoOk()
{
    AskForm form(newName);
    form.show();
    auto* edit = form.findChild<QLineEdit*>(u"edProfName"_s);
    const auto* button = form.findChild<QPushButton*>(u"OKButton"_s);
    QCOMPARE(button->text(), u"Cancel"_s);
    QTest::keyClick(edit, Qt::Key_End);
    QCOMPARE(button->text(), u"Cancel"_s);
    QTest::keyClicks(edit, u"er"_s);
    QCOMPARE(button->text(), u"OK"_s);
    QTest::keyClick(edit, Qt::Key_Return);
    QCOMPARE(form.result(), int{QDialog::Accepted});
    QCOMPARE(form.name(), u"Older"_s);
}

void PromptsWindowTest::theFirstKeyReplacesTheMissingName()
{
    AskForm form(firstName);
    form.show();
    auto* edit = form.findChild<QLineEdit*>(u"edProfName"_s);
    QTest::keyClick(edit, Qt::Key_End);
    QTest::keyClicks(edit, u"xy"_s);
    QCOMPARE(form.name(), u"xy"_s);
}

void PromptsWindowTest::escapeCancels()
{
    AskForm form(firstName);
    form.show();
    auto* edit = form.findChild<QLineEdit*>(u"edProfName"_s);
    QTest::keyClicks(edit, u"x"_s);
    QTest::keyClick(edit, Qt::Key_Escape);
    QVERIFY(!form.isVisible());
    QCOMPARE(form.result(), int{QDialog::Rejected});
}

void PromptsWindowTest::cancellingStopsTheWork()
{
    constexpr qint64 large = 8LL << 40;
    QWidget window;
    window.show();
    const auto progress = PromptsView(&window).showProgress(u"Copying <b>"_s);
    const QDeadlineTimer limit(30000);
    QProgressDialog* dialog = nullptr;
    while (!dialog && !limit.hasExpired()) {
        QVERIFY(progress->advance(large / 2, large));
        dialog = window.findChild<QProgressDialog*>();
    }
    QVERIFY(dialog && dialog->isVisible());
    QCOMPARE(QApplication::activeModalWidget(), dialog); // the window takes no input
    QCOMPARE(dialog->value(), dialog->maximum() / 2);
    dialog->findChild<QPushButton*>()->click();
    QVERIFY(!progress->advance(large, large));
    QVERIFY(!progress->advance(large, large));
}

QTEST_MAIN(PromptsWindowTest)
#include "PromptsWindowTest.moc"
