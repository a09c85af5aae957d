// A time server's answer, field by field, on packets made by hand.

#include "ntpbytes.h"
#include "time/ntpreply.h"

#include <QTest>

#include <algorithm>

namespace {

NtpReply replyOf(const QByteArray& bytes, const QDateTime& arrival = QDateTime::currentDateTime())
{
    Ntp::Packet packet{};
    std::copy(bytes.begin(), bytes.end(), packet.begin());
    return {packet, arrival};
}

QDateTime at(qint64 msecs)
{
    return QDateTime::fromMSecsSinceEpoch(msecs);
}

constexpr qint64 someMoment = 1600000000000;

/// An answer whose four moments on the way are the given milliseconds after some moment.
NtpReply journey(int origin, int receive, int transmit, int destination)
{
    QByteArray bytes(48, '\0');
    bytes = NtpBytes::with(bytes, 24, NtpBytes::timestamp(at(someMoment + origin)));
    bytes = NtpBytes::with(bytes, 32, NtpBytes::timestamp(at(someMoment + receive)));
    bytes = NtpBytes::with(bytes, 40, NtpBytes::timestamp(at(someMoment + transmit)));
    return replyOf(bytes, at(someMoment + destination));
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
    void timestampsAreReadWhereTheyLie_data();
    void timestampsAreReadWhereTheyLie();
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
    const NtpReply reply = replyOf(NtpBytes::answer(0, QByteArray(1, static_cast<char>(byte))));
    QTEST(reply.leapIndicator(), "leap");
    QTEST(reply.versionNumber(), "version");
    QTEST(reply.mode(), "mode");
}

void TestNtpReply::flagsByteIsThreeFields()
{
    for (int byte = 0; byte < 256; byte++) {
        const NtpReply reply = replyOf(NtpBytes::answer(0, QByteArray(1, static_cast<char>(byte))));
        QCOMPARE(reply.leapIndicator() * 64 + reply.versionNumber() * 8 + reply.mode(), byte);
    }
}

void TestNtpReply::stratumIsUnsigned()
{
    QCOMPARE(replyOf(NtpBytes::answer(1, QByteArrayLiteral("\xF0"))).stratum(), quint8(240));
    QCOMPARE(replyOf(NtpBytes::answer(1, QByteArrayLiteral("\x02"))).stratum(), quint8(2));
}

void TestNtpReply::powersOfTwo_data()
{
    QTest::addColumn<int>("exponent");
    QTest::addColumn<double>("seconds");

    QTest::newRow("-6") << 0xFA << 0.015625;
    QTest::newRow("0") << 0x00 << 1.0;
    QTest::newRow("10") << 0x0A << 1024.0;
    QTest::newRow("-1") << 0xFF << 0.5;
    QTest::newRow("127") << 0x7F << 1.7014118346046923e38;
    QTest::newRow("-128") << 0x80 << 2.938735877055719e-39;
}

void TestNtpReply::powersOfTwo()
{
    QFETCH(int, exponent);
    QFETCH(double, seconds);
    const QByteArray byte(1, static_cast<char>(exponent));
    // Exactly: powers of two have no rounding to allow for.
    QVERIFY(replyOf(NtpBytes::answer(2, byte)).pollInterval() == seconds);
    QVERIFY(replyOf(NtpBytes::answer(3, byte)).precision() == seconds);
}

using TimeField = QDateTime (NtpReply::*)() const;
Q_DECLARE_METATYPE(TimeField)

void TestNtpReply::timestampsAreReadWhereTheyLie_data()
{
    QTest::addColumn<int>("offset");
    QTest::addColumn<TimeField>("field");

    QTest::newRow("reference") << 16 << &NtpReply::referenceTime;
    QTest::newRow("origin") << 24 << &NtpReply::originTime;
    QTest::newRow("receive") << 32 << &NtpReply::receiveTime;
    QTest::newRow("transmit") << 40 << &NtpReply::transmitTime;
}

void TestNtpReply::timestampsAreReadWhereTheyLie()
{
    QFETCH(int, offset);
    QFETCH(TimeField, field);
    const QDateTime moment(QDate(2024, 2, 29), QTime(23, 59, 58, 123), Qt::UTC);
    const QByteArray bytes = NtpBytes::with(NtpBytes::patterned(68), offset, NtpBytes::timestamp(moment));

    const QDateTime time = (replyOf(bytes).*field)();
    QCOMPARE(time.toUTC(), moment);
    QCOMPARE(time.timeSpec(), Qt::LocalTime);
}

void TestNtpReply::timestampBecomesADateTime_data()
{
    QTest::addColumn<quint32>("seconds");
    QTest::addColumn<quint32>("fraction");
    QTest::addColumn<QDateTime>("time");

    const QDate day(1970, 1, 1);
    QTest::newRow("1970") << 2208988800U << 0U << QDateTime(day, QTime(0, 0), Qt::UTC);
    QTest::newRow("half a second") << 2208988800U << 0x80000000U
                                   << QDateTime(day, QTime(0, 0, 0, 500), Qt::UTC);
    QTest::newRow("cut, not rounded")
        << 2208988800U << 0xFFFFFFFFU << QDateTime(day, QTime(0, 0, 0, 999), Qt::UTC);
    QTest::newRow("zero") << 0U << 0U << QDateTime(QDate(1900, 1, 1), QTime(0, 0), Qt::UTC);
    QTest::newRow("last of the era") << 0xFFFFFFFFU << 0U
                                     << QDateTime(QDate(2036, 2, 7), QTime(6, 28, 15), Qt::UTC);
}

void TestNtpReply::timestampBecomesADateTime()
{
    QFETCH(quint32, seconds);
    QFETCH(quint32, fraction);
    const NtpReply reply = replyOf(NtpBytes::answer(16, NtpBytes::timestamp(seconds, fraction)));
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
        const NtpReply original = replyOf(NtpBytes::answer(1, QByteArrayLiteral("\x07")));
        copy = original;
    }
    const NtpReply second(copy);
    copy = NtpReply();
    QVERIFY(copy.isNull());
    QVERIFY(!second.isNull());
    QCOMPARE(second.stratum(), quint8(7));
    QCOMPARE(sizeof(NtpReply), sizeof(void*));
}

Q_DECLARE_METATYPE(NtpReply)

QTEST_GUILESS_MAIN(TestNtpReply)
#include "tst_ntpreply.moc"
