#include "network/ntppacket.h"

#include <QDataStream>

namespace {

constexpr qint64 epochDistanceSecs = 2208988800; // from 1900 to 1970
constexpr qint64 msecsPerSec = 1000;

} // namespace

NtpPacket NtpPacket::at(const QDateTime& time)
{
    NtpPacket packet;
    packet.reference = packet.receive = packet.transmit = ntpTimestamp(time);
    return packet;
}

QByteArray NtpPacket::toBytes() const
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << static_cast<quint8>(leap << 6 | version << 3 | mode) << stratum << poll << precision;
    stream << rootDelay << rootDispersion << referenceId;
    stream << reference << originate << receive << transmit;
    return bytes;
}

quint64 ntpTimestamp(const QDateTime& time)
{
    const qint64 msecs = time.toMSecsSinceEpoch() + epochDistanceSecs * msecsPerSec;
    const auto secs = static_cast<quint64>(msecs / msecsPerSec);
    const auto rest = static_cast<quint64>(msecs % msecsPerSec);
    return secs << 32 | ((rest << 32) + msecsPerSec - 1) / msecsPerSec;
}
