#include "ui/ControlBinder.h"
#include "ui/FilterView.h"
#include "ui/ListView.h"

#include <QAbstractButton>
#include <QMenu>
#include <QSplitter>
#include <QWindow>
#include <QtTest>

using namespace Qt::StringLiterals;

// A list with its filter box and its task menu, bound to plain controls.
class ListWindowTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<QWidget> m_window;
    ListView* m_list = nullptr;
    FilterView* m_filter = nullptr;
    std::unique_ptr<ControlBinder> m_binder;
    ListBox m_games;
    TextBox m_typed;
    QStringList m_events;

    QPoint centreOf(int row) const { return m_list->visualRect(m_list->model()->index(row, 0)).center(); }
    void press(Qt::MouseButton button, int row)
    {
        QTest::mouseClick(m_list->viewport(), button, {}, centreOf(row));
    }

    QString rows() const
    {
        QStringList texts;
        for (int row = 0; row < m_list->model()->rowCount(); ++row)
            texts << m_list->model()->index(row, 0).data().toString();
        return texts.join(u' ');
    }

    // The menu that a key brings, or a right click, which goes by way of the window; it is closed again.
    QString menu(std::optional<QPoint> at = {})
    {
        if (at)
            QTest::mouseClick(m_window->windowHandle(), Qt::RightButton, {},
                              m_list->viewport()->mapTo(m_window.get(), *at));
        else
            QTest::keyClick(m_list, Qt::Key_F10, Qt::ShiftModifier);
        QStringList items;
        const auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        for (const QAction* action : menu ? menu->actions() : QList<QAction*>())
            items << (action->isSeparator() ? u"-"_s : action->isEnabled() ? action->text() : u"(off)"_s);
        if (menu)
            QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
        return items.join(u'|');
    }

private Q_SLOTS:
    void init()
    {
        m_events.clear();
        m_typed = TextBox();
        m_games = ListBox();
        for (const QString& game : {u"Alpha"_s, u"Beta"_s, u"Gamma"_s, u"Alphabet"_s})
            m_games.add(game);
        m_games.clicked = [this] { m_events << m_games.selectedText(); };
        m_games.doubleClicked = [this] { m_events << u"double"_s; };
        m_typed.typed = [this] { m_games.setFilter(m_typed.text); };

        m_window = std::make_unique<QSplitter>(Qt::Vertical);
        m_list = new ListView(u"Nothing there"_s, u"No game matches"_s, m_window.get());
        m_filter = new FilterView(u"Find a game"_s, m_list, m_window.get());
        m_binder = std::make_unique<ControlBinder>();
        m_binder->bind(u"list"_s, m_games, m_list);
        m_binder->bind(u"filter"_s, m_typed, m_filter);
        m_window->resize(300, 300);
        m_binder->write();
        m_window->show();
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        m_filter->setFocus();
    }

    void pressesAndKeysCountAsClicks()
    {
        press(Qt::LeftButton, 1);
        press(Qt::LeftButton, 1);
        press(Qt::RightButton, 1); // asks for the menu only
        press(Qt::RightButton, 2);
        for (const Qt::Key key : {Qt::Key_Up, Qt::Key_A})
            QTest::keyClick(m_list, key);
        QTest::keyClick(m_list, Qt::Key_Space, Qt::ControlModifier); // takes no selection away
        QVERIFY(m_list->selectionModel()->isSelected(m_list->currentIndex()));
        // The widget's own event: two clicks in a row would depend on the time between them.
        press(Qt::LeftButton, 2);
        for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton})
            QTest::mouseDClick(m_list->viewport(), button, {}, centreOf(2));
        QCOMPARE(m_events.join(u' '), u"Beta Beta Gamma Beta Alphabet Gamma double"_s);
    }

    // Also while the keyboard is elsewhere and the system pales what it calls inactive.
    void theChoiceStaysInSight()
    {
        QPalette colours(Qt::green);
        colours.setColor(QPalette::Active, QPalette::Highlight, Qt::green);
        colours.setColor(QPalette::Inactive, QPalette::Highlight, Qt::white);
        m_list->setPalette(colours);
        for (int i = 0; i < 200; ++i)
            m_games.add(u"Map %1"_s.arg(i));
        m_games.startAs(150);
        m_binder->write();
        const QPoint inRow(m_list->viewport()->width() - 2, centreOf(150).y());
        QCOMPARE(m_list->viewport()->grab().toImage().pixelColor(inRow), QColor(Qt::green));
        m_list->scrollToTop();
        m_binder->write(); // what the player scrolled to stays
        QVERIFY(!m_list->viewport()->rect().contains(centreOf(150)));
    }

    void theMenuBelongsToTheRowAndShowsWhatIsVisible()
    {
        MenuItem first, line, second, lastLine, third;
        first.caption = u"Cut & paste"_s;
        second.enabled = third.visible = false;
        line.isSeparator = lastLine.isSeparator = true;
        const Menu all{&first, &line, &second, &lastLine, &third};
        int asked = 0;
        m_games.taskMenu = [&] { return ++asked, m_games.selected() == 2 ? &all : nullptr; };
        QCOMPARE(menu() + menu(centreOf(3) + QPoint(0, 60)), u""_s); // no row is chosen
        QCOMPARE(asked, 0);
        QCOMPARE(menu(centreOf(0)), u""_s);
        QCOMPARE(menu(centreOf(2)), u"Cut && paste|-|(off)"_s);
        QCOMPARE(asked, 2);
        QContextMenuEvent byKey(QContextMenuEvent::Keyboard, {}, {});
        QApplication::sendEvent(m_list, &byKey);
        QVERIFY(QApplication::activePopupWidget());
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
        first.visible = false;
        QCOMPARE(menu(), u"(off)"_s);
        second.visible = false;
        QCOMPARE(menu(), u""_s);
    }

    void aPickedItemRunsOnceTheMenuIsGone()
    {
        MenuItem remove;
        remove.clicked = [this] {
            QVERIFY(!QApplication::activePopupWidget() && m_binder->isRunning());
            QStringList left = m_games.entries();
            left.removeAt(m_games.selected());
            m_games.show(left);
        };
        const Menu menu{&remove};
        m_games.taskMenu = [&] { return &menu; };
        press(Qt::LeftButton, 1);
        QTest::keyClick(m_list, Qt::Key_F10, Qt::ShiftModifier);
        for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Return})
            QTest::keyClick(QApplication::activePopupWidget(), key);
        QCoreApplication::processEvents();
        QCOMPARE(rows(), u"Alpha Gamma Alphabet"_s);
        QVERIFY(!m_list->currentIndex().isValid());
    }

    void keysLeadFromTheFilterToTheList()
    {
        const std::tuple<QString, Qt::Key, int> rows[] = {
            {u"alpha"_s, Qt::Key_Down, 3}, // which was selected before
            {u"mm"_s, Qt::Key_Down, 2},
            {u"alpha"_s, Qt::Key_Return, 0},
            {u""_s, Qt::Key_Enter, 3},
        };
        for (const auto& [typed, key, selected] : rows) {
            init();
            press(Qt::LeftButton, 3);
            m_filter->setFocus();
            QTest::keyClicks(m_filter, typed);
            QTest::keyClick(m_filter, key);
            QVERIFY(m_list->hasFocus() && m_games.selected() == selected);
            QCOMPARE(m_list->currentIndex().data().toString(), m_games.selectedText());
        }
    }
};

QTEST_MAIN(ListWindowTest)
#include "ListWindowTest.moc"
