// Changes that keep an input worth deciphering, and what the fuzzers share of their entry points.

#include "mutation.h"

#include "presets/referencecipher.h"

#include <QtEndian>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <zlib.h>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);

namespace {

constexpr int growth = 64;
constexpr int mostPlain = 1 << 16;
constexpr int lengthSize = 4;
constexpr int allFlags = 8;

/// The data that a cipher text carries, whatever its integrity field says.
QByteArray dataOf(quint64 key, const QByteArray& cipher)
{
    const int flags = cipher.size() > 1 ? cipher.at(1) : 0;
    const int fieldSize = flags & ReferenceCipher::Checksum ? 2 : flags & ReferenceCipher::Hash ? 20 : 0;
    return ReferenceCipher::unchained(key, cipher.mid(2)).mid(1 + fieldSize);
}

/// The content of the stream at the beginning of @p stream, empty if it is broken.
Reading uncompressed(const QByteArray& stream, QByteArray* plain)
{
    uLongf size = mostPlain;
    plain->resize(mostPlain);
    const int result =
        uncompress(reinterpret_cast<Bytef*>(plain->data()), &size,
                   reinterpret_cast<const Bytef*>(stream.constData()), static_cast<uLong>(stream.size()));
    plain->truncate(result == Z_OK ? static_cast<int>(size) : 0);
    return result == Z_BUF_ERROR ? Reading::TooLarge : Reading::Plain;
}

QByteArray plainOf(quint64 key, const QByteArray& cipher)
{
    QByteArray plain;
    return readingOf(key, cipher, &plain) == Reading::Plain ? plain : QByteArray();
}

} // namespace

Reading readingOf(quint64 key, const QByteArray& cipher, QByteArray* plain)
{
    plain->clear();
    QByteArray data;
    if (!ReferenceCipher::open(key, cipher, &data))
        return Reading::Refused;
    if (!(cipher.at(1) & ReferenceCipher::Compressed)) {
        *plain = data;
        return Reading::Plain;
    }
    if (data.size() <= lengthSize)
        return Reading::Plain;
    if (qFromBigEndian<quint32>(data.constData()) > mostPlain)
        return Reading::TooLarge;
    return uncompressed(data.mid(lengthSize), plain);
}

QByteArray mutated(const QByteArray& data)
{
    QByteArray result = data;
    result.resize(data.size() + growth);
    const std::size_t size =
        LLVMFuzzerMutate(reinterpret_cast<std::uint8_t*>(result.data()),
                         static_cast<std::size_t>(data.size()), static_cast<std::size_t>(result.size()));
    result.truncate(static_cast<int>(size));
    return result;
}

QByteArray mutatedCipher(quint64 key, const QByteArray& cipher, QRandomGenerator* random)
{
    const int flags = random->bounded(allFlags);
    const char randomByte = static_cast<char>(random->generate());
    if (random->bounded(2))
        return ReferenceCipher::wrap(key, mutated(dataOf(key, cipher)), flags, randomByte);
    return ReferenceCipher::encipher(key, mutated(plainOf(key, cipher)), flags, randomByte);
}

// The log, which the program under test fills, is silenced.
extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/)
{
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    return 0;
}

// One time in four only bytes are changed.
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t maxSize,
                                               unsigned int seed)
{
    QRandomGenerator random(seed);
    if (random.bounded(4) == 0)
        return LLVMFuzzerMutate(data, size, maxSize);
    const QByteArray input(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const QByteArray result = repaired(input, &random);
    if (static_cast<std::size_t>(result.size()) > maxSize)
        return LLVMFuzzerMutate(data, size, maxSize);
    std::memcpy(data, result.constData(), static_cast<std::size_t>(result.size()));
    return static_cast<std::size_t>(result.size());
}
