// Compressed data that was never there in full.

#include "zlibbomb.h"

#include <QtEndian>

#include <array>
#include <zlib.h>

namespace {

constexpr int chunkSize = 1 << 20;
constexpr int rawDeflate = -15; // the whole window, no header
constexpr int bestCompression = 9;
constexpr int mostMemory = 9;

/// @p plain as blocks of its own, after which any others may follow.
QByteArray flushed(const QByteArray& plain)
{
    z_stream stream{};
    deflateInit2(&stream, bestCompression, Z_DEFLATED, rawDeflate, mostMemory, Z_DEFAULT_STRATEGY);
    QByteArray blocks(static_cast<int>(deflateBound(&stream, static_cast<uLong>(plain.size()))) + 16, '\0');
    QByteArray input = plain;
    stream.next_in = reinterpret_cast<Bytef*>(input.data());
    stream.avail_in = static_cast<uInt>(input.size());
    stream.next_out = reinterpret_cast<Bytef*>(blocks.data());
    stream.avail_out = static_cast<uInt>(blocks.size());
    deflate(&stream, Z_FULL_FLUSH);
    blocks.truncate(static_cast<int>(stream.total_out));
    deflateEnd(&stream);
    return blocks;
}

uLong adler(const QByteArray& data)
{
    return adler32(1, reinterpret_cast<const Bytef*>(data.constData()), static_cast<uInt>(data.size()));
}

QByteArray bigEndian(quint32 number)
{
    std::array<char, 4> bytes{};
    qToBigEndian(number, bytes.data());
    return {bytes.data(), static_cast<int>(bytes.size())};
}

} // namespace

QByteArray zlibBomb(const QByteArray& head, char repeated, qint64 size)
{
    const QByteArray chunk(chunkSize, repeated);
    const QByteArray chunkBlocks = flushed(chunk);
    const uLong chunkSum = adler(chunk);
    const qint64 chunks = (size + chunkSize - 1) / chunkSize;

    QByteArray blocks = flushed(head);
    uLong sum = adler(head);
    for (qint64 i = 0; i < chunks; ++i) {
        blocks.append(chunkBlocks);
        sum = adler32_combine(sum, chunkSum, chunkSize);
    }
    const QByteArray emptyLastBlock = QByteArray::fromHex("0300");
    return bigEndian(static_cast<quint32>(head.size() + chunks * chunkSize)) + "\x78\xda" + blocks +
           emptyLastBlock + bigEndian(static_cast<quint32>(sum));
}
