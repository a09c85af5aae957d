// Answers made byte by byte, independently of the program's own reading of them.

#include "ntpbytes.h"

namespace {

constexpr qint64 secondsFrom1900To1970 = 25567LL * 86400;

void appendWord(QByteArray& bytes, quint32 word)
{
    for (const int shift : {24, 16, 8, 0})
        bytes.append(static_cast<char>(word >> shift & 0xFFU));
}

} // namespace

QByteArray NtpBytes::timestamp(quint32 seconds, quint32 fraction)
{
    QByteArray bytes;
    appendWord(bytes, seconds);
    appendWord(bytes, fraction);
    return bytes;
}

QByteArray NtpBytes::timestamp(const QDateTime& time)
{
    const qint64 msecs = time.toMSecsSinceEpoch();
    // Half a millisecond more, so that cutting the fraction back to milliseconds gives the same one.
    const double fraction = (static_cast<double>(msecs % 1000) + 0.5) / 1000;
    return timestamp(static_cast<quint32>(msecs / 1000 + secondsFrom1900To1970),
                     static_cast<quint32>(fraction * 4294967296.0));
}

QByteArray NtpBytes::patterned(int size)
{
    QByteArray bytes;
    for (int i = 0; i < size; i++)
        bytes.append(static_cast<char>(i * 37 + 11));
    return bytes;
}

QByteArray NtpBytes::answer(int offset, const QByteArray& bytes)
{
    return with(QByteArray(48, '\0'), offset, bytes);
}

QByteArray NtpBytes::with(QByteArray packet, int offset, const QByteArray& bytes)
{
    return packet.replace(offset, bytes.size(), bytes);
}
