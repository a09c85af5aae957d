#pragma once

#include <QByteArray>
#include <QString>

/// Enciphers bytes or text under a 64-bit key, and back. docs/preset-format.md shows the format byte by byte.
///
/// A cipher text is the byte 3, a byte of flags and a payload in which every byte is XORed with a byte of the
/// key and with the enciphered byte before it. The payload is a random byte, an integrity field and the data.
/// The text form is the Base64 of that, on one line; text goes in and comes out as UTF-8.
///
/// Failures give an empty result and are told by lastError(). This keeps the curious out, not an attacker.
class ChainCipher
{
public:
    /// What enciphering does with the data; deciphering goes by the flags that it finds.
    enum CompressionMode {
        CompressAuto = 0,   ///< compress; keep the result only if it is shorter
        CompressAlways = 1, ///< always compress
        CompressNever = 2   ///< don't compress
    };
    /// The integrity field that enciphering writes; deciphering goes by the flags that it finds.
    enum IntegrityMode {
        IntegrityNone = 0,     ///< no field
        IntegrityChecksum = 1, ///< CRC-16 of ISO 3309, 2 bytes, big-endian
        IntegrityHash = 2      ///< SHA-1, 20 bytes
    };
    enum CipherError {
        CipherNoError = 0,
        CipherNoKeySet = 1,
        CipherUnknownVersion = 2, ///< the first byte isn't the version
        CipherIntegrityFailed = 3 ///< the integrity field is too short or wrong
    };
    /// The second byte of a cipher text. Where both integrity flags are set, the checksum counts.
    enum CipherFlag {
        FlagCompressed = 1, ///< the data is in the form of qCompress()
        FlagChecksum = 2,
        FlagHash = 4
    };

    /// The longest text, in bytes of UTF-8, that is deciphered: above it the toolkit can't encode a text
    /// again, since it reserves three bytes a character and counts them in an int.
    static constexpr int longestText = 1 << 29;

    /// A cipher without a key, which refuses everything until setKey(). Each construction seeds qrand().
    ChainCipher();
    explicit ChainCipher(quint64 key);

    /// Replaces the key; 0 is a key like any other.
    void setKey(quint64 key);
    /// CompressAuto and IntegrityChecksum, which files are written with, unless set otherwise.
    void setCompressionMode(CompressionMode mode) { compressionMode = mode; }
    void setIntegrityMode(IntegrityMode mode) { integrityMode = mode; }

    QByteArray encipherBytes(const QByteArray& plain);
    QByteArray encipherBytes(const QString& plain);
    QString encipherToText(const QString& plain);
    QString encipherToText(const QByteArray& plain);

    /// An input of less than 3 bytes leaves lastError() as it was.
    QByteArray decipherBytes(const QByteArray& cipher);
    /// Characters outside the alphabet of Base64 are passed over.
    QByteArray decipherBytes(const QString& cipherText);
    /// Plain text beyond #longestText comes out empty, which lastError() doesn't tell.
    QString decipherToText(const QString& cipherText);
    QString decipherToText(const QByteArray& cipher);

    /// The result of the last operation.
    CipherError lastError() const { return error; }

private:
    bool plHasKey();
    QByteArray plFail(CipherError why);
    void plChain(QByteArray* cipher) const;
    QByteArray plUnchained(const QByteArray& cipher) const;

    quint64 key = 0;
    QByteArray keyBytes; // least significant first; empty while no key is set
    CompressionMode compressionMode = CompressAuto;
    IntegrityMode integrityMode = IntegrityChecksum;
    CipherError error = CipherNoError;
};
