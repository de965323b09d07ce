#include "ui/TitleView.h"
#include "ui/ToolTipView.h"

#include <QEnterEvent>
#include <QGroupBox>
#include <QPushButton>
#include <QScreen>
#include <QToolTip>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int never = 10 * 60 * 1000;

void enter(QWidget* control)
{
    QEnterEvent event({1, 1}, {1, 1}, {1, 1});
    QApplication::sendEvent(control, &event);
}

void send(QWidget* control, QEvent::Type type)
{
    QEvent event(type);
    QApplication::sendEvent(control, &event);
}

} // namespace

class ToolTipWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void delaysMarginsAndColours();
    void onlySomeControlsCarryATip();
    void theHeaderIsStoredWithTheText();
    void aTipGoes_data();
    void aTipGoes();
    void aTipGoesByItself();
    void aFurtherTipHasItsOwnDelay();
    void aTipWrapsAndStaysOnTheScreen();

private:
    QLabel* tip() const { return qobject_cast<QLabel*>(QWidget::find(m_tips->ToolTipHandle())); }
    bool comes(QWidget* control) // with the initial delay set to nothing
    {
        enter(control);
        return QTest::qWaitFor([this] { return tip()->isVisible(); }, 30000);
    }

    std::unique_ptr<QWidget> m_window;
    QPushButton *m_clear = nullptr, *m_other = nullptr;
    std::unique_ptr<clsToolTip> m_tips;
};

void ToolTipWindowTest::init()
{
    m_tips.reset();
    QCursor::setPos(QGuiApplication::primaryScreen()->geometry().bottomRight()); // the events here are made
    m_window = std::make_unique<QWidget>();
    m_clear = new QPushButton(u"Clear"_s, m_window.get());
    m_other = new QPushButton(u"Other"_s, m_window.get());
    m_window->show();
    m_tips = std::make_unique<clsToolTip>();
    SetUpToolTips(*m_tips, m_window.get());
    m_tips->setDelayTime(clsToolTip::Initial, 0);
}

void ToolTipWindowTest::delaysMarginsAndColours()
{
    SetUpToolTips(*m_tips, m_window.get());
    QCOMPARE(m_tips->MaxTipWidth(), 240);
    QCOMPARE(m_tips->DelayTime(4 + 2), 20000);
    QCOMPARE(m_tips->DelayTime(clsToolTip::Reshow), 800);
    QCOMPARE(m_tips->DelayTime(clsToolTip::Initial), 300);
    const int margins[] = {5, 2, 5, 2};
    for (int side = 0; side < 4; ++side)
        QCOMPARE(m_tips->Margin(side + 4), margins[side]);

    m_tips->setDelayTime(clsToolTip::Automatic, 100);
    QCOMPARE(m_tips->DelayTime(clsToolTip::Initial), 100);
    QVERIFY(m_tips->DelayTime(clsToolTip::Autopop) > 100 && m_tips->DelayTime(clsToolTip::Reshow) < 100);

    QCOMPARE(m_tips->BackColor(), QToolTip::palette().color(QPalette::ToolTipBase));
    m_tips->setForeColor(Qt::blue);
    m_tips->AddTool(m_clear, u"Blue"_s);
    QVERIFY(comes(m_clear));
    QCOMPARE(tip()->palette().color(QPalette::ToolTipText), QColor(Qt::blue));
}

void ToolTipWindowTest::onlySomeControlsCarryATip()
{
    clsToolTip uncreated;
    QCOMPARE(uncreated.hWnd(), quintptr(0));
    QVERIFY(!uncreated.AddTool(m_clear, u"Too early"_s));

    QLabel label;
    TitleView picture;
    QGroupBox frame;
    for (QWidget* control : QList<QWidget*>{nullptr, &label, &picture, &frame})
        QVERIFY(!m_tips->AddTool(control, u"Nowhere"_s));
    QVERIFY(m_tips->AddTool(m_clear, u"First\r\nline\0rest"_s));
    QVERIFY(!m_tips->AddTool(m_clear, u"Second"_s));
    QCOMPARE(m_tips->ToolText(m_clear), u"First\r\nline"_s);
    QCOMPARE(m_clear->accessibleDescription(), u"First line"_s);
    m_tips->setToolText(m_other, u"Not added"_s);
    QVERIFY(!m_tips->HasToolTip(m_other));
    QCOMPARE(m_tips->ToolCount(), 1);

    m_tips->RemoveTool(m_clear);
    m_tips->RemoveTool(m_clear);
    QVERIFY(!m_tips->HasToolTip(m_clear));
    QVERIFY(m_clear->accessibleDescription().isEmpty());

    m_tips->AddTool(m_other, u"Gone"_s);
    QVERIFY(comes(m_other));
    delete m_other;
    QVERIFY(!tip()->isVisible());
    QCOMPARE(m_tips->ToolCount(), 0);
}

void ToolTipWindowTest::theHeaderIsStoredWithTheText()
{
    const QString text = u"Clears Iwad locations from list."_s;
    m_tips->AddTool(m_clear, text);
    QCOMPARE(m_tips->ToolText(m_clear), text);
    m_tips->setToolTipHeader(u"Iwads"_s);
    m_tips->setToolText(m_clear, text);
    QCOMPARE(m_tips->ToolText(m_clear), u"Iwads\r\n"_s + text);
    m_tips->setToolTipHeaderShow(false);
    m_tips->AddTool(m_other, text);
    QCOMPARE(m_tips->ToolText(m_other), text);
}

void ToolTipWindowTest::aTipGoes_data()
{
    QTest::addColumn<std::function<void()>>("because");
    const auto row = [](const char* name, const std::function<void()>& because) {
        QTest::newRow(name) << because;
    };
    row("leave", [this] { send(m_clear, QEvent::Leave); });
    row("press", [this] { QTest::mousePress(m_clear, Qt::LeftButton); });
    row("key elsewhere", [this] { QTest::keyPress(m_other, Qt::Key_A); });
    row("wheel", [this] {
        QWheelEvent event({1, 1}, {1, 1}, {}, {0, 120}, {}, {}, Qt::NoScrollPhase, false);
        QApplication::sendEvent(m_clear, &event);
    });
    row("hidden", [this] { m_clear->hide(); });
    row("emptied", [this] { m_tips->setToolText(m_clear, {}); });
    row("removed", [this] { m_tips->RemoveTool(m_clear); });
}

void ToolTipWindowTest::aTipGoes()
{
    QFETCH(const std::function<void()>, because);
    m_tips->AddTool(m_clear, u"Clears\r\nthe list."_s);
    QVERIFY(comes(m_clear));
    QCOMPARE(tip()->text(), u"Clears\nthe list."_s);
    because();
    QVERIFY(!tip()->isVisible());
}

void ToolTipWindowTest::aTipGoesByItself()
{
    m_tips->AddTool(m_clear, u"Long"_s);
    QVERIFY(comes(m_clear));
    m_tips->setDelayTime(clsToolTip::Autopop, 0);
    m_tips->setToolText(m_clear, u"Short"_s);
    QTRY_VERIFY(!tip()->isVisible());
}

void ToolTipWindowTest::aFurtherTipHasItsOwnDelay()
{
    m_tips->AddTool(m_clear, u"First"_s);
    m_tips->AddTool(m_other, u"Further"_s);
    QVERIFY(comes(m_clear));
    m_tips->setDelayTime(clsToolTip::Initial, never);
    m_tips->setDelayTime(clsToolTip::Reshow, 0);
    send(m_clear, QEvent::Leave);
    QVERIFY(comes(m_other));
    QCOMPARE(tip()->text(), u"Further"_s);
}

void ToolTipWindowTest::aTipWrapsAndStaysOnTheScreen()
{
    const QString line = u"Prevent same type monsters from attacking each other."_s;
    m_tips->setMaxTipWidth(100);
    m_tips->AddTool(m_clear, line);
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    for (const QPoint corner : {screen.bottomRight(), screen.topLeft()}) {
        QCursor::setPos(corner);
        QVERIFY(comes(m_clear));
        QVERIFY(screen.contains(QRect(tip()->pos(), tip()->size())));
        QVERIFY(tip()->width() < 100 + 20);
        QVERIFY(tip()->height() > 3 * tip()->fontMetrics().height());
        send(m_clear, QEvent::Leave);
    }
}

QTEST_MAIN(ToolTipWindowTest)
#include "ToolTipWindowTest.moc"
