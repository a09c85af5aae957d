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

/// The plain data of a cipher text, empty if there is none or if it is too large to be worth the time.
QByteArray plainOf(quint64 key, const QByteArray& cipher);
