// How a line becomes an entry, in both versions; and how a plain file's bytes become lines.

#include "presets/presetstorage.h"

#include "presetfiles.h"
#include "support/loglines.h"

#include <QRandomGenerator>
#include <QTest>
#include <QTextCodec>

using namespace PresetFiles;

namespace {

/// The codec that plain files are read with, for as long as it lives.
class LocaleCodec
{
public:
    explicit LocaleCodec(const char* name)
        : former(QTextCodec::codecForLocale())
    {
        QTextCodec::setCodecForLocale(QTextCodec::codecForName(name));
    }
    ~LocaleCodec() { QTextCodec::setCodecForLocale(former); }
    LocaleCodec(const LocaleCodec&) = delete;
    LocaleCodec& operator=(const LocaleCodec&) = delete;

private:
    QTextCodec* former;
};

} // namespace

Q_DECLARE_METATYPE(PresetFiles::Table)

class TestPresetStorageLines : public QObject
{
    Q_OBJECT

private slots:
    void linesBecomeEntries_data();
    void linesBecomeEntries();
    void valuesLoseTheirSeparators();
    void keysEndAtTheirSeparator();
    void lineFeedsSplitLines();
    void endsOfLinesMayBeWindowsOwn();
    void carriageReturnsArePassedOverInCipherTexts();
    void carriageReturnsInValuesSurvive();
    void plainFilesAreInTheLocalesCodec();
    void plainFilesMayBeMarkedUnicode();
};

void TestPresetStorageLines::linesBecomeEntries_data()
{
    QTest::addColumn<QByteArray>("lines");
    QTest::addColumn<Table>("table");
    QTest::addColumn<QStringList>("ignored");
    QTest::newRow("an entry") << QByteArray("a=1") << Table({{"a", "1"}}) << QStringList();
    QTest::newRow("an empty value") << QByteArray("a=") << Table({{"a", ""}}) << QStringList();
    QTest::newRow("an empty key") << QByteArray("=1") << Table({{"", "1"}}) << QStringList();
    QTest::newRow("a separator alone") << QByteArray("=") << Table({{"", ""}}) << QStringList();
    QTest::newRow("separators alone") << QByteArray("===") << Table({{"", ""}}) << QStringList();
    QTest::newRow("separators in the value")
        << QByteArray("a==b=c=") << Table({{"a", "bc"}}) << QStringList();
    QTest::newRow("nothing is trimmed")
        << QByteArray(" a\t = 1 ") << Table({{" a\t ", " 1 "}}) << QStringList();
    QTest::newRow("case counts") << QByteArray("a=1\nA=2") << Table({{"a", "1"}, {"A", "2"}})
                                 << QStringList();
    QTest::newRow("the last one wins")
        << QByteArray("b=1\na=1\nb=2\na=\nb=3") << Table({{"a", ""}, {"b", "3"}}) << QStringList();
    QTest::newRow("any order") << QByteArray("c=3\na=1\nb=2") << Table({{"a", "1"}, {"b", "2"}, {"c", "3"}})
                               << QStringList();
    QTest::newRow("no separator") << QByteArray("a=1\nb\nc=3") << Table({{"a", "1"}, {"c", "3"}})
                                  << QStringList("b");
    QTest::newRow("an empty line") << QByteArray("\na=1") << Table({{"a", "1"}}) << QStringList("");
    QTest::newRow("the date") << QByteArray("_gendate_:58170904032021") << Table()
                              << QStringList("_gendate_:58170904032021");
    QTest::newRow("the date's mark as a key")
        << QByteArray("_gendate_:=1") << Table({{"_gendate_:", "1"}}) << QStringList();
}

void TestPresetStorageLines::linesBecomeEntries()
{
    QFETCH(QByteArray, lines);
    QFETCH(Table, table);
    QFETCH(QStringList, ignored);
    QStringList expected("debug: File version  1 . 0");
    for (const QString& line : ignored)
        expected.append("debug: Ignoring line:  \"" + line + "\"");

    const Folder folder;
    const LogLines log;
    PresetStorage plain;
    QVERIFY(plain.load(folder.file("1.0\n" + lines)));
    QCOMPARE(log.all().mid(1), expected);
    QCOMPARE(contents(plain), table);

    PresetStorage storage;
    expected[0] = "debug: File version  2 . 0";
    const QString path = folder.file(enciphered(lines));
    const LogLines secondLog;
    QVERIFY(storage.load(path));
    QCOMPARE(secondLog.all().mid(1), expected);
    QCOMPARE(contents(storage), table);
}

void TestPresetStorageLines::valuesLoseTheirSeparators()
{
    QCOMPARE(throughAFile({{"password", "a=b"}, {"info", "=x==y="}, {"sender", "="}}),
             Table({{"password", "ab"}, {"info", "xy"}, {"sender", ""}}));
}

void TestPresetStorageLines::keysEndAtTheirSeparator()
{
    QCOMPARE(throughAFile({{"a=b", "c"}}), Table({{"a", "bc"}}));
}

void TestPresetStorageLines::lineFeedsSplitLines()
{
    const Folder folder;
    PresetStorage saved;
    fill(&saved, {{"a", "1\n2\nb=3"}, {"c\nd", "4"}});
    QVERIFY(saved.save(folder.path("preset")));
    PresetStorage loaded;
    const LogLines log;
    QVERIFY(loaded.load(folder.path("preset")));
    QCOMPARE(log.all().mid(2, 2),
             QStringList({"debug: Ignoring line:  \"2\"", "debug: Ignoring line:  \"c\""}));
    QCOMPARE(contents(loaded), Table({{"a", "1"}, {"b", "3"}, {"d", "4"}}));
}

void TestPresetStorageLines::endsOfLinesMayBeWindowsOwn()
{
    const Folder folder;
    PresetStorage plain;
    QVERIFY(plain.load(folder.file("1.0\r\na=1\r\nb=2\r\n")));
    QCOMPARE(contents(plain), Table({{"a", "1"}, {"b", "2"}}));
    PresetStorage storage;
    QVERIFY(storage.load(folder.file(enciphered("a=1\n").replace("\n", "\r\n"))));
    QCOMPARE(contents(storage), Table({{"a", "1"}}));
}

void TestPresetStorageLines::carriageReturnsArePassedOverInCipherTexts()
{
    constexpr int manyTimesTheStreamsBuffer = 200000;
    QRandomGenerator random(6);
    QByteArray value;
    while (value.size() < manyTimesTheStreamsBuffer)
        value.append(static_cast<char>('a' + random.bounded(26)));
    const QByteArray file = enciphered("a=" + value).replace("A", "\rA\r").replace("\n", "\r\r\n");
    QVERIFY(file.size() > manyTimesTheStreamsBuffer / 2);
    const Folder folder;
    PresetStorage storage;
    QVERIFY(storage.load(folder.file(file)));
    QCOMPARE(contents(storage), Table({{"a", value}}));
}

void TestPresetStorageLines::carriageReturnsInValuesSurvive()
{
    const Folder folder;
    PresetStorage saved;
    saved.setValue("info", "one\rtwo\r");
    QVERIFY(saved.save(folder.path("preset")));
    PresetStorage loaded;
    QVERIFY(loaded.load(folder.path("preset")));
    QCOMPARE(loaded.value("info"), QString("one\rtwo\r"));
}

void TestPresetStorageLines::plainFilesAreInTheLocalesCodec()
{
    const Folder folder;
    const QString path = folder.file("1.0\nsender=Gr\xc3\xbc\xc3\x9f"
                                     "e\n");
    PresetStorage storage;
    {
        const LocaleCodec codec("UTF-8");
        QVERIFY(storage.load(path));
        QCOMPARE(storage.value("sender"), QStringLiteral("Gr\u00fc\u00dfe"));
    }
    const LocaleCodec codec("ISO-8859-1");
    QVERIFY(storage.load(path));
    QCOMPARE(storage.value("sender"), QStringLiteral("Gr\u00c3\u00bc\u00c3\u009fe"));
}

void TestPresetStorageLines::plainFilesMayBeMarkedUnicode()
{
    // Begins with its mark.
    const QByteArray utf16 =
        QTextCodec::codecForName("UTF-16LE")->fromUnicode(QStringLiteral("1.0\nsender=\u4e2d\u6587\n"));
    QVERIFY(utf16.startsWith("\xff\xfe"));
    const Folder folder;
    PresetStorage storage;
    QVERIFY(storage.load(folder.file(utf16)));
    QCOMPARE(storage.value("sender"), QStringLiteral("\u4e2d\u6587"));
}

QTEST_GUILESS_MAIN(TestPresetStorageLines)
#include "tst_presetstorage_lines.moc"
