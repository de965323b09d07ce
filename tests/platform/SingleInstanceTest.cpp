#include "platform/SingleInstance.h"

#include <QCoreApplication>
#include <QTest>
#include <QUuid>
#include <future>

using namespace Qt::StringLiterals;

class SingleInstanceTest : public QObject
{
    Q_OBJECT

    // What another start asks, answered while this thread's event loop runs.
    static bool activateFromAnotherStart(const QString& key)
    {
        auto answer = std::async(std::launch::async, [&] { return SingleInstance(key).activateRunning(); });
        while (answer.wait_for(std::chrono::milliseconds(1)) != std::future_status::ready)
            QCoreApplication::processEvents();
        return answer.get();
    }

    const QString m_key = QUuid::createUuid().toString();

private Q_SLOTS:
    void theSecondStartActivatesTheFirst()
    {
        int activated = 0;
        SingleInstance first(m_key);
        SingleInstance second(m_key);
        QVERIFY(!second.activateRunning());
        QVERIFY(first.claim([&] { ++activated; }));
        QVERIFY(!second.claim([] { QFAIL("does not hold the place"); }));
        QVERIFY(activateFromAnotherStart(m_key));
        QVERIFY(activateFromAnotherStart(m_key));
        QCOMPARE(activated, 2);

        SingleInstance elsewhere(m_key + u"x"_s);
        QVERIFY(elsewhere.claim([] {}));
    }

    void thePlaceIsFreeWhenItsHolderEnds()
    {
        int activated = 0;
        auto first = std::make_unique<SingleInstance>(m_key);
        SingleInstance second(m_key);
        SingleInstance third(m_key);
        QVERIFY(first->claim([] {}));
        QVERIFY(first->claim([] {})); // it is its own
        second.claimWhenFree([&] { ++activated; });
        QVERIFY(!third.claim([] {}));
        first.reset();
        QVERIFY(QTest::qWaitFor([this] { return activateFromAnotherStart(m_key); }));
        QCOMPARE(activated, 1);
        QVERIFY(!third.claim([] {}));
    }
};

QTEST_GUILESS_MAIN(SingleInstanceTest)
#include "SingleInstanceTest.moc"
