#pragma once

#include "time/ntppacket.h"

#include <QDateTime>
#include <QSharedDataPointer>

class NtpReplyData;

/// A time server's answer with the moment of its arrival. Copies share one block and are cheap.
///
/// Nothing of the packet is validated. Times have local time spec; an all-zero timestamp is a moment in 1900.
class NtpReply
{
public:
    /// A null reply: an all-zero packet that never arrived.
    NtpReply();
    /// The @p packet as received, zero where the datagram ended early, read at @p destinationTime.
    NtpReply(const Ntp::Packet& packet, const QDateTime& destinationTime);
    NtpReply(const NtpReply& other);
    NtpReply& operator=(const NtpReply& other);
    ~NtpReply();

    /// 0 to 3: the warning of a leap second, 3 for a clock that isn't synchronised.
    int leapIndicator() const;
    /// 0 to 7.
    int versionNumber() const;
    /// 0 to 7; servers answer with 4.
    int mode() const;
    /// Distance from a reference clock: 1 is a server that has one.
    quint8 stratum() const;
    /// Longest interval between messages, in seconds.
    double pollInterval() const;
    /// Precision of the server's clock, in seconds.
    double precision() const;

    /// When the server's clock was last set. This, not the time of sending, is what the program takes for the
    /// time.
    QDateTime referenceTime() const;
    /// When the request left the client, by the client's clock.
    QDateTime originTime() const;
    /// When the request reached the server, by the server's clock.
    QDateTime receiveTime() const;
    /// When the answer left the server, by the server's clock.
    QDateTime transmitTime() const;
    /// When the answer reached the client, by the client's clock; null in a null reply.
    QDateTime destinationTime() const;

    /// Time on the way there and back, in milliseconds.
    qint64 roundTripDelay() const;
    /// How far the client's clock is behind the server's, in milliseconds.
    qint64 localClockOffset() const;

    /// True for a reply that never arrived.
    bool isNull() const;

    /// All that was received, with the fields that have no reading here.
    const Ntp::Packet& packet() const;

private:
    QSharedDataPointer<NtpReplyData> d;
};
