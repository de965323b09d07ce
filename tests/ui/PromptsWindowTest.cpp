#include "options/ConfirmForm.h"
#include "ui/AskForm.h"
#include "ui/PromptsView.h"

#include <QCheckBox>
#include <QDeadlineTimer>
#include <QLabel>
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
    void modelsAreRemovedOnlyWhenTicked();
    void theLastQuestionDefaultsToCancel();
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

void PromptsWindowTest::modelsAreRemovedOnlyWhenTicked()
{
    const CleanupQuestion question{.summary = u"Model pack 1 <b>: 3 folders"_s, .toolTips = true};
    QWidget window;
    window.show();
    PromptsView prompts(&window);
    const auto answer = [&](const std::function<void(QDialog*, QCheckBox*, QPushButton*)>& act) {
        QTimer::singleShot(0, qApp, [act] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            act(dialog, dialog->findChild<QCheckBox*>(u"chkModDel"_s),
                dialog->findChild<QPushButton*>(u"OKButton"_s));
            if (dialog->isVisible())
                dialog->reject();
        });
        return prompts.askModelCleanup(question);
    };
    QVERIFY(!answer([](QDialog* dialog, QCheckBox* box, QPushButton* button) {
        QCOMPARE(dialog->windowTitle(), u"Model Pack Cleanup"_s);
        QCOMPARE(dialog->findChild<QLabel*>(u"Summary"_s)->text(), u"Model pack 1 <b>: 3 folders"_s);
        QCOMPARE(box->accessibleDescription(), u"Remove all traces of the models pack."_s);
        QCOMPARE(button->text(), u"Cancel"_s);
        button->click();
    }));
    QVERIFY(!answer([](QDialog*, QCheckBox* box, QPushButton* button) {
        box->click();
        QCOMPARE(button->text(), u"Cleanup"_s);
        box->click();
        QCOMPARE(button->text(), u"Cancel"_s);
        button->click();
    }));
    QVERIFY(!answer([](QDialog* dialog, QCheckBox* box, QPushButton*) {
        box->click();
        QTest::keyClick(dialog, Qt::Key_Escape);
    }));
    QVERIFY(answer([](QDialog*, QCheckBox* box, QPushButton* button) {
        box->click();
        button->click();
    }));
}

void PromptsWindowTest::theLastQuestionDefaultsToCancel()
{
    QList<bool> told;
    const auto ask = [&](Qt::Key key, bool pressContinue) {
        ConfirmForm form([&](bool never) { told << never; });
        form.show();
        form.findChild<QCheckBox*>(u"ChkConfirm"_s)->click();
        if (pressContinue)
            form.findChild<QPushButton*>(u"OKButton"_s)->click();
        else
            QTest::keyClick(&form, key);
        return !form.isVisible() && form.result() == QDialog::Accepted;
    };
    QVERIFY(!ask(Qt::Key_Return, false));
    QVERIFY(!ask(Qt::Key_Escape, false));
    QVERIFY(ask(Qt::Key_unknown, true));
    QCOMPARE(told, (QList<bool>{true, true, true}));

    ConfirmForm form([&](bool never) { told << never; });
    auto* box = form.findChild<QCheckBox*>(u"ChkConfirm"_s);
    box->click();
    box->click();
    QCOMPARE(told.last(), false);
}

QTEST_MAIN(PromptsWindowTest)
#include "PromptsWindowTest.moc"
