// The transliteration: its whole table, and everything that it must leave alone.

#include "app/devicetext.h"

#include <QStringList>
#include <QTest>

namespace {

// The table as two parallel sequences, written out here a second time.
const QString letters =
    QStringLiteral("ŠŒŽšœžŸ¥µÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏÐÑÒÓÔÕÖØÙÚÛÜÝßàáâãäåæçèéêëìíîïðñòóôõöøùúûüýÿ");
const QStringList replacements = {
    "S", "OE", "Z", "s", "oe", "z", "Y",  "Y", "u", // Š to µ
    "A", "A",  "A", "A", "A",  "A", "AE", "C",      // À to Ç
    "E", "E",  "E", "E", "I",  "I", "I",  "I",      // È to Ï
    "D", "N",  "O", "O", "O",  "O", "O",  "O",      // Ð to Ø
    "U", "U",  "U", "U", "Y",  "s",                 // Ù to ß
    "a", "a",  "a", "a", "a",  "a", "ae", "c",      // à to ç
    "e", "e",  "e", "e", "i",  "i", "i",  "i",      // è to ï
    "o", "n",  "o", "o", "o",  "o", "o",  "o",      // ð to ø
    "u", "u",  "u", "u", "y",  "y",                 // ù to ÿ
};
constexpr int tableLength = 69;
constexpr int codeUnits = 0x10000;

} // namespace

class TestDeviceText : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void letter_data();
    void letter();
    void allLettersInOneText();
    void text_data();
    void text();
    void growingText();
    void leavesEverythingElse();
    void isIdempotent();
};

void TestDeviceText::initTestCase()
{
    QCOMPARE(letters.size(), tableLength);
    QCOMPARE(replacements.size(), tableLength);
}

void TestDeviceText::letter_data()
{
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("expected");
    for (int i = 0; i < tableLength; ++i)
        QTest::addRow("%s", qUtf8Printable(letters.mid(i, 1))) << letters.mid(i, 1) << replacements.at(i);
}

void TestDeviceText::letter()
{
    QFETCH(const QString, given);
    QFETCH(const QString, expected);
    QCOMPARE(transliterated(given), expected);
}

void TestDeviceText::allLettersInOneText()
{
    QCOMPARE(transliterated(letters), replacements.join(QString()));
}

void TestDeviceText::text_data()
{
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("expected");
    const auto unchanged = [](const char* name, const QString& text) { QTest::newRow(name) << text << text; };

    unchanged("empty", QStringLiteral(""));
    QTest::newRow("blanks pass") << "Çà ñ"
                                 << "Ca n";
    QTest::newRow("sharp s is one letter") << "Straße"
                                           << "Strase";
    QTest::newRow("ligature first") << "Œuvre"
                                    << "OEuvre";
    QTest::newRow("ligature last") << "Ægæ"
                                   << "AEgae";
    QTest::newRow("two eths") << "Ðð"
                              << "Do";
    QTest::newRow("signs of the table") << "5 ¥, 3 µm"
                                        << "5 Y, 3 um";
    QTest::newRow("between other scripts") << "Жé°Ωü"
                                           << "Жe°Ωu";
    unchanged("Cyrillic", QStringLiteral("Аптека на углу, Ёлки"));
    unchanged("Greek", QStringLiteral("Φάρμακα μΩ"));
    unchanged("signs of Latin 1 outside the table", QStringLiteral("°×÷±²³¼©®«»¿¡§"));
    unchanged("letters of Latin 1 outside the table", QStringLiteral("Þþªº"));
    unchanged("Latin letters outside the table", QStringLiteral("łŁćČřŘőŰẞ"));
    unchanged("combining accent", QStringLiteral("e\u0301"));
    unchanged("surrogate pairs", QString::fromUtf8("\xF0\x9F\x98\x80 \xF0\x9D\x84\x9E"));
    unchanged("half surrogate pairs", QString(QChar(0xD83D)) + QLatin1Char('x') + QChar(0xDE00));
    unchanged("control characters", QStringLiteral("\t\r\n\x1B\x7F"));
    unchanged("zero in the middle", QString(QLatin1String("a\0b", 3)));
}

void TestDeviceText::text()
{
    QFETCH(const QString, given);
    QFETCH(const QString, expected);
    QCOMPARE(transliterated(given), expected);
}

void TestDeviceText::growingText()
{
    QCOMPARE(transliterated(QStringLiteral("Œuvre")).size(), 6);
    QCOMPARE(transliterated(QString(60, QChar(0xC6))), QStringLiteral("AE").repeated(60));
}

void TestDeviceText::leavesEverythingElse()
{
    QString changed;
    for (int unit = 0; unit < codeUnits; ++unit) {
        const QString text = QChar(unit);
        if (transliterated(text) != text)
            changed += text;
    }
    QString expected = letters;
    std::sort(expected.begin(), expected.end());
    QCOMPARE(changed, expected);
}

void TestDeviceText::isIdempotent()
{
    QString everything;
    for (int unit = 0; unit < codeUnits; ++unit)
        everything += QChar(unit);
    const QString once = transliterated(everything);
    QVERIFY(once != everything);
    QCOMPARE(transliterated(once), once);
}

QTEST_GUILESS_MAIN(TestDeviceText)
#include "tst_devicetext.moc"
