// A saved file that lost bits or its end: it is refused, or it reads as before.

#include "presets/presetstorage.h"

#include "presetfiles.h"
#include "support/loglines.h"

#include <QTest>

using namespace PresetFiles;

namespace {

constexpr int versionLength = 3;

} // namespace

class TestPresetStorageDamage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void anyFlippedBit_data();
    void anyFlippedBit();
    void anyTruncation_data() { anyFlippedBit_data(); }
    void anyTruncation();

private:
    /// Whether the file is refused as told, or read as it was.
    bool bears(const QByteArray& damaged, bool versionIntact);

    const Table small = {{"type", "Air"}, {"password", "geheim"}};
    const Table large = {{"info", QString(300, 'x')}, {"sender", "Northern Pharma"}, {"timezone", "(UTC)"}};
    Table current;
    QByteArray smallFile;
    QByteArray largeFile;
    Folder folder;
};

void TestPresetStorageDamage::initTestCase()
{
    setClock();
    PresetStorage storage;
    fill(&storage, small);
    QVERIFY(storage.save(folder.path("small")));
    PresetStorage other;
    fill(&other, large);
    QVERIFY(other.save(folder.path("large")));
    smallFile = read(folder.path("small"));
    largeFile = read(folder.path("large"));
    // One of them is compressed, one isn't.
    QCOMPARE(QByteArray::fromBase64(smallFile.split('\n').value(1)).at(1), '\x02');
    QCOMPARE(QByteArray::fromBase64(largeFile.split('\n').value(1)).at(1), '\x03');
}

bool TestPresetStorageDamage::bears(const QByteArray& damaged, bool versionIntact)
{
    const QString path = folder.file(damaged);
    PresetStorage storage;
    const LogLines log;
    if (storage.load(path))
        return contents(storage) == current;
    const bool warned = log.last() == mismatch;
    return contents(storage).isEmpty() && (warned || !versionIntact);
}

void TestPresetStorageDamage::anyFlippedBit_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<bool>("isLarge");
    QTest::newRow("uncompressed") << smallFile << false;
    QTest::newRow("compressed") << largeFile << true;
}

void TestPresetStorageDamage::anyFlippedBit()
{
    QFETCH(QByteArray, file);
    QFETCH(bool, isLarge);
    current = isLarge ? large : small;
    int refused = 0;
    for (int bit = 0; bit < file.size() * 8; ++bit) {
        QByteArray damaged = file;
        damaged[bit / 8] = static_cast<char>(damaged.at(bit / 8) ^ (1 << bit % 8));
        QVERIFY2(bears(damaged, bit / 8 > versionLength), qPrintable(QString("bit %1").arg(bit)));
        refused += PresetStorage().load(folder.path("file")) ? 0 : 1;
    }
    // What is read again are mostly the flags that mean nothing.
    QVERIFY(refused > file.size() * 8 * 9 / 10);
}

void TestPresetStorageDamage::anyTruncation()
{
    QFETCH(QByteArray, file);
    QFETCH(bool, isLarge);
    current = isLarge ? large : small;
    for (int size = 0; size < file.size(); ++size)
        QVERIFY2(bears(file.left(size), size >= versionLength), qPrintable(QString("%1 bytes").arg(size)));
    QVERIFY(bears(file, true) && PresetStorage().load(folder.path("file")));
}

QTEST_GUILESS_MAIN(TestPresetStorageDamage)
#include "tst_presetstorage_damage.moc"
