// The zone of the device's clock on display, and the button of the editor behind it.

#include "timerig.h"
#include "zoneaccess.h"

#include "dialogs/settingsdialog.h"
#include "support/loglines.h"

#include <QTest>

using namespace TimeWords;

namespace {

/// Basic firmware, its clock @p seconds ahead of the true time.
LoggerModel loggerAhead(int seconds)
{
    LoggerModel model = basicLogger();
    model.settings().multiuse = true; // never refused for its clock
    model.settings().clockOffset = seconds;
    return model;
}

/// Firmware with time zones, in one that its clock doesn't tell of.
LoggerModel loggerInIndia()
{
    LoggerModel model = extendedLogger();
    model.settings().clockOffset = 7200;
    model.settings().timeZoneOffset = 19800;
    return model;
}

} // namespace

class TestMainWindowZoneLabel : public QObject
{
    Q_OBJECT

private slots:
    void zoneOfTheDevicesClock_data();
    void zoneOfTheDevicesClock();
    void zoneIsHiddenWithoutReferenceTime();
    void zoneIsHiddenWithTimeConfigurationOff();
    void zoneIsHiddenWhenTheClockFitsNone();
    void editorNeedsADeviceAndReferenceTime();
    void answerDuringAReadTouchesNoControls();
    void answerWithoutADevice();
    void answerBehindADevice();
    void zoneOnTheDeviceWins();
    void zoneOnTheDeviceNeedsNoTimeConfiguration_data();
    void zoneOnTheDeviceNeedsNoTimeConfiguration();
    void adoptedZoneIsShown();
    void unknownZoneFallsBack();
    void updateIsLoggedWithReferenceTimeOnly();
    void settingsAcceptedDuringAReadTouchNoControls_data();
    void settingsAcceptedDuringAReadTouchNoControls();
};

void TestMainWindowZoneLabel::zoneOfTheDevicesClock_data()
{
    QTest::addColumn<int>("ahead");
    QTest::addColumn<QString>("zone");
    QTest::newRow("true time") << 0 << "GMT, label, button";
    QTest::newRow("two hours ahead") << 7200 << "GMT+2:00, label, button";
    QTest::newRow("40 minutes ahead") << 2400 << "GMT+1:00, label, button";
    QTest::newRow("five hours behind") << -18000 << "GMT-5:00, label, button";
    QTest::newRow("three days ahead") << 3 * 86400 << "button";
}

// The answer comes while the logger is connected, so only the zone of its clock can be news.
void TestMainWindowZoneLabel::zoneOfTheDevicesClock()
{
    QFETCH(int, ahead);
    QFETCH(QString, zone);
    Servers servers(NtpAnswer::currentTime().later());
    TimeRig rig(timeSettings());
    rig.plugAndConnect(loggerAhead(ahead));
    QCOMPARE(rig.zone(), QString());
    servers.awaitRequest();
    servers.release();
    QVERIFY(rig.comesTo(fetchedServer));
    QCOMPARE(rig.zone(), zone);
    QCOMPARE(rig.robot.problems(), QString());
}

void TestMainWindowZoneLabel::zoneIsHiddenWithoutReferenceTime()
{
    const Servers servers;
    TimeRig rig(timeSettings());
    rig.plugAndConnect(loggerAhead(7200));
    QCOMPARE(rig.zone(), QString());
    QVERIFY(rig.comesTo(failedServer));
    QCOMPARE(rig.zone(), QString());
}

void TestMainWindowZoneLabel::zoneIsHiddenWithTimeConfigurationOff()
{
    const Servers servers(NtpAnswer::currentTime());
    TimeRig rig(timeSettings());
    QVERIFY(rig.comesTo(fetchedServer));
    rig.plugAndConnect(loggerAhead(7200));
    rig.dialog->accept();
    QCOMPARE(rig.zone(), QStringLiteral("GMT+2:00, label, button"));
    QCOMPARE(currentZone(rig.window), QStringLiteral("GMT+2:00"));
    rig.check("checkDisableTime", true);
    rig.dialog->accept();
    QCOMPARE(rig.zone(), QStringLiteral("disabled button"));
    QCOMPARE(currentZone(rig.window), QStringLiteral("GMT"));
}

void TestMainWindowZoneLabel::zoneIsHiddenWhenTheClockFitsNone()
{
    SynchronisedRig synchronised(loggerAhead(7200));
    TimeRig& rig = synchronised.rig;
    QCOMPARE(rig.zone(), QStringLiteral("GMT+2:00, label, button"));
    QCOMPARE(currentZone(rig.window), QStringLiteral("GMT+2:00"));
    rig.logger->model() = loggerAhead(3 * 86400);
    rig.press("buttonRead");
    QCOMPARE(rig.zone(), QStringLiteral("button"));
    QCOMPARE(currentZone(rig.window), QStringLiteral("GMT"));
    QCOMPARE(rig.robot.problems(), QString());
}

void TestMainWindowZoneLabel::editorNeedsADeviceAndReferenceTime()
{
    const Servers servers(NtpAnswer::currentTime());
    TimeRig rig(timeSettings());
    QVERIFY(rig.comesTo(fetchedServer));
    rig.dialog->accept();
    QVERIFY(!rig.isEnabled("buttonToolTimeZone"));
    rig.plugAndConnect();
    QVERIFY(rig.isEnabled("buttonToolTimeZone"));
    bool enabledThen = true;
    rig.atCommand(3, [&] { enabledThen = rig.isEnabled("buttonToolTimeZone"); });
    rig.press("buttonRead");
    QVERIFY(!enabledThen);
    QVERIFY(rig.isEnabled("buttonToolTimeZone"));
    rig.press("buttonConnect");
    QVERIFY(!rig.isEnabled("buttonToolTimeZone"));
}

void TestMainWindowZoneLabel::answerDuringAReadTouchesNoControls()
{
    Servers servers(NtpAnswer::currentTime().later());
    TimeRig rig(timeSettings());
    rig.plugAndConnect(loggerAhead(7200));
    servers.awaitRequest();
    rig.takeStatusLog();
    QString zoneThen;
    rig.atCommand(6, [&] {
        servers.release();
        if (!rig.comesTo(fetchedServer))
            qFatal("the answer never came");
        zoneThen = rig.zone();
    });
    rig.press("buttonRead");
    QCOMPARE(zoneThen, QString());
    QCOMPARE(rig.wire(), readCommands());
    QCOMPARE(rig.takeStatusLog(),
             QStringList({QStringLiteral("Reading from device on %1").arg(rig.logger->portName()),
                          fetchedServer, QStringLiteral("Read successful")}));
    QCOMPARE(rig.robot.problems(), QString());
}

void TestMainWindowZoneLabel::answerWithoutADevice()
{
    const Servers servers(NtpAnswer::currentTime());
    TimeRig rig(timeSettings());
    QVERIFY(rig.comesTo(fetchedServer));
    QCOMPARE(rig.zone(), QString());
    QVERIFY(!rig.controlsEnabled());
    QCOMPARE(rig.robot.problems(), QString());
}

// The clock of the device that was left still stands where it stood.
void TestMainWindowZoneLabel::answerBehindADevice()
{
    WaitingRig waiting;
    TimeRig& rig = waiting.rig;
    rig.plugAndConnect(loggerAhead(7200));
    rig.press("buttonConnect");
    waiting.tellTimeUntil(fetchedServer);
    QVERIFY(waiting.told);
    QCOMPARE(rig.zone(), QString());
    QCOMPARE(rig.wire(), QList<QByteArray>());
    QVERIFY(!rig.controlsEnabled());
    QCOMPARE(rig.robot.problems(), QString());
}

void TestMainWindowZoneLabel::zoneOnTheDeviceWins()
{
    const Servers servers(NtpAnswer::currentTime());
    TimeRig rig(timeSettings());
    QVERIFY(rig.comesTo(fetchedServer));
    rig.plugAndConnect(loggerInIndia());
    QCOMPARE(rig.zone(), QStringLiteral("GMT+5:30, label, button"));
    QCOMPARE(currentZone(rig.window), QStringLiteral("GMT+5:30"));
    QCOMPARE(rig.robot.problems(), QString());
}

void TestMainWindowZoneLabel::zoneOnTheDeviceNeedsNoTimeConfiguration_data()
{
    QTest::addColumn<bool>("extended");
    QTest::addColumn<QString>("zone");
    QTest::newRow("with time zones") << true << "GMT+5:30, label";
    QTest::newRow("without") << false << "";
}

void TestMainWindowZoneLabel::zoneOnTheDeviceNeedsNoTimeConfiguration()
{
    QFETCH(const bool, extended);
    TimeRig rig(quietSettings());
    QCOMPARE(rig.zone(), QString());
    rig.plugAndConnect(extended ? loggerInIndia() : loggerAhead(7200));
    QTEST(rig.zone(), "zone");
    rig.press("buttonConnect");
    QCOMPARE(rig.zone(), QString());
    QCOMPARE(rig.robot.problems(), QString());
}

void TestMainWindowZoneLabel::adoptedZoneIsShown()
{
    const Servers servers(NtpAnswer::currentTime());
    TimeRig rig(timeSettings());
    QVERIFY(rig.comesTo(fetchedServer));
    rig.plugAndConnect();
    QCOMPARE(rig.zone(), QStringLiteral("GMT, label, button"));
    setZone(rig.window, QStringLiteral("GMT-5:00"));
    QCOMPARE(rig.zone(), QStringLiteral("GMT-5:00, label, button"));
    QCOMPARE(currentZone(rig.window), QStringLiteral("GMT-5:00"));
}

// In the window's books only: clock and label stay as they are until they are next looked at.
void TestMainWindowZoneLabel::unknownZoneFallsBack()
{
    const Servers servers(NtpAnswer::currentTime());
    TimeRig rig(timeSettings());
    QVERIFY(rig.comesTo(fetchedServer));
    rig.plugAndConnect(loggerAhead(7200));
    QCOMPARE(currentZone(rig.window), QStringLiteral("GMT+2:00"));
    setZone(rig.window, QStringLiteral("GMT+99:00"));
    QCOMPARE(currentZone(rig.window), QStringLiteral("GMT"));
    QCOMPARE(rig.zone(), QStringLiteral("GMT+2:00, label, button"));
    rig.dialog->accept();
    QCOMPARE(currentZone(rig.window), QStringLiteral("GMT+2:00"));
}

void TestMainWindowZoneLabel::updateIsLoggedWithReferenceTimeOnly()
{
    const QString line = QStringLiteral("debug: Updating time zone on UI...");
    Servers servers(NtpAnswer::currentTime().later());
    const LogLines log;
    TimeRig rig(timeSettings());
    rig.dialog->accept();
    servers.awaitRequest();
    QCOMPARE(log.all().count(line), 0); // time configuration alone
    servers.release();
    QVERIFY(rig.comesTo(fetchedServer));
    const int before = log.all().count(line);
    rig.check("checkDisableTime", true);
    rig.dialog->accept();
    QCOMPARE(log.all().count(line), before); // reference time alone
    rig.check("checkDisableTime", false);
    rig.dialog->accept();
    QCOMPARE(log.all().count(line), before + 1);
}

void TestMainWindowZoneLabel::settingsAcceptedDuringAReadTouchNoControls_data()
{
    QTest::addColumn<bool>("pool");
    QTest::addColumn<QString>("zoneThen");
    QTest::addColumn<QString>("zoneAfterwards");
    QTest::newRow("reference time kept") << false << "GMT, label, disabled button"
                                         << "GMT, label, button";
    QTest::newRow("reference time asked for") << true << "disabled button"
                                              << "disabled button";
}

// A query under way leaves no reference time until it is answered.
void TestMainWindowZoneLabel::settingsAcceptedDuringAReadTouchNoControls()
{
    QFETCH(const bool, pool);
    Servers servers(NtpAnswer::currentTime());
    TimeRig rig(timeSettings());
    QVERIFY(rig.comesTo(fetchedServer));
    rig.plugAndConnect();
    servers.answer(NtpAnswer::silence());
    const int requests = servers.requests();
    QString zone;
    QString status;
    rig.atCommand(6, [&] {
        rig.check("checkUsePool", pool);
        rig.dialog->accept();
        zone = rig.zone();
        status = rig.status();
    });
    rig.press("buttonRead");
    QTEST(zone, "zoneThen");
    QTEST(rig.zone(), "zoneAfterwards");
    QCOMPARE(status == fetchingPool, pool);
    QVERIFY(!pool || QTest::qWaitFor([&] { return servers.requests() > requests; }));
    QCOMPARE(rig.wire(), readCommands());
    QCOMPARE(rig.robot.problems(), QString());
}

QTEST_MAIN(TestMainWindowZoneLabel)
#include "tst_mainwindow_zonelabel.moc"
