// How much memory a small file can take that was made to take much.
//
//   bench_presetpeak make KIND PATH   writes a file of less than 1 MiB
//   bench_presetpeak load PATH        loads it and prints the peak of the process
//
// KIND: accepted   one value, as long as one that is read can be
//       refused    more than that: as much as compression gets into 1 MiB
//       forged     the same, behind a length that claims 1.75 GiB

#include "presets/presetstorage.h"

#include "presets/referencecipher.h"
#include "presets/zlibbomb.h"

#include <QCryptographicHash>
#include <QFile>

#include <cstdio>
#include <sys/resource.h>

using namespace ReferenceCipher;

namespace {

constexpr int mebibyte = 1 << 20;
constexpr int acceptedSize = 511; // MiB, below the longest text by a little
constexpr int refusedSize = 750;
constexpr char letter = 'x';

const QByteArray entry = QByteArrayLiteral("info=");

QByteArray digestText()
{
    const QByteArray chunk(mebibyte, letter);
    QCryptographicHash hash(QCryptographicHash::Sha1);
    hash.addData(entry);
    for (int i = 0; i < acceptedSize; ++i)
        hash.addData(chunk);
    return QString(hash.result()).toUtf8(); // up to a zero byte
}

bool make(const QByteArray& kind, const QString& path)
{
    QByteArray data =
        zlibBomb(entry, letter, qint64(kind == "accepted" ? acceptedSize : refusedSize) * mebibyte);
    if (kind == "forged")
        data.replace(0, 4, QByteArray::fromHex("70000000"));
    QFile file(path);
    return file.open(QIODevice::WriteOnly) &&
           file.write("2.0\n" + wrap(fileKey, data, Compressed | Checksum, 'a').toBase64() + '\n' +
                      encipher(fileKey, digestText(), Checksum, 'b').toBase64()) > 0 &&
           file.size() < mebibyte;
}

int load(const QString& path)
{
    PresetStorage storage;
    const bool loaded = storage.load(path);
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    std::printf("%-10s %lld bytes of file, peak %ld KiB\n", loaded ? "accepted" : "refused",
                static_cast<long long>(QFile(path).size()), usage.ru_maxrss);
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    const QByteArray what = argc > 1 ? argv[1] : "";
    if (what == "make" && argc == 4)
        return make(argv[2], QString::fromLocal8Bit(argv[3])) ? 0 : 1;
    if (what == "load" && argc == 3)
        return load(QString::fromLocal8Bit(argv[2]));
    return 2;
}
