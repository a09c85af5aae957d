// What goes into a cipher text in each pair of modes, judged by a decoder of its own.

#include "presets/chaincipher.h"

#include "referencecipher.h"

#include <QRandomGenerator>
#include <QTest>

#include <array>

namespace {

constexpr int rounds = 150;
constexpr int longestData = 5000;

/// Data of any length; the fewer symbols, the better it compresses.
QByteArray randomData(QRandomGenerator* random)
{
    QByteArray data(static_cast<int>(random->bounded(longestData)), Qt::Uninitialized);
    const int symbols = 1 << random->bounded(9);
    for (char& byte : data)
        byte = static_cast<char>(random->bounded(symbols));
    return data;
}

int integrityFlag(int mode)
{
    return mode == ChainCipher::IntegrityChecksum ? ReferenceCipher::Checksum
           : mode == ChainCipher::IntegrityHash   ? ReferenceCipher::Hash
                                                  : 0;
}

bool isCompressed(const QByteArray& cipherText)
{
    return cipherText.at(1) & ReferenceCipher::Compressed;
}

void addModePairs()
{
    static const std::array<const char*, 3> compressions = {"auto", "always", "never"};
    static const std::array<const char*, 3> integrities = {"none", "checksum", "hash"};
    QTest::addColumn<int>("compression");
    QTest::addColumn<int>("integrity");
    for (int compression = 0; compression < 3; ++compression) {
        for (int integrity = 0; integrity < 3; ++integrity)
            QTest::addRow("%s, %s", compressions.at(compression), integrities.at(integrity))
                << compression << integrity;
    }
}

ChainCipher cipherWith(quint64 key, int compression, int integrity)
{
    ChainCipher cipher(key);
    cipher.setCompressionMode(static_cast<ChainCipher::CompressionMode>(compression));
    cipher.setIntegrityMode(static_cast<ChainCipher::IntegrityMode>(integrity));
    return cipher;
}

bool shouldCompress(int compression, const QByteArray& plain)
{
    return compression == ChainCipher::CompressAlways ||
           (compression == ChainCipher::CompressAuto &&
            ReferenceCipher::compress(plain).size() < plain.size());
}

} // namespace

class TestChainCipherModes : public QObject
{
    Q_OBJECT

private slots:
    void checksumIsTheStandardOne();
    void referenceReadsEveryPair_data() { addModePairs(); }
    void referenceReadsEveryPair();
    void everyPairReadsTheReference_data() { addModePairs(); }
    void everyPairReadsTheReference();
    void everyPairTakesNothing_data() { addModePairs(); }
    void everyPairTakesNothing();
    void compressionStartsWhereItSaves();
    void checksumWinsOverHash();
    void unknownFlagsAreIgnored();
    void damagedCompressionIsEmptyButNoError();
};

void TestChainCipherModes::checksumIsTheStandardOne()
{
    QCOMPARE(ReferenceCipher::crc16(QByteArray("123456789")), quint16(0x906e));
    ChainCipher cipher(0);
    const QByteArray cipherText = cipher.encipherBytes(QByteArray("123456789"));
    QCOMPARE(ReferenceCipher::unchained(0, cipherText.mid(2)).mid(1, 2), QByteArray::fromHex("906e"));
}

void TestChainCipherModes::referenceReadsEveryPair()
{
    QFETCH(int, compression);
    QFETCH(int, integrity);
    QRandomGenerator random(1);
    for (int round = 0; round < rounds; ++round) {
        const quint64 key = random.generate64();
        const QByteArray plain = randomData(&random);
        const QByteArray cipherText = cipherWith(key, compression, integrity).encipherBytes(plain);
        QByteArray read;
        QVERIFY(ReferenceCipher::decipher(key, cipherText, &read));
        QCOMPARE(read, plain);
        QCOMPARE(cipherText.at(1) & ~ReferenceCipher::Compressed, integrityFlag(integrity));
        QCOMPARE(isCompressed(cipherText), shouldCompress(compression, plain));
    }
}

void TestChainCipherModes::everyPairReadsTheReference()
{
    QFETCH(int, compression);
    QFETCH(int, integrity);
    QRandomGenerator random(2);
    for (int round = 0; round < rounds; ++round) {
        const quint64 key = random.generate64();
        const QByteArray plain = randomData(&random);
        const char randomByte = static_cast<char>(random.generate());
        const int flags = random.bounded(2) | integrityFlag(random.bounded(3));
        const QByteArray cipherText = ReferenceCipher::encipher(key, plain, flags, randomByte);
        // The modes are the writer's own; a reader goes by the flags.
        ChainCipher cipher = cipherWith(key, compression, integrity);
        QCOMPARE(cipher.decipherBytes(cipherText), plain);
        QCOMPARE(cipher.lastError(), ChainCipher::CipherNoError);
    }
}

void TestChainCipherModes::everyPairTakesNothing()
{
    QFETCH(int, compression);
    QFETCH(int, integrity);
    ChainCipher cipher = cipherWith(1, compression, integrity);
    const QByteArray cipherText = cipher.encipherBytes(QByteArray());
    QCOMPARE(isCompressed(cipherText), compression == ChainCipher::CompressAlways);
    QVERIFY(cipher.decipherBytes(cipherText).isEmpty());
    QCOMPARE(cipher.lastError(), ChainCipher::CipherNoError);
}

void TestChainCipherModes::compressionStartsWhereItSaves()
{
    ChainCipher cipher(1);
    bool seenEqual = false;
    for (int size = 0; size < 40; ++size) {
        const QByteArray plain(size, 'a');
        const int compressedSize = ReferenceCipher::compress(plain).size();
        const QByteArray cipherText = cipher.encipherBytes(plain);
        QCOMPARE(isCompressed(cipherText), compressedSize < size);
        QCOMPARE(cipherText.size(), 2 + 1 + 2 + qMin(size, compressedSize));
        seenEqual = seenEqual || compressedSize == size;
    }
    QVERIFY2(seenEqual, "the case of no gain and no loss was not among them");
}

void TestChainCipherModes::checksumWinsOverHash()
{
    using namespace ReferenceCipher;
    ChainCipher cipher(1);
    QCOMPARE(cipher.decipherBytes(wrap(1, "plain", Checksum | Hash, 'r')), QByteArray("plain"));
    const QByteArray hashed = wrap(1, "plain", Hash, 'r');
    QCOMPARE(cipher.decipherBytes(hashed), QByteArray("plain"));
    QByteArray bothFlags = hashed;
    bothFlags[1] = Checksum | Hash;
    QVERIFY(cipher.decipherBytes(bothFlags).isEmpty());
    QCOMPARE(cipher.lastError(), ChainCipher::CipherIntegrityFailed);
}

void TestChainCipherModes::unknownFlagsAreIgnored()
{
    ChainCipher cipher(1);
    for (int flags = 8; flags < 256; flags += 8)
        QCOMPARE(cipher.decipherBytes(ReferenceCipher::encipher(1, "plain", flags | 3, 'r')),
                 QByteArray("plain"));
}

void TestChainCipherModes::damagedCompressionIsEmptyButNoError()
{
    using namespace ReferenceCipher;
    ChainCipher cipher(1);
    QTest::ignoreMessage(QtWarningMsg, "qUncompress: Z_DATA_ERROR: Input data is corrupted");
    QVERIFY(cipher.decipherBytes(wrap(1, "no zlib stream", Compressed | Checksum, 'r')).isEmpty());
    QCOMPARE(cipher.lastError(), ChainCipher::CipherNoError);
}

QTEST_GUILESS_MAIN(TestChainCipherModes)
#include "tst_chaincipher_modes.moc"
