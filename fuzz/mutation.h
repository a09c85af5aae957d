#pragma once

#include <QByteArray>
#include <QRandomGenerator>

#include <cstddef>
#include <cstdint>

/// Turns an input into a similar one. A fuzzer that only changes bytes never gets below the checksum; these
/// repair it.
using Mutation = QByteArray (*)(const QByteArray& input, QRandomGenerator* random);

/// @p data as the fuzzer itself would change it.
QByteArray mutated(const QByteArray& data);

/// A cipher text with changed data: plain or compressed data is changed, or the compressed stream itself.
QByteArray mutatedCipher(quint64 key, const QByteArray& cipher, QRandomGenerator* random);

/// The plain data of a cipher text, empty if there is none or if it is too large to be worth the time.
QByteArray plainOf(quint64 key, const QByteArray& cipher);

/// What LLVMFuzzerCustomMutator() has to do: applies @p repairing, or one time in four changes bytes only.
std::size_t mutateInPlace(std::uint8_t* data, std::size_t size, std::size_t maxSize, unsigned int seed,
                          Mutation repairing);

/// Silences the log, which the program under test fills.
void silenceLog();
