// The dialog of advanced options: how far apart the automatic dates have to be, from now and from each other.

#include "advanceddesk.h"

#include "support/testclock.h"

#include <QTest>

namespace {

const QDateTime now(QDate(2031, 5, 7), QTime(12, 34, 56), Qt::UTC);

void expectEarlyStart(AdvancedDesk& desk)
{
    desk.robot.expectWarning(QStringLiteral("Invalid START date"),
                             QStringLiteral("<p>The START date/time must be at least 10 minutes after the "
                                            "current date/time. Please check your settings.</p>"));
}

void expectEarlyStop(AdvancedDesk& desk)
{
    desk.robot.expectWarning(QStringLiteral("Invalid STOP date"),
                             QStringLiteral("<p>The STOP date/time must be at least 20 minutes after the "
                                            "current date/time. Please check your settings.</p>"));
}

void expectShortRun(AdvancedDesk& desk)
{
    desk.robot.expectWarning(
        QStringLiteral("Invalid START and STOP date"),
        QStringLiteral("<p>The STOP date/time must be at least 10 minutes after the START "
                       "date/time. Please check your settings.</p>"));
}

} // namespace

class TestAdvancedOptionsDialogDates : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void distances_data();
    void distances();
    void distancesToTheMillisecond();
    void visibleDialogTellsOfDates_data();
    void visibleDialogTellsOfDates();
    void startInThePastPassesWithAStop();
    void datesComeBeforePolicies();
};

void TestAdvancedOptionsDialogDates::cleanup()
{
    TestClock::reset();
}

// Seconds from now, on the device's clock; a date that is off is far in the past.
void TestAdvancedOptionsDialogDates::distances_data()
{
    QTest::addColumn<bool>("startOn");
    QTest::addColumn<int>("start");
    QTest::addColumn<bool>("stopOn");
    QTest::addColumn<int>("stop");
    QTest::addColumn<bool>("valid");
    QTest::newRow("none") << false << 0 << false << 0 << true;
    QTest::newRow("start, 599") << true << 599 << false << 0 << false;
    QTest::newRow("start, 600") << true << 600 << false << 0 << true;
    QTest::newRow("start, now") << true << 0 << false << 0 << false;
    QTest::newRow("start, past") << true << -86400 << false << 0 << false;
    QTest::newRow("stop, 1199") << false << 0 << true << 1199 << false;
    QTest::newRow("stop, 1200") << false << 0 << true << 1200 << true;
    QTest::newRow("stop, past") << false << 0 << true << -1200 << false;
    QTest::newRow("both, 599 apart") << true << 3600 << true << 3600 + 599 << false;
    QTest::newRow("both, 600 apart") << true << 3600 << true << 3600 + 600 << true;
    QTest::newRow("both, in the past") << true << -86400 << true << -86400 + 600 << true;
    QTest::newRow("both, start in the past") << true << -300 << true << 300 << true;
    QTest::newRow("both, soon") << true << 0 << true << 599 << false;
    QTest::newRow("both, stop first") << true << 7200 << true << 3600 << false;
}

// The dialog is hidden throughout, so no row brings a message.
void TestAdvancedOptionsDialogDates::distances()
{
    QFETCH(bool, startOn);
    QFETCH(int, start);
    QFETCH(bool, stopOn);
    QFETCH(int, stop);
    for (const int offset : {0, 7200, -34200}) {
        AdvancedDesk desk;
        desk.dialog.lSetTimeZoneOffset(offset);
        // Half a second more, as some milliseconds pass meanwhile.
        const QDateTime wallClock = now.addSecs(offset).addMSecs(500);
        desk.dialog.lSetStartDate(startOn, wallClock.addSecs(start));
        desk.dialog.lSetStopDate(stopOn, wallClock.addSecs(stop));
        holdClock(now);
        QTEST(desk.dialog.lValidateDates(), "valid");
        QCOMPARE(desk.robot.problems(), QString());
    }
}

void TestAdvancedOptionsDialogDates::distancesToTheMillisecond()
{
    AdvancedDesk desk;
    desk.dialog.lSetTimeZoneOffset(-34200);
    const QDateTime limit = now.addSecs(-34200 + 600);
    desk.dialog.lSetStartDate(true, limit.addMSecs(-1));
    holdClock(now);
    QVERIFY(!desk.dialog.lValidateDates());
    desk.dialog.lSetStartDate(true, limit.addMSecs(20));
    holdClock(now);
    QVERIFY(desk.dialog.lValidateDates());

    desk.dialog.lSetStopDate(true, limit.addMSecs(20).addSecs(600));
    QVERIFY(desk.dialog.lValidateDates());
    desk.dialog.lSetStopDate(true, limit.addMSecs(19).addSecs(600));
    QVERIFY(!desk.dialog.lValidateDates());
}

void TestAdvancedOptionsDialogDates::visibleDialogTellsOfDates_data()
{
    QTest::addColumn<bool>("startOn");
    QTest::addColumn<bool>("stopOn");
    QTest::newRow("start") << true << false;
    QTest::newRow("stop") << false << true;
    QTest::newRow("both") << true << true;
}

void TestAdvancedOptionsDialogDates::visibleDialogTellsOfDates()
{
    QFETCH(bool, startOn);
    QFETCH(bool, stopOn);
    AdvancedDesk desk;
    desk.dialog.lSetStartDate(startOn, QDateTime::currentDateTimeUtc());
    desk.dialog.lSetStopDate(stopOn, QDateTime::currentDateTimeUtc());
    desk.open();
    if (startOn && stopOn)
        expectShortRun(desk);
    else
        startOn ? expectEarlyStart(desk) : expectEarlyStop(desk);
    QVERIFY(!desk.accept());
    QCOMPARE(desk.robot.problems(), QString());
}

void TestAdvancedOptionsDialogDates::startInThePastPassesWithAStop()
{
    AdvancedDesk desk;
    desk.dialog.lSetStartDate(true, now.addYears(-20));
    desk.dialog.lSetStopDate(true, now.addYears(-20).addSecs(600));
    desk.open();
    QVERIFY(desk.accept());
    QCOMPARE(desk.robot.problems(), QString());
}

void TestAdvancedOptionsDialogDates::datesComeBeforePolicies()
{
    AdvancedDesk desk;
    desk.dialog.lSetPolicies(0);
    desk.dialog.lSetStopDate(true, now.addYears(-20));
    desk.open();
    expectEarlyStop(desk);
    QVERIFY(!desk.accept());
    QCOMPARE(desk.robot.problems(), QString());
}

QTEST_MAIN(TestAdvancedOptionsDialogDates)
#include "tst_advancedoptionsdialog_dates.moc"
