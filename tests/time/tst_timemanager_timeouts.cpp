// Queries of servers that stay silent. One wait of a time-out serves all of them.

#include "network/ntpresponder.h"
#include "timedesk.h"

#include <QTest>

class TestTimeManagerTimeouts : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void silentServer();
    void silentPool();
    void halfAPool();

private:
    /// True once the query has ended, by itself or by its time-out.
    static bool ended(const Desk& desk)
    {
        constexpr int twoTimeouts = 20000;
        return QTest::qWaitFor([&] { return !desk.manager.isQuerying(); }, twoTimeouts);
    }

    NtpResponder silent;
    NtpResponder silentToo;
    NtpResponder talkative;
    NtpResponder talkativeToo;
    Desk single;
    Desk pool;
    Desk half;
};

void TestTimeManagerTimeouts::initTestCase()
{
    QVERIFY(silent.listen(QHostAddress(QStringLiteral("127.1.0.1"))));
    QVERIFY(silentToo.listen(QHostAddress(QStringLiteral("127.1.0.2"))));
    QVERIFY(talkative.listen(QHostAddress(QStringLiteral("127.1.0.3"))));
    QVERIFY(talkativeToo.listen(QHostAddress(QStringLiteral("127.1.0.4"))));
    for (NtpResponder* server : {&talkative, &talkativeToo})
        server->setAnswer(NtpAnswer::packet(NtpPacket::at(atSecond(0))));

    const QStringList silentNames{QStringLiteral("time.google.com"), QStringLiteral("time.nist.gov")};
    const QStringList talkativeNames{QStringLiteral("stdtime.gov.hk"), QStringLiteral("0.pool.ntp.org")};
    single.manager.queryServer(silentNames.constFirst());
    pool.manager.queryPool(silentNames);
    half.manager.queryPool(silentNames + talkativeNames);
}

void TestTimeManagerTimeouts::silentServer()
{
    QVERIFY(ended(single));
    QCOMPARE(single.outcome(), QStringLiteral("0 succesful, 1 timed out; timed out"));
}

void TestTimeManagerTimeouts::silentPool()
{
    QVERIFY(ended(pool));
    QCOMPARE(pool.outcome(), QStringLiteral("0 succesful, 1 timed out; timed out, pool"));
}

void TestTimeManagerTimeouts::halfAPool()
{
    QVERIFY(ended(half));
    QCOMPARE(half.outcome(), QStringLiteral("1 succesful, 0 timed out; succesful, pool"));
    QVERIFY(half.now() >= atSecond(0) && half.now() < atSecond(60));
}

QTEST_GUILESS_MAIN(TestTimeManagerTimeouts)
#include "tst_timemanager_timeouts.moc"
