// The cipher from outside: keys, errors, the random byte, and the operations on text.

#include "presets/chaincipher.h"

#include "referencecipher.h"
#include "support/loglines.h"

#include <QDateTime>
#include <QRegularExpression>
#include <QTest>

#include <algorithm>
#include <type_traits>

namespace {

constexpr quint64 someKey = 0x0807060504030201;

const QString noKeySet = QStringLiteral("warning: No key set.");
const QString invalidVersion = QStringLiteral("warning: Invalid version or not a cyphertext.");

bool generatorHasSeed(uint seed, const QVector<int>& numbers)
{
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    qsrand(seed);
    return std::all_of(numbers.begin(), numbers.end(), [](int number) { return qrand() == number; });
    QT_WARNING_POP
}

/// Whether the generator was seeded with the low 16 bits of a moment from @p begin to now.
bool generatorWasSeededSince(qint64 begin)
{
    const qint64 end = QDateTime::currentMSecsSinceEpoch();
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    const QVector<int> numbers = {qrand(), qrand(), qrand()};
    QT_WARNING_POP
    for (qint64 moment = begin; moment <= end; ++moment) {
        if (generatorHasSeed(static_cast<uint>(moment & 0xffff), numbers))
            return true;
    }
    return false;
}

} // namespace

class TestChainCipher : public QObject
{
    Q_OBJECT

private slots:
    void isAPlainValue();
    void enumeratorsHaveTheirFormatsValues();
    void withoutAKeyItRefusesBothDirections();
    void aKeySetLaterServes();
    void zeroIsAKey();
    void firstKeyByteIsTheLeastSignificant();
    void anotherKeyFails();
    void constructionSeedsTheGenerator();
    void randomByteIsTheGeneratorsNext();
    void sameTextEnciphersDifferently();
    void emptyTextIsHeaderRandomByteAndChecksum();
    void textsAreUtf8();
    void textsKeepTheirFirstMarkAndTheirZeros();
    void textFormIsBase64OnOneLine();
    void foreignCharactersInTextFormArePassedOver();
    void shortInputLeavesTheError_data();
    void shortInputLeavesTheError();
    void otherVersionIsRefused();
    void successClearsTheError();
};

void TestChainCipher::isAPlainValue()
{
    QVERIFY(!std::is_polymorphic<ChainCipher>::value);
    ChainCipher original(someKey);
    original.setCompressionMode(ChainCipher::CompressAlways);
    original.setIntegrityMode(ChainCipher::IntegrityHash);
    ChainCipher copy = original;
    const QByteArray cipher = copy.encipherBytes(QByteArray("plain"));
    QCOMPARE(int(cipher.at(1)), ChainCipher::FlagCompressed | ChainCipher::FlagHash);
    QCOMPARE(original.decipherBytes(cipher), QByteArray("plain"));
}

void TestChainCipher::enumeratorsHaveTheirFormatsValues()
{
    QCOMPARE(int(ChainCipher::CompressAuto), 0);
    QCOMPARE(int(ChainCipher::CompressAlways), 1);
    QCOMPARE(int(ChainCipher::CompressNever), 2);
    QCOMPARE(int(ChainCipher::IntegrityNone), 0);
    QCOMPARE(int(ChainCipher::IntegrityChecksum), 1);
    QCOMPARE(int(ChainCipher::IntegrityHash), 2);
    QCOMPARE(int(ChainCipher::CipherNoError), 0);
    QCOMPARE(int(ChainCipher::CipherNoKeySet), 1);
    QCOMPARE(int(ChainCipher::CipherUnknownVersion), 2);
    QCOMPARE(int(ChainCipher::CipherIntegrityFailed), 3);
    QCOMPARE(int(ChainCipher::FlagCompressed), 1);
    QCOMPARE(int(ChainCipher::FlagChecksum), 2);
    QCOMPARE(int(ChainCipher::FlagHash), 4);
}

void TestChainCipher::withoutAKeyItRefusesBothDirections()
{
    const QByteArray cipherText = ChainCipher(someKey).encipherBytes(QByteArray("plain"));
    const LogLines log;
    ChainCipher cipher;
    QCOMPARE(cipher.lastError(), ChainCipher::CipherNoError);
    QVERIFY(cipher.encipherBytes(QByteArray("plain")).isEmpty());
    QCOMPARE(cipher.lastError(), ChainCipher::CipherNoKeySet);
    QVERIFY(cipher.decipherBytes(cipherText).isEmpty());
    QVERIFY(cipher.encipherToText(QStringLiteral("plain")).isEmpty());
    // The key is asked for before the input's length.
    QVERIFY(cipher.decipherToText(QString()).isEmpty());
    QCOMPARE(cipher.lastError(), ChainCipher::CipherNoKeySet);
    QCOMPARE(log.all(), QStringList({noKeySet, noKeySet, noKeySet, noKeySet}));
}

void TestChainCipher::aKeySetLaterServes()
{
    ChainCipher cipher;
    cipher.setKey(someKey);
    const QByteArray cipherText = cipher.encipherBytes(QByteArray("plain"));
    QCOMPARE(ChainCipher(someKey).decipherBytes(cipherText), QByteArray("plain"));
    // A short text takes part of a key only; its first byte meets nothing but the random byte.
    cipher.setKey(someKey ^ 0xff00);
    QVERIFY(cipher.decipherBytes(cipherText).isEmpty());
}

void TestChainCipher::zeroIsAKey()
{
    const LogLines log;
    ChainCipher cipher(0);
    QCOMPARE(cipher.decipherBytes(cipher.encipherBytes(QByteArray("plain"))), QByteArray("plain"));
    QCOMPARE(log.all(), QStringList());
}

void TestChainCipher::firstKeyByteIsTheLeastSignificant()
{
    ChainCipher cipher(someKey);
    cipher.setIntegrityMode(ChainCipher::IntegrityNone);
    // Zeros under the chain are the key itself, XORed up; 1^2^...^8 is 8, from where it begins again.
    const QByteArray chainedZeros = QByteArray::fromHex("0103000401070008090b080c090f0800");
    QCOMPARE(cipher.decipherBytes(QByteArray::fromHex("0300") + chainedZeros), QByteArray(15, '\0'));
}

void TestChainCipher::anotherKeyFails()
{
    const LogLines log;
    ChainCipher other(someKey ^ 1ULL << 40);
    QVERIFY(other.decipherBytes(ChainCipher(someKey).encipherBytes(QByteArray("plain text"))).isEmpty());
    QCOMPARE(other.lastError(), ChainCipher::CipherIntegrityFailed);
    QCOMPARE(log.all(), QStringList());
}

void TestChainCipher::constructionSeedsTheGenerator()
{
    const qint64 withoutKey = QDateTime::currentMSecsSinceEpoch();
    const ChainCipher first;
    QVERIFY(generatorWasSeededSince(withoutKey));
    const qint64 withKey = QDateTime::currentMSecsSinceEpoch();
    const ChainCipher second(someKey);
    QVERIFY(generatorWasSeededSince(withKey));
}

void TestChainCipher::randomByteIsTheGeneratorsNext()
{
    ChainCipher cipher(someKey);
    for (uint seed = 0; seed < 100; ++seed) {
        QT_WARNING_PUSH
        QT_WARNING_DISABLE_DEPRECATED
        qsrand(seed);
        const char expected = static_cast<char>(qrand());
        qsrand(seed);
        QT_WARNING_POP
        const QByteArray payload = cipher.encipherBytes(QByteArray("plain")).mid(2);
        QCOMPARE(ReferenceCipher::unchained(someKey, payload).at(0), expected);
    }
}

void TestChainCipher::sameTextEnciphersDifferently()
{
    ChainCipher cipher(someKey);
    const QString plain = QStringLiteral("the same");
    QHash<char, QString> byRandomByte;
    for (int i = 0; i < 50; ++i) {
        const QString cipherText = cipher.encipherToText(plain);
        QCOMPARE(cipher.decipherToText(cipherText), plain);
        byRandomByte.insert(QByteArray::fromBase64(cipherText.toLatin1()).at(2), cipherText);
    }
    QVERIFY(byRandomByte.size() > 1);
    // As the random byte is chained into all that follows, no two of them share a byte of the payload.
    const QList<QString> texts = byRandomByte.values();
    const QByteArray first = QByteArray::fromBase64(texts.first().toLatin1());
    for (const QString& text : texts.mid(1)) {
        const QByteArray other = QByteArray::fromBase64(text.toLatin1());
        QCOMPARE(other.left(2), first.left(2));
        for (int i = 2; i < first.size(); ++i)
            QVERIFY(other.at(i) != first.at(i));
    }
}

void TestChainCipher::emptyTextIsHeaderRandomByteAndChecksum()
{
    ChainCipher cipher(someKey);
    const QByteArray bytes = cipher.encipherBytes(QString());
    QCOMPARE(bytes.size(), 2 + 1 + 2);
    QCOMPARE(bytes.left(2), QByteArray::fromHex("0302"));
    QCOMPARE(ReferenceCipher::unchained(someKey, bytes.mid(2)).mid(1), QByteArray::fromHex("0000"));
    QCOMPARE(cipher.decipherToText(bytes), QString());
    QCOMPARE(cipher.lastError(), ChainCipher::CipherNoError);
}

void TestChainCipher::textsAreUtf8()
{
    ChainCipher cipher(someKey);
    const QString text = QStringLiteral("Gr\u00fc\u00dfe \u4e2d\u6587 \U0001F321");
    QCOMPARE(cipher.decipherBytes(cipher.encipherBytes(text)), text.toUtf8());
    QCOMPARE(cipher.decipherBytes(cipher.encipherToText(text)), text.toUtf8());
    QCOMPARE(cipher.decipherToText(cipher.encipherToText(text.toUtf8())), text);
    QCOMPARE(cipher.decipherToText(cipher.encipherBytes(text.toUtf8())), text);
    QCOMPARE(cipher.decipherToText(cipher.encipherBytes(QByteArray("a\xff"
                                                                   "b"))),
             QStringLiteral("a\ufffdb"));
}

void TestChainCipher::textsKeepTheirFirstMarkAndTheirZeros()
{
    ChainCipher cipher(someKey);
    QString text = QStringLiteral("\ufeffmark");
    text.append(QChar(0)).append(QLatin1Char('z'));
    QCOMPARE(cipher.decipherToText(cipher.encipherToText(text)), text);
}

void TestChainCipher::textFormIsBase64OnOneLine()
{
    ChainCipher cipher(someKey);
    cipher.setCompressionMode(ChainCipher::CompressNever);
    for (int size = 1000; size < 1003; ++size) {
        const QString text = cipher.encipherToText(QByteArray(size, 'x'));
        const QRegularExpression base64(QStringLiteral("\\A[A-Za-z0-9+/]+={0,2}\\z"));
        QVERIFY(base64.match(text).hasMatch());
        QCOMPARE(text.size(), (size + 5 + 2) / 3 * 4);
        QCOMPARE(QByteArray::fromBase64(text.toLatin1()).left(2), QByteArray::fromHex("0302"));
    }
}

void TestChainCipher::foreignCharactersInTextFormArePassedOver()
{
    ChainCipher cipher(someKey);
    QString text = cipher.encipherToText(QStringLiteral("plain"));
    for (int i = text.size() - 4; i > 0; i -= 3)
        text.insert(i, QStringLiteral(" \u00e4*\u4e2d"));
    // What Latin-1 can't hold becomes a question mark, which is outside the alphabet as well.
    QCOMPARE(cipher.decipherToText(text), QStringLiteral("plain"));
}

void TestChainCipher::shortInputLeavesTheError_data()
{
    QTest::addColumn<QByteArray>("input");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("a version") << QByteArray("\x03");
    QTest::newRow("another version") << QByteArray("\x04");
    QTest::newRow("a header") << QByteArray("\x03\x02");
    QTest::newRow("another version's header") << QByteArray("\x04\x02");
}

void TestChainCipher::shortInputLeavesTheError()
{
    QFETCH(QByteArray, input);
    ChainCipher cipher(someKey);
    const LogLines log;
    QVERIFY(cipher.decipherBytes(input).isEmpty());
    QCOMPARE(cipher.lastError(), ChainCipher::CipherNoError);
    cipher.decipherBytes(QByteArray("\x03\x02\x01"));
    QCOMPARE(cipher.lastError(), ChainCipher::CipherIntegrityFailed);
    QVERIFY(cipher.decipherBytes(input).isEmpty());
    QVERIFY(cipher.decipherToText(QString::fromLatin1(input.toBase64())).isEmpty());
    QCOMPARE(cipher.lastError(), ChainCipher::CipherIntegrityFailed);
    QCOMPARE(log.all(), QStringList());
}

void TestChainCipher::otherVersionIsRefused()
{
    ChainCipher cipher(someKey);
    QByteArray cipherText = cipher.encipherBytes(QByteArray("plain"));
    for (int version = 0; version < 256; ++version) {
        if (version == 3)
            continue;
        const LogLines log;
        cipherText[0] = static_cast<char>(version);
        QVERIFY(cipher.decipherBytes(cipherText).isEmpty());
        QCOMPARE(cipher.lastError(), ChainCipher::CipherUnknownVersion);
        QCOMPARE(log.all(), QStringList(invalidVersion));
    }
}

void TestChainCipher::successClearsTheError()
{
    ChainCipher cipher(someKey);
    const QByteArray cipherText = cipher.encipherBytes(QByteArray("plain"));
    cipher.decipherBytes(QByteArray("\x03\x02\x01"));
    QCOMPARE(cipher.decipherBytes(cipherText), QByteArray("plain"));
    QCOMPARE(cipher.lastError(), ChainCipher::CipherNoError);
    cipher.decipherBytes(QByteArray("\x03\x02\x01"));
    cipher.encipherBytes(QByteArray("plain"));
    QCOMPARE(cipher.lastError(), ChainCipher::CipherNoError);
}

QTEST_GUILESS_MAIN(TestChainCipher)
#include "tst_chaincipher.moc"
