// Deciphers anything; it must come out as the reference decoder reads it, and be refused where that refuses
// it.

#include "mutation.h"

#include "presets/chaincipher.h"
#include "presets/referencecipher.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

constexpr quint64 key = ReferenceCipher::fileKey;
constexpr int shortestInput = 3; // below it no error is told

/// Whether the reading of @p input gives what @p cipher made of it, @p plain.
bool isRight(const ChainCipher& cipher, const QByteArray& input, const QByteArray& plain)
{
    QByteArray expected;
    switch (readingOf(key, input, &expected)) {
    case Reading::Refused:
        return plain.isEmpty() &&
               (cipher.lastError() != ChainCipher::CipherNoError) == (input.size() >= shortestInput);
    case Reading::Plain:
        return plain == expected && cipher.lastError() == ChainCipher::CipherNoError;
    case Reading::TooLarge:
        break;
    }
    return cipher.lastError() == ChainCipher::CipherNoError; // its integrity field was right
}

} // namespace

QByteArray repaired(const QByteArray& cipher, QRandomGenerator* random)
{
    return mutatedCipher(key, cipher, random);
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray input(reinterpret_cast<const char*>(data), static_cast<int>(size));
    ChainCipher cipher(key);
    const QByteArray plain = cipher.decipherBytes(input);
    if (!isRight(cipher, input, plain))
        std::abort();
    return 0;
}
