// The rule that makes one time of a pool's answers.

#include "poolmodel.h"
#include "timedesk.h"

#include <QTest>

#include <algorithm>

namespace {

const QDateTime noon = atSecond(0);

} // namespace

class TestTimeManagerPool : public QObject
{
    Q_OBJECT

private slots:
    void poolQuery();
    void emptyPoolNeverEnds();
    void firstAnswerCountsHoweverOld();
    void latestAnswerWins();
    void answersAreComparedInWholeSeconds();
    void answerMustBeatTheTickingClock();
    void thresholds_data();
    void thresholds();
    void everyOrderOfASmallPool();
    void sixthAnswerOfSevenIsIgnored();
    void failedPoolKeepsTheTimeItGot();
    void poolIsLogged();
    void failedPoolIsLogged();
    void halfAPoolIsLogged();

private:
    static void compareWithModel(const QList<int>& events);
};

void TestTimeManagerPool::poolQuery()
{
    Desk desk;
    desk.manager.queryPool(silentHosts(4));
    QCOMPARE(desk.outcome(), QStringLiteral("0 succesful, 0 timed out; querying, pool"));
    for (int second = 1; second <= 3; second++)
        desk.answer(atSecond(second));
    QCOMPARE(desk.outcome(), QStringLiteral("1 succesful, 0 timed out; succesful, pool"));
    desk.manager.queryPool(silentHosts(4));
    QCOMPARE(desk.outcome(), QStringLiteral("1 succesful, 0 timed out; querying, pool"));
}

void TestTimeManagerPool::emptyPoolNeverEnds()
{
    Desk desk;
    desk.manager.queryPool({});
    QCOMPARE(desk.outcome(), QStringLiteral("0 succesful, 0 timed out; querying, pool"));
}

void TestTimeManagerPool::firstAnswerCountsHoweverOld()
{
    Desk desk;
    const QDateTime longAgo(QDate(1999, 1, 1), QTime(0, 0), Qt::UTC);
    desk.manager.queryPool(silentHosts(4));
    desk.answer(longAgo);
    QCOMPARE(desk.now(), longAgo);
}

void TestTimeManagerPool::latestAnswerWins()
{
    Desk desk;
    desk.manager.queryPool(silentHosts(7));
    desk.answer(atSecond(10));
    QCOMPARE(desk.now(), atSecond(10));
    desk.answer(atSecond(5));
    QCOMPARE(desk.now(), atSecond(10));
    desk.answer(atSecond(30));
    QCOMPARE(desk.now(), atSecond(30));
    QVERIFY(QTest::qWaitFor([&] { return desk.now() > atSecond(30); }));
    QVERIFY(desk.now() < atSecond(40));
}

void TestTimeManagerPool::answersAreComparedInWholeSeconds()
{
    Desk desk;
    desk.manager.queryPool(silentHosts(7));
    desk.answer(atSecond(10, 100));
    desk.answer(atSecond(10, 900));
    QCOMPARE(desk.now(), atSecond(10, 100));
    desk.answer(atSecond(11));
    QCOMPARE(desk.now(), atSecond(11));
}

void TestTimeManagerPool::answerMustBeatTheTickingClock()
{
    Desk desk;
    desk.manager.queryPool(silentHosts(7));
    desk.answer(atSecond(0));
    QVERIFY(QTest::qWaitFor([&] { return desk.now() >= atSecond(2); }));
    const QDateTime before = desk.now();
    desk.answer(atSecond(1));
    QCOMPARE(desk.now(), before);
}

void TestTimeManagerPool::thresholds_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("answersToFinish");
    QTest::addColumn<int>("answersAtTimeout");

    QTest::newRow("1") << 1 << 1 << 0; // none would do; the first is when it is asked
    QTest::newRow("2") << 2 << 1 << 1;
    QTest::newRow("3") << 3 << 2 << 1;
    QTest::newRow("4") << 4 << 3 << 2;
    QTest::newRow("5") << 5 << 3 << 2;
    QTest::newRow("6") << 6 << 4 << 3;
    QTest::newRow("7") << 7 << 5 << 3;
    QTest::newRow("8") << 8 << 6 << 4;
}

void TestTimeManagerPool::thresholds()
{
    QFETCH(int, size);
    QFETCH(int, answersToFinish);
    QFETCH(int, answersAtTimeout);

    Desk desk;
    desk.manager.queryPool(silentHosts(size));
    for (int answers = 1; answers <= answersToFinish; answers++) {
        QVERIFY(desk.manager.isQuerying());
        desk.answer(atSecond(answers));
    }
    QCOMPARE(desk.outcome(), QStringLiteral("1 succesful, 0 timed out; succesful, pool"));

    for (int answers = 0; answers < answersToFinish; answers++) {
        Desk other;
        other.manager.queryPool(silentHosts(size));
        for (int i = 0; i < answers; i++)
            other.answer(atSecond(i));
        other.poolTimeout();
        QCOMPARE(other.manager.isQuerySuccesful(), answers >= answersAtTimeout);
        QCOMPARE(other.manager.isQueryTimedOut(), answers < answersAtTimeout);
    }
}

/// A pool to which @p events happen, one by one, beside the model.
void TestTimeManagerPool::compareWithModel(const QList<int>& events)
{
    Desk desk;
    PoolModel model(events.size());
    desk.manager.queryPool(silentHosts(events.size()));
    for (const int event : events) {
        if (event == PoolModel::timeoutMark)
            desk.poolTimeout();
        else
            desk.answer(atSecond(event));
        model.take(event);
        QCOMPARE(desk.outcome(), model.outcome());
        if (model.hasTime())
            QCOMPARE(desk.now(), atSecond(model.latest()));
    }
}

// Every worker answers with a second of its own, or times out; every set of those, in every order.
void TestTimeManagerPool::everyOrderOfASmallPool()
{
    for (int size = 1; size <= 4; size++) {
        for (int timedOut = 0; timedOut < 1 << size; timedOut++) {
            QList<int> events;
            for (int i = 0; i < size; i++)
                events << ((timedOut >> i & 1) != 0 ? PoolModel::timeoutMark : i + 1);
            std::sort(events.begin(), events.end());
            do {
                compareWithModel(events);
                if (QTest::currentTestFailed())
                    return;
            } while (std::next_permutation(events.begin(), events.end()));
        }
    }
}

void TestTimeManagerPool::sixthAnswerOfSevenIsIgnored()
{
    Desk desk;
    desk.manager.queryPool(silentHosts(7));
    for (int second = 1; second <= 5; second++)
        desk.answer(atSecond(second));
    desk.answer(atSecond(60));
    QCOMPARE(desk.now(), atSecond(5));
    desk.poolTimeout();
    QCOMPARE(desk.outcome(), QStringLiteral("1 succesful, 0 timed out; succesful, pool"));
}

void TestTimeManagerPool::failedPoolKeepsTheTimeItGot()
{
    Desk desk;
    desk.manager.queryPool(silentHosts(7));
    desk.answer(atSecond(1));
    desk.answer(atSecond(2));
    desk.poolTimeout();
    QCOMPARE(desk.outcome(), QStringLiteral("0 succesful, 1 timed out; timed out, pool"));
    QCOMPARE(desk.now(), atSecond(2));
}

void TestTimeManagerPool::poolIsLogged()
{
    Desk desk;
    QTest::ignoreMessage(QtDebugMsg, R"([PoolWorker] Querying: "host0.invalid")");
    desk.manager.queryPool(silentHosts(1));
    QTest::ignoreMessage(QtDebugMsg, "Updating time to  QDateTime(2030-01-02 12:00:00.000 UTC Qt::UTC)");
    QTest::ignoreMessage(
        QtDebugMsg, "75% of answers. Finishing pool query: QDateTime(2030-01-02 12:00:00.000 UTC Qt::UTC)");
    desk.answer(noon);
}

void TestTimeManagerPool::failedPoolIsLogged()
{
    Desk desk;
    desk.manager.queryPool(silentHosts(2));
    QTest::ignoreMessage(QtDebugMsg, "Pool query timeout.");
    desk.poolTimeout();
}

void TestTimeManagerPool::halfAPoolIsLogged()
{
    Desk desk;
    desk.manager.queryPool(silentHosts(4));
    desk.answer(noon);
    desk.answer(noon);
    QTest::ignoreMessage(QtDebugMsg, "Timeout but 50% answers. Finishing pool query: "
                                     "QDateTime(2030-01-02 12:00:00.000 UTC Qt::UTC)");
    desk.poolTimeout();
}

QTEST_GUILESS_MAIN(TestTimeManagerPool)
#include "tst_timemanager_pool.moc"
