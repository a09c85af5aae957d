#pragma once

#include <QByteArray>
#include <QDateTime>

/// An NTP packet to send, field by field; all multi-byte fields are big-endian on the wire.
struct NtpPacket
{
    /// Length on the wire, in bytes.
    static constexpr int size = 48;

    /// Leap indicator, 0 to 3; 3 says that the server's clock is not set.
    quint8 leap = 0;
    /// Protocol version, 0 to 7.
    quint8 version = 4;
    /// 3 is a client, 4 a server; 0 to 7.
    quint8 mode = 4;
    /// Distance from a reference clock; 0 is a refusal, 16 a clock that is not set.
    quint8 stratum = 1;
    /// Binary logarithms of seconds.
    qint8 poll = 0;
    qint8 precision = -20;
    /// Seconds in units of 1/65536.
    quint32 rootDelay = 0;
    quint32 rootDispersion = 0;
    /// Four bytes of text where the stratum is 0 or 1.
    quint32 referenceId = 0x4c4f434c;
    /// Moments as ntpTimestamp() gives them; 0 is none.
    quint64 reference = 0;
    quint64 originate = 0;
    quint64 receive = 0;
    quint64 transmit = 0;

    /// The packet of a server whose clock was set, and shows, @p time; the originate timestamp is left at 0.
    static NtpPacket at(const QDateTime& time);

    /// The 48 bytes on the wire.
    [[nodiscard]] QByteArray toBytes() const;
};

/// A moment as in an NTP packet: seconds since 1900 in the upper half, which wrap around in 2036; fractions
/// of a second in the lower half. Exact to @p time's millisecond, rounded up to the next fraction, so that a
/// reader who cuts fractions off gets that millisecond back.
[[nodiscard]] quint64 ntpTimestamp(const QDateTime& time);
