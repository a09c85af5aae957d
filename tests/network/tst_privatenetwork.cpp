// The network that tests run in: nothing but loopback, the names that the program knows, real time servers.

#include <QElapsedTimer>
#include <QHostInfo>
#include <QNetworkDatagram>
#include <QNetworkInterface>
#include <QSignalSpy>
#include <QTcpSocket>
#include <QUdpSocket>
#include <QtTest>

namespace {

const QStringList timeServers{QStringLiteral("time.google.com"),  QStringLiteral("time.nist.gov"),
                              QStringLiteral("stdtime.gov.hk"),   QStringLiteral("0.pool.ntp.org"),
                              QStringLiteral("1.pool.ntp.org"),   QStringLiteral("0.cn.pool.ntp.org"),
                              QStringLiteral("1.cn.pool.ntp.org")};

QString timeServerAddress(int index)
{
    return QStringLiteral("127.1.0.%1").arg(index + 1);
}

QStringList addressesOf(const QString& name)
{
    QStringList addresses;
    const auto found = QHostInfo::fromName(name).addresses();
    for (const auto& address : found)
        addresses += address.toString();
    addresses.sort();
    return addresses;
}

qint64 secondsAt(const QByteArray& bytes, int offset)
{
    return qFromBigEndian<quint32>(bytes.constData() + offset);
}

} // namespace

class TestPrivateNetwork : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void namesHaveAddresses_data();
    void namesHaveAddresses();
    void otherNamesFailAtOnce();
    void loopbackIsTheOnlyInterface();
    void nothingOutsideIsReachable();
    void aHostRefuses();
    void aHostIsSilent();
    void timeServersAnswer_data();
    void timeServersAnswer();
};

void TestPrivateNetwork::initTestCase()
{
    const auto interfaces = QNetworkInterface::allInterfaces();
    QVERIFY2(interfaces.size() == 1, "not a private network; run this by tests/network/in-private-network");
}

void TestPrivateNetwork::namesHaveAddresses_data()
{
    QTest::addColumn<QStringList>("addresses");
    for (int i = 0; i < timeServers.size(); ++i)
        QTest::newRow(qPrintable(timeServers.at(i))) << QStringList{timeServerAddress(i)};
    QTest::newRow("www.polarridgeworks.example") << QStringList{QStringLiteral("127.2.0.1")};
    QTest::newRow("several.test") << QStringList{QStringLiteral("127.3.0.1"), QStringLiteral("127.3.0.2"),
                                                 QStringLiteral("127.3.0.3")};
    QTest::newRow("refusing.test") << QStringList{QStringLiteral("127.4.0.1")};
    QTest::newRow("silent.test") << QStringList{QStringLiteral("192.0.2.1")};
}

void TestPrivateNetwork::namesHaveAddresses()
{
    QFETCH(QStringList, addresses);
    QCOMPARE(addressesOf(QString::fromLatin1(QTest::currentDataTag())), addresses);
}

void TestPrivateNetwork::otherNamesFailAtOnce()
{
    QElapsedTimer timer;
    timer.start();
    const auto info = QHostInfo::fromName(QStringLiteral("unknown.test"));
    QCOMPARE(info.error(), QHostInfo::HostNotFound);
    QVERIFY(info.addresses().isEmpty());
    QVERIFY(timer.elapsed() < 1000);
}

void TestPrivateNetwork::loopbackIsTheOnlyInterface()
{
    const auto interfaces = QNetworkInterface::allInterfaces();
    QCOMPARE(interfaces.size(), 1);
    QVERIFY(interfaces.first().flags().testFlag(QNetworkInterface::IsLoopBack));
    QVERIFY(interfaces.first().flags().testFlag(QNetworkInterface::IsUp));
}

void TestPrivateNetwork::nothingOutsideIsReachable()
{
    // An address for documentation that no route leads to.
    QTcpSocket socket;
    socket.connectToHost(QHostAddress(QStringLiteral("198.51.100.1")), 80);
    QVERIFY(!socket.waitForConnected());
    QCOMPARE(socket.error(), QAbstractSocket::NetworkError);
}

void TestPrivateNetwork::aHostRefuses()
{
    QTcpSocket socket;
    socket.connectToHost(QStringLiteral("refusing.test"), 80);
    QVERIFY(!socket.waitForConnected());
    QCOMPARE(socket.error(), QAbstractSocket::ConnectionRefusedError);
}

void TestPrivateNetwork::aHostIsSilent()
{
    QTcpSocket socket;
    socket.connectToHost(QStringLiteral("silent.test"), 80);
    QVERIFY(!socket.waitForConnected(300));
    QCOMPARE(socket.error(), QAbstractSocket::SocketTimeoutError);

    // A refusal would be reported to the next one who sends.
    QUdpSocket udp;
    udp.connectToHost(QStringLiteral("silent.test"), 123);
    QVERIFY(udp.waitForConnected());
    for (int i = 0; i < 2; ++i)
        QCOMPARE(udp.write("request"), qint64(7));
    QVERIFY(!udp.waitForReadyRead(100));
    QCOMPARE(udp.error(), QAbstractSocket::SocketTimeoutError);
}

void TestPrivateNetwork::timeServersAnswer_data()
{
    QTest::addColumn<QString>("address");
    for (int i = 0; i < timeServers.size(); ++i)
        QTest::newRow(qPrintable(timeServers.at(i))) << timeServerAddress(i);
}

void TestPrivateNetwork::timeServersAnswer()
{
    QFETCH(QString, address);
    QUdpSocket client;
    QVERIFY(client.bind(QHostAddress(QHostAddress::LocalHost)));
    QSignalSpy readyRead(&client, &QUdpSocket::readyRead);
    QCOMPARE(client.writeDatagram(QByteArray(1, '\x23') + QByteArray(47, '\0'), QHostAddress(address), 123),
             qint64(48));
    QVERIFY(readyRead.wait());

    const auto reply = client.receiveDatagram();
    QCOMPARE(reply.senderAddress(), QHostAddress(address));
    QCOMPARE(reply.senderPort(), 123);
    QCOMPARE(reply.data().size(), 48);
    QCOMPARE(reply.data().at(0), '\x24'); // clock set, version 4, server
    QCOMPARE(reply.data().at(1), '\x01');

    // chronyd renews its reference time once in 64 seconds, and puts it a second or two into the past.
    const qint64 reference = secondsAt(reply.data(), 16);
    const qint64 transmit = secondsAt(reply.data(), 40);
    QVERIFY(transmit >= reference);
    QVERIFY(transmit - reference <= 70);
}

QTEST_GUILESS_MAIN(TestPrivateNetwork)
#include "tst_privatenetwork.moc"
