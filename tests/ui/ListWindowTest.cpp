#include "ui/ControlBinder.h"
#include "ui/FilterView.h"
#include "ui/ListView.h"

#include <QAbstractButton>
#include <QMenu>
#include <QVBoxLayout>
#include <QWindow>
#include <QtTest>

using namespace Qt::StringLiterals;

// A list with its filter box and its task menu, bound to plain controls.
class ListWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void pressesCountAsClicks();
    void aDoubleClickFollowsTheClick();
    void aNewSelectionIsScrolledIntoSight();
    void theChoiceStaysInSight();
    void theMenuShowsWhatIsVisible();
    void theMenuBelongsToTheRow();
    void aPickedItemRunsOnceTheMenuIsGone();
    void theSelectionSurvivesFiltering();
    void keysLeadFromTheFilterToTheList_data();
    void keysLeadFromTheFilterToTheList();
    void theClearButtonCountsAsTyping();

private:
    QPoint centreOf(int row) const { return m_list->visualRect(m_list->model()->index(row, 0)).center(); }
    void press(Qt::MouseButton button, int row)
    {
        QTest::mouseClick(m_list->viewport(), button, {}, centreOf(row));
    }
    void rightClick(int row) // by way of the window, which turns it into a request for the menu
    {
        const QPoint at = m_list->viewport()->mapTo(m_window.get(), centreOf(row));
        QTest::mouseClick(m_window->windowHandle(), Qt::RightButton, {}, at);
    }
    static QStringList shownMenu();
    QStringList rows() const;
    QString current() const { return m_list->currentIndex().data().toString(); }

    std::unique_ptr<QWidget> m_window;
    ListView* m_list = nullptr;
    FilterView* m_filter = nullptr;
    std::unique_ptr<ControlBinder> m_binder;
    ListBox m_games;
    TextBox m_typed;
    QStringList m_events;
};

void ListWindowTest::init()
{
    m_events.clear();
    m_typed = TextBox();
    m_games = ListBox();
    for (const QString& game : {u"Alpha"_s, u"Beta"_s, u"Gamma"_s, u"Alphabet"_s})
        m_games.add(game);
    m_games.clicked = [this] { m_events << m_games.selectedText(); };
    m_games.doubleClicked = [this] { m_events << u"double"_s; };
    m_typed.typed = [this] { m_games.setFilter(m_typed.text); };

    m_window = std::make_unique<QWidget>();
    m_list = new ListView(u"Nothing there"_s, u"No game matches"_s);
    m_filter = new FilterView(u"Find a game"_s, m_list);
    m_binder = std::make_unique<ControlBinder>();
    m_binder->bind(u"list"_s, m_games, m_list);
    m_binder->bind(u"filter"_s, m_typed, m_filter);
    auto* rows = new QVBoxLayout(m_window.get());
    rows->addWidget(m_filter);
    rows->addWidget(m_list);
    m_window->resize(300, 300);
    m_binder->write();
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    m_filter->setFocus();
}

QStringList ListWindowTest::rows() const
{
    QStringList texts;
    for (int row = 0; row < m_list->model()->rowCount(); ++row)
        texts << m_list->model()->index(row, 0).data().toString();
    return texts;
}

QStringList ListWindowTest::shownMenu()
{
    const auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    QStringList items;
    if (menu)
        for (const QAction* action : menu->actions())
            items << (action->isSeparator() ? u"-"_s
                                            : action->text() + (action->isEnabled() ? u""_s : u" (off)"_s));
    return items;
}

void ListWindowTest::pressesCountAsClicks()
{
    press(Qt::LeftButton, 1);
    press(Qt::LeftButton, 1);
    QCOMPARE(m_events, (QStringList{u"Beta"_s, u"Beta"_s}));
    press(Qt::RightButton, 1); // asks for the menu only
    press(Qt::RightButton, 2);
    QCOMPARE(m_events.mid(2), QStringList(u"Gamma"_s));

    m_list->setFocus();
    QTest::keyClick(m_list, Qt::Key_Up);
    QTest::keyClick(m_list, Qt::Key_A);
    QTest::keyClick(m_list, Qt::Key_Space, Qt::ControlModifier); // takes no selection away
    QCOMPARE(m_events.mid(3), (QStringList{u"Beta"_s, u"Alphabet"_s}));
    QVERIFY(m_list->selectionModel()->isSelected(m_list->currentIndex()));
}

void ListWindowTest::aDoubleClickFollowsTheClick()
{
    // The widget's own event: two clicks in a row would depend on the time between them.
    press(Qt::LeftButton, 2);
    QTest::mouseDClick(m_list->viewport(), Qt::LeftButton, {}, centreOf(2));
    QCOMPARE(m_events.last(), u"double"_s);
    QCOMPARE(m_events.count(u"double"_s), 1);
    QTest::mouseDClick(m_list->viewport(), Qt::RightButton, {}, centreOf(2));
    QCOMPARE(m_events.count(u"double"_s), 1);
}

void ListWindowTest::aNewSelectionIsScrolledIntoSight()
{
    for (int i = 0; i < 200; ++i)
        m_games.add(u"Map %1"_s.arg(i));
    m_games.startAs(150);
    m_binder->write();
    QVERIFY(m_list->viewport()->rect().contains(centreOf(150)));
    m_list->scrollToTop();
    m_binder->write(); // what the player scrolled to stays
    QVERIFY(!m_list->viewport()->rect().contains(centreOf(150)));
}

// Also while the keyboard is elsewhere and the system pales what it calls inactive.
void ListWindowTest::theChoiceStaysInSight()
{
    QPalette colours = m_list->palette();
    colours.setColor(QPalette::Active, QPalette::Highlight, Qt::green);
    colours.setColor(QPalette::Inactive, QPalette::Highlight, Qt::white);
    m_list->setPalette(colours);
    press(Qt::LeftButton, 1);
    m_list->clearFocus();
    const QRect row = m_list->visualRect(m_list->currentIndex());
    const QImage shown = m_list->viewport()->grab().toImage();
    QCOMPARE(shown.pixelColor(row.right() - 2, row.center().y()), QColor(Qt::green));
}

void ListWindowTest::theMenuShowsWhatIsVisible()
{
    MenuItem first, line, second, lastLine, third;
    first.caption = u"Cut & paste"_s;
    second.caption = u"Convert  twice"_s;
    second.enabled = false;
    line.isSeparator = lastLine.isSeparator = true;
    const Menu menu{&first, &line, &second, &lastLine, &third};
    third.visible = false;
    m_games.taskMenu = [&] { return &menu; };
    rightClick(2);
    QCOMPARE(m_games.selectedText(), u"Gamma"_s);
    QCOMPARE(shownMenu(), (QStringList{u"Cut && paste"_s, u"-"_s, u"Convert  twice (off)"_s}));
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);

    first.visible = false;
    QTest::keyClick(m_list, Qt::Key_F10, Qt::ShiftModifier);
    QCOMPARE(shownMenu(), QStringList(u"Convert  twice (off)"_s));
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    second.visible = false;
    QTest::keyClick(m_list, Qt::Key_F10, Qt::ShiftModifier);
    QVERIFY(!QApplication::activePopupWidget());
}

void ListWindowTest::theMenuBelongsToTheRow()
{
    MenuItem item;
    const Menu menu{&item};
    int asked = 0;
    m_games.taskMenu = [&]() -> const Menu* {
        ++asked;
        return m_games.selected() == 1 ? &menu : nullptr;
    };
    QTest::keyClick(m_list, Qt::Key_F10, Qt::ShiftModifier); // nothing is selected
    QCOMPARE(asked, 0);
    rightClick(0);
    QCOMPARE(asked, 1);
    QVERIFY(!QApplication::activePopupWidget());
    const QPoint below = m_list->viewport()->mapTo(m_window.get(), centreOf(3) + QPoint(0, 60));
    QTest::mouseClick(m_window->windowHandle(), Qt::RightButton, {}, below);
    QCOMPARE(asked, 1);

    m_games.select(1);
    m_binder->write();
    QContextMenuEvent byKey(QContextMenuEvent::Keyboard, {}, {});
    QApplication::sendEvent(m_list, &byKey);
    QCOMPARE(shownMenu().size(), 1);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
}

void ListWindowTest::aPickedItemRunsOnceTheMenuIsGone()
{
    MenuItem remove;
    remove.caption = u"Remove"_s;
    remove.clicked = [this] {
        QVERIFY(!QApplication::activePopupWidget());
        QVERIFY(m_binder->isRunning());
        m_games.remove(m_games.selected());
    };
    const Menu menu{&remove};
    m_games.taskMenu = [&] { return &menu; };
    rightClick(1);
    auto* shown = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    QVERIFY(shown);
    QTest::mouseClick(shown, Qt::LeftButton, {}, shown->actionGeometry(shown->actions().first()).center());
    QCoreApplication::processEvents();
    QCOMPARE(rows(), (QStringList{u"Alpha"_s, u"Gamma"_s, u"Alphabet"_s}));
    QVERIFY(!m_list->currentIndex().isValid());
}

void ListWindowTest::theSelectionSurvivesFiltering()
{
    press(Qt::LeftButton, 2);
    m_filter->setFocus();
    QTest::keyClicks(m_filter, u" ALPHA"_s);
    QCOMPARE(rows(), (QStringList{u"Alpha"_s, u"Alphabet"_s}));
    QCOMPARE(m_games.selectedText(), u"Gamma"_s);
    QVERIFY(!m_list->currentIndex().isValid());
    QTest::keyClicks(m_filter, u"x"_s);
    QVERIFY(rows().isEmpty());
    QTest::keyClick(m_filter, Qt::Key_Return); // leads nowhere
    QVERIFY(m_filter->hasFocus());

    QTest::keyClick(m_filter, Qt::Key_Escape);
    QVERIFY(m_list->hasFocus());
    QCOMPARE(rows().size(), 4);
    QCOMPARE(current(), u"Gamma"_s);
    QCOMPARE(m_events, QStringList(u"Gamma"_s));
}

void ListWindowTest::keysLeadFromTheFilterToTheList_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("selected"); // before: Alphabet
    QTest::newRow("Down keeps a selection in sight") << u"alpha"_s << int{Qt::Key_Down} << u"Alphabet"_s;
    QTest::newRow("Down selects the first match") << u"mm"_s << int{Qt::Key_Down} << u"Gamma"_s;
    QTest::newRow("Enter selects the first match") << u"alpha"_s << int{Qt::Key_Return} << u"Alpha"_s;
    QTest::newRow("Enter without a filter") << u""_s << int{Qt::Key_Enter} << u"Alphabet"_s;
}

void ListWindowTest::keysLeadFromTheFilterToTheList()
{
    QFETCH(const QString, typed);
    QFETCH(const int, key);
    press(Qt::LeftButton, 3);
    m_filter->setFocus();
    QTest::keyClicks(m_filter, typed);
    QTest::keyClick(m_filter, static_cast<Qt::Key>(key));
    QVERIFY(m_list->hasFocus());
    QTEST(m_games.selectedText(), "selected");
    QTEST(current(), "selected");
}

void ListWindowTest::theClearButtonCountsAsTyping()
{
    QTest::keyClicks(m_filter, u"mm"_s);
    QCOMPARE(rows().size(), 1);
    m_filter->findChild<QAbstractButton*>()->click();
    QCOMPARE(rows().size(), 4);
}

QTEST_MAIN(ListWindowTest)
#include "ListWindowTest.moc"
