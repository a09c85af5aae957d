// Whole queries of real time servers, on the addresses that the private network gives to the servers' names.

#include "time/timemanager.h"

#include <QSignalSpy>
#include <QTest>

namespace {

constexpr int queryTimeout = 20000;
/// How far behind the true time the servers' reference timestamps may lie.
constexpr qint64 staleness = 70000;

/// The list as the program's settings show it: no host has the first row's name.
const QStringList displayedServers = {
    QStringLiteral("time.google.com (Recommended)"),
    QStringLiteral("time.nist.gov"),
    QStringLiteral("stdtime.gov.hk"),
    QStringLiteral("0.pool.ntp.org"),
    QStringLiteral("1.pool.ntp.org"),
    QStringLiteral("0.cn.pool.ntp.org"),
    QStringLiteral("1.cn.pool.ntp.org"),
};

} // namespace

class TestTimeManagerServers : public QObject
{
    Q_OBJECT

private slots:
    void singleServer();
    void poolOfSevenOfWhichSixAnswer();
    void poolAfterPool();
    void serverOfTheFirstRowNeverAnswers();

private:
    static bool isNearlyNow(const QDateTime& time)
    {
        const qint64 behind = time.msecsTo(QDateTime::currentDateTimeUtc());
        return behind >= -1000 && behind < staleness;
    }
};

void TestTimeManagerServers::singleServer()
{
    TimeManager manager(nullptr);
    QSignalSpy success(&manager, &TimeManager::sQuerySuccesful);
    manager.queryServer(QStringLiteral("time.google.com"));
    QVERIFY(success.wait(queryTimeout));
    QVERIFY(manager.isQuerySuccesful());
    QVERIFY(!manager.isQuerying());
    QVERIFY(isNearlyNow(manager.currentTimeUtc()));
}

void TestTimeManagerServers::poolOfSevenOfWhichSixAnswer()
{
    TimeManager manager(nullptr);
    QSignalSpy success(&manager, &TimeManager::sQuerySuccesful);
    QSignalSpy timeout(&manager, &TimeManager::sQueryTimeout);
    manager.queryPool(displayedServers);
    QVERIFY(success.wait(queryTimeout));
    QVERIFY(manager.isPoolQuery());
    QVERIFY(isNearlyNow(manager.currentTimeUtc()));
    QCOMPARE(manager.serverName(), QString());
    QCOMPARE(success.count(), 1);
    QCOMPARE(timeout.count(), 0);
}

void TestTimeManagerServers::poolAfterPool()
{
    TimeManager manager(nullptr);
    QSignalSpy success(&manager, &TimeManager::sQuerySuccesful);
    for (int round = 1; round <= 3; round++) {
        manager.queryPool(displayedServers);
        QVERIFY(success.wait(queryTimeout));
        QCOMPARE(success.count(), round);
    }
    QVERIFY(isNearlyNow(manager.currentTimeUtc()));
}

void TestTimeManagerServers::serverOfTheFirstRowNeverAnswers()
{
    TimeManager alone(nullptr);
    QSignalSpy success(&alone, &TimeManager::sQuerySuccesful);
    QSignalSpy timeout(&alone, &TimeManager::sQueryTimeout);
    alone.queryServer(displayedServers.constFirst());

    // By then the look-ups have come out, the others' as well as this one's.
    TimeManager others(nullptr);
    QSignalSpy othersDone(&others, &TimeManager::sQuerySuccesful);
    others.queryPool(displayedServers);
    QVERIFY(othersDone.wait(queryTimeout));
    QVERIFY(alone.isQuerying());
    QCOMPARE(success.count() + timeout.count(), 0);
}

QTEST_GUILESS_MAIN(TestTimeManagerServers)
#include "tst_timemanager_servers.moc"
