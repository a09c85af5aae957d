// The reference time: what a query does to clock and flags, and the rule that makes one time of a pool's
// answers.

#include "network/ntpresponder.h"
#include "time/timemanager.h"

#include "support/testclock.h"

#include <QSignalSpy>
#include <QTest>

#include <algorithm>
#include <memory>

namespace {

const QDateTime noon(QDate(2030, 1, 2), QTime(12, 0), Qt::UTC);

QDateTime atSecond(int second, int msec = 0)
{
    return noon.addSecs(second).addMSecs(msec);
}

/// The flags in one word, for comparison and for reading a failure.
QString flags(const TimeManager& manager)
{
    QStringList words;
    if (manager.isQuerying())
        words << QStringLiteral("querying");
    if (manager.isQuerySuccesful())
        words << QStringLiteral("succesful");
    if (manager.isQueryTimedOut())
        words << QStringLiteral("timed out");
    if (manager.isPoolQuery())
        words << QStringLiteral("pool");
    return words.join(QStringLiteral(", "));
}

/// Hosts that never resolve: their workers stay silent, and the test reports in their place.
QStringList silentHosts(int count)
{
    QStringList hosts;
    for (int i = 0; i < count; i++)
        hosts << QStringLiteral("host%1.invalid").arg(i);
    return hosts;
}

/// A manager and the signals it sent. The loop doesn't run between two reports, so its clock stands.
class Desk
{
public:
    Desk()
        : success(&manager, &TimeManager::sQuerySuccesful)
        , timeout(&manager, &TimeManager::sQueryTimeout)
    {
    }
    void answer(const QDateTime& time) { call("plOnPoolWorkerReply", time); }
    void single(const QDateTime& time) { call("plOnSingleWorkerReply", time); }
    void poolTimeout() { call("plOnPoolWorkerTimeout"); }
    void singleTimeout() { call("plOnSingleWorkerTimeout"); }
    /// The signals and the flags, for a comparison at one glance.
    QString outcome() const
    {
        return QStringLiteral("%1 succesful, %2 timed out; %3")
            .arg(success.count())
            .arg(timeout.count())
            .arg(flags(manager));
    }
    QDateTime now() const { return manager.currentTimeUtc(); }

private:
    void call(const char* slot, const QDateTime& time)
    {
        if (!QMetaObject::invokeMethod(&manager, slot, Q_ARG(QDateTime, time)))
            qFatal("no slot %s", slot);
    }
    void call(const char* slot)
    {
        if (!QMetaObject::invokeMethod(&manager, slot))
            qFatal("no slot %s", slot);
    }

public:
    TimeManager manager{nullptr};
    QSignalSpy success;
    QSignalSpy timeout;
};

/// The rule for a pool, written down again: events are seconds of answers, or the mark of a time-out.
class PoolModel
{
public:
    static constexpr int timeoutMark = -1;

    explicit PoolModel(int size)
        : size(size)
    {
    }
    void take(int event)
    {
        if (!over && event == timeoutMark)
            finish(answers.size() >= size / 2);
        else if (!over)
            takeAnswer(event);
    }
    QString outcome() const
    {
        if (!over)
            return QStringLiteral("0 succesful, 0 timed out; querying, pool");
        return won ? QStringLiteral("1 succesful, 0 timed out; succesful, pool")
                   : QStringLiteral("0 succesful, 1 timed out; timed out, pool");
    }
    bool hasTime() const { return !answers.isEmpty(); }
    int latest() const { return *std::max_element(answers.begin(), answers.end()); }

private:
    void takeAnswer(int second)
    {
        answers << second;
        if (answers.size() * 4 >= size * 3 - size * 3 % 4)
            finish(true);
    }
    void finish(bool succesful)
    {
        over = true;
        won = succesful;
    }

    int size;
    QList<int> answers;
    bool over = false;
    bool won = false;
};

} // namespace

class TestTimeManager : public QObject
{
    Q_OBJECT

private slots:
    void init() { TestClock::reset(); }
    void cleanupTestCase() { TestClock::reset(); }

    void startsWithTheComputersTime();
    void clockTicks();
    void singleQuery();
    void singleQueryTimesOut();
    void singleReplyCountsAlsoUnasked();
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
    void answerDuringALaterSingleQuery();
    void timeoutDuringALaterSingleQuery();
    void serverNameIsEmptyFromAPoolQueryOn();
    void newPoolForgetsTheOldOne();
    void queryStartedInsideTheReport();
    void managerGoesDuringAQuery();
    void poolIsLogged();
    void failedPoolIsLogged();
    void halfAPoolIsLogged();
};

void TestTimeManager::startsWithTheComputersTime()
{
    TestClock::set(noon.toMSecsSinceEpoch());
    const TimeManager manager(nullptr);
    QCOMPARE(flags(manager), QString());
    QCOMPARE(manager.serverName(), QString());
    QVERIFY(noon.msecsTo(manager.currentTimeUtc()) < 1000);
    QCOMPARE(manager.currentTimeUtc().timeSpec(), Qt::UTC);
    QCOMPARE(manager.currentTimeLocal().timeSpec(), Qt::LocalTime);
    QCOMPARE(manager.currentTimeLocal(), manager.currentTimeUtc());
}

void TestTimeManager::clockTicks()
{
    Desk desk;
    desk.single(noon);
    QVERIFY(QTest::qWaitFor([&] { return desk.now() >= noon.addSecs(1).addMSecs(-50); }));
}

void TestTimeManager::singleQuery()
{
    Desk desk;
    desk.manager.queryServer(QStringLiteral("host.invalid"));
    QCOMPARE(desk.manager.serverName(), QStringLiteral("host.invalid"));
    QCOMPARE(desk.outcome(), QStringLiteral("0 succesful, 0 timed out; querying"));
    desk.single(noon);
    QCOMPARE(desk.outcome(), QStringLiteral("1 succesful, 0 timed out; succesful"));
    QCOMPARE(desk.now(), noon);
    QCOMPARE(desk.manager.serverName(), QStringLiteral("host.invalid"));
}

void TestTimeManager::singleQueryTimesOut()
{
    Desk desk;
    desk.single(noon);
    desk.manager.queryServer(QStringLiteral("host.invalid"));
    desk.singleTimeout();
    QCOMPARE(desk.outcome(), QStringLiteral("1 succesful, 1 timed out; timed out"));
    QCOMPARE(desk.now(), noon); // the offset of the earlier success stays
}

void TestTimeManager::singleReplyCountsAlsoUnasked()
{
    Desk desk;
    desk.single(noon);
    QCOMPARE(desk.outcome(), QStringLiteral("1 succesful, 0 timed out; succesful"));
}

void TestTimeManager::poolQuery()
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

void TestTimeManager::emptyPoolNeverEnds()
{
    Desk desk;
    desk.manager.queryPool({});
    QCOMPARE(desk.outcome(), QStringLiteral("0 succesful, 0 timed out; querying, pool"));
}

void TestTimeManager::firstAnswerCountsHoweverOld()
{
    Desk desk;
    const QDateTime longAgo(QDate(1999, 1, 1), QTime(0, 0), Qt::UTC);
    desk.manager.queryPool(silentHosts(4));
    desk.answer(longAgo);
    QCOMPARE(desk.now(), longAgo);
}

void TestTimeManager::latestAnswerWins()
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

void TestTimeManager::answersAreComparedInWholeSeconds()
{
    Desk desk;
    desk.manager.queryPool(silentHosts(7));
    desk.answer(atSecond(10, 100));
    desk.answer(atSecond(10, 900));
    QCOMPARE(desk.now(), atSecond(10, 100));
    desk.answer(atSecond(11));
    QCOMPARE(desk.now(), atSecond(11));
}

void TestTimeManager::answerMustBeatTheTickingClock()
{
    Desk desk;
    desk.manager.queryPool(silentHosts(7));
    desk.answer(atSecond(0));
    QVERIFY(QTest::qWaitFor([&] { return desk.now() >= atSecond(2); }));
    const QDateTime before = desk.now();
    desk.answer(atSecond(1));
    QCOMPARE(desk.now(), before);
}

void TestTimeManager::thresholds_data()
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

void TestTimeManager::thresholds()
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

// Every worker answers with a second of its own, or times out; every set of those, in every order.
void TestTimeManager::everyOrderOfASmallPool()
{
    for (int size = 1; size <= 4; size++) {
        for (int timedOut = 0; timedOut < 1 << size; timedOut++) {
            QList<int> events;
            for (int i = 0; i < size; i++)
                events << ((timedOut >> i & 1) != 0 ? PoolModel::timeoutMark : i + 1);
            std::sort(events.begin(), events.end());
            do {
                Desk desk;
                PoolModel model(size);
                desk.manager.queryPool(silentHosts(size));
                for (const int event : qAsConst(events)) {
                    if (event == PoolModel::timeoutMark)
                        desk.poolTimeout();
                    else
                        desk.answer(atSecond(event));
                    model.take(event);
                    QCOMPARE(desk.outcome(), model.outcome());
                    if (model.hasTime())
                        QCOMPARE(desk.now(), atSecond(model.latest()));
                }
            } while (std::next_permutation(events.begin(), events.end()));
        }
    }
}

void TestTimeManager::sixthAnswerOfSevenIsIgnored()
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

void TestTimeManager::failedPoolKeepsTheTimeItGot()
{
    Desk desk;
    desk.manager.queryPool(silentHosts(7));
    desk.answer(atSecond(1));
    desk.answer(atSecond(2));
    desk.poolTimeout();
    QCOMPARE(desk.outcome(), QStringLiteral("0 succesful, 1 timed out; timed out, pool"));
    QCOMPARE(desk.now(), atSecond(2));
}

void TestTimeManager::answerDuringALaterSingleQuery()
{
    Desk desk;
    desk.manager.queryPool(silentHosts(4));
    desk.answer(atSecond(1));
    desk.manager.queryServer(QStringLiteral("host.invalid"));
    desk.answer(atSecond(2));
    QCOMPARE(desk.now(), atSecond(2));
    QCOMPARE(desk.outcome(), QStringLiteral("0 succesful, 0 timed out; querying"));
    desk.answer(atSecond(3));
    QCOMPARE(desk.outcome(), QStringLiteral("1 succesful, 0 timed out; succesful"));
}

void TestTimeManager::timeoutDuringALaterSingleQuery()
{
    Desk desk;
    desk.manager.queryPool(silentHosts(4));
    desk.manager.queryServer(QStringLiteral("host.invalid"));
    desk.poolTimeout();
    QCOMPARE(desk.outcome(), QStringLiteral("0 succesful, 1 timed out; timed out"));
}

void TestTimeManager::serverNameIsEmptyFromAPoolQueryOn()
{
    Desk desk;
    desk.manager.queryServer(QStringLiteral("host.invalid"));
    desk.manager.queryPool(silentHosts(1));
    QCOMPARE(desk.manager.serverName(), QString());
    desk.answer(noon);
    QCOMPARE(desk.manager.serverName(), QString());
}

void TestTimeManager::newPoolForgetsTheOldOne()
{
    NtpResponder server;
    QVERIFY2(server.listen(QHostAddress(QStringLiteral("127.1.0.2"))), qPrintable(server.errorString()));
    server.setAnswer(NtpAnswer::packet(NtpPacket::at(noon)).later());

    Desk desk;
    desk.manager.queryPool({QStringLiteral("time.nist.gov"), QStringLiteral("nowhere.invalid")});
    QVERIFY(QTest::qWaitFor([&] { return !server.requests().isEmpty(); }));
    desk.manager.queryPool(silentHosts(2));
    server.release();

    // A query of another server takes longer than the way of an answer that was sent before.
    QSignalSpy answered(&server, &NtpResponder::requested);
    server.setAnswer(NtpAnswer::packet(NtpPacket::at(noon)));
    TimePoolWorker other(nullptr);
    QSignalSpy otherDone(&other, &TimePoolWorker::sQuerySuccesful);
    other.query(QStringLiteral("time.nist.gov"));
    QVERIFY(otherDone.wait());
    QCOMPARE(desk.outcome(), QStringLiteral("0 succesful, 0 timed out; querying, pool"));
}

void TestTimeManager::queryStartedInsideTheReport()
{
    NtpResponder server;
    QVERIFY2(server.listen(QHostAddress(QStringLiteral("127.1.0.2"))), qPrintable(server.errorString()));
    server.setPlan({NtpAnswer::packet(NtpPacket::at(atSecond(1))).times(3),
                    NtpAnswer::packet(NtpPacket::at(atSecond(5)))});
    const QStringList pool{QStringLiteral("time.nist.gov")};

    Desk desk;
    int reports = 0;
    connect(&desk.manager, &TimeManager::sQuerySuccesful, this, [&] {
        if (++reports == 1) {
            desk.manager.queryPool(pool);
            QCoreApplication::processEvents();
        }
    });
    desk.manager.queryPool(pool);
    QVERIFY(QTest::qWaitFor([&] { return reports == 2; }));
    QVERIFY(desk.now() >= atSecond(5));
}

void TestTimeManager::managerGoesDuringAQuery()
{
    NtpResponder server;
    QVERIFY2(server.listen(QHostAddress(QStringLiteral("127.1.0.2"))), qPrintable(server.errorString()));
    auto desk = std::make_unique<Desk>();
    desk->manager.queryPool({QStringLiteral("time.nist.gov"), QStringLiteral("nowhere.invalid")});
    QVERIFY(QTest::qWaitFor([&] { return !server.requests().isEmpty(); }));
    const NtpRequest request = server.requests().constFirst();
    desk.reset();
    QVERIFY(server.send(NtpPacket::at(noon).toBytes(), request.sender, request.senderPort));
    QCoreApplication::processEvents();
}

void TestTimeManager::poolIsLogged()
{
    Desk desk;
    QTest::ignoreMessage(QtDebugMsg, R"([PoolWorker] Querying: "host0.invalid")");
    desk.manager.queryPool(silentHosts(1));
    QTest::ignoreMessage(QtDebugMsg, "Updating time to  QDateTime(2030-01-02 12:00:00.000 UTC Qt::UTC)");
    QTest::ignoreMessage(
        QtDebugMsg, "75% of answers. Finishing pool query: QDateTime(2030-01-02 12:00:00.000 UTC Qt::UTC)");
    desk.answer(noon);

    QTest::ignoreMessage(QtDebugMsg, R"(Querying  "host.invalid")");
    desk.manager.queryServer(QStringLiteral("host.invalid"));
}

void TestTimeManager::failedPoolIsLogged()
{
    Desk desk;
    desk.manager.queryPool(silentHosts(2));
    QTest::ignoreMessage(QtDebugMsg, "Pool query timeout.");
    desk.poolTimeout();
}

void TestTimeManager::halfAPoolIsLogged()
{
    Desk desk;
    desk.manager.queryPool(silentHosts(4));
    desk.answer(noon);
    desk.answer(noon);
    QTest::ignoreMessage(QtDebugMsg, "Timeout but 50% answers. Finishing pool query: "
                                     "QDateTime(2030-01-02 12:00:00.000 UTC Qt::UTC)");
    desk.poolTimeout();
}

QTEST_GUILESS_MAIN(TestTimeManager)
#include "tst_timemanager.moc"
