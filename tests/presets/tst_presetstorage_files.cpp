// Files that aren't there, can't be opened, aren't files, or hold anything else.

#include "presets/presetstorage.h"

#include "presetfiles.h"
#include "referencecipher.h"
#include "support/loglines.h"
#include "zlibbomb.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QTest>

#include <unistd.h>

using namespace PresetFiles;

namespace {

/// Permissions don't bind the superuser, as which continuous integration runs.
bool permissionsBind()
{
    return geteuid() != 0;
}

} // namespace

class TestPresetStorageFiles : public QObject
{
    Q_OBJECT

private slots:
    void whatCantBeOpenedIsRefusedInSilence_data();
    void whatCantBeOpenedIsRefusedInSilence();
    void noNameIsRefused();
    void forbiddenFile();
    void unreadableFileIsAFileWithoutVersion();
    void emptyFileHasNoVersion();
    void binaryFilesAreRefused();
    void binaryLinesAreAMismatch();
    void enormousFiles_data();
    void enormousFiles();
    void endlessFileIsRefused();
    void enormousTableComesBack();
    void forgedLengthIsAMismatch_data();
    void forgedLengthIsAMismatch();
    void textTooLongForTheToolkitIsAMismatch();
    void tableTooLongForTheToolkitIsNotSaved();
    void whatCantBeWrittenIsLeftAsItWas_data();
    void whatCantBeWrittenIsLeftAsItWas();
    void writeProtectedFile();
    void longerFileIsReplaced();
    void failedWritingIsNotNoticed();
};

void TestPresetStorageFiles::whatCantBeOpenedIsRefusedInSilence_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("missing") << "missing";
    QTest::newRow("in a missing folder") << "missing/file";
    QTest::newRow("below a file") << "file/below";
    QTest::newRow("a folder") << "folder";
    QTest::newRow("a link to nowhere") << "link";
    QTest::newRow("too long a name") << QString(5000, 'x');
}

void TestPresetStorageFiles::whatCantBeOpenedIsRefusedInSilence()
{
    QFETCH(QString, name);
    const Folder folder;
    folder.file("1.0\na=1\n");
    QVERIFY(QDir().mkdir(folder.path("folder")));
    QVERIFY(QFile::link(folder.path("nowhere"), folder.path("link")));
    PresetStorage storage;
    storage.setValue("a", "old");
    const LogLines log;
    QVERIFY(!storage.load(folder.path(name)));
    QCOMPARE(log.all(), QStringList());
    QCOMPARE(contents(storage), Table({{"a", "old"}}));
}

void TestPresetStorageFiles::noNameIsRefused()
{
    const LogLines log;
    QVERIFY(!PresetStorage().load(QString()));
    QVERIFY(!PresetStorage().save(QString()));
    // The toolkit's own words.
    const QString noName = QStringLiteral("warning: QFSFileEngine::open: No file name specified");
    QCOMPARE(log.all(), QStringList({noName, noName}));
}

void TestPresetStorageFiles::forbiddenFile()
{
    const Folder folder;
    const QString path = folder.file("1.0\na=1\n");
    QVERIFY(QFile::setPermissions(path, {}));
    const LogLines log;
    QCOMPARE(PresetStorage().load(path), !permissionsBind());
    QCOMPARE(log.all().isEmpty(), permissionsBind());
}

void TestPresetStorageFiles::unreadableFileIsAFileWithoutVersion()
{
    // Opens, but nothing is mapped at its start: the reading fails.
    const QString path = QStringLiteral("/proc/self/mem");
    const LogLines log;
    QVERIFY(!PresetStorage().load(path));
    QCOMPARE(log.all(), QStringList("debug: READING =  \"" + path + "\""));
}

void TestPresetStorageFiles::emptyFileHasNoVersion()
{
    const Folder folder;
    const QString path = folder.file("");
    const LogLines log;
    QVERIFY(!PresetStorage().load(path));
    QCOMPARE(log.all(), QStringList("debug: READING =  \"" + path + "\""));
}

void TestPresetStorageFiles::binaryFilesAreRefused()
{
    QRandomGenerator random(4);
    const Folder folder;
    for (int round = 0; round < 200; ++round) {
        QByteArray bytes(static_cast<int>(random.bounded(4000)), Qt::Uninitialized);
        for (char& byte : bytes)
            byte = static_cast<char>(random.generate());
        const QString path = folder.file(bytes);
        PresetStorage storage;
        storage.setValue("a", "old");
        const LogLines log;
        QVERIFY(!storage.load(path));
        QCOMPARE(log.all().first(), "debug: READING =  \"" + path + "\"");
        QCOMPARE(contents(storage), Table({{"a", "old"}}));
    }
}

void TestPresetStorageFiles::binaryLinesAreAMismatch()
{
    QRandomGenerator random(5);
    const Folder folder;
    for (int round = 0; round < 200; ++round) {
        QByteArray bytes(static_cast<int>(random.bounded(4000)), Qt::Uninitialized);
        for (char& byte : bytes)
            byte = static_cast<char>(random.generate());
        const LogLines log;
        QVERIFY(!PresetStorage().load(folder.file("2.0\n" + bytes)));
        QCOMPARE(log.last(), mismatch);
    }
}

void TestPresetStorageFiles::enormousFiles_data()
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

void TestPresetStorageFiles::enormousFiles()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, last);
    const Folder folder;
    const QString path = folder.file(bytes);
    const LogLines log;
    QVERIFY(!PresetStorage().load(path));
    QVERIFY2(log.last().contains(last), qPrintable(log.last()));
}

void TestPresetStorageFiles::endlessFileIsRefused()
{
    // One line, which no text could hold.
    const QString path = QStringLiteral("/dev/zero");
    const LogLines log;
    QVERIFY(!PresetStorage().load(path));
    QCOMPARE(log.all(), QStringList("debug: READING =  \"" + path + "\""));
}

void TestPresetStorageFiles::enormousTableComesBack()
{
    Table table;
    for (int i = 0; i < 50000; ++i)
        table.insert(QString("key %1").arg(i), QString("value %1").arg(i * 7));
    table.insert("long", QString(4 << 20, 'x'));
    QVERIFY(throughAFile(table) == table);
}

void TestPresetStorageFiles::forgedLengthIsAMismatch_data()
{
    QTest::addColumn<QByteArray>("length");
    QTest::addColumn<bool>("readable"); // the toolkit takes too short a length as a hint
    QTest::newRow("nothing") << QByteArray::fromHex("00000000") << true;
    QTest::newRow("one byte") << QByteArray::fromHex("00000001") << true;
    QTest::newRow("a gigabyte") << QByteArray::fromHex("40000000") << true;
    QTest::newRow("as much as there can be") << QByteArray::fromHex("7fffffff") << false;
    QTest::newRow("negative") << QByteArray::fromHex("ffffffff") << false;
}

void TestPresetStorageFiles::forgedLengthIsAMismatch()
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

void TestPresetStorageFiles::textTooLongForTheToolkitIsAMismatch()
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

void TestPresetStorageFiles::tableTooLongForTheToolkitIsNotSaved()
{
    const Folder folder;
    const QString path = folder.file("as it was");
    PresetStorage storage;
    storage.setValue("a", QString(180 << 20, 'x'));
    QVERIFY(!storage.save(path));
    QCOMPARE(read(path), QByteArray("as it was"));
}

void TestPresetStorageFiles::whatCantBeWrittenIsLeftAsItWas_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("in a missing folder") << "missing/file";
    QTest::newRow("below a file") << "file/below";
    QTest::newRow("a folder") << "folder";
    QTest::newRow("too long a name") << QString(5000, 'x');
}

void TestPresetStorageFiles::whatCantBeWrittenIsLeftAsItWas()
{
    QFETCH(QString, name);
    const Folder folder;
    const QString path = folder.file("as it was");
    QVERIFY(QDir().mkdir(folder.path("folder")));
    PresetStorage storage;
    const LogLines log;
    QVERIFY(!storage.save(folder.path(name)));
    QCOMPARE(log.all(), QStringList());
    QCOMPARE(read(path), QByteArray("as it was"));
    QVERIFY(QDir(folder.path("folder")).isEmpty());
}

void TestPresetStorageFiles::writeProtectedFile()
{
    const Folder folder;
    const QString path = folder.file("as it was");
    QVERIFY(QFile::setPermissions(path, QFile::ReadOwner));
    QCOMPARE(PresetStorage().save(path), !permissionsBind());
    QCOMPARE(read(path) == "as it was", permissionsBind());
}

void TestPresetStorageFiles::longerFileIsReplaced()
{
    const Folder folder;
    const QString path = folder.file(QByteArray(10000, 'x'));
    QVERIFY(PresetStorage().save(path));
    QVERIFY(read(path).size() < 200);
    QVERIFY(PresetStorage().load(path));
}

void TestPresetStorageFiles::failedWritingIsNotNoticed()
{
    QVERIFY(PresetStorage().save("/dev/full"));
}

QTEST_GUILESS_MAIN(TestPresetStorageFiles)
#include "tst_presetstorage_files.moc"
