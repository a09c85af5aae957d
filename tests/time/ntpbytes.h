#pragma once

#include <QByteArray>
#include <QDateTime>

/// Answers made byte by byte.
namespace NtpBytes {

/// The 8 bytes of a timestamp: @p seconds since 1900 and @p fraction in units of 2^-32 s.
QByteArray timestamp(quint32 seconds, quint32 fraction);
/// The same for @p time, on the millisecond.
QByteArray timestamp(const QDateTime& time);
/// An answer of @p size bytes whose bytes are all different from their neighbours.
QByteArray patterned(int size);
/// An answer of 48 bytes, all zero but for @p bytes at @p offset.
QByteArray answer(int offset, const QByteArray& bytes);
/// @p packet with @p bytes at @p offset.
QByteArray with(QByteArray packet, int offset, const QByteArray& bytes);

} // namespace NtpBytes
