#include "platform/SingleInstance.h"

#include <QCoreApplication>
#include <QTest>
#include <QUuid>
#include <future>

using namespace Qt::StringLiterals;

class SingleInstanceTest : public QObject
{
    Q_OBJECT

    const QString m_key = QUuid::createUuid().toString();

    // What another start asks, answered while this thread's event loop runs.
    bool activateFromAnotherStart() const
    {
        auto answer = std::async(std::launch::async, [&] { return SingleInstance(m_key).activateRunning(); });
        while (answer.wait_for(std::chrono::milliseconds(1)) != std::future_status::ready)
            QCoreApplication::processEvents();
        return answer.get();
    }

private Q_SLOTS:
    void thePlaceIsOnesUntilItsHolderEnds()
    {
        int first = 0, second = 0;
        auto holder = std::make_unique<SingleInstance>(m_key);
        SingleInstance waiting(m_key), other(m_key), elsewhere(m_key + u"x"_s);
        QVERIFY(!other.activateRunning());
        QVERIFY(holder->claim([] { QFAIL("was replaced"); }));
        QVERIFY(holder->claim([&] { ++first; })); // it is its own
        QVERIFY(elsewhere.claim([] {}));
        waiting.claimWhenFree([&] { ++second; });
        QVERIFY(!other.claim([] { QFAIL("does not hold the place"); }));
        QVERIFY(activateFromAnotherStart() && activateFromAnotherStart());
        holder.reset();
        QVERIFY(QTest::qWaitFor([this] { return activateFromAnotherStart(); }));
        QVERIFY(!other.claim([] {}));
        QVERIFY(first == 2 && second == 1);
    }
};

QTEST_GUILESS_MAIN(SingleInstanceTest)
#include "SingleInstanceTest.moc"
