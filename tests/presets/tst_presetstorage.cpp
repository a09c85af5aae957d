// The table, what a saved file holds, and which versions are read.

#include "presets/presetstorage.h"

#include "presetfiles.h"
#include "referencecipher.h"
#include "support/loglines.h"
#include "support/testclock.h"

#include <QMetaObject>
#include <QTest>

using namespace PresetFiles;

class TestPresetStorage : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { TestClock::reset(); }

    void isAnObjectWithNothingToOffer();
    void newTableIsEmpty();
    void missingKeyReadsAsEmptyValue();
    void valuesAreReplaced();
    void savedTableComesBack();
    void bodyIsInOrderOfKeys();
    void fileHasThreeLines();
    void bodyEndsInTheDate_data();
    void bodyEndsInTheDate();
    void twoSavesDiffer();
    void emptyTableComesBackEmpty();
    void logTellsFileVersionAndIgnoredLines();
    void versionLineAloneIsAMismatch();
    void plainVersionLineAloneIsAnEmptyTable();
    void versionsAreJudgedByTheirNumbers_data();
    void versionsAreJudgedByTheirNumbers();
    void encipheredFileIsMerged();
    void refusedFileLeavesTheTable();
    void plainFileReplaces();
};

void TestPresetStorage::isAnObjectWithNothingToOffer()
{
    QObject parent;
    const PresetStorage storage(&parent);
    QCOMPARE(storage.parent(), &parent);
    const QMetaObject* meta = storage.metaObject();
    QCOMPARE(meta->className(), "PresetStorage");
    QCOMPARE(meta->methodCount(), meta->methodOffset());
    QCOMPARE(meta->propertyCount(), meta->propertyOffset());
}

void TestPresetStorage::newTableIsEmpty()
{
    PresetStorage storage(nullptr);
    QCOMPARE(contents(storage), Table());
}

void TestPresetStorage::missingKeyReadsAsEmptyValue()
{
    PresetStorage storage;
    storage.setValue("empty", QString());
    QCOMPARE(storage.value("missing"), QString());
    QVERIFY(!storage.contains("missing"));
    QCOMPARE(storage.value("empty"), QString());
    QVERIFY(storage.contains("empty"));
    QVERIFY(!storage.contains("Empty"));
}

void TestPresetStorage::valuesAreReplaced()
{
    PresetStorage storage;
    storage.setValue("sender", "one");
    storage.setValue("sender", "two");
    QCOMPARE(contents(storage), Table({{"sender", "two"}}));
}

void TestPresetStorage::savedTableComesBack()
{
    const Table table = {{"sender", "Northern Pharma"}, {"type", " "}, {"password", ""}, {"", "no key"}};
    QCOMPARE(throughAFile(table), table);
}

void TestPresetStorage::bodyIsInOrderOfKeys()
{
    PresetStorage storage;
    // By code units of UTF-16, in which the thermometer comes before the last of the one-unit characters.
    fill(&storage, {{"b", "2"}, {"B", "1"}, {"a", "3"}, {"\U0001F321", "4"}, {"\uffe0", "5"}, {"ab", "6"}});
    const Folder folder;
    QVERIFY(storage.save(folder.path("preset")));
    const QByteArray body = deciphered(read(folder.path("preset"))).value(1);
    QCOMPARE(body.left(body.indexOf("_gendate_:")),
             QByteArray("B=1\na=3\nab=6\nb=2\n\xF0\x9F\x8C\xA1=4\n\xEF\xBF\xA0=5\n"));
}

void TestPresetStorage::fileHasThreeLines()
{
    PresetStorage storage;
    storage.setValue("sender", QString(5000, 'x'));
    const Folder folder;
    QVERIFY(storage.save(folder.path("preset")));
    const QByteArray file = read(folder.path("preset"));
    QCOMPARE(file.count('\n'), 2);
    QVERIFY(!file.endsWith('\n'));
    const QByteArrayList plain = deciphered(file);
    QCOMPARE(plain.value(0), QByteArray("2.0"));
    QCOMPARE(QString::fromUtf8(plain.value(2)), digestText(plain.value(1)));
    // Default modes: compressed where that helps, and a checksum.
    const QByteArrayList lines = file.split('\n');
    QCOMPARE(QByteArray::fromBase64(lines.value(1)).left(2), QByteArray::fromHex("0303"));
    const QByteArray digest = plain.value(2);
    const bool digestCompresses = ReferenceCipher::compress(digest).size() < digest.size();
    QCOMPARE(QByteArray::fromBase64(lines.value(2)).left(2),
             QByteArray::fromHex(digestCompresses ? "0303" : "0302"));
}

void TestPresetStorage::bodyEndsInTheDate_data()
{
    QTest::addColumn<QDate>("date");
    QTest::addColumn<QTime>("time");
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("afternoon") << QDate(2021, 3, 4) << QTime(17, 58, 9) << QByteArray("58170904032021");
    QTest::newRow("after midnight") << QDate(2019, 12, 31) << QTime(0, 1, 2) << QByteArray("01000231122019");
}

void TestPresetStorage::bodyEndsInTheDate()
{
    QFETCH(QDate, date);
    QFETCH(QTime, time);
    QFETCH(QByteArray, line);
    PresetStorage storage;
    storage.setValue("a", "1");
    const Folder folder;
    setClock(date, time);
    QVERIFY(storage.save(folder.path("preset")));
    QCOMPARE(deciphered(read(folder.path("preset"))).value(1), "a=1\n_gendate_:" + line);
}

void TestPresetStorage::twoSavesDiffer()
{
    PresetStorage storage;
    storage.setValue("sender", "Northern Pharma");
    const Folder folder;
    setClock();
    QVERIFY(storage.save(folder.path("first")));
    TestClock::shift(1000);
    QVERIFY(storage.save(folder.path("second")));
    const QByteArrayList first = read(folder.path("first")).split('\n');
    const QByteArrayList second = read(folder.path("second")).split('\n');
    QVERIFY(first.value(1) != second.value(1));
    QVERIFY(first.value(2) != second.value(2));
}

void TestPresetStorage::emptyTableComesBackEmpty()
{
    const Folder folder;
    setClock();
    QVERIFY(PresetStorage().save(folder.path("preset")));
    QCOMPARE(deciphered(read(folder.path("preset"))).value(1), QByteArray("_gendate_:58170904032021"));
    PresetStorage storage;
    QVERIFY(storage.load(folder.path("preset")));
    QCOMPARE(contents(storage), Table());
}

void TestPresetStorage::logTellsFileVersionAndIgnoredLines()
{
    const Folder folder;
    const QString path = folder.file(enciphered("a=1\n\nb\n_gendate_:58170904032021"));
    const LogLines log;
    QVERIFY(PresetStorage().load(path));
    QCOMPARE(log.all(), QStringList({"debug: READING =  \"" + path + "\"", "debug: File version  2 . 0",
                                     "debug: Ignoring line:  \"\"", "debug: Ignoring line:  \"b\"",
                                     "debug: Ignoring line:  \"_gendate_:58170904032021\""}));
}

void TestPresetStorage::versionLineAloneIsAMismatch()
{
    for (const char* text : {"2.0", "2.0\n", "2.0\n\n", "2.0\n\n\n"}) {
        const Folder folder;
        const QString path = folder.file(text);
        const LogLines log;
        QVERIFY(!PresetStorage().load(path));
        QCOMPARE(log.all().mid(1), QStringList({"debug: File version  2 . 0", mismatch}));
    }
}

void TestPresetStorage::plainVersionLineAloneIsAnEmptyTable()
{
    for (const char* text : {"1.0", "1.0\n", "1.0\r\n"}) {
        const Folder folder;
        PresetStorage storage;
        storage.setValue("old", "value");
        QVERIFY(storage.load(folder.file(text)));
        QCOMPARE(contents(storage), Table());
    }
}

void TestPresetStorage::versionsAreJudgedByTheirNumbers_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("logged"); // behind "File version", empty if it doesn't come to that
    QTest::addColumn<bool>("read");
    QTest::newRow("1.0") << QByteArray("1.0") << " 1 . 0" << true;
    QTest::newRow("1.1") << QByteArray("1.1") << " 1 . 1" << false;
    QTest::newRow("3.0") << QByteArray("3.0") << " 3 . 0" << false;
    QTest::newRow("2.1") << QByteArray("2.1") << " 2 . 1" << false;
    QTest::newRow("0.0") << QByteArray("0.0") << " 0 . 0" << false;
    QTest::newRow("-1.0") << QByteArray("-1.0") << " -1 . 0" << false;
    QTest::newRow("no number is 0") << QByteArray("1.x") << " 1 . 0" << true;
    QTest::newRow("nothing is 0") << QByteArray("1.") << " 1 . 0" << true;
    QTest::newRow("no number before the point") << QByteArray("x.0") << " 0 . 0" << false;
    QTest::newRow("blanks and zeros") << QByteArray(" 01.00 ") << " 1 . 0" << true;
    QTest::newRow("base ten only") << QByteArray("0x1.0") << " 0 . 0" << false;
    QTest::newRow("beyond 32 bits") << QByteArray("4294967297.0") << " 0 . 0" << false;
    QTest::newRow("a point alone") << QByteArray(".") << " 0 . 0" << false;
    QTest::newRow("no point") << QByteArray("2") << QString() << false;
    QTest::newRow("no point, 1") << QByteArray("1") << QString() << false;
    QTest::newRow("two points") << QByteArray("1.0.") << QString() << false;
    QTest::newRow("three parts") << QByteArray("1.0.0") << QString() << false;
    QTest::newRow("empty line") << QByteArray("") << QString() << false;
}

void TestPresetStorage::versionsAreJudgedByTheirNumbers()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, logged);
    QFETCH(bool, read);
    const Folder folder;
    const QString path = folder.file(line + "\na=1\n");
    PresetStorage storage;
    const LogLines log;
    QCOMPARE(storage.load(path), read);
    QStringList expected = {"debug: READING =  \"" + path + "\""};
    if (!logged.isEmpty())
        expected.append("debug: File version " + logged);
    QCOMPARE(log.all(), expected);
    QCOMPARE(storage.value("a"), read ? QString("1") : QString());
}

void TestPresetStorage::encipheredFileIsMerged()
{
    const Folder folder;
    PresetStorage storage;
    fill(&storage, {{"startdate", "old"}, {"startdate_en", "1"}, {"aaa", "old"}, {"zzz", "old"}});
    QVERIFY(storage.load(folder.file(enciphered("aaa=new\nstartdate_en=0\n_gendate_:58170904032021"))));
    const Table merged = {{"aaa", "new"}, {"startdate", "old"}, {"startdate_en", "0"}, {"zzz", "old"}};
    QCOMPARE(contents(storage), merged);
}

void TestPresetStorage::refusedFileLeavesTheTable()
{
    const Folder folder;
    PresetStorage storage;
    storage.setValue("a", "old");
    const LogLines log;
    QVERIFY(!storage.load(folder.file(enciphered("a=new\n", "another digest"))));
    QCOMPARE(log.last(), mismatch);
    QVERIFY(!storage.load(folder.file("1.1\na=new\n")));
    QCOMPARE(contents(storage), Table({{"a", "old"}}));
}

void TestPresetStorage::plainFileReplaces()
{
    const Folder folder;
    PresetStorage storage;
    storage.setValue("old", "value");
    QVERIFY(storage.load(folder.file("1.0\na=1\nb=2")));
    QCOMPARE(contents(storage), Table({{"a", "1"}, {"b", "2"}}));
}

QTEST_GUILESS_MAIN(TestPresetStorage)
#include "tst_presetstorage.moc"
