// Loads anything; the table is the one that the reference decoder reads, and still the same when it was saved
// and loaded again.

#include "mutation.h"

#include "presets/presetstorage.h"
#include "presets/referencecipher.h"

#include <QByteArrayList>
#include <QFile>
#include <QMap>
#include <QString>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <sys/mman.h>
#include <unistd.h>

using ReferenceCipher::fileKey;

namespace {

using Table = QMap<QString, QString>;

/// A file in memory, for a disk would be what takes the time.
class MemoryFile
{
public:
    MemoryFile()
        : descriptor(memfd_create("preset", 0))
    {
    }
    QString path() const { return QStringLiteral("/proc/self/fd/%1").arg(descriptor); }
    QByteArray content() const
    {
        QFile file(path());
        if (!file.open(QIODevice::ReadOnly))
            std::abort();
        return file.readAll();
    }
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
    QByteArray plain;
    readingOf(fileKey, cipher, &plain);
    const QByteArray body = mutated(plain);
    const QByteArray asRead = QString::fromUtf8(body.constData(), body.size()).toUtf8();
    return "2.0\n" + textForm(body, random) + '\n' +
           textForm(ReferenceCipher::digestText(asRead).toUtf8(), random);
}

/// The text of UTF-8, where a byte order mark is a character like any other.
QString textOf(const QByteArray& bytes)
{
    const QByteArray behindADot = '.' + bytes;
    return QString::fromUtf8(behindADot.constData(), behindADot.size()).mid(1); // a zero byte would end it
}

/// The entries of a body. A line without a "=" is none, and in a value each is lost.
Table tableOf(const QString& body)
{
    Table table;
    for (const QString& line : body.split('\n')) {
        const int keyLength = line.indexOf('=');
        if (keyLength >= 0)
            table.insert(line.left(keyLength), line.mid(keyLength + 1).remove('='));
    }
    return table;
}

enum class Verdict { Refused, Loaded, Unknown };

/// What a file is worth that begins with "2.0\n".
Verdict readEnciphered(const QByteArrayList& lines, Table* table)
{
    QByteArray body;
    QByteArray digest;
    if (readingOf(fileKey, QByteArray::fromBase64(lines.value(1)), &body) == Reading::TooLarge ||
        readingOf(fileKey, QByteArray::fromBase64(lines.value(2)), &digest) == Reading::TooLarge)
        return Verdict::Unknown;
    const QString text = textOf(body);
    if (ReferenceCipher::digestText(text.toUtf8()) != textOf(digest))
        return Verdict::Refused;
    *table = tableOf(text);
    return Verdict::Loaded;
}

/// A plain file is judged only if it is printable ASCII, which no stream reads in another way.
Verdict judge(const QByteArray& file, Table* table)
{
    if (file.startsWith("2.0\n"))
        return readEnciphered(file.split('\n'), table);
    const auto isPlain = [](char letter) { return letter == '\n' || (letter >= ' ' && letter <= '~'); };
    if (!file.startsWith("1.0\n") || !std::all_of(file.cbegin(), file.cend(), isPlain))
        return Verdict::Unknown;
    *table = tableOf(QString::fromLatin1(file.mid(4)));
    return Verdict::Loaded;
}

/// A file that was saved just now.
Verdict judgeSaved(const QByteArray& file, Table* table)
{
    return file.startsWith("2.0\n") ? readEnciphered(file.split('\n'), table) : Verdict::Refused;
}

/// Whether @p storage has @p table, and saves that and no more.
bool holds(PresetStorage& storage, const Table& table)
{
    for (auto entry = table.cbegin(); entry != table.cend(); ++entry) {
        if (!storage.contains(entry.key()) || storage.value(entry.key()) != entry.value())
            return false;
    }
    static const MemoryFile file;
    Table saved;
    if (!storage.save(file.path()))
        return false;
    const Verdict verdict = judgeSaved(file.content(), &saved);
    return verdict == Verdict::Unknown || (verdict == Verdict::Loaded && saved == table);
}

/// Whether a loaded table can be saved and loaded again.
bool survives(PresetStorage& storage)
{
    static const MemoryFile copy;
    if (!storage.save(copy.path()))
        return false;
    Table table;
    PresetStorage again;
    const bool loaded = again.load(copy.path());
    return judgeSaved(copy.content(), &table) == Verdict::Unknown ? loaded : loaded && holds(again, table);
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
    file.fill(data, size);
    PresetStorage storage;
    const bool loaded = storage.load(file.path());
    Table table;
    const Verdict verdict = judge(file.content(), &table);
    if (verdict != Verdict::Unknown && loaded != (verdict == Verdict::Loaded))
        std::abort();
    if (verdict == Verdict::Loaded && !holds(storage, table))
        std::abort();
    if (loaded && !survives(storage))
        std::abort();
    return 0;
}
