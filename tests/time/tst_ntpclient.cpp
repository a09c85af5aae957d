// Requests as they leave the client, and what becomes of the datagrams that reach it.

#include "network/ntpresponder.h"
#include "time/ntpclient.h"

#include "support/testclock.h"

#include <QRandomGenerator>
#include <QTest>
#include <QtEndian>

#include <memory>

namespace {

constexpr qint64 msecsFrom1900To1970 = 25567LL * 86400 * 1000;

QByteArray answerOfStratum(quint8 stratum)
{
    NtpPacket packet;
    packet.stratum = stratum;
    return packet.toBytes();
}

/// A datagram whose bytes are all different from their neighbours.
QByteArray patterned(int size)
{
    QByteArray bytes;
    for (int i = 0; i < size; i++)
        bytes.append(static_cast<char>(i * 37 + 11));
    return bytes;
}

QByteArray bytesOf(const NtpReply& reply)
{
    return {reinterpret_cast<const char*>(reply.packet().data()), int(reply.packet().size())};
}

/// A server on a port of the system's choice.
class Server : public NtpResponder
{
public:
    bool open() { return listen(QHostAddress::LocalHost, 0); }
    bool sendTo(quint16 clientPort, const QByteArray& bytes)
    {
        return send(bytes, QHostAddress::LocalHost, clientPort);
    }
    /// True when it has got @p count requests.
    bool awaitRequests(int count)
    {
        return QTest::qWaitFor([=] { return requests().size() >= count; });
    }
};

/// A client, the replies that it handed on, and a server that knows the client's port.
class Exchange
{
public:
    Exchange()
    {
        QObject::connect(&client, &NtpClient::replyReceived,
                         [this](const QHostAddress& address, quint16 senderPort, const NtpReply& reply) {
                             senders.append({address, senderPort});
                             replies.append(reply);
                         });
    }
    /// The request that the client sends.
    QByteArray request()
    {
        const int before = server.requests().size();
        client.sendRequest(QHostAddress::LocalHost, server.port());
        return server.awaitRequests(before + 1) ? server.requests().last().bytes : QByteArray();
    }
    /// Sends datagrams and a marker behind them; returns when the client has handed on the marker.
    bool deliver(const QList<QByteArray>& datagrams)
    {
        replies.clear();
        for (const QByteArray& bytes : datagrams + QList<QByteArray>{answerOfStratum(markerStratum)}) {
            if (!server.sendTo(clientPort(), bytes))
                return false;
        }
        QCoreApplication::processEvents(); // as a rule that is all; the wait below is a slow one
        const bool came = QTest::qWaitFor(
            [this] { return !replies.isEmpty() && replies.last().stratum() == markerStratum; });
        if (came)
            replies.removeLast();
        return came;
    }

    quint16 clientPort() const { return server.requests().constFirst().senderPort; }

private:
    static constexpr quint8 markerStratum = 0xEE;

public:
    NtpClient client;
    Server server;
    QList<NtpReply> replies;
    QList<QPair<QHostAddress, quint16>> senders;
};

QByteArray randomBytes(QRandomGenerator& random, int size)
{
    QByteArray bytes(size, '\0');
    for (char& byte : bytes)
        byte = static_cast<char>(random.bounded(256));
    return bytes;
}

/// Reads every field; true if each has a value that the field can have.
bool readsEverything(const NtpReply& reply)
{
    const bool times = reply.referenceTime().isValid() && reply.originTime().isValid() &&
                       reply.receiveTime().isValid() && reply.transmitTime().isValid() && !reply.isNull();
    const qint64 limit = 2LL * 0x100000000 * 1000;
    const bool spans = qAbs(reply.roundTripDelay()) < limit && qAbs(reply.localClockOffset()) < limit;
    const bool powers = reply.pollInterval() > 0 && reply.precision() > 0;
    return times && spans && powers && reply.leapIndicator() < 4 && reply.versionNumber() < 8 &&
           reply.mode() < 8;
}

} // namespace

class TestNtpClient : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void requestIs48BytesWithFlagsAndTimeOnly();
    void requestCarriesTheComputersTime();
    void requestGoesToTheGivenPort();
    void boundToAChosenPort();
    void clientWithoutAPortSendsNothing();
    void refusedDatagramIsToldFalse();
    void shortDatagramsAreDropped_data();
    void shortDatagramsAreDropped();
    void datagramOf48BytesHasAnEmptyAuthenticator();
    void authenticatorIsKeptAsReceived();
    void longDatagramIsCutAt68Bytes();
    void twoPendingDatagramsAreTwoReplies();
    void replyNamesItsSender();
    void anyHostsDatagramIsAReply();
    void randomDatagrams();
    void signatureOfTheSignal();

private:
    std::unique_ptr<Exchange> exchange;
};

void TestNtpClient::init()
{
    exchange = std::make_unique<Exchange>();
    QVERIFY2(exchange->server.open(), qPrintable(exchange->server.errorString()));
    QCOMPARE(exchange->request().size(), 48);
}

void TestNtpClient::cleanup()
{
    exchange.reset();
    TestClock::reset();
}

void TestNtpClient::requestIs48BytesWithFlagsAndTimeOnly()
{
    const QByteArray request = exchange->request();
    QCOMPARE(request.size(), 48);
    QCOMPARE(request.at(0), char(35));
    QCOMPARE(request.mid(1, 39), QByteArray(39, '\0'));
    QVERIFY(request.mid(40) != QByteArray(8, '\0'));
}

void TestNtpClient::requestCarriesTheComputersTime()
{
    const qint64 before = QDateTime::currentMSecsSinceEpoch();
    const QByteArray request = exchange->request();
    const qint64 after = QDateTime::currentMSecsSinceEpoch();

    const qint64 seconds = qFromBigEndian<quint32>(request.constData() + 40);
    const double fraction = qFromBigEndian<quint32>(request.constData() + 44) / 4294967296.0;
    const qint64 sent = seconds * 1000 + qRound64(fraction * 1000) - msecsFrom1900To1970;
    QVERIFY(sent >= before && sent <= after);
}

void TestNtpClient::requestGoesToTheGivenPort()
{
    Server other;
    QVERIFY(other.open());
    QVERIFY(exchange->client.sendRequest(QHostAddress::LocalHost, other.port()));
    QVERIFY(other.awaitRequests(1));
    QCOMPARE(other.requests().constFirst().bytes.size(), 48);
}

void TestNtpClient::boundToAChosenPort()
{
    auto place = std::make_unique<Server>();
    QVERIFY(place->open());
    const quint16 port = place->port();
    place.reset();

    NtpClient client(QHostAddress::LocalHost, port, nullptr);
    QVERIFY(client.sendRequest(QHostAddress::LocalHost, exchange->server.port()));
    QVERIFY(exchange->server.awaitRequests(2));
    QCOMPARE(exchange->server.requests().last().senderPort, port);
}

void TestNtpClient::clientWithoutAPortSendsNothing()
{
    Server holder;
    QVERIFY(holder.open());
    NtpClient client(QHostAddress::LocalHost, holder.port(), nullptr);
    QVERIFY(!client.sendRequest(QHostAddress::LocalHost, exchange->server.port()));
    // What the server sees next is the other client's request, so nothing came before it.
    QCOMPARE(exchange->request().size(), 48);
    QCOMPARE(exchange->server.requests().size(), 2);
    QCOMPARE(exchange->server.requests().last().senderPort, exchange->clientPort());
}

void TestNtpClient::refusedDatagramIsToldFalse()
{
    NtpClient client(QHostAddress(QHostAddress::LocalHost), 0, nullptr);
    QVERIFY(!client.sendRequest(QHostAddress(QHostAddress::LocalHostIPv6), 123));
}

void TestNtpClient::shortDatagramsAreDropped_data()
{
    QTest::addColumn<int>("size");
    for (const int size : {0, 1, 46, 47})
        QTest::addRow("%d bytes", size) << size;
}

void TestNtpClient::shortDatagramsAreDropped()
{
    QFETCH(int, size);
    QVERIFY(exchange->deliver({patterned(size)}));
    QVERIFY(exchange->replies.isEmpty());
}

void TestNtpClient::datagramOf48BytesHasAnEmptyAuthenticator()
{
    QVERIFY(exchange->deliver({patterned(68), patterned(48)}));
    QCOMPARE(exchange->replies.size(), 2);
    const QByteArray expected = patterned(48) + QByteArray(20, '\0');
    QCOMPARE(bytesOf(exchange->replies.at(1)), expected);
}

void TestNtpClient::authenticatorIsKeptAsReceived()
{
    QVERIFY(exchange->deliver({patterned(68)}));
    QCOMPARE(exchange->replies.size(), 1);
    QCOMPARE(bytesOf(exchange->replies.at(0)), patterned(68));
}

void TestNtpClient::longDatagramIsCutAt68Bytes()
{
    QVERIFY(exchange->deliver({patterned(100)}));
    QCOMPARE(exchange->replies.size(), 1);
    QCOMPARE(bytesOf(exchange->replies.at(0)), patterned(68));
}

void TestNtpClient::twoPendingDatagramsAreTwoReplies()
{
    constexpr qint64 hour = 3600000;
    const auto moveClock = [] { TestClock::shift(hour); };
    connect(&exchange->client, &NtpClient::replyReceived, this, moveClock);

    QVERIFY(exchange->deliver({answerOfStratum(1), answerOfStratum(2)}));
    QCOMPARE(exchange->replies.size(), 2);
    QCOMPARE(exchange->replies.at(0).stratum(), quint8(1));
    QCOMPARE(exchange->replies.at(1).stratum(), quint8(2));
    const QDateTime first = exchange->replies.at(0).destinationTime();
    QVERIFY(first.msecsTo(exchange->replies.at(1).destinationTime()) >= hour);
}

void TestNtpClient::replyNamesItsSender()
{
    QVERIFY(exchange->deliver({}));
    QCOMPARE(QHostAddress(exchange->senders.last().first.toIPv4Address()),
             QHostAddress(QHostAddress::LocalHost));
    QCOMPARE(exchange->senders.last().second, exchange->server.port());
}

void TestNtpClient::anyHostsDatagramIsAReply()
{
    Server stranger;
    QVERIFY(stranger.open());
    QVERIFY(exchange->deliver({}));
    QVERIFY(stranger.sendTo(exchange->clientPort(), answerOfStratum(9)));
    QVERIFY(QTest::qWaitFor([this] { return exchange->replies.size() == 1; }));
    QCOMPARE(exchange->replies.at(0).stratum(), quint8(9));
    QCOMPARE(exchange->senders.last().second, stranger.port());
}

void TestNtpClient::randomDatagrams()
{
    constexpr int rounds = 100;
    constexpr int datagramsPerRound = 100; // few enough for the socket's buffer
    constexpr quint32 seed = 20;
    QRandomGenerator random(seed);

    for (int round = 0; round < rounds; round++) {
        QList<QByteArray> datagrams;
        int accepted = 0;
        for (int i = 0; i < datagramsPerRound; i++) {
            datagrams.append(randomBytes(random, random.bounded(201)));
            accepted += datagrams.last().size() >= 48 ? 1 : 0;
        }
        QVERIFY(exchange->deliver(datagrams));
        QCOMPARE(exchange->replies.size(), accepted);
        for (const NtpReply& reply : qAsConst(exchange->replies))
            QVERIFY(readsEverything(reply));
    }
}

void TestNtpClient::signatureOfTheSignal()
{
    const QMetaObject& meta = NtpClient::staticMetaObject;
    QVERIFY(meta.indexOfSignal("replyReceived(QHostAddress,quint16,NtpReply)") >= 0);
    QVERIFY(meta.indexOfSlot("readPendingDatagrams()") >= 0);
}

QTEST_GUILESS_MAIN(TestNtpClient)
#include "tst_ntpclient.moc"
