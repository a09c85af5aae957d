// The device's clock: reading and setting it, the clock that runs on from a reading, and the last reset.

#include "devicerig.h"

#include "support/environmentvariable.h"
#include "support/loglines.h"
#include "support/testclock.h"

#include <QTest>

namespace {

constexpr int before = 1600000000;

QDateTime utc(qint64 seconds)
{
    return QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC);
}

} // namespace

class TestBrumaloggerInterfaceClock : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { rig = std::make_unique<DeviceRig>(); }
    void init() { rig->calm(); }
    void cleanupTestCase();

    void dateTime_data();
    void dateTime();
    void dateTimeStaysOnFailure_data();
    void dateTimeStaysOnFailure();
    void dateTimeTellsTheLog();
    void clockBeginsWithTheComputers();
    void clockRunsOnFromTheReading();
    void settingTakesTheInstant_data();
    void settingTakesTheInstant();
    void settingFromTexts();
    void settingTellsTheLog();
    void settingDoesNotMoveTheClock();
    void lastReset_data();
    void lastReset();
    void lastResetFails_data();
    void lastResetFails();
    void lastResetIsLocalTime();

private:
    std::unique_ptr<DeviceRig> rig;
};

void TestBrumaloggerInterfaceClock::cleanupTestCase()
{
    rig.reset();
    TestClock::reset();
}

void TestBrumaloggerInterfaceClock::dateTime_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<int>("seconds");
    QTest::newRow("a number") << QByteArray("1700000000\r\n") << 1700000000;
    QTest::newRow("zero") << QByteArray("0") << 0;
    QTest::newRow("before the epoch") << QByteArray("-86400") << -86400;
    QTest::newRow("the last second of 32 bits") << QByteArray("2147483647") << 2147483647;
    QTest::newRow("one more") << QByteArray("2147483648") << 0;
    QTest::newRow("a text") << QByteArray("error: locked") << 0;
    QTest::newRow("a number and more") << QByteArray("1700000000 s") << 0;
}

void TestBrumaloggerInterfaceClock::dateTime()
{
    QFETCH(QByteArray, reply);
    QFETCH(int, seconds);
    rig->reply(reply);
    QDateTime now;
    QVERIFY(rig->link.lGetDateTime(&now));
    QCOMPARE(rig->link.lDeviceDateTime(), utc(seconds));
    QCOMPARE(now, utc(seconds));
    QCOMPARE(now.timeSpec(), Qt::UTC);
    QCOMPARE(rig->link.lTimestamp(), seconds);
    QVERIFY(rig->link.lGetDateTime(nullptr));
}

void TestBrumaloggerInterfaceClock::dateTimeStaysOnFailure_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::newRow("a line end only") << QByteArray("\r\n");
    QTest::newRow("nothing") << QByteArray();
}

void TestBrumaloggerInterfaceClock::dateTimeStaysOnFailure()
{
    QFETCH(QByteArray, reply);
    rig->reply(QByteArray::number(before));
    QVERIFY(rig->link.lGetDateTime(nullptr));
    rig->reply(reply);
    QDateTime now = utc(1);
    QVERIFY(!rig->link.lGetDateTime(&now));
    QCOMPARE(now, utc(1));
    QCOMPARE(rig->link.lTimestamp(), before);
    QVERIFY(rig->link.lDeviceDateTime() >= utc(before));
    QVERIFY(rig->link.lDeviceDateTime() < utc(before + 60));
}

void TestBrumaloggerInterfaceClock::dateTimeTellsTheLog()
{
    rig->reply("1700000000");
    const LogLines log;
    QVERIFY(rig->link.lGetDateTime(nullptr));
    QCOMPARE(log.all(), QStringList({QStringLiteral("debug: TIMESTAMP =  1700000000")}));
}

void TestBrumaloggerInterfaceClock::clockBeginsWithTheComputers()
{
    const QDateTime earliest = QDateTime::currentDateTime();
    const BrumaloggerInterface link;
    QVERIFY(link.lDeviceDateTime() >= earliest);
    QVERIFY(link.lDeviceDateTime() <= QDateTime::currentDateTime());
}

// It shows what the computer's clock makes of it, tick by tick.
void TestBrumaloggerInterfaceClock::clockRunsOnFromTheReading()
{
    rig->reply("1700000000");
    QVERIFY(rig->link.lGetDateTime(nullptr));
    TestClock::shift(3600000);
    QCOMPARE(rig->link.lDeviceDateTime(), utc(1700000000));
    QTRY_VERIFY(rig->link.lDeviceDateTime() != utc(1700000000));
    QVERIFY(rig->link.lDeviceDateTime() >= utc(1700003600));
    QVERIFY(rig->link.lDeviceDateTime() < utc(1700003660));
    QCOMPARE(rig->link.lTimestamp(), 1700000000);
}

void TestBrumaloggerInterfaceClock::settingTakesTheInstant_data()
{
    QTest::addColumn<QDateTime>("now");
    QTest::newRow("in UTC") << utc(1700000000);
    QTest::newRow("in local time") << utc(1700000000).toLocalTime();
    QTest::newRow("east of UTC") << utc(1700000000).toOffsetFromUtc(7200);
    QTest::newRow("with milliseconds") << utc(1700000000).addMSecs(999);
}

void TestBrumaloggerInterfaceClock::settingTakesTheInstant()
{
    QFETCH(QDateTime, now);
    QVERIFY(rig->link.lSetDateTime(now));
    QCOMPARE(rig->wire(), QList<QByteArray>({"u1700000000"}));
}

// The texts are local time: 05:06:07 is 03:06:07 UTC here.
void TestBrumaloggerInterfaceClock::settingFromTexts()
{
    const LocalZone zone("EET-2");
    const LogLines log;
    QVERIFY(rig->link.lSetDateTime(QStringLiteral("4/3/2021"), QStringLiteral("5:6:7")));
    QVERIFY(rig->link.lSetDateTime(QStringLiteral("24/12/2021"), QStringLiteral("15:16:17")));
    QCOMPARE(rig->wire(), QList<QByteArray>({"u1614827167", "u1640351777"}));
    QCOMPARE(log.all(), QStringList({QStringLiteral("debug: Setting time to 1614827167"),
                                     QStringLiteral("debug: Setting time to 1640351777")}));
}

// The log gets the whole number, of which the wire has room for 32 bits.
void TestBrumaloggerInterfaceClock::settingTellsTheLog()
{
    rig->reply("ok");
    const LogLines log;
    QVERIFY(rig->link.lSetDateTime(utc(2208988800)));
    QCOMPARE(log.all(), QStringList({QStringLiteral("debug: Setting time to 2208988800")}));
    QCOMPARE(rig->wire(), QList<QByteArray>({"u-2085978496"}));
}

void TestBrumaloggerInterfaceClock::settingDoesNotMoveTheClock()
{
    rig->reply(QByteArray::number(before));
    QVERIFY(rig->link.lGetDateTime(nullptr));
    rig->reply("ok");
    QVERIFY(rig->link.lSetDateTime(utc(1700000000)));
    QVERIFY(rig->link.lSetTimestamp(1700000000));
    QVERIFY(rig->link.lDeviceDateTime() < utc(before + 60));
    QCOMPARE(rig->link.lTimestamp(), before);
}

void TestBrumaloggerInterfaceClock::lastReset_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<bool>("known");
    QTest::newRow("known") << QByteArray("1700000000") << true;
    QTest::newRow("the first second") << QByteArray("1") << true;
    QTest::newRow("never") << QByteArray("0") << false;
    QTest::newRow("below zero") << QByteArray("-1") << false;
}

void TestBrumaloggerInterfaceClock::lastReset()
{
    QFETCH(QByteArray, reply);
    QFETCH(bool, known);
    rig->reply(reply);
    bool told = !known;
    QDateTime date = utc(before);
    QVERIFY(rig->link.lGetLastReset(&told, &date));
    QCOMPARE(told, known);
    QCOMPARE(date, known ? utc(reply.toInt()) : utc(before));
    QCOMPARE(date.timeSpec(), known ? Qt::LocalTime : Qt::UTC);
}

void TestBrumaloggerInterfaceClock::lastResetFails_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::newRow("a text") << QByteArray("never");
    QTest::newRow("a number and more") << QByteArray("1700000000 s");
    QTest::newRow("too large") << QByteArray("2147483648");
    QTest::newRow("a line end only") << QByteArray("\r\n");
    QTest::newRow("nothing") << QByteArray();
}

void TestBrumaloggerInterfaceClock::lastResetFails()
{
    QFETCH(QByteArray, reply);
    rig->reply(reply);
    bool known = false;
    QDateTime date = utc(before);
    QVERIFY(!rig->link.lGetLastReset(&known, &date));
    QCOMPARE(date, utc(before));
}

void TestBrumaloggerInterfaceClock::lastResetIsLocalTime()
{
    const LocalZone zone("EET-2");
    rig->reply("1700000000");
    bool known = false;
    QDateTime date;
    QVERIFY(rig->link.lGetLastReset(&known, &date));
    QCOMPARE(date.toString(QStringLiteral("dd/MM/yyyy hh:mm:ss")), QStringLiteral("15/11/2023 00:13:20"));
}

QTEST_MAIN(TestBrumaloggerInterfaceClock)
#include "tst_brumaloggerinterface_clock.moc"
