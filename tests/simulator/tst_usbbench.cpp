// Loggers plugged in and out, as port discovery and an open serial port see it.

#include "simulatedhost.h"

#include "simulator/usbbench.h"

#include <QCoreApplication>
#include <QPointer>
#include <QSerialPortInfo>
#include <QSignalSpy>
#include <QTest>

namespace {

QStringList portNames()
{
    QStringList names;
    for (const QSerialPortInfo& info : QSerialPortInfo::availablePorts())
        names << info.portName();
    names.sort();
    return names;
}

QSerialPortInfo portInfo(const QString& name)
{
    for (const QSerialPortInfo& info : QSerialPortInfo::availablePorts()) {
        if (info.portName() == name)
            return info;
    }
    return {};
}

} // namespace

class TestUsbBench : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void emptyBenchHasNoPorts();
    void discovery();
    void identity_data();
    void identity();
    void namesAndTheirReuse();
    void exchange();
    void opensAgain();
    void twoAtOnce();
    void unplugWhileOpen();
    void unplugFromWithinACommand();
    void replug();
    void replugKeepsTheModel();
    void benchAfterBench();
    void benchEndsBeforeTheHost();
};

void TestUsbBench::initTestCase()
{
    QVERIFY2(UsbBench::isUsable(), "start this test under umockdev-wrapper");
}

void TestUsbBench::emptyBenchHasNoPorts()
{
    const UsbBench bench;
    QCOMPARE(portNames(), QStringList());
}

void TestUsbBench::discovery()
{
    UsbBench bench;
    SimulatedPort* const port = bench.plug();
    QVERIFY(port != nullptr);
    QCOMPARE(port->portName(), QStringLiteral("ttyACM0"));
    QCOMPARE(portNames(), QStringList("ttyACM0"));
    const QSerialPortInfo info = portInfo(QStringLiteral("ttyACM0"));
    QCOMPARE(info.systemLocation(), QStringLiteral("/dev/ttyACM0"));
    QCOMPARE(info.manufacturer(), QStringLiteral("Polar Ridge Works"));
    QCOMPARE(info.description(), QStringLiteral("Brumalogger USB"));
    QCOMPARE(info.vendorIdentifier(), quint16(0x03EB));
    QCOMPARE(info.productIdentifier(), quint16(0x8015));
}

void TestUsbBench::identity_data()
{
    QTest::addColumn<QString>("manufacturer");
    QTest::addColumn<QString>("description");
    QTest::addColumn<int>("vendor");
    QTest::addColumn<int>("product");
    QTest::newRow("names only") << "Polar Ridge Works"
                                << "Brumalogger USB" << -1 << -1;
    QTest::newRow("identifiers only") << ""
                                      << "" << 0x03EB << 0x8015;
    QTest::newRow("vendor only") << ""
                                 << "" << 0x03EB << -1;
    QTest::newRow("another") << "Some & Co."
                             << "USB-Serial (v2)" << 0x0001 << 0xFFFF;
}

void TestUsbBench::identity()
{
    QFETCH(QString, manufacturer);
    QFETCH(QString, description);
    QFETCH(int, vendor);
    QFETCH(int, product);
    UsbBench bench;
    QVERIFY(bench.plug({}, {manufacturer, description, vendor, product}) != nullptr);
    const QSerialPortInfo info = portInfo(QStringLiteral("ttyACM0"));
    QCOMPARE(info.manufacturer(), manufacturer);
    QCOMPARE(info.description(), description);
    QCOMPARE(info.hasVendorIdentifier(), vendor >= 0);
    QCOMPARE(info.hasProductIdentifier(), product >= 0);
    QCOMPARE(int(info.vendorIdentifier()), qMax(vendor, 0));
    QCOMPARE(int(info.productIdentifier()), qMax(product, 0));
}

void TestUsbBench::namesAndTheirReuse()
{
    UsbBench bench;
    SimulatedPort* const first = bench.plug();
    QVERIFY(bench.plug({}, {}, QStringLiteral("ttyACM1")) != nullptr);
    QCOMPARE(bench.plug()->portName(), QStringLiteral("ttyACM2"));
    QVERIFY(bench.plug({}, {}, QStringLiteral("ttyACM1")) == nullptr);
    bench.unplug(first);
    QCOMPARE(portNames(), QStringList({"ttyACM1", "ttyACM2"}));
    QCOMPARE(bench.plug()->portName(), QStringLiteral("ttyACM0"));
    QCOMPARE(bench.ports().size(), 3);
}

void TestUsbBench::exchange()
{
    UsbBench bench;
    SimulatedPort* const port = bench.plug();
    SimulatedHost host(port->portName());
    QVERIFY(host.open());
    QCOMPARE(host.ask("i"), QByteArray("Brumalogger USB,1.1.9,1.0"));
    QCOMPARE(host.ask("Gt"), QByteArray("2000,8000"));
    QCOMPARE(host.chunks.size(), 1);
    QCOMPARE(port->commands(), QList<QByteArray>({"i", "Gt"}));
}

void TestUsbBench::opensAgain()
{
    UsbBench bench;
    SimulatedPort* const port = bench.plug();
    for (int turn = 1; turn <= 3; ++turn) {
        SimulatedHost host(port->portName());
        QVERIFY(host.open());
        QCOMPARE(host.ask("Gs"), QByteArray("300"));
        host.close();
        QCOMPARE(port->commands().size(), turn);
    }
}

void TestUsbBench::twoAtOnce()
{
    UsbBench bench;
    LoggerModel other;
    other.settings().samplingTime = 600;
    SimulatedHost first(bench.plug()->portName());
    SimulatedHost second(bench.plug(other)->portName());
    QVERIFY(first.open());
    QVERIFY(second.open());
    first.send("Gs");
    second.send("Gs");
    QTRY_COMPARE(first.received(), QByteArray("300\r\n"));
    QTRY_COMPARE(second.received(), QByteArray("600\r\n"));
}

void TestUsbBench::unplugWhileOpen()
{
    UsbBench bench;
    const QPointer<SimulatedPort> port = bench.plug();
    SimulatedHost host(port->portName());
    QVERIFY(host.open());
    QCOMPARE(host.ask("Gs"), QByteArray("300"));
    QSignalSpy unplugged(port.data(), &SimulatedPort::sUnplugged);
    bench.unplug(port);
    QCOMPARE(unplugged.count(), 1);
    QCOMPARE(portNames(), QStringList());
    QTRY_VERIFY(host.isCutOff());
    QTRY_VERIFY(port.isNull());
    SimulatedHost another(QStringLiteral("ttyACM0"));
    QVERIFY(!another.open());
}

void TestUsbBench::unplugFromWithinACommand()
{
    UsbBench bench;
    const QPointer<SimulatedPort> port = bench.plug();
    SimulatedHost host(port->portName());
    QVERIFY(host.open());
    QSignalSpy answered(port.data(), &SimulatedPort::sAnswered);
    connect(port.data(), &SimulatedPort::sCommandReceived, this, [&] { bench.unplug(port); });
    host.send("Gs");
    QTRY_VERIFY(port.isNull());
    QCOMPARE(answered.count(), 0);
    QVERIFY(host.received().isEmpty());
    QCOMPARE(portNames(), QStringList());
}

void TestUsbBench::replug()
{
    UsbBench bench;
    SimulatedHost host(QStringLiteral("ttyACM0"));
    for (int turn = 1; turn <= 3; ++turn) {
        SimulatedPort* const port = bench.plug();
        QCOMPARE(portNames(), QStringList("ttyACM0"));
        QCOMPARE(portInfo(QStringLiteral("ttyACM0")).description(), QStringLiteral("Brumalogger USB"));
        QVERIFY2(host.open(), qPrintable(host.serial.errorString()));
        QCOMPARE(host.ask("Gs"), QByteArray("300"));
        bench.unplug(port);
        QTRY_VERIFY(host.isCutOff());
        host.close();
        QCOMPARE(portNames(), QStringList());
    }
}

void TestUsbBench::replugKeepsTheModel()
{
    UsbBench bench;
    SimulatedPort* const port = bench.plug();
    port->model().settings().texts[0] = QStringLiteral("kept");
    const LoggerModel logger = port->model();
    bench.unplug(port);
    SimulatedHost host(bench.plug(logger)->portName());
    QVERIFY(host.open());
    QCOMPARE(host.ask("G0"), QByteArray("kept"));
}

void TestUsbBench::benchAfterBench()
{
    for (int turn = 1; turn <= 3; ++turn) {
        UsbBench bench;
        SimulatedHost host(bench.plug()->portName());
        QVERIFY(host.open());
        QCOMPARE(host.ask("Gs"), QByteArray("300"));
    }
}

void TestUsbBench::benchEndsBeforeTheHost()
{
    auto bench = std::make_unique<UsbBench>();
    SimulatedHost host(bench->plug()->portName());
    QVERIFY(host.open());
    bench.reset();
    QTRY_VERIFY(host.isCutOff());
}

QTEST_GUILESS_MAIN(TestUsbBench)
#include "tst_usbbench.moc"
