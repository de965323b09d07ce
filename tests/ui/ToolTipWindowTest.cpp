#include "ui/ToolTipView.h"

#include <QEnterEvent>
#include <QPushButton>
#include <QScreen>
#include <QtTest>

using namespace Qt::StringLiterals;

class ToolTipWindowTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<QWidget> m_window;
    QPushButton *m_clear = nullptr, *m_other = nullptr;
    std::unique_ptr<clsToolTip> m_tips;

    QLabel* tip() const { return qobject_cast<QLabel*>(QWidget::find(m_tips->ToolTipHandle())); }

    bool comes(QWidget* control) // with the initial delay set to nothing
    {
        QEnterEvent event({1, 1}, {1, 1}, {1, 1});
        QApplication::sendEvent(control, &event);
        return QTest::qWaitFor([this] { return tip()->isVisible(); }, 30000);
    }

    void send(QEvent::Type type)
    {
        QEvent event(type);
        QApplication::sendEvent(m_clear, &event);
    }

private Q_SLOTS:
    void init()
    {
        m_tips.reset();
        QCursor::setPos(
            QGuiApplication::primaryScreen()->geometry().bottomRight()); // the events here are made
        m_window = std::make_unique<QWidget>();
        m_clear = new QPushButton(u"Clear"_s, m_window.get());
        m_other = new QPushButton(u"Other"_s, m_window.get());
        m_window->show();
        m_tips = std::make_unique<clsToolTip>();
        SetUpToolTips(*m_tips, m_window.get());
        m_tips->setDelayTime(clsToolTip::Initial, 0);
    }

    void aTipGoes()
    {
        const std::function<void()> reasons[] = {
            [this] { send(QEvent::Leave); },
            [this] { QTest::mousePress(m_clear, Qt::LeftButton); },
            [this] { QTest::keyPress(m_other, Qt::Key_A); },
            [this] { send(QEvent::WindowDeactivate); },
            [this] { m_clear->hide(); },
            [this] { m_tips->setToolText(m_clear, {}); },
            [this] { m_tips->RemoveTool(m_clear); },
            [this] { // by itself
                m_tips->setDelayTime(clsToolTip::Autopop, 0);
                m_tips->setToolText(m_clear, u"Short"_s);
                QTRY_VERIFY(!tip()->isVisible());
            },
        };
        for (const auto& reason : reasons) {
            init();
            m_tips->setForeColor(Qt::blue);
            m_tips->AddTool(m_clear, u"Clears\r\nthe list."_s);
            QVERIFY(comes(m_clear));
            QCOMPARE(tip()->text(), u"Clears\nthe list."_s);
            QCOMPARE(tip()->palette().color(QPalette::ToolTipText), QColor(Qt::blue));
            reason();
            QVERIFY(!tip()->isVisible());
        }
    }

    void aTipWrapsAndStaysOnTheScreen()
    {
        m_tips->setMaxTipWidth(100);
        m_tips->AddTool(m_clear, u"Prevent same type monsters from attacking each other."_s);
        const QRect screen = QGuiApplication::primaryScreen()->geometry();
        for (const QPoint corner : {screen.bottomRight(), screen.topLeft()}) {
            QCursor::setPos(corner);
            QVERIFY(comes(m_clear) && screen.contains(QRect(tip()->pos(), tip()->size())));
            QVERIFY(tip()->width() < 100 + 20 && tip()->height() > 3 * tip()->fontMetrics().height());
            send(QEvent::Leave);
        }
    }
};

QTEST_MAIN(ToolTipWindowTest)
#include "ToolTipWindowTest.moc"
