// Finding the logger: which port is taken, and which device behind it passes.

#include "procedurerig.h"
#include "windowstate.h"
#include "windowwords.h"

#include <QSerialPort>
#include <QTest>

using namespace WindowWords;

namespace {

void addPortColumns()
{
    QTest::addColumn<QString>("manufacturer");
    QTest::addColumn<QString>("description");
    QTest::addColumn<int>("vendor");
    QTest::addColumn<int>("product");
}

UsbIdentity portOfRow()
{
    QFETCH(const QString, manufacturer);
    QFETCH(const QString, description);
    QFETCH(const int, vendor);
    QFETCH(const int, product);
    return {manufacturer, description, vendor, product};
}

/// Plugs in a logger that identifies itself at first by the reply of the test's row.
void plugLoggerOfRow(ProcedureRig& rig)
{
    QFETCH(const QByteArray, reply);
    rig.plug();
    rig.disturb(1, Fault::Kind::Reply, reply);
}

} // namespace

class TestMainWindowDiscovery : public QObject
{
    Q_OBJECT

private slots:
    void findsLoggerBy_data();
    void findsLoggerBy();
    void passesOverOtherPorts_data();
    void passesOverOtherPorts();
    void missesDevice();
    void takesLoggerBesideOtherPort();
    void takesFirstOfTwoLoggers();
    void staysWithFirstOfTwoLoggers();
    void acceptsIdentity_data();
    void acceptsIdentity();
    void refusesIdentity_data();
    void refusesIdentity();
    void connectsAfterSilence();
    void connectsOnceBusyPortIsFree();
};

void TestMainWindowDiscovery::findsLoggerBy_data()
{
    addPortColumns();
    QTest::newRow("manufacturer alone") << "Polar Ridge Works" << QString() << -1 << -1;
    QTest::newRow("description alone") << QString() << "Brumalogger USB" << -1 << -1;
    QTest::newRow("identifiers alone") << QString() << QString() << 0x03EB << 0x8015;
    QTest::newRow("manufacturer against the rest") << "Polar Ridge Works"
                                                   << "Serial Adapter" << 0x1234 << 0x5678;
    QTest::newRow("description against the rest") << "Acme"
                                                  << "Brumalogger USB" << 0x1234 << 0x5678;
    QTest::newRow("identifiers against the rest") << "Acme"
                                                  << "Serial Adapter" << 0x03EB << 0x8015;
}

void TestMainWindowDiscovery::findsLoggerBy()
{
    ProcedureRig rig;
    rig.plug(basicLogger(), portOfRow());
    rig.press("buttonConnect");
    QCOMPARE(rig.wire(), connectCommands());
    QCOMPARE(differences(rig, connected()), QString());
}

void TestMainWindowDiscovery::passesOverOtherPorts_data()
{
    addPortColumns();
    QTest::newRow("nothing told") << QString() << QString() << -1 << -1;
    QTest::newRow("another device") << "Acme"
                                    << "Serial Adapter" << 0x1234 << 0x5678;
    QTest::newRow("manufacturer in other case") << "polar ridge works" << QString() << -1 << -1;
    QTest::newRow("manufacturer with more behind") << "Polar Ridge Works Inc" << QString() << -1 << -1;
    QTest::newRow("description in other case") << QString() << "BRUMALOGGER USB" << -1 << -1;
    QTest::newRow("description with more behind") << QString() << "Brumalogger USB 2" << -1 << -1;
    QTest::newRow("names the wrong way round") << "Brumalogger USB"
                                               << "Polar Ridge Works" << -1 << -1;
    QTest::newRow("vendor alone") << QString() << QString() << 0x03EB << -1;
    QTest::newRow("product alone") << QString() << QString() << -1 << 0x8015;
    QTest::newRow("another product") << QString() << QString() << 0x03EB << 0x8016;
    QTest::newRow("another vendor") << QString() << QString() << 0x03EC << 0x8015;
}

void TestMainWindowDiscovery::passesOverOtherPorts()
{
    ProcedureRig rig;
    rig.plug(basicLogger(), portOfRow());
    expectNoDevice(rig.robot);
    rig.press("buttonConnect");
    QCOMPARE(rig.wire(), QList<QByteArray>());
    QCOMPARE(differences(rig, beforeAnyConnect()), QString());
}

void TestMainWindowDiscovery::missesDevice()
{
    ProcedureRig rig;
    expectNoDevice(rig.robot);
    rig.press("buttonConnect");
    QCOMPARE(panels(rig), emptyPanels());
    QCOMPARE(differences(rig, beforeAnyConnect()), QString());
}

void TestMainWindowDiscovery::takesLoggerBesideOtherPort()
{
    ProcedureRig rig;
    SimulatedPort* other = rig.plug(basicLogger(), {"Acme", "Serial Adapter", 0x1234, 0x5678});
    SimulatedPort* logger = rig.plug();
    rig.press("buttonConnect");
    QCOMPARE(other->commands(), QList<QByteArray>());
    QCOMPARE(logger->commands(), connectCommands());
    QCOMPARE(rig.status(), QStringLiteral("Connected to device on ttyACM1"));
    rig.press("buttonConnect");
    QCOMPARE(rig.status(), QStringLiteral("Disconnected from ttyACM1"));
    QCOMPARE(rig.robot.problems(), QString());
}

void TestMainWindowDiscovery::takesFirstOfTwoLoggers()
{
    ProcedureRig rig;
    SimulatedPort* first = rig.plug();
    SimulatedPort* second = rig.plug();
    rig.press("buttonConnect");
    QCOMPARE(first->commands(), connectCommands());
    QCOMPARE(second->commands(), QList<QByteArray>());
    QCOMPARE(differences(rig, connected()), QString());
}

void TestMainWindowDiscovery::staysWithFirstOfTwoLoggers()
{
    ProcedureRig rig;
    SimulatedPort* first = rig.plug();
    SimulatedPort* second = rig.plug();
    rig.disturb("i", Fault::Kind::Silence);
    expectNoDevice(rig.robot);
    rig.press("buttonConnect");
    QCOMPARE(first->commands(), QList<QByteArray>({"i"}));
    QCOMPARE(second->commands(), QList<QByteArray>());
    QCOMPARE(differences(rig, beforeAnyConnect()), QString());
}

void TestMainWindowDiscovery::acceptsIdentity_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::newRow("the name alone") << QByteArray("Brumalogger USB\r\n");
    QTest::newRow("an empty field behind") << QByteArray("Brumalogger USB,\r\n");
    QTest::newRow("many fields behind") << QByteArray("Brumalogger USB,x,,Brumalogger,5\r\n");
    QTest::newRow("blanks and lines around") << QByteArray("\r\n  Brumalogger USB \r\n \r\n");
    QTest::newRow("no line end") << QByteArray("Brumalogger USB,1.1.9,2.4");
}

void TestMainWindowDiscovery::acceptsIdentity()
{
    ProcedureRig rig;
    plugLoggerOfRow(rig);
    rig.press("buttonConnect");
    QCOMPARE(rig.wire(), connectCommands());
    QCOMPARE(panels(rig), panelsOfBasicLogger());
    QCOMPARE(differences(rig, connected()), QString());
}

void TestMainWindowDiscovery::refusesIdentity_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::newRow("silence") << QByteArray();
    QTest::newRow("an empty line") << QByteArray("\r\n");
    QTest::newRow("another device") << QByteArray("Thermometer,1.1.9,2.4\r\n");
    QTest::newRow("another case") << QByteArray("brumalogger usb,1.1.9,2.4\r\n");
    QTest::newRow("a longer name") << QByteArray("Brumalogger USB 2,1.1.9,2.4\r\n");
    QTest::newRow("a shorter name") << QByteArray("Brumalogger,1.1.9,2.4\r\n");
    QTest::newRow("the name as second field") << QByteArray("x,Brumalogger USB,2.4\r\n");
    QTest::newRow("another separator") << QByteArray("Brumalogger USB;1.1.9;2.4\r\n");
    QTest::newRow("bytes that are no text") << QByteArray("\xff\xfe\x80\x07");
}

void TestMainWindowDiscovery::refusesIdentity()
{
    ProcedureRig rig;
    plugLoggerOfRow(rig);
    expectNoDevice(rig.robot);
    rig.press("buttonConnect");
    QCOMPARE(rig.wire(), QList<QByteArray>({"i"}));
    QCOMPARE(panels(rig), emptyPanels());
    QCOMPARE(differences(rig, beforeAnyConnect()), QString());
}

// The port is still open from the attempt that failed.
void TestMainWindowDiscovery::connectsAfterSilence()
{
    ProcedureRig rig;
    rig.plug();
    rig.disturb(1, Fault::Kind::Silence);
    expectNoDevice(rig.robot);
    rig.press("buttonConnect");
    rig.logger->clearExchanges();
    rig.logger->faults().clear();
    rig.press("buttonConnect");
    QCOMPARE(rig.wire(), connectCommands());
    QCOMPARE(differences(rig, connected()), QString());
}

void TestMainWindowDiscovery::connectsOnceBusyPortIsFree()
{
    ProcedureRig rig;
    rig.plug();
    QSerialPort otherProgram(QStringLiteral("ttyACM0"));
    QVERIFY(otherProgram.open(QIODevice::ReadWrite));
    expectNoDevice(rig.robot);
    rig.press("buttonConnect");
    QCOMPARE(rig.wire(), QList<QByteArray>());
    otherProgram.close();
    rig.press("buttonConnect");
    QCOMPARE(rig.wire(), connectCommands());
    QCOMPARE(differences(rig, connected()), QString());
}

QTEST_MAIN(TestMainWindowDiscovery)
#include "tst_mainwindow_discovery.moc"
