// One exchange with the logger: what goes out, how long it takes, and what runs meanwhile.

#include "devicerig.h"
#include "exchangeaccess.h"

#include "support/testclock.h"

#include <QDateTime>
#include <QTest>
#include <QTimer>

namespace {

constexpr int fastWait = 75;
constexpr int slowWait = 150;

/// A midnight on the computer, in milliseconds since the epoch.
qint64 midnight()
{
    return QDateTime(QDate(2026, 3, 18), QTime(0, 0)).toMSecsSinceEpoch();
}

} // namespace

class TestBrumaloggerInterfaceExchange : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { TestClock::reset(); }

    void commandGoesOutBare_data();
    void commandGoesOutBare();
    void nothingGoesOutBetweenCommands();
    void fastModeIsTheDefault();
    void waitFollowsTheFastSwitch_data();
    void waitFollowsTheFastSwitch();
    void waitRunsToItsEndWhateverComes_data();
    void waitRunsToItsEndWhateverComes();
    void startWaitsFourTimesAsLong_data();
    void startWaitsFourTimesAsLong();
    void waitOfItsOwnReplacesTheUsualOne_data();
    void waitOfItsOwnReplacesTheUsualOne();
    void waitOfZeroSendsAndFails();
    void closedPortFailsAtOnce();
    void midnightEndsTheWaitAtOnce();
    void waitAfterMidnightIsWhole();
    void waitHeldUpOverMidnightGoesOn();
    void correctedClockLengthensTheWait();
    void eventLoopRunsDuringTheWait();
};

void TestBrumaloggerInterfaceExchange::commandGoesOutBare_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("two letters") << "Gs" << QByteArray::fromHex("4773");
    QTest::newRow("one letter") << "i" << QByteArray::fromHex("69");
    QTest::newRow("beyond ASCII") << QStringLiteral("S0Z\u00fcrich \u6771")
                                  << QByteArray("S0Z\xc3\xbcrich \xe6\x9d\xb1");
    QTest::newRow("blanks at the end") << "S4   " << QByteArray("S4   ");
}

void TestBrumaloggerInterfaceExchange::commandGoesOutBare()
{
    QFETCH(QString, command);
    QFETCH(QByteArray, bytes);
    DeviceRig rig;
    QVERIFY(exchange(rig.link, command, -1));
    QCOMPARE(rig.wire(), QList<QByteArray>({bytes}));
}

void TestBrumaloggerInterfaceExchange::nothingGoesOutBetweenCommands()
{
    DeviceRig rig;
    QVERIFY(rig.link.lGetSamplingTime(nullptr));
    rig.link.lWait(slowWait);
    QVERIFY(rig.link.lSetSamplingTime(600));
    rig.link.lWait(slowWait);
    QVERIFY(rig.link.lGetSerial(nullptr));
    QCOMPARE(rig.wire(), QList<QByteArray>({"Gs", "Ss00000600", "e"}));
}

void TestBrumaloggerInterfaceExchange::fastModeIsTheDefault()
{
    const BrumaloggerInterface link;
    QCOMPARE(link.lWaitTime(), fastWait);
}

void TestBrumaloggerInterfaceExchange::waitFollowsTheFastSwitch_data()
{
    QTest::addColumn<QList<bool>>("switchings");
    QTest::addColumn<int>("wait");
    QTest::newRow("never switched") << QList<bool>() << fastWait;
    QTest::newRow("fast") << QList<bool>({true}) << fastWait;
    QTest::newRow("slow") << QList<bool>({false}) << slowWait;
    QTest::newRow("slow and fast again") << QList<bool>({false, true}) << fastWait;
}

void TestBrumaloggerInterfaceExchange::waitFollowsTheFastSwitch()
{
    QFETCH(QList<bool>, switchings);
    QFETCH(int, wait);
    DeviceRig rig;
    for (const bool fast : switchings)
        rig.link.lSetFastMode(fast);
    QCOMPARE(rig.link.lWaitTime(), wait);

    const Stopwatch stopwatch;
    QVERIFY(rig.link.lGetSerial(nullptr));
    QVERIFY(isWait(stopwatch.elapsed(), wait));
    QCOMPARE(rig.wire(), QList<QByteArray>({"e"}));
}

void TestBrumaloggerInterfaceExchange::waitRunsToItsEndWhateverComes_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<bool>("works");
    QTest::newRow("ok at once") << QByteArray("ok") << true;
    QTest::newRow("another text") << QByteArray("error") << false;
    QTest::newRow("a line end only") << QByteArray("\r\n") << false;
    QTest::newRow("nothing") << QByteArray() << false;
}

void TestBrumaloggerInterfaceExchange::waitRunsToItsEndWhateverComes()
{
    QFETCH(QByteArray, reply);
    QFETCH(bool, works);
    DeviceRig rig;
    rig.reply(reply);
    const Stopwatch stopwatch;
    QCOMPARE(rig.link.lSendCommandK(), works);
    QVERIFY(isWait(stopwatch.elapsed(), fastWait));
}

void TestBrumaloggerInterfaceExchange::startWaitsFourTimesAsLong_data()
{
    QTest::addColumn<bool>("fast");
    QTest::addColumn<int>("wait");
    QTest::newRow("fast") << true << 300;
    QTest::newRow("slow") << false << 600;
}

void TestBrumaloggerInterfaceExchange::startWaitsFourTimesAsLong()
{
    QFETCH(bool, fast);
    QFETCH(int, wait);
    DeviceRig rig;
    rig.link.lSetFastMode(fast);
    const Stopwatch stopwatch;
    QVERIFY(rig.link.lStartLogger());
    QVERIFY(isWait(stopwatch.elapsed(), wait));
}

void TestBrumaloggerInterfaceExchange::waitOfItsOwnReplacesTheUsualOne_data()
{
    QTest::addColumn<int>("asked");
    QTest::addColumn<int>("wait");
    QTest::newRow("longer") << 200 << 200;
    QTest::newRow("shorter") << 40 << 40;
    QTest::newRow("minus one is the usual one") << -1 << slowWait;
    QTest::newRow("anything below zero is the usual one") << -20 << slowWait;
}

void TestBrumaloggerInterfaceExchange::waitOfItsOwnReplacesTheUsualOne()
{
    QFETCH(int, asked);
    QFETCH(int, wait);
    DeviceRig rig;
    rig.link.lSetFastMode(false);
    const Stopwatch stopwatch;
    QVERIFY(exchange(rig.link, QStringLiteral("e"), asked));
    QVERIFY(isWait(stopwatch.elapsed(), wait));
}

void TestBrumaloggerInterfaceExchange::waitOfZeroSendsAndFails()
{
    DeviceRig rig;
    const Stopwatch stopwatch;
    QVERIFY(!exchange(rig.link, QStringLiteral("k"), 0));
    QVERIFY(isWait(stopwatch.elapsed(), 0));
    QTRY_COMPARE(rig.wire(), QList<QByteArray>({"k"}));
}

void TestBrumaloggerInterfaceExchange::closedPortFailsAtOnce()
{
    DeviceRig rig;
    rig.link.lDisconnect();
    const Stopwatch stopwatch;
    QVERIFY(!rig.link.lSendCommandK());
    QVERIFY(!rig.link.lGetSerial(nullptr));
    QVERIFY(!rig.link.lStartLogger());
    QVERIFY(isWait(stopwatch.elapsed(), 0));
    rig.link.lWait(fastWait);
    QCOMPARE(rig.wire(), QList<QByteArray>());
}

// The deadline is a time of day: after midnight it is long past.
void TestBrumaloggerInterfaceExchange::midnightEndsTheWaitAtOnce()
{
    DeviceRig rig;
    TestClock::set(midnight() - fastWait / 2);
    const Stopwatch stopwatch;
    QVERIFY(!rig.link.lSendCommandK());
    QVERIFY(isWait(stopwatch.elapsed(), 0));
    QTRY_COMPARE(rig.wire(), QList<QByteArray>({"k"}));
}

void TestBrumaloggerInterfaceExchange::waitAfterMidnightIsWhole()
{
    DeviceRig rig;
    TestClock::set(midnight());
    const Stopwatch stopwatch;
    QVERIFY(rig.link.lSendCommandK());
    QVERIFY(isWait(stopwatch.elapsed(), fastWait));
}

// As after a box that was left open for the night, in the middle of the wait.
void TestBrumaloggerInterfaceExchange::waitHeldUpOverMidnightGoesOn()
{
    static constexpr qint64 hour = 3600 * 1000;
    DeviceRig rig;
    TestClock::set(midnight() - 2 * hour);
    bool stillWaits = false;
    QTimer::singleShot(0, &rig.link, [&] {
        TestClock::set(midnight() + 8 * hour);
        QTimer::singleShot(2 * fastWait, &rig.link, [&stillWaits] {
            stillWaits = true;
            TestClock::set(midnight() + 23 * hour);
        });
    });
    rig.link.lWait(fastWait);
    QVERIFY(stillWaits);
}

// Its reply may still be under way.
void TestBrumaloggerInterfaceExchange::correctedClockLengthensTheWait()
{
    static constexpr qint64 correction = 3 * 3600 * 1000;
    DeviceRig rig;
    TestClock::set(midnight() + 2 * correction);
    bool stillWaits = false;
    QTimer::singleShot(0, &rig.link, [&] {
        TestClock::shift(-correction);
        QTimer::singleShot(2 * fastWait, &rig.link, [&stillWaits] {
            stillWaits = true;
            TestClock::shift(correction);
        });
    });
    rig.link.lWait(fastWait);
    QVERIFY(stillWaits);
}

void TestBrumaloggerInterfaceExchange::eventLoopRunsDuringTheWait()
{
    DeviceRig rig;
    int ticks = 0;
    bool posted = false;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&ticks] { ++ticks; });
    timer.start(5);
    QMetaObject::invokeMethod(
        this, [&posted] { posted = true; }, Qt::QueuedConnection);
    QVERIFY(rig.link.lGetSerial(nullptr));
    QVERIFY(posted);
    QVERIFY(ticks > 1);
}

QTEST_MAIN(TestBrumaloggerInterfaceExchange)
#include "tst_brumaloggerinterface_exchange.moc"
