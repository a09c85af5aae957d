// A time server's answer, field by field, on packets made by hand.

#include "network/ntppacket.h"
#include "time/ntpreply.h"

#include <QTest>

#include <algorithm>
#include <utility>

Q_DECLARE_METATYPE(NtpReply)

namespace {

NtpReply replyOf(const QByteArray& bytes, const QDateTime& arrival = QDateTime::currentDateTime())
{
    Ntp::Packet packet{};
    std::copy(bytes.begin(), bytes.end(), packet.begin());
    return {packet, arrival};
}

NtpReply replyOf(const NtpPacket& packet, const QDateTime& arrival = QDateTime::currentDateTime())
{
    return replyOf(packet.toBytes(), arrival);
}

NtpReply replyWithFlags(int byte)
{
    return replyOf(QByteArray(1, static_cast<char>(byte)));
}

QDateTime at(qint64 msecs)
{
    return QDateTime::fromMSecsSinceEpoch(msecs);
}

constexpr qint64 someMoment = 1600000000000;

/// An answer whose four moments on the way are the given milliseconds after some moment.
NtpReply journey(int origin, int receive, int transmit, int destination)
{
    NtpPacket packet;
    packet.originate = ntpTimestamp(at(someMoment + origin));
    packet.receive = ntpTimestamp(at(someMoment + receive));
    packet.transmit = ntpTimestamp(at(someMoment + transmit));
    return replyOf(packet, at(someMoment + destination));
}

} // namespace

class TestNtpReply : public QObject
{
    Q_OBJECT

private slots:
    void defaultReplyIsNullAndEmpty();
    void arrivalMakesItNotNull();
    void flagsByte_data();
    void flagsByte();
    void flagsByteIsThreeFields();
    void stratumIsUnsigned();
    void powersOfTwo_data();
    void powersOfTwo();
    void timestampsAreReadWhereTheyLie();
    void timesAreLocal();
    void timestampBecomesADateTime_data();
    void timestampBecomesADateTime();
    void roundTripDelay_data();
    void roundTripDelay();
    void clockOffset_data();
    void clockOffset();
    void copiesShareAndOutliveTheOriginal();
};

void TestNtpReply::defaultReplyIsNullAndEmpty()
{
    const NtpReply reply;
    QVERIFY(reply.isNull());
    QVERIFY(reply.destinationTime().isNull());
    QCOMPARE(reply.leapIndicator(), 0);
    QCOMPARE(reply.versionNumber(), 0);
    QCOMPARE(reply.mode(), 0);
    QCOMPARE(reply.stratum(), quint8(0));
    QCOMPARE(reply.pollInterval(), 1.0);
    QCOMPARE(reply.referenceTime().toUTC(), QDateTime(QDate(1900, 1, 1), QTime(0, 0), Qt::UTC));
}

void TestNtpReply::arrivalMakesItNotNull()
{
    const NtpReply reply = replyOf(QByteArray(48, '\0'), at(someMoment));
    QVERIFY(!reply.isNull());
    QCOMPARE(reply.destinationTime(), at(someMoment));
}

void TestNtpReply::flagsByte_data()
{
    QTest::addColumn<int>("byte");
    QTest::addColumn<int>("leap");
    QTest::addColumn<int>("version");
    QTest::addColumn<int>("mode");

    QTest::newRow("a usual answer") << 0x24 << 0 << 4 << 4;
    QTest::newRow("a usual request") << 0x23 << 0 << 4 << 3;
    QTest::newRow("not synchronised") << 0xE4 << 3 << 4 << 4;
    QTest::newRow("leap second ahead") << 0x5C << 1 << 3 << 4;
    QTest::newRow("all bits") << 0xFF << 3 << 7 << 7;
    QTest::newRow("no bit") << 0x00 << 0 << 0 << 0;
}

void TestNtpReply::flagsByte()
{
    QFETCH(int, byte);
    const NtpReply reply = replyWithFlags(byte);
    QTEST(reply.leapIndicator(), "leap");
    QTEST(reply.versionNumber(), "version");
    QTEST(reply.mode(), "mode");
}

void TestNtpReply::flagsByteIsThreeFields()
{
    for (int byte = 0; byte < 256; byte++) {
        const NtpReply reply = replyWithFlags(byte);
        QCOMPARE(reply.leapIndicator() * 64 + reply.versionNumber() * 8 + reply.mode(), byte);
    }
}

void TestNtpReply::stratumIsUnsigned()
{
    NtpPacket packet;
    for (const quint8 stratum : {2, 240}) {
        packet.stratum = stratum;
        QCOMPARE(replyOf(packet).stratum(), stratum);
    }
}

void TestNtpReply::powersOfTwo_data()
{
    QTest::addColumn<int>("exponent");
    QTest::addColumn<double>("seconds");

    QTest::newRow("-6") << -6 << 0.015625;
    QTest::newRow("0") << 0 << 1.0;
    QTest::newRow("10") << 10 << 1024.0;
    QTest::newRow("-1") << -1 << 0.5;
    QTest::newRow("127") << 127 << 1.7014118346046923e38;
    QTest::newRow("-128") << -128 << 2.938735877055719e-39;
}

void TestNtpReply::powersOfTwo()
{
    QFETCH(int, exponent);
    QFETCH(double, seconds);
    NtpPacket packet;
    // Exactly: powers of two have no rounding to allow for.
    packet.poll = static_cast<qint8>(exponent);
    packet.precision = 1;
    QVERIFY(replyOf(packet).pollInterval() == seconds);
    std::swap(packet.poll, packet.precision);
    QVERIFY(replyOf(packet).precision() == seconds);
}

void TestNtpReply::timestampsAreReadWhereTheyLie()
{
    const QDateTime moment(QDate(2024, 2, 29), QTime(23, 59, 58, 123), Qt::UTC);
    NtpPacket packet;
    packet.reference = ntpTimestamp(moment);
    packet.originate = ntpTimestamp(moment.addDays(1));
    packet.receive = ntpTimestamp(moment.addDays(2));
    packet.transmit = ntpTimestamp(moment.addDays(3));

    const NtpReply reply = replyOf(packet);
    QCOMPARE(reply.referenceTime().toUTC(), moment);
    QCOMPARE(reply.originTime().toUTC(), moment.addDays(1));
    QCOMPARE(reply.receiveTime().toUTC(), moment.addDays(2));
    QCOMPARE(reply.transmitTime().toUTC(), moment.addDays(3));
}

void TestNtpReply::timesAreLocal()
{
    const NtpReply reply = replyOf(NtpPacket());
    for (const QDateTime& time :
         {reply.referenceTime(), reply.originTime(), reply.receiveTime(), reply.transmitTime()})
        QCOMPARE(time.timeSpec(), Qt::LocalTime);
}

void TestNtpReply::timestampBecomesADateTime_data()
{
    QTest::addColumn<quint64>("stamp");
    QTest::addColumn<QDateTime>("time");

    const QDateTime epoch(QDate(1970, 1, 1), QTime(0, 0), Qt::UTC);
    QTest::newRow("1970") << quint64(0x83AA7E8000000000) << epoch;
    QTest::newRow("half a second") << quint64(0x83AA7E8080000000) << epoch.addMSecs(500);
    QTest::newRow("cut, not rounded") << quint64(0x83AA7E80FFFFFFFF) << epoch.addMSecs(999);
    QTest::newRow("zero") << quint64(0) << QDateTime(QDate(1900, 1, 1), QTime(0, 0), Qt::UTC);
    QTest::newRow("last of the era") << quint64(0xFFFFFFFF00000000)
                                     << QDateTime(QDate(2036, 2, 7), QTime(6, 28, 15), Qt::UTC);
}

void TestNtpReply::timestampBecomesADateTime()
{
    QFETCH(quint64, stamp);
    NtpPacket packet;
    packet.reference = stamp;
    const NtpReply reply = replyOf(packet);
    QVERIFY(reply.referenceTime().isValid());
    QTEST(reply.referenceTime().toUTC(), "time");
}

void TestNtpReply::roundTripDelay_data()
{
    QTest::addColumn<NtpReply>("reply");
    QTest::addColumn<qint64>("msecs");

    QTest::newRow("there and back") << journey(0, 40, 45, 100) << 95LL;
    QTest::newRow("server's clock far ahead") << journey(0, 500040, 500045, 100) << 95LL;
    QTest::newRow("server took longer than the journey") << journey(0, 0, 200, 100) << -100LL;
}

void TestNtpReply::roundTripDelay()
{
    QFETCH(NtpReply, reply);
    QTEST(reply.roundTripDelay(), "msecs");
}

void TestNtpReply::clockOffset_data()
{
    QTest::addColumn<NtpReply>("reply");
    QTest::addColumn<qint64>("msecs");

    QTest::newRow("equal clocks") << journey(0, 50, 50, 100) << 0LL;
    QTest::newRow("client behind") << journey(0, 1050, 1060, 110) << 1000LL;
    QTest::newRow("client ahead") << journey(1000, 50, 60, 1110) << -1000LL;
    QTest::newRow("odd sum, cut downwards") << journey(0, 3, 4, 4) << 1LL;
    QTest::newRow("odd negative sum, cut upwards") << journey(3, 0, 0, 0) << -1LL;
}

void TestNtpReply::clockOffset()
{
    QFETCH(NtpReply, reply);
    QTEST(reply.localClockOffset(), "msecs");
}

void TestNtpReply::copiesShareAndOutliveTheOriginal()
{
    NtpReply copy;
    {
        NtpPacket packet;
        packet.stratum = 7;
        const NtpReply original = replyOf(packet);
        copy = original;
    }
    const NtpReply second(copy);
    copy = NtpReply();
    QVERIFY(copy.isNull());
    QVERIFY(!second.isNull());
    QCOMPARE(second.stratum(), quint8(7));
    QCOMPARE(sizeof(NtpReply), sizeof(void*));
}

QTEST_GUILESS_MAIN(TestNtpReply)
#include "tst_ntpreply.moc"
