// Each zone on its way from the Time Zone Editor to the logger. The computer's clock is three hours behind
// the reference time, and the loggers' clocks are off as well.

#include "time/timezonetable.h"
#include "windowstate.h"
#include "zonerig.h"

#include <QDateTime>
#include <QTest>

using namespace ZoneWords;

namespace {

constexpr int computerBehind = 3 * 3600;
constexpr qint64 tolerance = 2; // seconds

LoggerModel withWrongClock(LoggerModel model)
{
    model.settings().clockOffset = 100000;
    return model;
}

/// A written logger in a zone with the given offset, in its own words.
struct WrittenRig
{
    WrittenRig(const LoggerModel& model, const QString& zone)
        : zones(withWrongClock(model), computerBehind)
    {
        zones.fetchTime(computerBehind);
        zones.change(zone);
        zones.rig.press("buttonWrite");
    }

    const LoggerModel& logger() const { return zones.rig.logger->model(); }
    /// How far the true time and @p offset are from @p time, in seconds.
    static qint64 error(qint64 time, int offset)
    {
        return time - (QDateTime::currentSecsSinceEpoch() + computerBehind + offset);
    }
    /// What the window shows after it has read the logger anew.
    QString zoneReadAgain()
    {
        zones.rig.press("buttonRead");
        return zones.rig.text("labelTimeZone");
    }

    ZoneRig zones;
};

void addZoneRows()
{
    QTest::addColumn<int>("offset");
    for (const TimeZoneMatch& zone : timeZoneTable())
        QTest::newRow(qPrintable(zone.name)) << zone.offset;
}

} // namespace

class TestMainWindowZoneEditorWrites : public QObject
{
    Q_OBJECT

private slots:
    void olderLogger_data() { addZoneRows(); }
    void olderLogger();
    void newerLogger_data() { addZoneRows(); }
    void newerLogger();
    void nothingWithoutAWrite();
};

// It knows no zones: its clock shows the zone's time, and its report says so.
void TestMainWindowZoneEditorWrites::olderLogger()
{
    QFETCH(const int, offset);
    const QString zone = QTest::currentDataTag();
    WrittenRig written(::olderLogger(), zone);
    const qint64 error = WrittenRig::error(written.logger().wallClock(), offset);
    QVERIFY2(qAbs(error) <= tolerance, QByteArray::number(error));
    QCOMPARE(written.logger().settings().timeZoneOffset, 0);
    QCOMPARE(written.logger().settings().texts[2],
             zone == QStringLiteral("GMT")
                 ? QStringLiteral("Batch 7")
                 : QStringLiteral("ALL DATES/TIMES ARE %1. IGNORE GMT REMARK BELOW.").arg(zone));
    QCOMPARE(written.zoneReadAgain(), zone);
    QCOMPARE(differences(written.zones.rig, idle(QStringLiteral("Read successful"), false)), QString());
}

void TestMainWindowZoneEditorWrites::newerLogger()
{
    QFETCH(const int, offset);
    const QString zone = QTest::currentDataTag();
    WrittenRig written(::newerLogger(), zone);
    const qint64 error = WrittenRig::error(written.logger().clockUtc(), 0);
    QVERIFY2(qAbs(error) <= tolerance, QByteArray::number(error));
    QCOMPARE(written.logger().settings().timeZoneOffset, offset);
    QCOMPARE(written.logger().settings().texts[2], QStringLiteral("Batch 7"));
    QCOMPARE(written.zoneReadAgain(), zone);
    QCOMPARE(differences(written.zones.rig, idle(QStringLiteral("Read successful"), false)), QString());
}

void TestMainWindowZoneEditorWrites::nothingWithoutAWrite()
{
    ZoneRig zones(withWrongClock(::newerLogger()));
    zones.change(QStringLiteral("GMT-8:00"));
    QCOMPARE(zones.rig.wire(), QList<QByteArray>());
    QCOMPARE(zones.rig.logger->model().settings().timeZoneOffset, 7200);
    QCOMPARE(zones.rig.logger->model().settings().clockOffset, qint64(100000));
}

QTEST_MAIN(TestMainWindowZoneEditorWrites)
#include "tst_mainwindow_zoneeditorwrites.moc"
