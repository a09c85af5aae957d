// The measuring setup as it is read: temperatures, times and button lock.

#include "devicerig.h"

#include "support/testclock.h"

#include <QTest>

namespace {

constexpr int before = 123;

/// Asks for a whole number.
using Question = bool (BrumaloggerInterface::*)(int* number);
/// What was read of it last.
using Memory = int (BrumaloggerInterface::*)() const;

} // namespace

Q_DECLARE_METATYPE(Question)
Q_DECLARE_METATYPE(Memory)

class TestBrumaloggerInterfaceParameters : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { rig = std::make_unique<DeviceRig>(distinctLogger()); }
    void init() { rig->calm(); }
    void cleanupTestCase();

    void temperatures_data();
    void temperatures();
    void temperaturesStayOnFailure_data();
    void temperaturesStayOnFailure();
    void seconds_data();
    void seconds();
    void secondsStayOnFailure_data();
    void secondsStayOnFailure();
    void buttonLock_data();
    void buttonLock();
    void buttonLockStaysOnSilence();

private:
    std::unique_ptr<DeviceRig> rig;
};

void TestBrumaloggerInterfaceParameters::cleanupTestCase()
{
    rig.reset();
    TestClock::reset();
}

void TestBrumaloggerInterfaceParameters::temperatures_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<float>("min");
    QTest::addColumn<float>("max");
    QTest::newRow("above zero") << QByteArray("2000,8000") << 2.0F << 8.0F;
    QTest::newRow("below zero") << QByteArray("-20500,-250") << -20.5F << -0.25F;
    QTest::newRow("padded") << QByteArray("-0020500,00006250") << -20.5F << 6.25F;
    QTest::newRow("thousandths") << QByteArray("2300,2301") << 2.3F << 2.301F;
    QTest::newRow("blanks within the fields") << QByteArray(" 2000 , 8000 ") << 2.0F << 8.0F;
    QTest::newRow("minus behind") << QByteArray("2000-,8000") << -2.0F << 8.0F;
    QTest::newRow("minus within") << QByteArray("2000,80-00") << 2.0F << -8.0F;
    QTest::newRow("minus twice is one minus") << QByteArray("--2000,8-0-00") << -2.0F << -8.0F;
    QTest::newRow("a fraction") << QByteArray("2000.5,8000") << 2.0005F << 8.0F;
    QTest::newRow("no numbers") << QByteArray("cold,-hot") << 0.0F << 0.0F;
    QTest::newRow("one number") << QByteArray("2000,8000C") << 2.0F << 0.0F;
    QTest::newRow("beyond 32-bit floats") << QByteArray("1e50,-1e39") << 0.0F << 0.0F;
    QTest::newRow("empty fields") << QByteArray(",") << 0.0F << 0.0F;
    QTest::newRow("in wrong order") << QByteArray("8000,2000") << 8.0F << 2.0F;
}

void TestBrumaloggerInterfaceParameters::temperatures()
{
    QFETCH(QByteArray, reply);
    QFETCH(float, min);
    QFETCH(float, max);
    rig->reply(reply);
    float readMin = before;
    float readMax = before;
    QVERIFY(rig->link.lGetTempRange(&readMin, &readMax));
    // Exactly the nearest 32-bit number, and not just about the same.
    QVERIFY(readMin == min);
    QVERIFY(readMax == max);
    QVERIFY(rig->link.lTempMin() == min);
    QVERIFY(rig->link.lTempMax() == max);
}

void TestBrumaloggerInterfaceParameters::temperaturesStayOnFailure_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::newRow("one field") << QByteArray("2000");
    QTest::newRow("three fields") << QByteArray("2000,8000,9000");
    QTest::newRow("a comma behind") << QByteArray("2000,8000,");
    QTest::newRow("other separator") << QByteArray("2000;8000");
    QTest::newRow("an error") << QByteArray("error: locked");
    QTest::newRow("a line end only") << QByteArray("\r\n");
    QTest::newRow("nothing") << QByteArray();
}

void TestBrumaloggerInterfaceParameters::temperaturesStayOnFailure()
{
    QFETCH(QByteArray, reply);
    float min = 0;
    float max = 0;
    rig->reply("-1500,1500");
    QVERIFY(rig->link.lGetTempRange(&min, &max));
    rig->reply(reply);
    QVERIFY(!rig->link.lGetTempRange(&min, &max));
    QCOMPARE(rig->link.lTempMin(), -1.5F);
    QCOMPARE(rig->link.lTempMax(), 1.5F);
    QCOMPARE(min, -1.5F);
    QCOMPARE(max, 1.5F);
}

void TestBrumaloggerInterfaceParameters::seconds_data()
{
    QTest::addColumn<Question>("ask");
    QTest::addColumn<Memory>("remember");
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<int>("seconds");
    const auto rows = [](const char* name, const QByteArray& reply, int seconds) {
        QTest::addRow("sampling time: %s", name)
            << Question(&BrumaloggerInterface::lGetSamplingTime)
            << Memory(&BrumaloggerInterface::lSamplingTime) << reply << seconds;
        QTest::addRow("start delay: %s", name)
            << Question(&BrumaloggerInterface::lGetStartDelay) << Memory(&BrumaloggerInterface::lStartDelay)
            << reply << seconds;
    };
    rows("a number", "660", 660);
    rows("padded", "00007200\r\n", 7200);
    rows("below zero", "-60", -60);
    rows("zero", "0", 0);
    rows("the largest", "2147483647", 2147483647);
    rows("too large", "2147483648", 0);
    rows("a text", "error: locked", 0);
    rows("a number and more", "600s", 0);
    rows("a fraction", "600.0", 0);
    rows("not decimal", "0x10", 0);
    rows("two numbers", "600,700", 0);
}

void TestBrumaloggerInterfaceParameters::seconds()
{
    QFETCH(Question, ask);
    QFETCH(Memory, remember);
    QFETCH(QByteArray, reply);
    QFETCH(int, seconds);
    rig->reply(reply);
    int read = before;
    QVERIFY((rig->link.*ask)(&read));
    QCOMPARE(read, seconds);
    QCOMPARE((rig->link.*remember)(), seconds);
    QVERIFY((rig->link.*ask)(nullptr));
}

void TestBrumaloggerInterfaceParameters::secondsStayOnFailure_data()
{
    QTest::addColumn<Question>("ask");
    QTest::addColumn<Memory>("remember");
    QTest::addColumn<QByteArray>("reply");
    const auto rows = [](const char* name, const QByteArray& reply) {
        QTest::addRow("sampling time: %s", name) << Question(&BrumaloggerInterface::lGetSamplingTime)
                                                 << Memory(&BrumaloggerInterface::lSamplingTime) << reply;
        QTest::addRow("start delay: %s", name) << Question(&BrumaloggerInterface::lGetStartDelay)
                                               << Memory(&BrumaloggerInterface::lStartDelay) << reply;
    };
    rows("white space", " \t\r\n");
    rows("nothing", {});
}

void TestBrumaloggerInterfaceParameters::secondsStayOnFailure()
{
    QFETCH(Question, ask);
    QFETCH(Memory, remember);
    QFETCH(QByteArray, reply);
    int read = 0;
    rig->reply(QByteArray::number(before));
    QVERIFY((rig->link.*ask)(&read));
    rig->reply(reply);
    QVERIFY(!(rig->link.*ask)(&read));
    QCOMPARE(read, before);
    QCOMPARE((rig->link.*remember)(), before);
}

void TestBrumaloggerInterfaceParameters::buttonLock_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<bool>("locked");
    QTest::newRow("1") << QByteArray("1\r\n") << true;
    QTest::newRow("0") << QByteArray("0\r\n") << false;
    QTest::newRow("another number") << QByteArray("2") << false;
    QTest::newRow("1 with a zero before") << QByteArray("01") << false;
    QTest::newRow("a text") << QByteArray("error: locked") << false;
    QTest::newRow("a line end only") << QByteArray("\r\n") << false;
}

void TestBrumaloggerInterfaceParameters::buttonLock()
{
    QFETCH(QByteArray, reply);
    QFETCH(bool, locked);
    rig->reply(locked ? "0" : "1");
    QVERIFY(rig->link.lGetButtonLock(nullptr));
    QCOMPARE(rig->link.lButtonLock(), !locked);
    rig->reply(reply);
    bool told = !locked;
    QVERIFY(rig->link.lGetButtonLock(&told));
    QCOMPARE(told, locked);
    QCOMPARE(rig->link.lButtonLock(), locked);
}

void TestBrumaloggerInterfaceParameters::buttonLockStaysOnSilence()
{
    rig->reply("1");
    QVERIFY(rig->link.lGetButtonLock(nullptr));
    rig->silence();
    bool told = true;
    QVERIFY(!rig->link.lGetButtonLock(&told));
    QVERIFY(told);
    QVERIFY(rig->link.lButtonLock());
}

QTEST_MAIN(TestBrumaloggerInterfaceParameters)
#include "tst_brumaloggerinterface_parameters.moc"
