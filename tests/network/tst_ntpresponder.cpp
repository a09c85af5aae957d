// The time server under a test's control does what its plan says.

#include "network/ntpresponder.h"

#include <QNetworkDatagram>
#include <QSignalSpy>
#include <QTimeZone>
#include <QUdpSocket>
#include <QtTest>

namespace {

const QHostAddress serverAddress(QStringLiteral("127.1.0.1"));
const QHostAddress otherAddress(QStringLiteral("127.1.0.2"));
const QByteArray transmitted("\x11\x22\x33\x44\x55\x66\x77\x88", 8);

QByteArray clientRequest()
{
    return QByteArray(1, '\x23') + QByteArray(39, '\0') + transmitted;
}

QDateTime someMoment()
{
    return {QDate(2024, 2, 29), QTime(12, 34, 56, 789), Qt::UTC};
}

/// The time that the packet @p bytes carries at @p offset, as a client reads it.
QDateTime timeAt(const QByteArray& bytes, int offset)
{
    const auto stamp = qFromBigEndian<quint64>(bytes.constData() + offset);
    const auto msecs = static_cast<qint64>((stamp >> 32) * 1000 + ((stamp & 0xffffffff) * 1000 >> 32));
    return QDateTime::fromMSecsSinceEpoch(msecs - 2208988800000, Qt::UTC);
}

} // namespace

class TestNtpResponder : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void packetHasEachFieldInItsPlace();
    void timestampKeepsMilliseconds_data();
    void timestampKeepsMilliseconds();
    void timestampWrapsIn2036();

    void keepsAndAnnouncesRequests();
    void isSilentWithoutPlan();
    void refusesAnAddressThatIsTaken();
    void answersWithPacket();
    void keepsAnOriginateTimestampThatIsGiven();
    void answersWithCurrentTime();
    void answersWithAnyDatagram_data();
    void answersWithAnyDatagram();
    void followsThePlanAndStaysWithItsEnd();
    void repeatsAnAnswer();
    void answersFromElsewhere();
    void saysThatAnAnswerCannotBeSent();
    void keepsAnswersBack();
    void sendsUnasked();

private:
    void ask(const QByteArray& bytes = clientRequest());
    QNetworkDatagram reply();
    void expectSilence();

    QScopedPointer<NtpResponder> responder;
    QScopedPointer<QUdpSocket> client;
};

void TestNtpResponder::init()
{
    responder.reset(new NtpResponder);
    QVERIFY2(responder->listen(serverAddress), qPrintable(responder->errorString()));
    client.reset(new QUdpSocket);
    QVERIFY(client->bind(QHostAddress(QHostAddress::LocalHost)));
}

void TestNtpResponder::cleanup()
{
    expectSilence();
}

/// Sends @p bytes and returns when the responder has dealt with it.
void TestNtpResponder::ask(const QByteArray& bytes)
{
    QSignalSpy requested(responder.data(), &NtpResponder::requested);
    QCOMPARE(client->writeDatagram(bytes, serverAddress, 123), bytes.size());
    QVERIFY(requested.wait());
}

/// The next answer; invalid if there is none.
QNetworkDatagram TestNtpResponder::reply()
{
    const bool there = client->hasPendingDatagrams() || client->waitForReadyRead(5000);
    return there ? client->receiveDatagram() : QNetworkDatagram();
}

/// No answer is on its way: what is sent now comes next.
void TestNtpResponder::expectSilence()
{
    QVERIFY(responder->send("marker", QHostAddress(QHostAddress::LocalHost), client->localPort()));
    QCOMPARE(reply().data(), QByteArray("marker"));
}

void TestNtpResponder::packetHasEachFieldInItsPlace()
{
    NtpPacket packet;
    packet.leap = 3;
    packet.version = 2;
    packet.mode = 5;
    packet.stratum = 0x01;
    packet.poll = 0x02;
    packet.precision = -3;
    packet.rootDelay = 0x04050607;
    packet.rootDispersion = 0x08090a0b;
    packet.referenceId = 0x0c0d0e0f;
    packet.reference = 0x1011121314151617;
    packet.originate = 0x18191a1b1c1d1e1f;
    packet.receive = 0x2021222324252627;
    packet.transmit = 0x28292a2b2c2d2e2f;
    QCOMPARE(packet.toBytes().toHex(), QByteArray("d50102fd0405060708090a0b0c0d0e0f"
                                                  "101112131415161718191a1b1c1d1e1f"
                                                  "202122232425262728292a2b2c2d2e2f"));
}

void TestNtpResponder::timestampKeepsMilliseconds_data()
{
    QTest::addColumn<QDateTime>("time");
    QTest::addColumn<quint64>("stamp");
    const QDateTime epoch(QDate(1970, 1, 1), QTime(0, 0), Qt::UTC);
    QTest::newRow("1900") << epoch.addSecs(-2208988800) << quint64(0);
    QTest::newRow("1970") << epoch << quint64(0x83aa7e8000000000);
    QTest::newRow("half a second") << epoch.addMSecs(500) << quint64(0x83aa7e8080000000);
    QTest::newRow("a millisecond") << epoch.addMSecs(1) << quint64(0x83aa7e8000418938);
    QTest::newRow("other zone") << epoch.toTimeZone(QTimeZone(3600)) << quint64(0x83aa7e8000000000);
}

void TestNtpResponder::timestampKeepsMilliseconds()
{
    QFETCH(QDateTime, time);
    QFETCH(quint64, stamp);
    QCOMPARE(ntpTimestamp(time), stamp);
}

void TestNtpResponder::timestampWrapsIn2036()
{
    const QDateTime wrap(QDate(2036, 2, 7), QTime(6, 28, 16), Qt::UTC);
    QCOMPARE(ntpTimestamp(wrap), quint64(0));
    QCOMPARE(ntpTimestamp(wrap.addSecs(-1)), quint64(0xffffffff00000000));
}

void TestNtpResponder::keepsAndAnnouncesRequests()
{
    const auto before = QDateTime::currentDateTimeUtc();
    ask("first");
    ask(clientRequest());
    const auto& requests = responder->requests();
    QCOMPARE(requests.size(), 2);
    QCOMPARE(requests.at(0).bytes, QByteArray("first"));
    QCOMPARE(requests.at(1).bytes, clientRequest());
    QCOMPARE(requests.at(1).sender, QHostAddress(QHostAddress::LocalHost));
    QCOMPARE(requests.at(1).senderPort, client->localPort());
    QVERIFY(requests.at(0).arrival >= before);
    QVERIFY(requests.at(1).arrival >= requests.at(0).arrival);
    QVERIFY(requests.at(1).arrival <= QDateTime::currentDateTimeUtc());
}

void TestNtpResponder::isSilentWithoutPlan()
{
    ask();
    expectSilence();
}

void TestNtpResponder::refusesAnAddressThatIsTaken()
{
    NtpResponder second;
    QVERIFY(!second.listen(serverAddress));
    QVERIFY(!second.errorString().isEmpty());
    QVERIFY(second.listen(serverAddress, 0));
    QVERIFY(second.port() != 0 && second.port() != 123);
}

void TestNtpResponder::answersWithPacket()
{
    auto packet = NtpPacket::at(someMoment());
    packet.leap = 1;
    responder->setAnswer(NtpAnswer::packet(packet));
    ask();
    const auto datagram = reply();
    QCOMPARE(datagram.senderAddress(), serverAddress);
    QCOMPARE(datagram.senderPort(), 123);
    QCOMPARE(datagram.data().size(), NtpPacket::size);
    QCOMPARE(datagram.data().at(0), '\x64');
    QCOMPARE(timeAt(datagram.data(), 16), someMoment());
    QCOMPARE(datagram.data().mid(24, 8), transmitted);
    QCOMPARE(timeAt(datagram.data(), 32), someMoment());
    QCOMPARE(timeAt(datagram.data(), 40), someMoment());
}

void TestNtpResponder::keepsAnOriginateTimestampThatIsGiven()
{
    NtpPacket packet;
    packet.originate = 1;
    responder->setAnswer(NtpAnswer::packet(packet));
    ask();
    QCOMPARE(reply().data(), packet.toBytes());
}

void TestNtpResponder::answersWithCurrentTime()
{
    constexpr qint64 hour = 3600000;
    responder->setAnswer(NtpAnswer::currentTime(hour));
    ask();
    const auto after = QDateTime::currentDateTimeUtc();
    const auto bytes = reply().data();
    const auto arrival = responder->requests().last().arrival;
    QCOMPARE(timeAt(bytes, 32), arrival.addMSecs(hour));
    QCOMPARE(timeAt(bytes, 16), timeAt(bytes, 40));
    QVERIFY(timeAt(bytes, 40) >= arrival.addMSecs(hour));
    QVERIFY(timeAt(bytes, 40) <= after.addMSecs(hour));
}

void TestNtpResponder::answersWithAnyDatagram_data()
{
    QTest::addColumn<QByteArray>("datagram");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("short by a byte") << QByteArray(47, 'a');
    QTest::newRow("long by a byte") << QByteArray(49, 'b');
    QTest::newRow("several packets' worth") << QByteArray(9000, 'c');
}

void TestNtpResponder::answersWithAnyDatagram()
{
    QFETCH(QByteArray, datagram);
    responder->setAnswer(NtpAnswer::datagram(datagram));
    ask();
    const auto got = reply();
    QVERIFY(got.isValid());
    QCOMPARE(got.data(), datagram);
}

void TestNtpResponder::followsThePlanAndStaysWithItsEnd()
{
    responder->setPlan({NtpAnswer::datagram("one"), NtpAnswer::silence(), NtpAnswer::datagram("last")});
    ask();
    QCOMPARE(reply().data(), QByteArray("one"));
    ask();
    expectSilence();
    for (int i = 0; i < 2; ++i) {
        ask();
        QCOMPARE(reply().data(), QByteArray("last"));
    }
}

void TestNtpResponder::repeatsAnAnswer()
{
    responder->setAnswer(NtpAnswer::datagram("again").times(3));
    ask();
    for (int i = 0; i < 3; ++i)
        QCOMPARE(reply().data(), QByteArray("again"));
}

void TestNtpResponder::answersFromElsewhere()
{
    responder->setPlan({NtpAnswer::datagram("address").from(otherAddress, 123),
                        NtpAnswer::datagram("port").from(serverAddress)});
    ask();
    const auto fromAddress = reply();
    QCOMPARE(fromAddress.data(), QByteArray("address"));
    QCOMPARE(fromAddress.senderAddress(), otherAddress);
    QCOMPARE(fromAddress.senderPort(), 123);
    ask();
    const auto fromPort = reply();
    QCOMPARE(fromPort.data(), QByteArray("port"));
    QCOMPARE(fromPort.senderAddress(), serverAddress);
    QVERIFY(fromPort.senderPort() != 123);
}

void TestNtpResponder::saysThatAnAnswerCannotBeSent()
{
    NtpResponder second;
    QVERIFY(second.listen(otherAddress));
    QSignalSpy failed(responder.data(), &NtpResponder::sendingFailed);
    responder->setAnswer(NtpAnswer::datagram("taken").from(otherAddress, 123));
    ask();
    QCOMPARE(failed.count(), 1);
    responder->setAnswer(NtpAnswer::datagram(QByteArray(70000, 'd')));
    ask();
    QCOMPARE(failed.count(), 2);
}

void TestNtpResponder::keepsAnswersBack()
{
    responder->setPlan({NtpAnswer::datagram("first").later(), NtpAnswer::datagram("second"),
                        NtpAnswer::datagram("third").later()});
    for (int i = 0; i < 3; ++i)
        ask();
    QCOMPARE(reply().data(), QByteArray("second"));
    expectSilence();
    responder->release();
    QCOMPARE(reply().data(), QByteArray("first"));
    QCOMPARE(reply().data(), QByteArray("third"));
    responder->release();
    expectSilence();
}

void TestNtpResponder::sendsUnasked()
{
    QVERIFY(responder->send("unasked", QHostAddress(QHostAddress::LocalHost), client->localPort()));
    const auto datagram = reply();
    QCOMPARE(datagram.data(), QByteArray("unasked"));
    QCOMPARE(datagram.senderAddress(), serverAddress);
    QCOMPARE(datagram.senderPort(), 123);
}

QTEST_GUILESS_MAIN(TestNtpResponder)
#include "tst_ntpresponder.moc"
