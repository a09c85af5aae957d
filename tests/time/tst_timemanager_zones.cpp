// The time-zone table and the look-ups in it, also against a plain model of them.

#include "time/timemanager.h"

#include "support/environmentvariable.h"
#include "support/testclock.h"

#include <QRegularExpression>
#include <QTest>

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <vector>

namespace {

struct Zone
{
    const char* name;
    int offset;
};

// Written down a second time, on purpose: names, offsets and order are what files and devices hold.
const std::vector<Zone> expectedZones = {
    {"GMT", 0},           {"GMT+1:00", 3600},    {"GMT+2:00", 7200},
    {"GMT+3:00", 10800},  {"GMT+3:30", 12600},   {"GMT+4:00", 14400},
    {"GMT+5:00", 18000},  {"GMT+5:30", 19800},   {"GMT+6:00", 21600},
    {"GMT+7:00", 25200},  {"GMT+8:00", 28800},   {"GMT+9:00", 32400},
    {"GMT+9:30", 34200},  {"GMT+10:00", 36000},  {"GMT+11:00", 39600},
    {"GMT+12:00", 43200}, {"GMT-11:00", -39600}, {"GMT-10:00", -36000},
    {"GMT-9:00", -32400}, {"GMT-8:00", -28800},  {"GMT-7:00", -25200},
    {"GMT-6:00", -21600}, {"GMT-5:00", -18000},  {"GMT-4:00", -14400},
    {"GMT-3:30", -12600}, {"GMT-3:00", -10800},  {"GMT-1:00", -3600},
};

/// Name of the nearest row, found by sorting rather than by walking; empty for none.
QString modelMatch(int offset)
{
    std::vector<Zone> byDistance = expectedZones;
    const auto distance = [offset](const Zone& zone) { return std::abs(offset - zone.offset); };
    std::stable_sort(byDistance.begin(), byDistance.end(),
                     [&](const Zone& a, const Zone& b) { return distance(a) < distance(b); });
    return distance(byDistance.front()) < 43200 ? byDistance.front().name : "";
}

} // namespace

class TestTimeManagerZones : public QObject
{
    Q_OBJECT

private slots:
    void init() { TestClock::set(reference.toMSecsSinceEpoch()); }
    void cleanup() { TestClock::reset(); }

    void tableHasItsRowsInOrder();
    void emptyResult();
    void nearestOffset_data();
    void nearestOffset();
    void everyOffsetAgainstTheModel();
    void offsetsBeyondAnyDay();
    void offsetWithoutAMatchIsLogged();
    void deviceClock_data();
    void deviceClock();
    void everyDeviceClockAgainstTheModel();
    void deviceClockIsLogged();
    void deviceClockWithoutAMatchIsLogged();
    void rowByName();

private:
    const LocalZone zone{"Asia/Kolkata"}; // nothing here may depend on it
    const QDateTime reference{QDate(2026, 3, 1), QTime(0, 10, 20), Qt::UTC};
};

void TestTimeManagerZones::tableHasItsRowsInOrder()
{
    const TimeManager manager(nullptr);
    const QList<TimeZoneMatch>& zones = manager.timeZones();
    QCOMPARE(zones.size(), int(expectedZones.size()));
    for (int i = 0; i < zones.size(); i++) {
        QCOMPARE(zones.at(i).name, QString(expectedZones[i].name));
        QCOMPARE(zones.at(i).offset, expectedZones[i].offset);
        QCOMPARE(zones.at(i).description, QString());
        QCOMPARE(zones.at(i).id, 0);
    }
}

void TestTimeManagerZones::emptyResult()
{
    const TimeZoneMatch none;
    QCOMPARE(none.name, QString());
    QCOMPARE(none.description, QString());
    QCOMPARE(none.offset, 0);
    QCOMPARE(none.id, -1);
}

void TestTimeManagerZones::nearestOffset_data()
{
    QTest::addColumn<int>("offset");
    QTest::addColumn<QString>("name");

    QTest::newRow("no row two hours west: the earlier neighbour") << -7200 << "GMT-3:00";
    QTest::newRow("half-way between the first two") << 1800 << "GMT";
    QTest::newRow("half-way to the west") << -1800 << "GMT";
    QTest::newRow("twelve hours west") << -43200 << "GMT-11:00";
    QTest::newRow("a day east") << 86400 << "";
    QTest::newRow("a second less than a day east") << 86399 << "GMT+12:00";
    QTest::newRow("23 hours west") << -82800 << "";
    QTest::newRow("a second less than 23 hours west") << -82799 << "GMT-11:00";
}

void TestTimeManagerZones::nearestOffset()
{
    QFETCH(int, offset);
    QFETCH(QString, name);
    const TimeZoneMatch match = TimeManager(nullptr).matchTimeZoneByOffset(offset);
    QCOMPARE(match.name, name);
    QCOMPARE(match.id, name.isEmpty() ? -1 : 0);
}

void TestTimeManagerZones::everyOffsetAgainstTheModel()
{
    const TimeManager manager(nullptr);
    for (int offset = -90000; offset <= 90000; offset++)
        QCOMPARE(manager.matchTimeZoneByOffset(offset).name, modelMatch(offset));
}

void TestTimeManagerZones::offsetsBeyondAnyDay()
{
    const TimeManager manager(nullptr);
    for (const int offset : {std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
        QCOMPARE(manager.matchTimeZoneByOffset(offset).id, -1);
}

void TestTimeManagerZones::offsetWithoutAMatchIsLogged()
{
    QTest::ignoreMessage(QtDebugMsg, "Unable to match Timezone for offset 86400");
    QCOMPARE(TimeManager(nullptr).matchTimeZoneByOffset(86400).id, -1);
}

void TestTimeManagerZones::deviceClock_data()
{
    QTest::addColumn<int>("ahead");
    QTest::addColumn<QString>("name");

    QTest::newRow("true") << 0 << "GMT";
    QTest::newRow("40 minutes ahead") << 2400 << "GMT+1:00";
    QTest::newRow("half an hour ahead") << 1800 << "GMT";
    QTest::newRow("half an hour behind") << -1800 << "GMT";
    QTest::newRow("zone's time, a quarter of an hour fast") << 12600 + 899 << "GMT+3:30";
    QTest::newRow("zone's time, a quarter of an hour slow") << 12600 - 899 << "GMT+3:30";
    QTest::newRow("yesterday by its date") << -10 * 3600 << "GMT-10:00";
    QTest::newRow("just under a day ahead") << 86399 << "GMT+12:00";
    QTest::newRow("a day ahead") << 86400 << "";
    QTest::newRow("just under 23 hours behind") << -82799 << "GMT-11:00";
    QTest::newRow("23 hours behind") << -82800 << "";
    QTest::newRow("three days ahead") << 3 * 86400 << "";
    QTest::newRow("three days behind") << -3 * 86400 << "";
}

void TestTimeManagerZones::deviceClock()
{
    QFETCH(int, ahead);
    QFETCH(QString, name);
    const TimeManager manager(nullptr);
    const QDateTime device = manager.currentTimeUtc().addSecs(ahead);
    const TimeZoneMatch match = manager.matchTimeZoneByDateTime(device.date(), device.time());
    QCOMPARE(match.name, name);
    QCOMPARE(match.id, name.isEmpty() ? -1 : 0);
}

void TestTimeManagerZones::everyDeviceClockAgainstTheModel()
{
    const TimeManager manager(nullptr);
    const QDateTime now = manager.currentTimeUtc();
    // Every second would be all the same as every offset; here the dates' turns are what may go wrong.
    constexpr int step = 30;
    for (int ahead = -90000; ahead <= 90000; ahead += step) {
        const QDateTime device = now.addSecs(ahead);
        QCOMPARE(manager.matchTimeZoneByDateTime(device.date(), device.time()).name, modelMatch(ahead));
    }
}

void TestTimeManagerZones::deviceClockIsLogged()
{
    const TimeManager manager(nullptr);
    QTest::ignoreMessage(QtDebugMsg, R"(Matching: QDate("2026-03-01")   QTime("01:10:20.000"))");
    QTest::ignoreMessage(QtDebugMsg, R"(Matching: QDateTime(2026-03-01 01:10:20.000 UTC Qt::UTC))");
    QTest::ignoreMessage(
        QtDebugMsg, QRegularExpression(R"(^Ref\(UTC\): QDateTime\(2026-03-01 00:10:20\.\d+ UTC Qt::UTC\)$)"));
    QCOMPARE(manager.matchTimeZoneByDateTime(QDate(2026, 3, 1), QTime(1, 10, 20)).name, QString("GMT+1:00"));
}

void TestTimeManagerZones::deviceClockWithoutAMatchIsLogged()
{
    QTest::ignoreMessage(QtDebugMsg,
                         R"(Unable to match Timezone for date  QDate("2026-03-04")   QTime("00:10:20.000"))");
    QCOMPARE(TimeManager(nullptr).matchTimeZoneByDateTime(QDate(2026, 3, 4), QTime(0, 10, 20)).id, -1);
}

void TestTimeManagerZones::rowByName()
{
    const TimeManager manager(nullptr);
    for (const Zone& zone : expectedZones) {
        const TimeZoneMatch match = manager.timeZoneByName(zone.name);
        QCOMPARE(match.id, 0);
        QCOMPARE(match.offset, zone.offset);
    }
    for (const char* stranger : {"gmt", "GMT ", "", "GMT-2:00"})
        QCOMPARE(manager.timeZoneByName(stranger).id, -1);
}

QTEST_GUILESS_MAIN(TestTimeManagerZones)
#include "tst_timemanager_zones.moc"
