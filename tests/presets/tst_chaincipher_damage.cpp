// Cipher texts that were changed on the way.

#include "presets/chaincipher.h"

#include "referencecipher.h"
#include "support/loglines.h"

#include <QTest>

namespace {

constexpr quint64 someKey = 0x1122334455667788;

const QByteArray plain = QByteArrayLiteral("mintemp=2\nmaxtemp=8\nsender=Northern Pharma\n");

} // namespace

class TestChainCipherDamage : public QObject
{
    Q_OBJECT

private slots:
    void anyChangedPayloadByteFails_data();
    void anyChangedPayloadByteFails();
    void anyTruncationFails_data() { anyChangedPayloadByteFails_data(); }
    void anyTruncationFails();
    void fieldsThatAreCutFail_data();
    void fieldsThatAreCutFail();
    void withoutIntegrityDamagePasses();
};

void TestChainCipherDamage::anyChangedPayloadByteFails_data()
{
    QTest::addColumn<int>("flags");
    QTest::newRow("checksum") << int(ReferenceCipher::Checksum);
    QTest::newRow("checksum, compressed") << (ReferenceCipher::Checksum | ReferenceCipher::Compressed);
    QTest::newRow("hash") << int(ReferenceCipher::Hash);
    QTest::newRow("hash, compressed") << (ReferenceCipher::Hash | ReferenceCipher::Compressed);
}

void TestChainCipherDamage::anyChangedPayloadByteFails()
{
    QFETCH(int, flags);
    const QByteArray whole = ReferenceCipher::encipher(someKey, plain, flags, 'r');
    const LogLines log;
    for (int position = 2; position < whole.size(); ++position) {
        for (int difference = 1; difference < 256; ++difference) {
            QByteArray damaged = whole;
            damaged[position] = static_cast<char>(damaged.at(position) ^ difference);
            ChainCipher cipher(someKey);
            QVERIFY(cipher.decipherBytes(damaged).isEmpty());
            QCOMPARE(cipher.lastError(), ChainCipher::CipherIntegrityFailed);
        }
    }
    QCOMPARE(log.all(), QStringList());
}

void TestChainCipherDamage::anyTruncationFails()
{
    QFETCH(int, flags);
    const QByteArray whole = ReferenceCipher::encipher(someKey, plain, flags, 'r');
    for (int size = 3; size < whole.size(); ++size) {
        ChainCipher cipher(someKey);
        QVERIFY(cipher.decipherBytes(whole.left(size)).isEmpty());
        QCOMPARE(cipher.lastError(), ChainCipher::CipherIntegrityFailed);
    }
}

void TestChainCipherDamage::fieldsThatAreCutFail_data()
{
    QTest::addColumn<int>("flags");
    QTest::addColumn<int>("left");
    QTest::addColumn<int>("error");
    const int failed = ChainCipher::CipherIntegrityFailed;
    const int fine = ChainCipher::CipherNoError;
    QTest::newRow("checksum, 0 bytes") << int(ReferenceCipher::Checksum) << 0 << failed;
    QTest::newRow("checksum, 1 byte") << int(ReferenceCipher::Checksum) << 1 << failed;
    QTest::newRow("checksum, whole") << int(ReferenceCipher::Checksum) << 2 << fine;
    QTest::newRow("hash, 0 bytes") << int(ReferenceCipher::Hash) << 0 << failed;
    QTest::newRow("hash, 19 bytes") << int(ReferenceCipher::Hash) << 19 << failed;
    QTest::newRow("hash, whole") << int(ReferenceCipher::Hash) << 20 << fine;
    QTest::newRow("none") << 0 << 0 << fine;
}

void TestChainCipherDamage::fieldsThatAreCutFail()
{
    QFETCH(int, flags);
    QFETCH(int, left);
    QFETCH(int, error);
    ChainCipher cipher(someKey);
    const QByteArray ofNothing = ReferenceCipher::encipher(someKey, QByteArray(), flags, 'r');
    QVERIFY(cipher.decipherBytes(ofNothing.left(2 + 1 + left)).isEmpty());
    QCOMPARE(int(cipher.lastError()), error);
}

void TestChainCipherDamage::withoutIntegrityDamagePasses()
{
    QByteArray damaged = ReferenceCipher::encipher(someKey, "plain", 0, 'r');
    damaged[damaged.size() - 1] = static_cast<char>(damaged.back() ^ 1);
    ChainCipher cipher(someKey);
    QCOMPARE(cipher.decipherBytes(damaged), QByteArray("plaio"));
    QCOMPARE(cipher.lastError(), ChainCipher::CipherNoError);
}

QTEST_GUILESS_MAIN(TestChainCipherDamage)
#include "tst_chaincipher_damage.moc"
