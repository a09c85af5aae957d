// The format read a second time.

#include "referencecipher.h"

#include <QCryptographicHash>

#include <vector>
#include <zlib.h>

namespace {

constexpr int lengthSize = 4;

QByteArray bigEndian(quint32 number, int size)
{
    QByteArray bytes;
    for (int i = size - 1; i >= 0; --i)
        bytes.append(static_cast<char>(number >> (8 * i)));
    return bytes;
}

quint32 fromBigEndian(const QByteArray& bytes)
{
    quint32 number = 0;
    for (const char byte : bytes)
        number = number << 8 | static_cast<uchar>(byte);
    return number;
}

char keyByte(quint64 key, int position)
{
    return static_cast<char>(key >> (8 * (position % 8)));
}

QByteArray fieldOf(const QByteArray& data, int flags)
{
    if (flags & ReferenceCipher::Checksum)
        return bigEndian(ReferenceCipher::crc16(data), 2);
    return flags & ReferenceCipher::Hash ? ReferenceCipher::sha1(data) : QByteArray();
}

} // namespace

quint16 ReferenceCipher::crc16(const QByteArray& data)
{
    quint16 crc = 0xffff;
    for (const char byte : data) {
        crc ^= static_cast<uchar>(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = crc & 1 ? crc >> 1 ^ 0x8408 : crc >> 1;
    }
    return ~crc;
}

QByteArray ReferenceCipher::sha1(const QByteArray& data)
{
    return QCryptographicHash::hash(data, QCryptographicHash::Sha1);
}

QString ReferenceCipher::digestText(const QByteArray& body)
{
    QByteArray hash = sha1(body);
    const int zero = hash.indexOf('\0');
    if (zero >= 0)
        hash.truncate(zero);
    return QString::fromUtf8(hash);
}

QByteArray ReferenceCipher::compress(const QByteArray& plain)
{
    uLongf size = compressBound(static_cast<uLong>(plain.size()));
    std::vector<Bytef> stream(size);
    compress2(stream.data(), &size, reinterpret_cast<const Bytef*>(plain.constData()),
              static_cast<uLong>(plain.size()), 9);
    return bigEndian(static_cast<quint32>(plain.size()), lengthSize) +
           QByteArray(reinterpret_cast<const char*>(stream.data()), static_cast<int>(size));
}

bool ReferenceCipher::uncompress(const QByteArray& data, QByteArray* plain)
{
    uLongf size = fromBigEndian(data.left(lengthSize));
    std::vector<Bytef> buffer(size + 1);
    const QByteArray stream = data.mid(lengthSize);
    uLongf capacity = buffer.size();
    const int result =
        ::uncompress(buffer.data(), &capacity, reinterpret_cast<const Bytef*>(stream.constData()),
                     static_cast<uLong>(stream.size()));
    *plain = QByteArray(reinterpret_cast<const char*>(buffer.data()), static_cast<int>(size));
    return result == Z_OK && capacity == size;
}

QByteArray ReferenceCipher::chained(quint64 key, const QByteArray& payload)
{
    QByteArray result;
    for (int i = 0; i < payload.size(); ++i) {
        const char before = i == 0 ? char(0) : result.at(i - 1);
        result.append(static_cast<char>(payload.at(i) ^ keyByte(key, i) ^ before));
    }
    return result;
}

QByteArray ReferenceCipher::unchained(quint64 key, const QByteArray& payload)
{
    QByteArray result;
    for (int i = 0; i < payload.size(); ++i) {
        const char before = i == 0 ? char(0) : payload.at(i - 1);
        result.append(static_cast<char>(payload.at(i) ^ keyByte(key, i) ^ before));
    }
    return result;
}

QByteArray ReferenceCipher::wrap(quint64 key, const QByteArray& data, int flags, char random)
{
    QByteArray cipher;
    cipher.append('\x03').append(static_cast<char>(flags));
    return cipher + chained(key, QByteArray(1, random) + fieldOf(data, flags) + data);
}

QByteArray ReferenceCipher::encipher(quint64 key, const QByteArray& plain, int flags, char random)
{
    return wrap(key, flags & Compressed ? compress(plain) : plain, flags, random);
}

bool ReferenceCipher::open(quint64 key, const QByteArray& cipher, QByteArray* data)
{
    if (cipher.size() < 3 || cipher.at(0) != '\x03')
        return false;
    const int flags = static_cast<uchar>(cipher.at(1));
    const QByteArray payload = unchained(key, cipher.mid(2));
    const int fieldSize = flags & Checksum ? 2 : flags & Hash ? 20 : 0;
    *data = payload.mid(1 + fieldSize);
    return payload.mid(1, fieldSize) == fieldOf(*data, flags);
}

bool ReferenceCipher::decipher(quint64 key, const QByteArray& cipher, QByteArray* plain)
{
    QByteArray data;
    if (!open(key, cipher, &data))
        return false;
    if (cipher.at(1) & Compressed)
        return uncompress(data, plain);
    *plain = data;
    return true;
}
