// Whether the device's clock can be believed: two days either way for a Single-use device, always for
// Multiuse.

#include "devicerig.h"

#include "support/testclock.h"

#include <QTest>

namespace {

constexpr int deviceSeconds = 1700000000;

/// The reference from which the device's clock is @p seconds away; positive: the device is ahead.
QDateTime reference(double seconds)
{
    return QDateTime::fromMSecsSinceEpoch(1000LL * deviceSeconds - qRound64(seconds * 1000), Qt::UTC);
}

} // namespace

class TestBrumaloggerInterfaceValidity : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { rig = std::make_unique<DeviceRig>(); }
    void init();
    void cleanupTestCase();

    void validity_data();
    void validity();
    void referenceInAnotherZone();
    void invalidReferencePasses();
    void silenceFails();
    void clockOfTheComputerBeforeTheFirstReading();

private:
    std::unique_ptr<DeviceRig> rig;
};

void TestBrumaloggerInterfaceValidity::init()
{
    rig->reply(QByteArray::number(deviceSeconds));
    QVERIFY(rig->link.lGetDateTime(nullptr));
    rig->calm();
}

void TestBrumaloggerInterfaceValidity::cleanupTestCase()
{
    rig.reset();
    TestClock::reset();
}

// Whole seconds count. Where the device is behind, half a second keeps a tick of its clock from changing the
// number.
void TestBrumaloggerInterfaceValidity::validity_data()
{
    const QByteArray multiuse("1");
    const QByteArray singleUse("0");
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<double>("ahead");
    QTest::addColumn<bool>("valid");
    QTest::newRow("Single-use: the same") << singleUse << 0.0 << true;
    QTest::newRow("Single-use: ahead, just within") << singleUse << 172800.0 << true;
    QTest::newRow("Single-use: ahead, just beyond") << singleUse << 172801.0 << false;
    QTest::newRow("Single-use: behind, just within") << singleUse << -172800.5 << true;
    QTest::newRow("Single-use: behind, just beyond") << singleUse << -172801.5 << false;
    QTest::newRow("Single-use: years behind") << singleUse << -1600000000.0 << false;
    QTest::newRow("Single-use: no type") << QByteArray("\r\n") << 172801.0 << false;
    QTest::newRow("Single-use: unknown type") << QByteArray("2") << 172801.0 << false;
    QTest::newRow("Multiuse: the same") << multiuse << 0.0 << true;
    QTest::newRow("Multiuse: ahead") << multiuse << 172801.0 << true;
    QTest::newRow("Multiuse: years behind") << multiuse << -1600000000.0 << true;
}

void TestBrumaloggerInterfaceValidity::validity()
{
    QFETCH(QByteArray, type);
    QFETCH(double, ahead);
    QFETCH(bool, valid);
    rig->reply(type);
    QCOMPARE(rig->link.lIsDeviceValid(reference(ahead)), valid);
    QCOMPARE(rig->wire(), QList<QByteArray>({"m"}));
    QCOMPARE(rig->link.lMultiuse(), type == "1");
}

void TestBrumaloggerInterfaceValidity::referenceInAnotherZone()
{
    rig->reply("0");
    QVERIFY(rig->link.lIsDeviceValid(reference(172800).toOffsetFromUtc(-36000)));
    QVERIFY(!rig->link.lIsDeviceValid(reference(172801).toOffsetFromUtc(36000)));
    QVERIFY(rig->link.lIsDeviceValid(reference(172800).toLocalTime()));
}

void TestBrumaloggerInterfaceValidity::invalidReferencePasses()
{
    rig->reply("0");
    QVERIFY(rig->link.lIsDeviceValid(QDateTime()));
}

void TestBrumaloggerInterfaceValidity::silenceFails()
{
    rig->silence();
    QVERIFY(!rig->link.lIsDeviceValid(reference(0)));
    QVERIFY(!rig->link.lIsDeviceValid(QDateTime()));
}

void TestBrumaloggerInterfaceValidity::clockOfTheComputerBeforeTheFirstReading()
{
    rig.reset();
    rig = std::make_unique<DeviceRig>();
    QVERIFY(rig->link.lIsDeviceValid(QDateTime::currentDateTime()));
    QVERIFY(!rig->link.lIsDeviceValid(QDateTime::currentDateTime().addDays(3)));
}

QTEST_MAIN(TestBrumaloggerInterfaceValidity)
#include "tst_brumaloggerinterface_validity.moc"
