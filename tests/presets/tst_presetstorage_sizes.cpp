// Files and tables as large as they can be, and larger.

#include "presets/presetstorage.h"

#include "presetfiles.h"
#include "referencecipher.h"
#include "support/loglines.h"
#include "zlibbomb.h"

#include <QTest>

using namespace PresetFiles;

namespace {

/// Of the key "a", beside which stand the key, a "=", a line feed and the date.
constexpr int longestValue = 134217696 - 27;

} // namespace

class TestPresetStorageSizes : public QObject
{
    Q_OBJECT

private slots:
    void enormousFiles_data();
    void enormousFiles();
    void enormousPlainFile();
    void endlessFileIsRefused();
    void enormousTableComesBack();
    void forgedLengthIsAMismatch_data();
    void forgedLengthIsAMismatch();
    void textTooLongForTheToolkitIsAMismatch();
    void longestTableComesBack();
    void tableTooLongToBeLoadedIsNotSaved();
};

void TestPresetStorageSizes::enormousFiles_data()
{
    constexpr int enormous = 32 << 20;
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("last"); // of the log
    QTest::newRow("zeros") << QByteArray(enormous, '\0') << "READING";
    QTest::newRow("points") << QByteArray(enormous / 16, '.') << "READING";
    QTest::newRow("a long number") << QByteArray(enormous, '2') + ".0"
                                   << "File version";
    QTest::newRow("a long body") << "2.0\n" + QByteArray(enormous, 'A') << "Checksum mismatch";
    QTest::newRow("a body of its version")
        << "2.0\n" + QByteArray(enormous, 'A').replace(0, 4, "AwIA") << "Checksum mismatch";
    QTest::newRow("a long digest") << "2.0\n\n" + QByteArray(enormous, '/') << "Checksum mismatch";
}

void TestPresetStorageSizes::enormousFiles()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, last);
    const Folder folder;
    const QString path = folder.file(bytes);
    const LogLines log;
    QVERIFY(!PresetStorage().load(path));
    QVERIFY2(log.last().contains(last), qPrintable(log.last()));
}

void TestPresetStorageSizes::enormousPlainFile()
{
    QByteArray file = "1.0\n";
    for (int i = 0; i < 50000; ++i)
        file += "key " + QByteArray::number(i) + "=value " + QByteArray::number(i * 7) + '\n';
    const QString longValue(16 << 20, 'x');
    const Folder folder;
    PresetStorage storage;
    storage.setValue("old", "value");
    QVERIFY(storage.load(folder.file(file + "long=" + longValue.toLatin1())));
    QVERIFY(!storage.contains("old"));
    QCOMPARE(storage.value("key 0"), QString("value 0"));
    QCOMPARE(storage.value("key 49999"), QString("value 349993"));
    QVERIFY(storage.value("long") == longValue);
}

void TestPresetStorageSizes::endlessFileIsRefused()
{
    // One line, which no text could hold.
    const QString path = QStringLiteral("/dev/zero");
    const LogLines log;
    QVERIFY(!PresetStorage().load(path));
    QCOMPARE(log.all(), QStringList("debug: READING =  \"" + path + "\""));
}

void TestPresetStorageSizes::enormousTableComesBack()
{
    Table table;
    for (int i = 0; i < 50000; ++i)
        table.insert(QString("key %1").arg(i), QString("value %1").arg(i * 7));
    table.insert("long", QString(4 << 20, 'x'));
    QVERIFY(throughAFile(table) == table);
}

void TestPresetStorageSizes::forgedLengthIsAMismatch_data()
{
    QTest::addColumn<QByteArray>("length");
    QTest::addColumn<bool>("readable"); // the toolkit takes too short a length as a hint
    QTest::newRow("nothing") << QByteArray::fromHex("00000000") << true;
    QTest::newRow("one byte") << QByteArray::fromHex("00000001") << true;
    QTest::newRow("a gigabyte") << QByteArray::fromHex("40000000") << true;
    QTest::newRow("as much as there can be") << QByteArray::fromHex("7fffffff") << false;
    QTest::newRow("negative") << QByteArray::fromHex("ffffffff") << false;
}

void TestPresetStorageSizes::forgedLengthIsAMismatch()
{
    using namespace ReferenceCipher;
    QFETCH(QByteArray, length);
    QFETCH(bool, readable);
    const QByteArray body(1000, '=');
    const QByteArray forged = length + compress(body).mid(4);
    const QByteArray file = "2.0\n" + wrap(fileKey, forged, Compressed | Checksum, 'a').toBase64() + '\n' +
                            encipher(fileKey, digestText(body).toUtf8(), Checksum, 'b').toBase64();
    const Folder folder;
    const LogLines log;
    QCOMPARE(PresetStorage().load(folder.file(file)), readable);
    QCOMPARE(log.last() == mismatch, !readable);
}

void TestPresetStorageSizes::textTooLongForTheToolkitIsAMismatch()
{
    using namespace ReferenceCipher;
    // Some 700 KiB, on which the toolkit's conversion back to UTF-8 would overflow.
    const QByteArray bomb = zlibBomb("info=", 'x', 740LL << 20);
    const QByteArray file = "2.0\n" + wrap(fileKey, bomb, Compressed | Checksum, 'a').toBase64();
    const Folder folder;
    const LogLines log;
    QVERIFY(!PresetStorage().load(folder.file(file)));
    QCOMPARE(log.last(), mismatch);
}

void TestPresetStorageSizes::longestTableComesBack()
{
    const QString value(longestValue, 'x');
    const Folder folder;
    const QString path = folder.path("preset");
    {
        PresetStorage storage;
        storage.setValue("a", value);
        QVERIFY(storage.save(path));
    }
    PresetStorage storage;
    QVERIFY(storage.load(path));
    QVERIFY(storage.value("a") == value);
}

void TestPresetStorageSizes::tableTooLongToBeLoadedIsNotSaved()
{
    const Folder folder;
    const QString path = folder.file("as it was");
    PresetStorage storage;
    storage.setValue("a", QString(longestValue + 1, 'x'));
    QVERIFY(!storage.save(path));
    QCOMPARE(read(path), QByteArray("as it was"));
}

QTEST_GUILESS_MAIN(TestPresetStorageSizes)
#include "tst_presetstorage_sizes.moc"
