// The automatic dates in presets: figures on a clock, on or off, and what is left of them.

#include "dialogs/advancedoptionsdialog.h"
#include "extendedrig.h"
#include "presetrig.h"
#include "support/environmentvariable.h"
#include "support/loglines.h"
#include "support/nextchance.h"

#include <QAbstractButton>
#include <QTest>

namespace {

const QString someDate = QStringLiteral("03:04:05 01/02/2031");

/// One of the two dates, and how a rig tells it.
struct Which
{
    QString enableKey;
    QString key;
    const char* box;
    QString (*shown)(const WindowRig& rig);
    QString before;     ///< as secureLogger() has it
    QDateTime proposal; ///< two hours ahead of Greenwich at noon of the rig's day
};

const QDateTime noon(QDate(2024, 5, 15), QTime(12, 0), Qt::UTC);
const Which start{
    QStringLiteral("startdate_en"),           QStringLiteral("startdate"), "checkStartDate", startDate,
    QStringLiteral("on 08:00:00 16/05/2024"), noon.addSecs(8 * 3600)};
const Which stop{QStringLiteral("stopdate_en"),
                 QStringLiteral("stopdate"),
                 "checkStopDate",
                 stopDate,
                 QStringLiteral("on 09:00:00 20/05/2024"),
                 noon.addSecs(26 * 3600)};

/// Switches the date on in its dialog and tells what is then beside it.
QString switchedOn(const PresetRig& rig, const Which& which)
{
    AdvancedOptionsDialog* dialog = rig.options();
    auto* box = dialog->findChild<QAbstractButton*>(QLatin1String(which.box));
    QString text;
    atNextChance(dialog, [&] {
        box->click();
        text = box->text();
        dialog->reject();
    });
    rig.press("buttonAdvanced");
    return text.section(QStringLiteral(": "), 1);
}

} // namespace

class TestMainWindowPresetsDates : public QObject
{
    Q_OBJECT

private slots:
    void either_data();
    void either();
    void switchedOffIsReset_data();
    void switchedOffIsReset();
    void computersZoneDoesNotMatter_data();
    void computersZoneDoesNotMatter();
    void oldDateStaysInTheFile_data();
    void oldDateStaysInTheFile();
    void logsWhatItReads();
    void readsNoMissingDate();
};

void TestMainWindowPresetsDates::either_data()
{
    QTest::addColumn<bool>("isStart");
    QTest::addColumn<PresetTable>("preset");
    QTest::addColumn<QString>("shown");
    for (const bool isStart : {true, false}) {
        const Which& which = isStart ? start : stop;
        const auto row = [&](const char* name, const PresetTable& preset, const QString& shown) {
            QTest::addRow("%s, %s", qPrintable(which.key), name) << isStart << preset << shown;
        };
        const auto dated = [&](const QString& date) {
            return PresetTable{{which.enableKey, QStringLiteral("1")}, {which.key, date}};
        };
        const QString off = QStringLiteral("off");
        row("on", dated(someDate), QStringLiteral("on ") + someDate);
        row("past", dated("00:00:00 01/01/1999"), QStringLiteral("on 00:00:00 01/01/1999"));
        row("another number", {{which.enableKey, "-7"}, {which.key, someDate}},
            QStringLiteral("on ") + someDate);
        row("off", {{which.enableKey, "0"}, {which.key, someDate}}, off);
        row("no number", {{which.enableKey, "yes"}, {which.key, someDate}}, off);
        row("empty", {{which.enableKey, ""}, {which.key, someDate}}, off);
        row("on without a date", {{which.enableKey, "1"}}, off);
        row("on with an empty date", dated(""), off);
        row("no enable key", {{which.key, someDate}}, which.before);
        row("neither key", {}, which.before);
        row("short year", dated("03:04:05 01/02/31"), off);
        row("no such day", dated("03:04:05 30/02/2031"), off);
        row("no such hour", dated("24:00:00 01/02/2031"), off);
        row("a blank behind", dated(someDate + QLatin1Char(' ')), off);
        row("month in letters", dated("03:04:05 01/Feb/2031"), off);
    }
}

// The other date is as before: nothing is said about it.
void TestMainWindowPresetsDates::either()
{
    QFETCH(const bool, isStart);
    QFETCH(const PresetTable, preset);
    PresetRig rig;
    rig.plugAndConnect(secureLogger());
    rig.apply(preset);
    QTEST((isStart ? start : stop).shown(rig), "shown");
    const Which& other = isStart ? stop : start;
    QCOMPARE(other.shown(rig), other.before);
    QCOMPARE(rig.status(), QStringLiteral("Loaded default.bpr"));
    QCOMPARE(rig.robot.problems(), QString());
}

void TestMainWindowPresetsDates::switchedOffIsReset_data()
{
    QTest::addColumn<bool>("isStart");
    QTest::addColumn<QString>("enabled");
    QTest::addColumn<QString>("date");
    for (const bool isStart : {true, false}) {
        const char* name = isStart ? "start" : "stop";
        QTest::addRow("%s, off", name) << isStart << "0" << someDate;
        QTest::addRow("%s, no date", name) << isStart << "1"
                                           << "tomorrow";
    }
}

void TestMainWindowPresetsDates::switchedOffIsReset()
{
    QFETCH(const bool, isStart);
    QFETCH(const QString, enabled);
    QFETCH(const QString, date);
    const Which& which = isStart ? start : stop;
    PresetRig rig;
    rig.plugAndConnect(secureLogger());
    rig.apply({{which.enableKey, enabled}, {which.key, date}});
    QCOMPARE(switchedOn(rig, which),
             which.proposal.toString(QStringLiteral("hh:mm dd/MMM/yyyy' (GMT+2:00)'")));
}

void TestMainWindowPresetsDates::computersZoneDoesNotMatter_data()
{
    QTest::addColumn<QByteArray>("savedIn");
    QTest::addColumn<QByteArray>("loadedIn");
    QTest::newRow("one") << QByteArray("UTC") << QByteArray("UTC");
    QTest::newRow("west and east") << QByteArray("<-11>11") << QByteArray("<+1345>-13:45");
    QTest::newRow("east and west") << QByteArray("<+1345>-13:45") << QByteArray("<-11>11");
}

void TestMainWindowPresetsDates::computersZoneDoesNotMatter()
{
    QFETCH(const QByteArray, savedIn);
    QFETCH(const QByteArray, loadedIn);
    PresetRig rig;
    rig.plugAndConnect(secureLogger());
    {
        const LocalZone zone(savedIn);
        rig.save(rig.document(QStringLiteral("own")));
    }
    rig.options()->lSetStartDate(false, QDateTime());
    rig.options()->lSetStopDate(false, QDateTime());
    const LocalZone zone(loadedIn);
    rig.load(rig.document(QStringLiteral("own.bpr")));
    QCOMPARE(startDate(rig), start.before);
    QCOMPARE(stopDate(rig), stop.before);
    rig.press("buttonWrite");
    QVERIFY(rig.wire().contains("Sa1715846400"));
    QVERIFY(rig.wire().contains("Sp1716195600"));
}

void TestMainWindowPresetsDates::oldDateStaysInTheFile_data()
{
    QTest::addColumn<bool>("isStart");
    QTest::newRow("start") << true;
    QTest::newRow("stop") << false;
}

void TestMainWindowPresetsDates::oldDateStaysInTheFile()
{
    QFETCH(const bool, isStart);
    const Which& which = isStart ? start : stop;
    PresetRig rig;
    rig.plugAndConnect(secureLogger());
    rig.apply({{which.enableKey, QStringLiteral("1")}, {which.key, someDate}});
    if (isStart)
        rig.options()->lSetStartDate(false, QDateTime());
    else
        rig.options()->lSetStopDate(false, QDateTime());
    rig.save(rig.document(QStringLiteral("own")));
    const PresetTable saved = presetIn(rig.document(QStringLiteral("own.bpr")));
    QCOMPARE(saved.value(which.enableKey), QStringLiteral("0"));
    QCOMPARE(saved.value(which.key), someDate);

    rig.press("buttonRead");
    QCOMPARE(which.shown(rig), which.before);
    rig.load(rig.document(QStringLiteral("own.bpr")));
    QCOMPARE(which.shown(rig), QStringLiteral("off"));
}

// The text of the first date only.
void TestMainWindowPresetsDates::logsWhatItReads()
{
    PresetRig rig;
    rig.plugAndConnect(secureLogger());
    writePreset(defaultPreset, {{start.enableKey, QStringLiteral("1")},
                                {start.key, QStringLiteral("tomorrow")},
                                {stop.enableKey, QStringLiteral("1")},
                                {stop.key, QStringLiteral("never")}});
    const LogLines log;
    rig.press("buttonPreset");
    QCOMPARE(log.all().filter(QStringLiteral("date/time")),
             QStringList({"debug: Got date/time string: \"tomorrow\"",
                          "debug: Read date/time from file: QDateTime(Invalid)",
                          "debug: Read date/time from file: QDateTime(Invalid)"}));
}

void TestMainWindowPresetsDates::readsNoMissingDate()
{
    PresetRig rig;
    rig.plugAndConnect(secureLogger());
    writePreset(defaultPreset,
                {{start.enableKey, QStringLiteral("1")}, {stop.enableKey, QStringLiteral("1")}});
    const LogLines log;
    rig.press("buttonPreset");
    QCOMPARE(log.all().filter(QStringLiteral("date/time")), QStringList());
}

QTEST_MAIN(TestMainWindowPresetsDates)
#include "tst_mainwindow_presets_dates.moc"
