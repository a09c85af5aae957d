// Files in tests/data that no build of the program made: what users have must stay readable.

#include "presets/presetstorage.h"

#include "presetfiles.h"

#include <QTest>

using namespace PresetFiles;

namespace {

Table presetOfEverything()
{
    return {
        {"buttonlock", "1"},
        {"info", "Impfstoffe, k\u00fchl lagern \u2013 2 bis 8 \u00b0C"},
        {"maxtemp", "8.5"},
        {"mintemp", "-2"},
        {"password", "geheim"},
        {"policies", "1027"},
        {"recipient", "\u533b\u9662 \U0001F321"},
        {"samplet", "300"},
        {"sender", "Northern Pharma"},
        {"startdate", "08:15:00 24/12/2021"},
        {"startdate_en", "1"},
        {"startdl", "900"},
        {"stopdate", "18:30:00 06/01/2022"},
        {"stopdate_en", "1"},
        {"timezone", "GMT+1:00"},
        {"type", " "},
    };
}

QString data(const char* name)
{
    return QStringLiteral(TEST_DATA "/") + QLatin1String(name);
}

} // namespace

class TestPresetStorageGolden : public QObject
{
    Q_OBJECT

private slots:
    void encipheredFile();
    void plainFile();
};

void TestPresetStorageGolden::encipheredFile()
{
    PresetStorage storage;
    QVERIFY(storage.load(data("version-2.0.bpr")));
    QCOMPARE(contents(storage), presetOfEverything());
}

void TestPresetStorageGolden::plainFile()
{
    PresetStorage storage;
    storage.setValue("old", "value");
    QVERIFY(storage.load(data("version-1.0.bpr")));
    // Its fields are of ASCII, so that it reads alike in every locale.
    const Table expected = {{"mintemp", "2"},
                            {"maxtemp", "8"},
                            {"samplet", "600"},
                            {"startdl", "0"},
                            {"sender", "Northern Pharma"},
                            {"type", "Air"},
                            {"info", "ab"},
                            {"recipient", ""}};
    QCOMPARE(contents(storage), expected);
}

QTEST_GUILESS_MAIN(TestPresetStorageGolden)
#include "tst_presetstorage_golden.moc"
