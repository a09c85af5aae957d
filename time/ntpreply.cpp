// Reading the fields of a time server's answer.

#include "time/ntpreply.h"

#include <QtEndian>

#include <cmath>
#include <utility>

class NtpReplyData : public QSharedData
{
public:
    NtpReplyData() = default;
    NtpReplyData(const Ntp::Packet& packet, QDateTime destinationTime)
        : packet(packet)
        , destinationTime(std::move(destinationTime))
    {
    }

    QDateTime timestamp(int offset) const;
    /// 2 to the power of the signed byte at @p offset.
    double powerOfTwo(int offset) const { return std::ldexp(1.0, static_cast<qint8>(packet[offset])); }

    Ntp::Packet packet{};
    QDateTime destinationTime;
};

QDateTime NtpReplyData::timestamp(int offset) const
{
    const quint64 seconds = qFromBigEndian<quint32>(packet.data() + offset);
    const quint64 fraction = qFromBigEndian<quint32>(packet.data() + offset + sizeof(quint32));
    const quint64 msecs = seconds * 1000 + (fraction * 1000 >> 32U);
    return QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(msecs) - Ntp::epochOffsetMsecs);
}

NtpReply::NtpReply()
    : d(new NtpReplyData)
{
}

NtpReply::NtpReply(const Ntp::Packet& packet, const QDateTime& destinationTime)
    : d(new NtpReplyData(packet, destinationTime))
{
}

NtpReply::NtpReply(const NtpReply& other) = default;
NtpReply& NtpReply::operator=(const NtpReply& other) = default;
NtpReply::~NtpReply() = default;

int NtpReply::leapIndicator() const
{
    return d->packet[Ntp::flagsField] >> 6U;
}

int NtpReply::versionNumber() const
{
    return static_cast<int>(d->packet[Ntp::flagsField] >> 3U & 7U);
}

int NtpReply::mode() const
{
    return static_cast<int>(d->packet[Ntp::flagsField] & 7U);
}

quint8 NtpReply::stratum() const
{
    return d->packet[Ntp::stratumField];
}

double NtpReply::pollInterval() const
{
    return d->powerOfTwo(Ntp::pollField);
}

double NtpReply::precision() const
{
    return d->powerOfTwo(Ntp::precisionField);
}

QDateTime NtpReply::referenceTime() const
{
    return d->timestamp(Ntp::referenceTimestamp);
}

QDateTime NtpReply::originTime() const
{
    return d->timestamp(Ntp::originTimestamp);
}

QDateTime NtpReply::receiveTime() const
{
    return d->timestamp(Ntp::receiveTimestamp);
}

QDateTime NtpReply::transmitTime() const
{
    return d->timestamp(Ntp::transmitTimestamp);
}

QDateTime NtpReply::destinationTime() const
{
    return d->destinationTime;
}

qint64 NtpReply::roundTripDelay() const
{
    return originTime().msecsTo(destinationTime()) - receiveTime().msecsTo(transmitTime());
}

qint64 NtpReply::localClockOffset() const
{
    return (originTime().msecsTo(receiveTime()) + destinationTime().msecsTo(transmitTime())) / 2;
}

bool NtpReply::isNull() const
{
    return d->destinationTime.isNull();
}

const Ntp::Packet& NtpReply::packet() const
{
    return d->packet;
}
