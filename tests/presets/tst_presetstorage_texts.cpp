// Tables of any text: what comes back is what was saved, but for what the format loses.

#include "presets/presetstorage.h"

#include "presetfiles.h"
#include "support/loglines.h"
#include "support/testclock.h"

#include <QRandomGenerator>
#include <QTest>

#include <array>

using namespace PresetFiles;

namespace {

constexpr int rounds = 300;
constexpr int mostEntries = 40;
constexpr int longestText = 60;

/// A character of one or two code units, from the sets that differ in UTF-8; no surrogate by itself.
QString randomCharacter(QRandomGenerator* random)
{
    static constexpr std::array<uint, 5> ends = {0x20, 0x80, 0x800, 0xd800, 0x110000};
    const uint end = ends.at(random->bounded(static_cast<int>(ends.size())));
    const uint code = random->bounded(end);
    const bool isSurrogate = code >= 0xd800 && code < 0xe000;
    return isSurrogate ? QStringLiteral("=") : QString::fromUcs4(&code, 1);
}

QString randomText(QRandomGenerator* random)
{
    QString text;
    for (int length = random->bounded(longestText); length > 0; --length)
        text.append(randomCharacter(random));
    return text;
}

Table randomTable(QRandomGenerator* random)
{
    Table table;
    for (int count = random->bounded(mostEntries); count > 0; --count)
        table.insert(randomText(random), randomText(random));
    return table;
}

/// What the format leaves of @p table, by its rules for lines.
Table withoutTheLost(const Table& table)
{
    Table left;
    for (auto entry = table.cbegin(); entry != table.cend(); ++entry) {
        const QStringList lines = (entry.key() + '=' + entry.value()).split('\n');
        for (const QString& line : lines) {
            const QStringList parts = line.split('=');
            if (parts.size() >= 2)
                left.insert(parts.first(), parts.mid(1).join(QString()));
        }
    }
    return left;
}

} // namespace

class TestPresetStorageTexts : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { TestClock::reset(); }

    void textOutsideAsciiSurvives();
    void randomTablesSurvive();
    void surrogatesAloneAreLost();
    void orderMarkAtTheStartSurvives();
    void dateIsInDigitsOfAscii();
};

void TestPresetStorageTexts::textOutsideAsciiSurvives()
{
    const Table table = {{"sender", "Gr\u00fc\u00dfe"}, {"\u4e2d\u6587", "\U0001F321"}, {"zero", QChar(0)}};
    QCOMPARE(throughAFile(table), table);
}

void TestPresetStorageTexts::randomTablesSurvive()
{
    QRandomGenerator random(3);
    const Folder folder;
    const LogLines silenced;
    for (int round = 0; round < rounds; ++round) {
        const Table table = randomTable(&random);
        PresetStorage saved;
        fill(&saved, table);
        QVERIFY(saved.save(folder.path("preset")));
        PresetStorage loaded;
        QVERIFY(loaded.load(folder.path("preset")));
        const Table expected = withoutTheLost(table);
        QCOMPARE(contents(loaded), expected);
        for (auto entry = expected.cbegin(); entry != expected.cend(); ++entry) {
            QVERIFY(loaded.contains(entry.key()));
            QCOMPARE(loaded.value(entry.key()), entry.value());
        }
    }
}

void TestPresetStorageTexts::surrogatesAloneAreLost()
{
    QCOMPARE(throughAFile({{"a", QString("x") + QChar(0xd83c) + 'y'}}), Table({{"a", "x?y"}}));
}

void TestPresetStorageTexts::orderMarkAtTheStartSurvives()
{
    const Table table = {{"\ufeffkey", "value"}};
    QCOMPARE(throughAFile(table), table);
}

// Also run in a Persian locale, whose own digits are others.
void TestPresetStorageTexts::dateIsInDigitsOfAscii()
{
    const Folder folder;
    setClock();
    QVERIFY(PresetStorage().save(folder.path("preset")));
    QCOMPARE(deciphered(read(folder.path("preset"))).value(1), QByteArray("_gendate_:58170904032021"));
}

QTEST_GUILESS_MAIN(TestPresetStorageTexts)
#include "tst_presetstorage_texts.moc"
