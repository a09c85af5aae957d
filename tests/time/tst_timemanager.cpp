// The reference time: what queries of one server, also amid a pool's, do to clock and flags.

#include "timedesk.h"

#include "support/testclock.h"

#include <QTest>

namespace {

const QDateTime noon = atSecond(0);

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
    void answerDuringALaterSingleQuery();
    void timeoutDuringALaterSingleQuery();
    void serverNameIsEmptyFromAPoolQueryOn();
    void singleQueryIsLogged();
};

void TestTimeManager::startsWithTheComputersTime()
{
    TestClock::set(noon.toMSecsSinceEpoch());
    const TimeManager manager(nullptr);
    QCOMPARE(flags(manager), QString());
    QCOMPARE(manager.serverName(), QString());
    const qint64 late = noon.msecsTo(manager.currentTimeUtc());
    QVERIFY(late >= 0 && late < 1000);
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

void TestTimeManager::singleQueryIsLogged()
{
    Desk desk;
    QTest::ignoreMessage(QtDebugMsg, R"(Querying  "host.invalid")");
    desk.manager.queryServer(QStringLiteral("host.invalid"));
}

QTEST_GUILESS_MAIN(TestTimeManager)
#include "tst_timemanager.moc"
