// The device's time zone, as read and as written.

#include "devicerig.h"

#include "support/loglines.h"
#include "support/testclock.h"

#include <QTest>

namespace {

constexpr int before = 123;

} // namespace

class TestBrumaloggerInterfaceTimeZone : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { rig = std::make_unique<DeviceRig>(distinctLogger()); }
    void init() { rig->calm(); }
    void cleanupTestCase();

    void timeZone_data();
    void timeZone();
    void timeZoneTellsTheLog_data();
    void timeZoneTellsTheLog();
    void timeZoneStaysOnFailure_data();
    void timeZoneStaysOnFailure();
    void writingTheTimeZoneTellsTheLog();

private:
    std::unique_ptr<DeviceRig> rig;
};

void TestBrumaloggerInterfaceTimeZone::cleanupTestCase()
{
    rig.reset();
    TestClock::reset();
}

void TestBrumaloggerInterfaceTimeZone::timeZone_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<bool>("works");
    QTest::addColumn<int>("seconds");
    QTest::newRow("west, padded") << QByteArray("-0010800") << true << -10800;
    QTest::newRow("east") << QByteArray("3600") << true << 3600;
    QTest::newRow("east, padded") << QByteArray("00003600\r\n") << true << 3600;
    QTest::newRow("UTC") << QByteArray("00000000") << true << 0;
    QTest::newRow("minus zero") << QByteArray("-0000000") << true << 0;
    QTest::newRow("minus behind") << QByteArray("3600-") << true << -3600;
    QTest::newRow("minus twice is one minus") << QByteArray("--3600") << true << -3600;
    QTest::newRow("a text") << QByteArray("error: locked") << false << 0;
    QTest::newRow("a text with a minus") << QByteArray("-x") << false << 0;
    QTest::newRow("a minus only") << QByteArray("-") << false << 0;
    QTest::newRow("hours and minutes") << QByteArray("-03:00") << false << 0;
    QTest::newRow("too large") << QByteArray("2147483648") << false << 0;
}

// A bad number sets what is remembered to 0 all the same.
void TestBrumaloggerInterfaceTimeZone::timeZone()
{
    QFETCH(QByteArray, reply);
    QFETCH(bool, works);
    QFETCH(int, seconds);
    rig->reply(QByteArray::number(before));
    QVERIFY(rig->link.lGetTimeZoneOffset(nullptr));
    QCOMPARE(rig->link.lTimeZoneOffset(), before);
    rig->reply(reply);
    int read = before;
    QCOMPARE(rig->link.lGetTimeZoneOffset(&read), works);
    QCOMPARE(read, works ? seconds : before);
    QCOMPARE(rig->link.lTimeZoneOffset(), seconds);
}

void TestBrumaloggerInterfaceTimeZone::timeZoneTellsTheLog_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<QStringList>("lines");
    QTest::newRow("a number") << QByteArray("-0010800")
                              << QStringList({QStringLiteral("debug: Got timezone offset: \"-0010800\""),
                                              QStringLiteral("debug: Understood timezone offset: -10800")});
    QTest::newRow("a text") << QByteArray("no-where")
                            << QStringList({QStringLiteral("debug: Got timezone offset: \"no-where\"")});
    QTest::newRow("nothing") << QByteArray() << QStringList();
}

void TestBrumaloggerInterfaceTimeZone::timeZoneTellsTheLog()
{
    QFETCH(QByteArray, reply);
    QFETCH(QStringList, lines);
    rig->reply(reply);
    const LogLines log;
    rig->link.lGetTimeZoneOffset(nullptr);
    QCOMPARE(log.all(), lines);
}

void TestBrumaloggerInterfaceTimeZone::timeZoneStaysOnFailure_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::newRow("a line end only") << QByteArray("\r\n");
    QTest::newRow("nothing") << QByteArray();
}

void TestBrumaloggerInterfaceTimeZone::timeZoneStaysOnFailure()
{
    QFETCH(QByteArray, reply);
    rig->reply(QByteArray::number(before));
    QVERIFY(rig->link.lGetTimeZoneOffset(nullptr));
    rig->reply(reply);
    int read = before;
    QVERIFY(!rig->link.lGetTimeZoneOffset(&read));
    QCOMPARE(read, before);
    QCOMPARE(rig->link.lTimeZoneOffset(), before);
}

void TestBrumaloggerInterfaceTimeZone::writingTheTimeZoneTellsTheLog()
{
    const LogLines log;
    QVERIFY(rig->link.lSetTimeZoneOffset(-10800));
    QCOMPARE(log.all(), QStringList({QStringLiteral("debug: Writing timezone offset: \"Sz-0010800\"")}));
}

QTEST_MAIN(TestBrumaloggerInterfaceTimeZone)
#include "tst_brumaloggerinterface_timezone.moc"
