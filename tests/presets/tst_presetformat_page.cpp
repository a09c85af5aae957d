// docs/preset-format.md against the program: its worked example is what the program writes and reads, to the
// byte.

#include "presets/chaincipher.h"
#include "presets/presetstorage.h"

#include "presetfiles.h"
#include "referencecipher.h"
#include "support/testclock.h"

#include <QRegularExpression>
#include <QTest>

using namespace PresetFiles;

namespace {

constexpr uint mostSeeds = 100000;

/// The fenced blocks of the page by their names, without the line end before the closing fence.
QMap<QString, QByteArray> blocksOfThePage()
{
    const QString page = QString::fromUtf8(read(FORMAT_PAGE));
    const QRegularExpression block("^```([a-z0-9-]+)\n(.*?)\n```$",
                                   QRegularExpression::MultilineOption |
                                       QRegularExpression::DotMatchesEverythingOption);
    QMap<QString, QByteArray> blocks;
    for (auto found = block.globalMatch(page); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        blocks.insert(match.captured(1), match.captured(2).toUtf8());
    }
    return blocks;
}

/// The bytes of a block of hexadecimal; what stands behind two blanks explains them.
QByteArray bytesOf(const QByteArray& block)
{
    QByteArray bytes;
    for (const QByteArray& line : block.split('\n')) {
        const int explanation = line.indexOf("  ");
        bytes.append(QByteArray::fromHex(explanation < 0 ? line : line.left(explanation)));
    }
    return bytes;
}

/// What the cipher makes of @p plain when its generator gives @p random.
QByteArray encipheredWith(char random, quint64 key, const QByteArray& plain)
{
    ChainCipher cipher(key);
    for (uint seed = 0; seed < mostSeeds; ++seed) {
        QT_WARNING_PUSH
        QT_WARNING_DISABLE_DEPRECATED
        qsrand(seed);
        QT_WARNING_POP
        QByteArray cipherText = cipher.encipherBytes(plain);
        if (ReferenceCipher::unchained(key, cipherText.mid(2)).at(0) == random)
            return cipherText;
    }
    return {};
}

} // namespace

class TestPresetFormatPage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup() { TestClock::reset(); }

    void everyBlockIsThere();
    void keyIsTheFilesKey();
    void bodyIsWhatIsSaved();
    void digestIsOfTheBody();
    void layersFitTogether_data();
    void layersFitTogether() const;
    void fileIsMadeOfTheCipherTexts();
    void fileIsRead();
    void plainFileIsRead();

private:
    QByteArray block(const char* name) const { return blocks.value(name); }

    const Table table = {{"maxtemp", "8"}, {"type", "Air"}};
    QMap<QString, QByteArray> blocks;
    quint64 key = 0;
};

void TestPresetFormatPage::initTestCase()
{
    blocks = blocksOfThePage();
    key = block("key").toULongLong(nullptr, 16);
}

void TestPresetFormatPage::everyBlockIsThere()
{
    const QStringList names = {"body",          "body-cipher",    "body-payload", "digest",
                               "digest-cipher", "digest-payload", "file",         "hash",
                               "key",           "key-bytes",      "plain-file"};
    QCOMPARE(QStringList(blocks.keys()), names);
}

void TestPresetFormatPage::keyIsTheFilesKey()
{
    QCOMPARE(key, ReferenceCipher::fileKey);
    QCOMPARE(ReferenceCipher::unchained(key, QByteArray(1, '\0')), bytesOf(block("key-bytes")).left(1));
    QByteArray littleEndian;
    for (int i = 0; i < 8; ++i)
        littleEndian.append(static_cast<char>(key >> (8 * i)));
    QCOMPARE(bytesOf(block("key-bytes")), littleEndian);
}

void TestPresetFormatPage::bodyIsWhatIsSaved()
{
    const Folder folder;
    PresetStorage storage;
    fill(&storage, table);
    setClock();
    QVERIFY(storage.save(folder.path("preset")));
    const QByteArrayList saved = deciphered(read(folder.path("preset")));
    QCOMPARE(saved.value(1), block("body"));
    QCOMPARE(saved.value(2), bytesOf(block("digest")));
}

void TestPresetFormatPage::digestIsOfTheBody()
{
    QCOMPARE(bytesOf(block("hash")), ReferenceCipher::sha1(block("body")));
    QCOMPARE(bytesOf(block("digest")), digestText(block("body")).toUtf8());
}

void TestPresetFormatPage::layersFitTogether_data()
{
    QTest::addColumn<QByteArray>("plain");
    QTest::addColumn<QByteArray>("payload");
    QTest::addColumn<QByteArray>("cipher");
    QTest::newRow("body") << block("body") << block("body-payload") << block("body-cipher");
    QTest::newRow("digest") << bytesOf(block("digest")) << block("digest-payload") << block("digest-cipher");
}

void TestPresetFormatPage::layersFitTogether() const
{
    QFETCH(QByteArray, plain);
    QFETCH(QByteArray, payload);
    QFETCH(QByteArray, cipher);
    const QByteArray payloadBytes = bytesOf(payload);
    QCOMPARE(payloadBytes.mid(3), plain);
    QCOMPARE(bytesOf(cipher).mid(2), ReferenceCipher::chained(key, payloadBytes));
    QCOMPARE(encipheredWith(payloadBytes.at(0), key, plain), bytesOf(cipher));
    QCOMPARE(ChainCipher(key).decipherBytes(bytesOf(cipher)), plain);
}

void TestPresetFormatPage::fileIsMadeOfTheCipherTexts()
{
    QCOMPARE(block("file"), "2.0\n" + bytesOf(block("body-cipher")).toBase64() + '\n' +
                                bytesOf(block("digest-cipher")).toBase64());
}

void TestPresetFormatPage::fileIsRead()
{
    const Folder folder;
    PresetStorage storage;
    QVERIFY(storage.load(folder.file(block("file"))));
    QCOMPARE(contents(storage), table);
}

void TestPresetFormatPage::plainFileIsRead()
{
    const Folder folder;
    PresetStorage storage;
    storage.setValue("old", "value");
    QVERIFY(storage.load(folder.file(block("plain-file") + '\n')));
    QCOMPARE(contents(storage), table);
}

QTEST_GUILESS_MAIN(TestPresetFormatPage)
#include "tst_presetformat_page.moc"
