// Opening a port and closing it, and what the log tells of both.

#include "connectiondesk.h"
#include "devicerig.h"
#include "storedfields.h"

#include "support/environmentvariable.h"
#include "support/loglines.h"
#include "support/testclock.h"

#include <QDir>
#include <QFile>
#include <QTest>

namespace {

constexpr int fastWait = 75;
constexpr int slowWait = 150;

/// The file that stands for @p portName in the mock hardware's /dev.
QString nodePath(const QString& portName)
{
    return qEnvironmentVariable("UMOCKDEV_DIR") + QStringLiteral("/dev/") + portName;
}

/// What may be wrong with the file in /dev of a port that the system lists.
enum class Node { Missing, Folder, PlainFile, Nowhere };

bool spoilNode(const QString& path, Node node)
{
    QFile::remove(path);
    QFile file(path);
    switch (node) {
    case Node::Missing:
        return !file.exists();
    case Node::Folder:
        return QDir().mkdir(path);
    case Node::PlainFile:
        return file.open(QIODevice::WriteOnly);
    case Node::Nowhere:
        return QFile::link(QStringLiteral("/nowhere/at/all"), path);
    }
    return false;
}

} // namespace

Q_DECLARE_METATYPE(Node)

class TestBrumaloggerInterfaceConnection : public QObject
{
    Q_OBJECT

private slots:
    void init() { TestClock::ignoreStalls(); }
    void cleanup();

    void newLinkIsClosed();
    void connecting();
    void lineSettings();
    void unusablePort_data();
    void unusablePort();
    void portInUse();
    void unknownPort();
    void failedOpeningEndsAConnection();
    void openPortIsTakenAsItIs();
    void disconnecting();
    void disconnectingAClosedLink();
    void reconnecting();
    void replugging();
    void deviceClockForTheLog();
};

void TestBrumaloggerInterfaceConnection::cleanup()
{
    QDir().rmdir(nodePath(ownPortName())); // which the bench can't clear away
    TestClock::reset();
}

void TestBrumaloggerInterfaceConnection::newLinkIsClosed()
{
    const BrumaloggerInterface link;
    QVERIFY(!link.lIsConnected());
    const QList<QSerialPort*> ports = link.findChildren<QSerialPort*>();
    QCOMPARE(ports.size(), 1);
    QVERIFY(!ports.constFirst()->isOpen());
}

void TestBrumaloggerInterfaceConnection::connecting()
{
    ConnectionDesk desk;
    const LogLines log;
    QVERIFY(desk.link.lConnectAuto());
    QVERIFY(desk.link.lIsConnected());
    QVERIFY(desk.port()->isOpen());
    QCOMPARE(desk.link.lPortName(), ownPortName());
    QCOMPARE(desk.logger->commands(), QList<QByteArray>({"i"}));
    QCOMPARE(log.all(), QStringList({disconnectedLine({}), connectingLine(ownPortName()),
                                     connectedLine(ownPortName())}));
}

void TestBrumaloggerInterfaceConnection::lineSettings()
{
    ConnectionDesk desk;
    QVERIFY(desk.link.lConnect(ownPortName()));
    QCOMPARE(desk.port()->baudRate(QSerialPort::Input), 115200);
    QCOMPARE(desk.port()->baudRate(QSerialPort::Output), 115200);
    QCOMPARE(desk.port()->dataBits(), QSerialPort::Data8);
    QCOMPARE(desk.port()->parity(), QSerialPort::NoParity);
    QCOMPARE(desk.port()->stopBits(), QSerialPort::OneStop);
    QCOMPARE(desk.port()->flowControl(), QSerialPort::NoFlowControl);
    QCOMPARE(desk.port()->openMode(), QIODevice::ReadWrite);
}

void TestBrumaloggerInterfaceConnection::unusablePort_data()
{
    QTest::addColumn<Node>("node");
    QTest::newRow("no device file") << Node::Missing;
    QTest::newRow("a folder") << Node::Folder;
    QTest::newRow("a plain file") << Node::PlainFile;
    QTest::newRow("a link to nowhere") << Node::Nowhere;
}

void TestBrumaloggerInterfaceConnection::unusablePort()
{
    QFETCH(Node, node);
    ConnectionDesk desk;
    QVERIFY(spoilNode(nodePath(ownPortName()), node));
    const LogLines log;
    const Stopwatch stopwatch;
    QVERIFY(!desk.link.lConnectAuto());
    QVERIFY(isWait(stopwatch.elapsed(), fastWait));
    QVERIFY(!desk.link.lIsConnected());
    QVERIFY(!desk.port()->isOpen());
    QCOMPARE(desk.logger->commands(), QList<QByteArray>());
    QCOMPARE(log.all(),
             QStringList({disconnectedLine({}), connectingLine(ownPortName()), unableLine(ownPortName())}));
}

void TestBrumaloggerInterfaceConnection::portInUse()
{
    ConnectionDesk desk;
    QSerialPort other(ownPortName());
    QVERIFY(other.open(QIODevice::ReadWrite));
    TestClock::reset(); // the lock's file has the computer's time and would be remarked on as one from the
                        // future
    const LogLines log;
    QVERIFY(!desk.link.lConnect(ownPortName()));
    QVERIFY(!desk.link.lIsConnected());
    QVERIFY(!desk.port()->isOpen());
    QCOMPARE(log.all(), QStringList({connectingLine(ownPortName()), unableLine(ownPortName())}));

    other.close();
    TestClock::ignoreStalls();
    QVERIFY(desk.link.lConnect(ownPortName()));
}

void TestBrumaloggerInterfaceConnection::unknownPort()
{
    ConnectionDesk desk;
    desk.link.lSetFastMode(false);
    const Stopwatch stopwatch;
    QVERIFY(!desk.link.lConnect(ownPortName(7)));
    QVERIFY(isWait(stopwatch.elapsed(), slowWait));
    QVERIFY(!desk.link.lIsConnected());
    QVERIFY(desk.link.lConnect(ownPortName()));
}

void TestBrumaloggerInterfaceConnection::failedOpeningEndsAConnection()
{
    ConnectionDesk desk;
    QVERIFY(desk.link.lConnect(ownPortName()));
    desk.port()->close();
    QVERIFY(desk.link.lIsConnected());
    QVERIFY(!desk.link.lConnect(ownPortName(7)));
    QVERIFY(!desk.link.lIsConnected());
}

void TestBrumaloggerInterfaceConnection::openPortIsTakenAsItIs()
{
    ConnectionDesk desk;
    const SimulatedPort* other = desk.bench.plug({}, {}, ownPortName(1));
    QVERIFY(desk.link.lConnect(ownPortName()));
    desk.logger->clearExchanges();
    const LogLines log;
    const Stopwatch stopwatch;
    QVERIFY(desk.link.lConnect(ownPortName(1)));
    QVERIFY(desk.link.lConnect(QStringLiteral("no such port")));
    QVERIFY(isWait(stopwatch.elapsed(), 0));
    QVERIFY(desk.link.lIsConnected());
    QCOMPARE(desk.link.lPortName(), ownPortName());
    QCOMPARE(desk.logger->commands() + other->commands(), QList<QByteArray>());
    QCOMPARE(log.all(), QStringList());
}

void TestBrumaloggerInterfaceConnection::disconnecting()
{
    ConnectionDesk desk;
    QVERIFY(desk.link.lConnect(ownPortName()));
    QVERIFY(desk.link.lGetIdentification(nullptr, nullptr, nullptr));
    QVERIFY(desk.link.lGetSamplingTime(nullptr));
    QVERIFY(desk.link.lGetTimeZoneOffset(nullptr));
    QVERIFY(desk.link.lGetPolicies(nullptr));
    QVERIFY(desk.link.lGetText(2, nullptr));
    const LogLines log;
    desk.link.lDisconnect();
    QVERIFY(!desk.link.lIsConnected());
    QVERIFY(!desk.port()->isOpen());
    QCOMPARE(log.all(), QStringList({disconnectedLine(ownPortName())}));
    // What was read stays.
    QCOMPARE(desk.link.lFirmwareVersion(), QStringLiteral("1.2.0"));
    QCOMPARE(desk.link.lSamplingTime(), 660);
    QCOMPARE(desk.link.lTimeZoneOffset(), -10800);
    QCOMPARE(desk.link.*memberOf(Policies()), 8195);
    QCOMPARE((desk.link.*memberOf(Texts())).value(2), QStringLiteral("Batch 7"));
}

void TestBrumaloggerInterfaceConnection::disconnectingAClosedLink()
{
    BrumaloggerInterface link;
    const LogLines log;
    link.lDisconnect();
    link.lDisconnect();
    QVERIFY(!link.lIsConnected());
    QCOMPARE(log.all(), QStringList({disconnectedLine({}), disconnectedLine({})}));
}

void TestBrumaloggerInterfaceConnection::reconnecting()
{
    ConnectionDesk desk;
    for (int round = 1; round <= 3; ++round) {
        QVERIFY(desk.link.lConnect(ownPortName()));
        QVERIFY(desk.link.lSendCommandK());
        desk.link.lDisconnect();
    }
    QCOMPARE(desk.logger->commands(), QList<QByteArray>({"i", "k", "i", "k", "i", "k"}));
}

void TestBrumaloggerInterfaceConnection::replugging()
{
    ConnectionDesk desk;
    QVERIFY(desk.link.lConnectAuto());
    desk.bench.unplug(desk.logger);
    QVERIFY(!desk.link.lSendCommandK());
    QVERIFY(!desk.link.lConnectAuto());

    desk.logger = desk.bench.plug(distinctLogger(), {}, ownPortName());
    const LogLines log;
    QVERIFY(desk.link.lConnectAuto());
    QVERIFY(desk.link.lIsConnected());
    QVERIFY(desk.link.lSendCommandK());
    QCOMPARE(desk.logger->commands(), QList<QByteArray>({"i", "k"}));
    QCOMPARE(log.all(), QStringList({disconnectedLine(ownPortName()), connectingLine(ownPortName()),
                                     connectedLine(ownPortName())}));
}

void TestBrumaloggerInterfaceConnection::deviceClockForTheLog()
{
    const LocalZone zone("EET-2");
    DeviceRig rig;
    rig.reply("1704164645");
    QVERIFY(rig.link.lGetDateTime(nullptr));
    const LogLines log;
    QVERIFY(QMetaObject::invokeMethod(&rig.link, "plOnTimeUpdate"));
    QCOMPARE(log.all(), QStringList({QStringLiteral("debug: \"02/01/2024 03:04:05\"")}));
}

QTEST_MAIN(TestBrumaloggerInterfaceConnection)
#include "tst_brumaloggerinterface_connection.moc"
