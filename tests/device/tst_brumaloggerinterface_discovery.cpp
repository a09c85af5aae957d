// Finding the logger: which ports fit, which of several is taken, and what a search without success leaves.

#include "devicerig.h"

#include "support/loglines.h"
#include "support/testclock.h"

#include <QSerialPortInfo>
#include <QTest>

#include <algorithm>

namespace {

const QString foreignName(QStringLiteral("Other Works"));
const QString foreignProduct(QStringLiteral("USB Modem"));
constexpr int otherVendor = 0x03EC;
constexpr int otherProduct = 0x8016;
constexpr int noIdentifier = -1;

UsbIdentity foreigner()
{
    return {foreignName, foreignProduct, otherVendor, otherProduct};
}

QStringList portNames()
{
    QStringList names;
    const QList<QSerialPortInfo> ports = QSerialPortInfo::availablePorts();
    for (const QSerialPortInfo& info : ports)
        names << info.portName();
    return names;
}

/// The loggers on @p bench in the order in which the system lists their ports.
QVector<SimulatedPort*> inListedOrder(const UsbBench& bench)
{
    QVector<SimulatedPort*> ports = bench.ports();
    const QStringList names = portNames();
    std::sort(ports.begin(), ports.end(), [&names](const SimulatedPort* a, const SimulatedPort* b) {
        return names.indexOf(a->portName()) < names.indexOf(b->portName());
    });
    return ports;
}

QStringList disconnectLine(const QString& portName)
{
    return {QStringLiteral("debug: Disconnected from port  \"%1\"").arg(portName)};
}

} // namespace

Q_DECLARE_METATYPE(UsbIdentity)

class TestBrumaloggerInterfaceDiscovery : public QObject
{
    Q_OBJECT

private slots:
    void init() { TestClock::ignoreStalls(); }
    void cleanup() { TestClock::reset(); }

    void fittingPort_data();
    void fittingPort();
    void noPorts();
    void noPortsLeavesAnOpenLink();
    void noFittingPort();
    void noFittingPortDisconnects();
    void fittingPortAmongOthers();
    void firstOfTwoIsTaken();
    void searchStopsAtTheFirstThatFits_data();
    void searchStopsAtTheFirstThatFits();
    void searchAgainConnectsAnew();
};

void TestBrumaloggerInterfaceDiscovery::fittingPort_data()
{
    const QString maker = QStringLiteral("Polar Ridge Works");
    const QString product = QStringLiteral("Brumalogger USB");
    QTest::addColumn<UsbIdentity>("identity");
    QTest::addColumn<bool>("fits");
    const auto row = [](const char* name, const UsbIdentity& identity, bool fits) {
        QTest::newRow(name) << identity << fits;
    };
    row("everything", {maker, product, 0x03EB, 0x8015}, true);
    row("manufacturer only", {maker, foreignProduct, otherVendor, otherProduct}, true);
    row("manufacturer and nothing else", {maker, {}, noIdentifier, noIdentifier}, true);
    row("description only", {foreignName, product, otherVendor, otherProduct}, true);
    row("description and nothing else", {{}, product, noIdentifier, noIdentifier}, true);
    row("identifiers only", {foreignName, foreignProduct, 0x03EB, 0x8015}, true);
    row("identifiers and nothing else", {{}, {}, 0x03EB, 0x8015}, true);
    row("nothing that fits", {foreignName, foreignProduct, otherVendor, otherProduct}, false);
    row("nothing at all", {{}, {}, noIdentifier, noIdentifier}, false);
    row("manufacturer in another case", {QStringLiteral("Polar ridge works"), {}, otherVendor, otherProduct},
        false);
    row("manufacturer with more behind", {maker + QStringLiteral(" Ltd"), {}, otherVendor, otherProduct},
        false);
    row("description in another case", {{}, QStringLiteral("BRUMALOGGER USB"), otherVendor, otherProduct},
        false);
    row("description cut short", {{}, QStringLiteral("Brumalogger"), otherVendor, otherProduct}, false);
    row("names in each other's place", {product, maker, otherVendor, otherProduct}, false);
    row("vendor only", {foreignName, foreignProduct, 0x03EB, otherProduct}, false);
    row("vendor and no product", {foreignName, foreignProduct, 0x03EB, noIdentifier}, false);
    row("product only", {foreignName, foreignProduct, otherVendor, 0x8015}, false);
    row("product and no vendor", {foreignName, foreignProduct, noIdentifier, 0x8015}, false);
    row("identifiers in each other's place", {foreignName, foreignProduct, 0x8015, 0x03EB}, false);
}

void TestBrumaloggerInterfaceDiscovery::fittingPort()
{
    QFETCH(UsbIdentity, identity);
    QFETCH(bool, fits);
    UsbBench bench;
    const SimulatedPort* port = bench.plug({}, identity, ownPortName());
    BrumaloggerInterface link;
    QCOMPARE(link.lConnectAuto(), fits);
    QCOMPARE(link.lIsConnected(), fits);
    QCOMPARE(port->commands(), fits ? QList<QByteArray>({"i"}) : QList<QByteArray>());
}

void TestBrumaloggerInterfaceDiscovery::noPorts()
{
    const UsbBench bench;
    QCOMPARE(portNames(), QStringList());
    BrumaloggerInterface link;
    const LogLines log;
    const Stopwatch stopwatch;
    QVERIFY(!link.lConnectAuto());
    QVERIFY(isWait(stopwatch.elapsed(), 0));
    QVERIFY(!link.lIsConnected());
    QCOMPARE(log.all(), QStringList());
}

// The port of a logger that was pulled out is not closed while there is nothing to search.
void TestBrumaloggerInterfaceDiscovery::noPortsLeavesAnOpenLink()
{
    DeviceRig rig;
    rig.bench.unplug(rig.logger);
    const LogLines log;
    QVERIFY(!rig.link.lConnectAuto());
    QCOMPARE(log.all(), QStringList());
    QVERIFY(rig.port()->isOpen());
    QVERIFY(rig.link.lIsConnected());
}

void TestBrumaloggerInterfaceDiscovery::noFittingPort()
{
    UsbBench bench;
    bench.plug({}, foreigner(), ownPortName(0));
    bench.plug({}, foreigner(), ownPortName(1));
    BrumaloggerInterface link;
    const LogLines log;
    const Stopwatch stopwatch;
    QVERIFY(!link.lConnectAuto());
    QVERIFY(isWait(stopwatch.elapsed(), 0));
    QCOMPARE(log.all(), disconnectLine({}));
    QVERIFY(!link.findChild<QSerialPort*>()->isOpen());
}

void TestBrumaloggerInterfaceDiscovery::noFittingPortDisconnects()
{
    DeviceRig rig;
    rig.bench.unplug(rig.logger);
    rig.bench.plug({}, foreigner(), ownPortName(1));
    const LogLines log;
    QVERIFY(!rig.link.lConnectAuto());
    QCOMPARE(log.all(), disconnectLine(ownPortName(0)));
    QVERIFY(!rig.link.lIsConnected());
    QVERIFY(!rig.port()->isOpen());
}

void TestBrumaloggerInterfaceDiscovery::fittingPortAmongOthers()
{
    UsbBench bench;
    const SimulatedPort* before = bench.plug({}, foreigner(), ownPortName(0));
    const SimulatedPort* logger = bench.plug({}, {}, ownPortName(1));
    const SimulatedPort* behind = bench.plug({}, foreigner(), ownPortName(2));
    BrumaloggerInterface link;
    QVERIFY(link.lConnectAuto());
    QCOMPARE(link.lPortName(), ownPortName(1));
    QCOMPARE(logger->commands(), QList<QByteArray>({"i"}));
    QCOMPARE(before->commands() + behind->commands(), QList<QByteArray>());
}

void TestBrumaloggerInterfaceDiscovery::firstOfTwoIsTaken()
{
    UsbBench bench;
    bench.plug({}, {}, ownPortName(0));
    bench.plug({}, {}, ownPortName(1));
    const QVector<SimulatedPort*> loggers = inListedOrder(bench);
    BrumaloggerInterface link;
    QVERIFY(link.lConnectAuto());
    QCOMPARE(link.lPortName(), loggers[0]->portName());
    QCOMPARE(loggers[0]->commands(), QList<QByteArray>({"i"}));
    QCOMPARE(loggers[1]->commands(), QList<QByteArray>());
}

void TestBrumaloggerInterfaceDiscovery::searchStopsAtTheFirstThatFits_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::newRow("it is silent") << QByteArray();
    QTest::newRow("it is something else") << QByteArray("Thermometer,1.0,2");
}

void TestBrumaloggerInterfaceDiscovery::searchStopsAtTheFirstThatFits()
{
    QFETCH(QByteArray, reply);
    UsbBench bench;
    bench.plug({}, {}, ownPortName(0));
    bench.plug({}, {}, ownPortName(1));
    const QVector<SimulatedPort*> loggers = inListedOrder(bench);
    Fault fault;
    fault.kind = Fault::Kind::Reply;
    fault.bytes = reply;
    loggers[0]->faults().add(fault);

    BrumaloggerInterface link;
    QVERIFY(!link.lConnectAuto());
    QVERIFY(!link.lIsConnected());
    QCOMPARE(link.lPortName(), loggers[0]->portName());
    QCOMPARE(loggers[0]->commands(), QList<QByteArray>({"i"}));
    QCOMPARE(loggers[1]->commands(), QList<QByteArray>());
}

void TestBrumaloggerInterfaceDiscovery::searchAgainConnectsAnew()
{
    DeviceRig rig;
    QVERIFY(rig.link.lConnectAuto());
    QVERIFY(rig.link.lIsConnected());
    QCOMPARE(rig.wire(), QList<QByteArray>({"i"}));
}

QTEST_MAIN(TestBrumaloggerInterfaceDiscovery)
#include "tst_brumaloggerinterface_discovery.moc"
