// The file cipher: compression, integrity field and chain, in both directions.

#include "presets/chaincipher.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDebug>
#include <QtEndian>

namespace {

constexpr char formatVersion = 3;
constexpr int headerSize = 2; // version and flags, outside of the chain
constexpr int randomSize = 1;
constexpr int bestCompression = 9;
constexpr int keySize = 8;
constexpr char byteOrderMark[] = "\xEF\xBB\xBF";

// The generator behind qrand() is part of the cipher's contract, and the byte that it gives is no secret: it
// only makes two cipher texts of one text differ. Nothing else here is deprecated.
QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED
void seedRandom()
{
    qsrand(static_cast<quint16>(QDateTime::currentMSecsSinceEpoch()));
}

char randomByte()
{
    return static_cast<char>(qrand());
}
QT_WARNING_POP

/// The text of UTF-8. A byte order mark, which the toolkit would take for itself, is a character like any
/// other.
QString textOf(const QByteArray& plain)
{
    if (plain.size() > ChainCipher::longestText)
        return {};
    // With its size, as a zero byte would end it otherwise.
    QString text = QString::fromUtf8(plain.constData(), plain.size());
    if (plain.startsWith(byteOrderMark))
        text.prepend(QChar::ByteOrderMark);
    return text;
}

QByteArray checksum(const QByteArray& data)
{
    QByteArray field(sizeof(quint16), Qt::Uninitialized);
    qToBigEndian(qChecksum(data.constData(), static_cast<uint>(data.size())), field.data());
    return field;
}

QByteArray hash(const QByteArray& data)
{
    return QCryptographicHash::hash(data, QCryptographicHash::Sha1);
}

struct IntegrityField
{
    int flag;
    int size;
    QByteArray (*compute)(const QByteArray& data);
};

constexpr IntegrityField noField = {0, 0, nullptr};
constexpr IntegrityField checksumField = {ChainCipher::FlagChecksum, 2, checksum};
constexpr IntegrityField hashField = {ChainCipher::FlagHash, 20, hash};

const IntegrityField& fieldToWrite(ChainCipher::IntegrityMode mode)
{
    switch (mode) {
    case ChainCipher::IntegrityChecksum:
        return checksumField;
    case ChainCipher::IntegrityHash:
        return hashField;
    case ChainCipher::IntegrityNone:
        break;
    }
    return noField;
}

const IntegrityField& fieldToRead(int flags)
{
    if (flags & ChainCipher::FlagChecksum)
        return checksumField;
    return flags & ChainCipher::FlagHash ? hashField : noField;
}

/// The data as it goes into the payload; adds FlagCompressed to @p flags if it is compressed.
QByteArray compress(const QByteArray& plain, ChainCipher::CompressionMode mode, int* flags)
{
    if (mode == ChainCipher::CompressNever)
        return plain;
    QByteArray compressed = qCompress(plain, bestCompression);
    if (mode == ChainCipher::CompressAuto && compressed.size() >= plain.size())
        return plain;
    *flags |= ChainCipher::FlagCompressed;
    return compressed;
}

} // namespace

ChainCipher::ChainCipher()
{
    seedRandom();
}

ChainCipher::ChainCipher(quint64 key)
    : ChainCipher()
{
    setKey(key);
}

void ChainCipher::setKey(quint64 newKey)
{
    key = newKey;
    keyBytes.resize(keySize);
    for (int i = 0; i < keySize; ++i)
        keyBytes[i] = static_cast<char>(key >> (8 * i));
}

bool ChainCipher::plHasKey()
{
    if (!keyBytes.isEmpty())
        return true;
    qWarning() << "No key set.";
    error = CipherNoKeySet;
    return false;
}

QByteArray ChainCipher::encipherBytes(const QByteArray& plain)
{
    if (!plHasKey())
        return {};
    const IntegrityField& field = fieldToWrite(integrityMode);
    int flags = field.flag;
    const QByteArray data = compress(plain, compressionMode, &flags);

    QByteArray cipher;
    cipher.reserve(headerSize + randomSize + field.size + data.size());
    cipher.append(formatVersion).append(static_cast<char>(flags)).append(randomByte());
    if (field.compute)
        cipher.append(field.compute(data));
    cipher.append(data);
    plChain(&cipher);
    error = CipherNoError;
    return cipher;
}

void ChainCipher::plChain(QByteArray* cipher) const
{
    const char* keyData = keyBytes.constData();
    char* payload = cipher->data() + headerSize;
    const int size = cipher->size() - headerSize;
    char previous = 0;
    for (int i = 0; i < size; ++i)
        previous = payload[i] = static_cast<char>(payload[i] ^ keyData[i % keySize] ^ previous);
}

QByteArray ChainCipher::plUnchained(const QByteArray& cipher) const
{
    const int size = cipher.size() - headerSize;
    // The key over the whole length: without a modulo, the loop becomes vector instructions.
    const QByteArray keys = keyBytes.repeated(size / keySize + 1);
    const char* keyData = keys.constData();
    const char* chained = cipher.constData() + headerSize;
    QByteArray payload(size, Qt::Uninitialized);
    char* plain = payload.data();
    plain[0] = static_cast<char>(chained[0] ^ keyData[0]);
    for (int i = 1; i < size; ++i)
        plain[i] = static_cast<char>(chained[i] ^ keyData[i] ^ chained[i - 1]);
    return payload;
}

QByteArray ChainCipher::decipherBytes(const QByteArray& cipher)
{
    if (!plHasKey() || cipher.size() < headerSize + randomSize)
        return {};
    if (cipher.at(0) != formatVersion) {
        qWarning() << "Invalid version or not a cyphertext.";
        return plFail(CipherUnknownVersion);
    }
    const int flags = static_cast<uchar>(cipher.at(1));
    const IntegrityField& field = fieldToRead(flags);
    const QByteArray payload = plUnchained(cipher);
    const int dataStart = randomSize + field.size;
    if (payload.size() < dataStart)
        return plFail(CipherIntegrityFailed);

    const QByteArray data = payload.mid(dataStart);
    if (field.compute && payload.mid(randomSize, field.size) != field.compute(data))
        return plFail(CipherIntegrityFailed);
    error = CipherNoError;
    return flags & FlagCompressed ? qUncompress(data) : data;
}

QByteArray ChainCipher::plFail(CipherError why)
{
    error = why;
    return {};
}

QByteArray ChainCipher::encipherBytes(const QString& plain)
{
    return encipherBytes(plain.toUtf8());
}

QString ChainCipher::encipherToText(const QString& plain)
{
    return encipherToText(plain.toUtf8());
}

QString ChainCipher::encipherToText(const QByteArray& plain)
{
    return QString::fromLatin1(encipherBytes(plain).toBase64());
}

QByteArray ChainCipher::decipherBytes(const QString& cipherText)
{
    return decipherBytes(QByteArray::fromBase64(cipherText.toLatin1()));
}

QString ChainCipher::decipherToText(const QString& cipherText)
{
    return textOf(decipherBytes(cipherText));
}

QString ChainCipher::decipherToText(const QByteArray& cipher)
{
    return textOf(decipherBytes(cipher));
}
