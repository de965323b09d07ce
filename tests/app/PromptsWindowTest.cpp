#include "app/PromptsView.h"
#include "options/ConfirmForm.h"
#include "ui/AskForm.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressDialog>
#include <QPushButton>
#include <QtTest>

using namespace Qt::StringLiterals;

class PromptsWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNameIsAsked()
    {
        const NameQuestion newName{u" Rename "_s, u" New name "_s, u"Cancel"_s, u"Old"_s};
        const NameQuestion firstName{u" New "_s, u" Game "_s, u"OK"_s, u" Name "_s};
        const QList<std::tuple<NameQuestion, QList<Qt::Key>, QString>> rows{
            {newName, {Qt::Key_Return}, u"Cancel|"_s}, // must change
            {newName, {Qt::Key_End, Qt::Key_Return}, u"Cancel|"_s},
            {newName, {Qt::Key_X, Qt::Key_Return}, u"OK|x"_s},
            {newName, {Qt::Key_End, Qt::Key_X, Qt::Key_Return}, u"OK|Oldx"_s},
            {newName, {Qt::Key_X, Qt::Key_Escape}, u"OK|"_s},
            {firstName, {Qt::Key_Return}, u"OK| Name "_s},
            {firstName, {Qt::Key_End, Qt::Key_X, Qt::Key_Y, Qt::Key_Return}, u"OK|xy"_s}, // replaces it
        };
        for (const auto& [question, keys, expected] : rows) {
            AskForm form(question);
            form.show();
            for (const Qt::Key key : keys)
                QTest::keyClick(form.findChild<QLineEdit*>(u"edProfName"_s), key);
            QVERIFY(!form.isVisible());
            const QString name = form.result() == QDialog::Accepted ? form.name() : QString();
            QCOMPARE(form.findChild<QPushButton*>(u"OKButton"_s)->text() + u'|' + name, expected);
        }
    }

    void modelsAreRemovedOnlyWhenTicked()
    {
        QWidget window;
        window.show();
        PromptsView prompts(&window);
        const QString summary = u"Pack 1 <b>: 3 folders"_s;
        for (int ticks = 0; ticks < 6; ++ticks) {
            const bool ticked = ticks % 2, escape = ticks > 3;
            QTimer::singleShot(0, qApp, [=] {
                auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
                const auto reject = qScopeGuard([=] { dialog->isVisible() ? dialog->reject() : void(); });
                auto* box = dialog->findChild<QCheckBox*>(u"chkModDel"_s);
                auto* button = dialog->findChild<QPushButton*>(u"OKButton"_s);
                QCOMPARE(dialog->findChild<QLabel*>(u"Summary"_s)->text(), summary);
                QVERIFY(!box->accessibleDescription().isEmpty());
                for (int tick = 0; tick < ticks; ++tick)
                    box->click();
                QCOMPARE(button->text(), ticked ? u"Cleanup"_s : u"Cancel"_s);
                QTest::keyClick(dialog, escape ? Qt::Key_Escape : Qt::Key_Return);
            });
            QCOMPARE(prompts.askModelCleanup({summary, true}), ticked && !escape);
        }
    }
};

QTEST_MAIN(PromptsWindowTest)
#include "PromptsWindowTest.moc"
