// Proving that a logger is behind an open port, and what a port is good for whose device is not one.

#include "connectiondesk.h"
#include "devicerig.h"

#include "support/loglines.h"
#include "support/testclock.h"

#include <QTest>

class TestBrumaloggerInterfaceHandshake : public QObject
{
    Q_OBJECT

private slots:
    void init() { TestClock::ignoreStalls(); }
    void cleanup() { TestClock::reset(); }

    void handshakeStoresNothing();
    void handshake_data();
    void handshake();
    void settlingAndHandshakeTakeAWaitEach_data();
    void settlingAndHandshakeTakeAWaitEach();
    void failedHandshakeLeavesThePortOpen_data();
    void failedHandshakeLeavesThePortOpen();
    void searchGetsPastAFailedHandshake();
    void disconnectingDuringTheHandshake();
};

void TestBrumaloggerInterfaceHandshake::handshakeStoresNothing()
{
    ConnectionDesk desk;
    QVERIFY(desk.link.lConnect(ownPortName()));
    QVERIFY(desk.link.lCheckIdentification());
    QCOMPARE(desk.link.lDeviceName(), QString());
    QCOMPARE(desk.link.lFirmwareVersion(), QString());
    QCOMPARE(desk.link.lHardwareRevision(), QString());
}

void TestBrumaloggerInterfaceHandshake::handshake_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<bool>("proved");
    QTest::newRow("three fields") << QByteArray("Brumalogger USB,1.2.0,2.4\r\n") << true;
    QTest::newRow("the name alone") << QByteArray("Brumalogger USB\r\n") << true;
    QTest::newRow("empty fields behind") << QByteArray("Brumalogger USB,,,,") << true;
    QTest::newRow("anything behind the comma") << QByteArray("Brumalogger USB, what,ever \xff") << true;
    QTest::newRow("blanks around") << QByteArray("  Brumalogger USB  ") << true;
    QTest::newRow("another case") << QByteArray("Brumalogger Usb,1.2.0,2.4") << false;
    QTest::newRow("a longer name") << QByteArray("Brumalogger USB2,1.2.0,2.4") << false;
    QTest::newRow("a shorter name") << QByteArray("Brumalogger,1.2.0,2.4") << false;
    QTest::newRow("a blank before the comma") << QByteArray("Brumalogger USB ,1.2.0,2.4") << false;
    QTest::newRow("the name in second place") << QByteArray(",Brumalogger USB") << false;
    QTest::newRow("other separators") << QByteArray("Brumalogger USB;1.2.0;2.4") << false;
    QTest::newRow("ok") << QByteArray("ok") << false;
    QTest::newRow("a line end only") << QByteArray("\r\n") << false;
    QTest::newRow("nothing") << QByteArray() << false;
}

void TestBrumaloggerInterfaceHandshake::handshake()
{
    QFETCH(QByteArray, reply);
    QFETCH(bool, proved);
    ConnectionDesk desk;
    desk.reply(reply);
    QCOMPARE(desk.link.lConnect(ownPortName()), proved);
    QCOMPARE(desk.link.lIsConnected(), proved);
    QCOMPARE(desk.link.lCheckIdentification(), proved);
    QCOMPARE(desk.logger->commands(), QList<QByteArray>({"i", "i"}));
}

void TestBrumaloggerInterfaceHandshake::settlingAndHandshakeTakeAWaitEach_data()
{
    QTest::addColumn<bool>("fast");
    QTest::addColumn<int>("wait");
    QTest::newRow("fast") << true << 75;
    QTest::newRow("slow") << false << 150;
}

void TestBrumaloggerInterfaceHandshake::settlingAndHandshakeTakeAWaitEach()
{
    QFETCH(bool, fast);
    QFETCH(int, wait);
    ConnectionDesk desk;
    desk.link.lSetFastMode(fast);
    const Stopwatch stopwatch;
    qint64 settled = 0;
    connect(desk.logger, &SimulatedPort::sCommandReceived, this,
            [&stopwatch, &settled] { settled = stopwatch.elapsed(); });
    QVERIFY(desk.link.lConnect(ownPortName()));
    const qint64 elapsed = stopwatch.elapsed();
    QVERIFY(isWait(settled, wait));
    QVERIFY(isWait(elapsed, 2LL * wait));
}

void TestBrumaloggerInterfaceHandshake::failedHandshakeLeavesThePortOpen_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::newRow("silent device") << QByteArray();
    QTest::newRow("wrong device") << QByteArray("Thermometer,1.0,2\r\n");
}

void TestBrumaloggerInterfaceHandshake::failedHandshakeLeavesThePortOpen()
{
    QFETCH(QByteArray, reply);
    ConnectionDesk desk;
    desk.reply(reply);
    const LogLines log;
    QVERIFY(!desk.link.lConnect(ownPortName()));
    QVERIFY(!desk.link.lIsConnected());
    QVERIFY(desk.port()->isOpen());
    QCOMPARE(log.all(), QStringList({connectingLine(ownPortName()), unprovedLine()}));

    desk.logger->clearExchanges();
    QVERIFY(desk.link.lConnect(ownPortName())); // for the port is open
    QVERIFY(!desk.link.lIsConnected());
    QCOMPARE(desk.logger->commands(), QList<QByteArray>());
}

void TestBrumaloggerInterfaceHandshake::searchGetsPastAFailedHandshake()
{
    ConnectionDesk desk;
    desk.reply({});
    QVERIFY(!desk.link.lConnectAuto());
    desk.logger->faults().clear();
    const LogLines log;
    QVERIFY(desk.link.lConnectAuto());
    QVERIFY(desk.link.lIsConnected());
    QCOMPARE(log.all(), QStringList({disconnectedLine(ownPortName()), connectingLine(ownPortName()),
                                     connectedLine(ownPortName())}));
}

// As when the window is closed while it connects.
void TestBrumaloggerInterfaceHandshake::disconnectingDuringTheHandshake()
{
    ConnectionDesk desk;
    connect(desk.port(), &QIODevice::readyRead, &desk.link, &BrumaloggerInterface::lDisconnect,
            Qt::QueuedConnection);
    QVERIFY(!desk.link.lConnect(ownPortName()));
    QVERIFY(!desk.link.lIsConnected());
    QVERIFY(!desk.port()->isOpen());
    QCOMPARE(desk.logger->exchanges().constFirst().answered, true);
}

QTEST_MAIN(TestBrumaloggerInterfaceHandshake)
#include "tst_brumaloggerinterface_handshake.moc"
