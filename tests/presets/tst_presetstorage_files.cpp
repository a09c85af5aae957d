// Files that aren't there, can't be opened, aren't files, or hold anything else.

#include "presets/presetstorage.h"

#include "presetfiles.h"
#include "support/loglines.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QTest>

#include <sys/resource.h>
#include <unistd.h>

using namespace PresetFiles;

namespace {

QByteArray randomBytes(QRandomGenerator* random)
{
    QByteArray bytes(static_cast<int>(random->bounded(4000)), Qt::Uninitialized);
    for (char& byte : bytes)
        byte = static_cast<char>(random->generate());
    return bytes;
}

/// Permissions don't bind the superuser, as which continuous integration runs.
bool permissionsBind()
{
    return geteuid() != 0;
}

/// As long as it lives, the process can open no file.
class NoMoreFiles
{
public:
    NoMoreFiles()
    {
        getrlimit(RLIMIT_NOFILE, &before);
        const rlimit none = {0, before.rlim_max};
        setrlimit(RLIMIT_NOFILE, &none);
    }
    ~NoMoreFiles() { setrlimit(RLIMIT_NOFILE, &before); }
    NoMoreFiles(const NoMoreFiles&) = delete;
    NoMoreFiles& operator=(const NoMoreFiles&) = delete;

private:
    rlimit before{};
};

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
    void plainFileOfBinaryLines();
    void whatCantBeWrittenIsLeftAsItWas_data();
    void whatCantBeWrittenIsLeftAsItWas();
    void writeProtectedFile();
    void whileNoFileCanBeOpened();
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
        const QString path = folder.file(randomBytes(&random));
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
        const LogLines log;
        QVERIFY(!PresetStorage().load(folder.file("2.0\n" + randomBytes(&random))));
        QCOMPARE(log.last(), mismatch);
    }
}

// Version 1.0 has nothing to tell a damaged file by.
void TestPresetStorageFiles::plainFileOfBinaryLines()
{
    QRandomGenerator random(6);
    const Folder folder;
    const LogLines silenced;
    for (int round = 0; round < 200; ++round) {
        PresetStorage storage;
        storage.setValue("old", "value");
        QVERIFY(storage.load(folder.file("1.0\n" + randomBytes(&random) + "\n\na=1")));
        QVERIFY(!storage.contains("old"));
        QCOMPARE(storage.value("a"), QString("1"));
    }
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

// Unlike permissions, this binds everybody.
void TestPresetStorageFiles::whileNoFileCanBeOpened()
{
    const Folder folder;
    const QByteArray before = "1.0\na=1\n";
    const QString path = folder.file(before);
    PresetStorage storage;
    storage.setValue("a", "old");
    const LogLines log;
    {
        const NoMoreFiles noMoreFiles;
        QVERIFY(!storage.load(path));
        QVERIFY(!storage.save(path));
    }
    QCOMPARE(log.all(), QStringList());
    QCOMPARE(read(path), before);
    QCOMPARE(contents(storage), Table({{"a", "old"}}));
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
