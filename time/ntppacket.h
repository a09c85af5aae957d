#pragma once

#include <QtGlobal>

#include <array>

/// An NTP packet as it travels: a header of 48 bytes, which a server may follow with an authenticator of 20.
/// Multi-byte fields are big-endian. A timestamp is 32 bits of seconds since 1900-01-01 00:00:00 UTC and 32
/// bits of binary fraction of a second.
namespace Ntp {

constexpr int headerSize = 48;
constexpr int authenticatorSize = 20;
using Packet = std::array<uchar, headerSize + authenticatorSize>;

// Offsets of the fields in bytes.
constexpr int flagsField = 0; // leap indicator (2 bits), version (3 bits), mode (3 bits)
constexpr int stratumField = 1;
constexpr int pollField = 2;      // signed, log2 of seconds
constexpr int precisionField = 3; // signed, log2 of seconds
constexpr int referenceTimestamp = 16;
constexpr int originTimestamp = 24;
constexpr int receiveTimestamp = 32;
constexpr int transmitTimestamp = 40;

constexpr uchar clientRequest = 0x23; // no leap second, version 4, client mode

/// From 1900-01-01, where NTP begins to count, to 1970-01-01, where QDateTime does.
constexpr qint64 epochOffsetMsecs = 2208988800000;

} // namespace Ntp
