// Loads anything; what could be loaded can be saved and loaded again.

#include "mutation.h"

#include "presets/presetstorage.h"
#include "presets/referencecipher.h"

#include <QString>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <sys/mman.h>
#include <unistd.h>

using ReferenceCipher::fileKey;

namespace {

/// A file in memory, for a disk would be what takes the time.
class MemoryFile
{
public:
    MemoryFile()
        : descriptor(memfd_create("preset", 0))
    {
    }
    QString path() const { return QStringLiteral("/proc/self/fd/%1").arg(descriptor); }
    void fill(const std::uint8_t* data, std::size_t size) const
    {
        if (ftruncate(descriptor, 0) != 0 || pwrite(descriptor, data, size, 0) != static_cast<ssize_t>(size))
            std::abort();
    }

private:
    int descriptor;
};

QByteArray textForm(const QByteArray& plain, QRandomGenerator* random)
{
    const int flags = random->bounded(8);
    const char randomByte = static_cast<char>(random->generate());
    return ReferenceCipher::encipher(fileKey, plain, flags, randomByte).toBase64();
}

/// A file whose body changed and whose digest is right.
QByteArray withNewBody(const QByteArray& cipher, QRandomGenerator* random)
{
    const QByteArray body = mutated(plainOf(fileKey, cipher));
    const QByteArray asRead = QString::fromUtf8(body.constData(), body.size()).toUtf8();
    return "2.0\n" + textForm(body, random) + '\n' +
           textForm(ReferenceCipher::digestText(asRead).toUtf8(), random);
}

} // namespace

QByteArray repaired(const QByteArray& file, QRandomGenerator* random)
{
    const QByteArrayList lines = file.split('\n');
    const QByteArray body = QByteArray::fromBase64(lines.value(1));
    const QByteArray digest = QByteArray::fromBase64(lines.value(2));
    switch (random->bounded(4)) {
    case 0:
        return "2.0\n" + mutatedCipher(fileKey, body, random).toBase64() + '\n' + lines.value(2);
    case 1:
        return "2.0\n" + lines.value(1) + '\n' + mutatedCipher(fileKey, digest, random).toBase64();
    default:
        return withNewBody(body, random);
    }
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const MemoryFile file;
    static const MemoryFile copy;
    file.fill(data, size);
    PresetStorage storage;
    if (storage.load(file.path()) && !(storage.save(copy.path()) && PresetStorage().load(copy.path())))
        std::abort();
    return 0;
}
