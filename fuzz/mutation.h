#pragma once

#include <QByteArray>
#include <QRandomGenerator>

/// Each fuzzer's own: turns an input into a similar one. A fuzzer that only changes bytes never gets below
/// the checksum; this repairs it.
QByteArray repaired(const QByteArray& input, QRandomGenerator* random);

/// @p data as the fuzzer itself would change it.
QByteArray mutated(const QByteArray& data);

/// A cipher text with changed data: plain or compressed data is changed, or the compressed stream itself.
QByteArray mutatedCipher(quint64 key, const QByteArray& cipher, QRandomGenerator* random);

/// What the reference decoder makes of a cipher text.
enum class Reading {
    Refused, ///< too short, of another version, or its integrity field is wrong
    Plain,
    TooLarge ///< not refused, but compressed, and its plain data is not worth the time
};

/// Gives the plain data, empty where a compressed stream is broken. The length that is told in front of a
/// stream is no more than a hint.
Reading readingOf(quint64 key, const QByteArray& cipher, QByteArray* plain);
