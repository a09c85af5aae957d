// Deciphers anything; what the reference decoder can read must come out alike.

#include "mutation.h"

#include "presets/chaincipher.h"
#include "presets/referencecipher.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

constexpr quint64 key = ReferenceCipher::fileKey;

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
    const QByteArray expected = plainOf(key, input);
    if (!expected.isEmpty() && (plain != expected || cipher.lastError() != ChainCipher::CipherNoError))
        std::abort();
    if (cipher.lastError() != ChainCipher::CipherNoError && !plain.isEmpty())
        std::abort();
    return 0;
}
