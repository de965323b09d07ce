#include "app/PromptsView.h"
#include "shortcuts/ShortcutForm.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

using namespace Qt::StringLiterals;

class ShortcutWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theButtonCancelsUntilAPlaceIsTicked()
    {
        ShortcutForm form(ShortcutQuestion{.name = u"<b>Läufer & Co</b>"_s, .toolTips = true});
        form.show();
        const auto box = [&form](const QString& name) { return form.findChild<QCheckBox*>(name); };
        const auto* button = form.findChild<QPushButton*>(u"OKButton"_s);
        QCOMPARE(form.windowTitle(), u"Create Shortcut"_s);
        QCOMPARE(form.findChild<QLabel*>(u"ShortcutLabel_1"_s)->text(), u"<b>Läufer & Co</b>"_s);
        QCOMPARE(form.findChild<QLabel*>(u"ShortcutLabel_1"_s)->textFormat(), Qt::PlainText);
        const auto verifyGoesOn = [&](bool on) {
            QCOMPARE(button->text(), on ? u"Create"_s : u"Cancel"_s);
            QCOMPARE(box(u"ChkMapNum"_s)->isEnabled(), on);
        };
        verifyGoesOn(false);
        for (const auto& [click, on] : {std::pair(0, true), {1, true}, {0, true}, {1, false}, {1, true}}) {
            box(u"chkShortcut_%1"_s.arg(click))->click();
            verifyGoesOn(on);
        }
    }

    void whatIsTickedIsAnswered()
    {
        QWidget window;
        window.show();
        const auto answer = [&](const QStringList& boxes, bool escape) {
            QTimer::singleShot(0, qApp, [=] {
                auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
                for (const QString& name : boxes)
                    dialog->findChild<QCheckBox*>(name)->click();
                if (escape)
                    QTest::keyClick(dialog, Qt::Key_Escape);
                else
                    dialog->findChild<QPushButton*>(u"OKButton"_s)->click();
            });
            return PromptsView(&window).askShortcut({.name = u"DOOM II"_s, .toolTips = false});
        };
        QVERIFY(!answer({}, false));
        QVERIFY(!answer({u"chkShortcut_0"_s}, true));
        const auto menu = answer({u"chkShortcut_0"_s}, false);
        QVERIFY(menu && menu->StartMenuShortcut && !menu->DesktopShortcut && !menu->IncludeMapInShortcut);
        const auto desktop = answer({u"chkShortcut_1"_s, u"ChkMapNum"_s}, false);
        QVERIFY(desktop && !desktop->StartMenuShortcut && desktop->DesktopShortcut);
        QVERIFY(desktop->IncludeMapInShortcut);
    }
};

QTEST_MAIN(ShortcutWindowTest)
#include "ShortcutWindowTest.moc"
