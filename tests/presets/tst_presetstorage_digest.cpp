// The digest line: text formed of raw bytes, with all that is lost on the way.

#include "presets/presetstorage.h"

#include "presetfiles.h"
#include "referencecipher.h"
#include "support/loglines.h"
#include "support/testclock.h"

#include <QTest>

#include <functional>

using namespace PresetFiles;

namespace {

using Wanted = std::function<bool(const QByteArray& hash)>;

constexpr int mostTries = 100000;
const QByteArray dateLine = QByteArrayLiteral("_gendate_:58170904032021");

/// A value with which the hash of the body is as wanted.
QByteArray valueFor(const Wanted& wanted)
{
    for (int i = 0; i < mostTries; ++i) {
        QByteArray value = QByteArray::number(i);
        if (wanted(ReferenceCipher::sha1("a=" + value + '\n' + dateLine)))
            return value;
    }
    return {};
}

bool startsWithZero(const QByteArray& hash)
{
    return hash.startsWith('\0');
}

bool hasZeroInside(const QByteArray& hash)
{
    return hash.indexOf('\0') == 10;
}

bool isLossy(const QByteArray& hash)
{
    return !hash.contains('\0') && QString::fromUtf8(hash).count(QChar::ReplacementCharacter) > 10;
}

bool isLossless(const QByteArray& hash)
{
    return !hash.contains('\0') && QString::fromUtf8(hash).count(QChar::ReplacementCharacter) < 4;
}

} // namespace

class TestPresetStorageDigest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { TestClock::reset(); }

    void digestTextIsLossy_data();
    void digestTextIsLossy();
    void wholeDigestIsNotAccepted();
    void digestIsOfTheTextAndNotOfItsBytes();
    void emptyBodyHasADigest();
    void linesEncipheredUnderAnotherKeyAreRefused();
    void linesWithoutIntegrityAreRead();
    void moreLinesAreNotLookedAt();
};

void TestPresetStorageDigest::digestTextIsLossy_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<int>("longest");
    QTest::newRow("zero at the start") << valueFor(startsWithZero) << 0;
    QTest::newRow("zero inside") << valueFor(hasZeroInside) << 10;
    QTest::newRow("mostly no text") << valueFor(isLossy) << 20;
    QTest::newRow("mostly text") << valueFor(isLossless) << 20;
}

void TestPresetStorageDigest::digestTextIsLossy()
{
    QFETCH(QByteArray, value);
    QFETCH(int, longest);
    QVERIFY(!value.isEmpty());
    const Folder folder;
    PresetStorage storage;
    storage.setValue("a", value);
    setClock();
    QVERIFY(storage.save(folder.path("preset")));

    const QByteArrayList plain = deciphered(read(folder.path("preset")));
    QCOMPARE(plain.value(1), "a=" + value + '\n' + dateLine);
    const QString digest = QString::fromUtf8(plain.value(2));
    QCOMPARE(digest, digestText(plain.value(1)));
    QVERIFY(digest.size() <= longest);
    PresetStorage loaded;
    QVERIFY(loaded.load(folder.path("preset")));
    QCOMPARE(contents(loaded), Table({{"a", value}}));
}

void TestPresetStorageDigest::wholeDigestIsNotAccepted()
{
    const Folder folder;
    const QByteArray body = "a=" + valueFor(hasZeroInside) + '\n' + dateLine;
    const QByteArray hash = ReferenceCipher::sha1(body);
    for (const QString& digest :
         {QString::fromLatin1(hash.toHex()), QString::fromUtf8(hash.constData(), 20)}) {
        const LogLines log;
        QVERIFY(!PresetStorage().load(folder.file(enciphered(body, digest))));
        QCOMPARE(log.last(), mismatch);
    }
}

void TestPresetStorageDigest::digestIsOfTheTextAndNotOfItsBytes()
{
    const Folder folder;
    const QByteArray illFormed = "a=\xff\n";
    const QByteArray asText = "a=\xEF\xBF\xBD\n";
    QVERIFY(!PresetStorage().load(folder.file(enciphered(illFormed, digestText(illFormed)))));
    PresetStorage storage;
    QVERIFY(storage.load(folder.file(enciphered(illFormed, digestText(asText)))));
    QCOMPARE(storage.value("a"), QString(QChar::ReplacementCharacter));
}

void TestPresetStorageDigest::emptyBodyHasADigest()
{
    const Folder folder;
    PresetStorage storage;
    storage.setValue("a", "old");
    QVERIFY(!digestText("").isEmpty());
    QVERIFY(storage.load(folder.file(enciphered(""))));
    QCOMPARE(contents(storage), Table({{"a", "old"}}));
}

void TestPresetStorageDigest::linesEncipheredUnderAnotherKeyAreRefused()
{
    using namespace ReferenceCipher;
    const QByteArray digest = digestText("a=1").toUtf8();
    const QByteArray file = "2.0\n" + encipher(fileKey + 1, "a=1", Checksum, 'a').toBase64() + '\n' +
                            encipher(fileKey + 1, digest, Checksum, 'b').toBase64();
    const Folder folder;
    const LogLines log;
    QVERIFY(!PresetStorage().load(folder.file(file)));
    QCOMPARE(log.all().mid(2), QStringList(mismatch));
}

void TestPresetStorageDigest::linesWithoutIntegrityAreRead()
{
    using namespace ReferenceCipher;
    const QByteArray digest = digestText("a=1").toUtf8();
    const QByteArray file = "2.0\n" + encipher(fileKey, "a=1", Compressed, 'a').toBase64() + '\n' +
                            encipher(fileKey, digest, Hash, 'b').toBase64();
    const Folder folder;
    PresetStorage storage;
    QVERIFY(storage.load(folder.file(file)));
    QCOMPARE(contents(storage), Table({{"a", "1"}}));
}

void TestPresetStorageDigest::moreLinesAreNotLookedAt()
{
    const Folder folder;
    PresetStorage storage;
    QVERIFY(storage.load(folder.file(enciphered("a=1") + "\nb=2\n")));
    QCOMPARE(contents(storage), Table({{"a", "1"}}));
}

QTEST_GUILESS_MAIN(TestPresetStorageDigest)
#include "tst_presetstorage_digest.moc"
