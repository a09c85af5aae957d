// A new zone and the automatic dates, which were chosen in the old one.

#include "dialogs/advancedoptionsdialog.h"
#include "windowstate.h"
#include "zonerig.h"

#include <QTest>

using namespace WindowWords;
using namespace ZoneWords;

namespace {

using Warning = ZoneRig::Warning;

enum Dates { None, Start, Stop, Both };

LoggerModel loggerWith(int dates)
{
    LoggerModel model = secureLogger();
    if (!(dates & Start))
        model.settings().startDate = 0;
    if (!(dates & Stop))
        model.settings().stopDate = 0;
    return model;
}

/// Looks at the advanced options, and thereby at the dates in the zone now in force.
void lookAtOptions(ZoneRig& zones)
{
    zones.rig.press("buttonAdvanced");
}

} // namespace

class TestMainWindowZoneEditorDates : public QObject
{
    Q_OBJECT

private slots:
    void warnsOfDates_data();
    void warnsOfDates();
    void datesStayAsTheyAre();
    void zoneIsThatOfTheLastLook();
    void everyChangeWarns();
    void olderLoggerWarnsToo();
};

void TestMainWindowZoneEditorDates::warnsOfDates_data()
{
    QTest::addColumn<int>("dates");
    QTest::addColumn<QString>("zone");
    QTest::addColumn<bool>("warns");
    QTest::newRow("start date, same zone") << int(Start) << "GMT+2:00" << false;
    QTest::newRow("stop date, same zone") << int(Stop) << "GMT+2:00" << false;
    QTest::newRow("no date, same zone") << int(None) << "GMT+2:00" << false;
    QTest::newRow("start date, other zone") << int(Start) << "GMT+3:00" << true;
    QTest::newRow("stop date, other zone") << int(Stop) << "GMT" << true;
    QTest::newRow("both dates, other zone") << int(Both) << "GMT-11:00" << true;
    QTest::newRow("no date, other zone") << int(None) << "GMT+3:00" << false;
}

void TestMainWindowZoneEditorDates::warnsOfDates()
{
    QFETCH(const int, dates);
    QFETCH(const QString, zone);
    QFETCH(const bool, warns);
    ZoneRig zones(loggerWith(dates));
    lookAtOptions(zones);
    QCOMPARE(options(zones.rig)->lTimeZoneName(), QStringLiteral("GMT+2:00"));
    zones.change(zone, warns ? Warning::OfDates : Warning::None);
    QCOMPARE(zones.rig.text("labelTimeZone"), zone);
    QCOMPARE(differences(zones.rig, idle(updating, true)), QString());
}

void TestMainWindowZoneEditorDates::datesStayAsTheyAre()
{
    ZoneRig zones(loggerWith(Both));
    zones.change(QStringLiteral("GMT+12:00"), Warning::OfDates);
    bool enabled = false;
    QDateTime date;
    options(zones.rig)->lStartDate(&enabled, &date);
    QVERIFY(enabled);
    QCOMPARE(date, QDateTime(QDate(2024, 5, 16), QTime(8, 0), Qt::UTC));
    options(zones.rig)->lStopDate(&enabled, &date);
    QVERIFY(enabled);
    QCOMPARE(date, QDateTime(QDate(2024, 5, 20), QTime(9, 0), Qt::UTC));
    QCOMPARE(zones.rig.robot.problems(), QString());
}

// Before the first look it is GMT, whatever the logger's zone.
void TestMainWindowZoneEditorDates::zoneIsThatOfTheLastLook()
{
    ZoneRig zones(loggerWith(Start));
    zones.change(QStringLiteral("GMT"));
    zones.change(QStringLiteral("GMT+5:00"), Warning::OfDates);
    lookAtOptions(zones);
    zones.change(QStringLiteral("GMT+5:00"));
    zones.change(QStringLiteral("GMT"), Warning::OfDates);
    QCOMPARE(zones.rig.robot.problems(), QString());
}

// The editor goes by the logger's clock, which has not changed yet.
void TestMainWindowZoneEditorDates::everyChangeWarns()
{
    ZoneRig zones(loggerWith(Stop));
    for (const char* zone : {"GMT+5:00", "GMT+5:00", "GMT-8:00"}) {
        zones.change(QLatin1String(zone), Warning::OfDates);
        QCOMPARE(zones.rig.robot.problems(), QString());
    }
}

// The dates of an earlier logger are still in the store.
void TestMainWindowZoneEditorDates::olderLoggerWarnsToo()
{
    ZoneRig zones(olderLogger());
    options(zones.rig)->lSetStartDate(true, QDateTime(QDate(2024, 5, 16), QTime(8, 0), Qt::UTC));
    zones.change(QStringLiteral("GMT+9:00"), Warning::OfDates);
    QCOMPARE(differences(zones.rig, idle(updating, true)), QString());
}

QTEST_MAIN(TestMainWindowZoneEditorDates)
#include "tst_mainwindow_zoneeditordates.moc"
