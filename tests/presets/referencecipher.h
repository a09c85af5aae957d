#pragma once

#include <QByteArray>
#include <QString>

/// A second reading of the format, which shares no code with the product: its own CRC and chain, and zlib
/// itself.
namespace ReferenceCipher {

enum Flag { Compressed = 1, Checksum = 2, Hash = 4 };

/// The key that files are enciphered with. Users' files depend on it.
constexpr quint64 fileKey = 0xB7D2084F5A3C96E1;

quint16 crc16(const QByteArray& data);
QByteArray sha1(const QByteArray& data);
/// What the digest line of a file with @p body holds.
QString digestText(const QByteArray& body);

/// Big-endian length of the plain data, then a zlib stream of level 9.
QByteArray compress(const QByteArray& plain);
/// False unless @p data is one whole zlib stream behind its true length.
bool uncompress(const QByteArray& data, QByteArray* plain);

QByteArray chained(quint64 key, const QByteArray& payload);
QByteArray unchained(quint64 key, const QByteArray& payload);

/// A cipher text of @p data as it stands: nothing is compressed here, whatever @p flags say.
QByteArray wrap(quint64 key, const QByteArray& data, int flags, char random);
/// A cipher text of @p plain, compressed and protected as @p flags say.
QByteArray encipher(quint64 key, const QByteArray& plain, int flags, char random);
/// The data of a cipher text, compressed as it may be. False if the version or the integrity field is wrong.
bool open(quint64 key, const QByteArray& cipher, QByteArray* data);
/// False if anything in @p cipher is not as it should be.
bool decipher(quint64 key, const QByteArray& cipher, QByteArray* plain);

} // namespace ReferenceCipher
