// The dialog of advanced options: the picker on computers of several zones, whose clocks the device's isn't.

#include "pickerdesk.h"

#include "support/environmentvariable.h"
#include "support/testclock.h"

#include <QTest>

class TestAdvancedOptionsDialogPickerZone : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void showsTheDateOfAFreshDialog();
    void nowIsTheDevicesTime_data();
    void nowIsTheDevicesTime();
    void hourSkippedOnTheComputer();
};

void TestAdvancedOptionsDialogPickerZone::cleanup()
{
    TestClock::reset();
}

// Nothing was ever stored there, so it is a time of the computer's zone.
void TestAdvancedOptionsDialogPickerZone::showsTheDateOfAFreshDialog()
{
    const LocalZone zone("EET-2");
    const QDateTime evening(QDate(2030, 12, 31), QTime(22, 30, 15), Qt::UTC);
    holdClock(evening);
    AdvancedDesk desk;
    desk.open();
    desk.button("checkStartDate")->click();
    QVERIFY(pickAt(desk, "toolStartDate", [&evening](QDialog* picker) {
        QCOMPARE(calendarOf(picker)->selectedDate(), evening.date());
        QCOMPARE(editorOf(picker)->date(), evening.date());
        QCOMPARE(editorOf(picker)->time().toString(), evening.time().toString());
        buttonOf(picker, "Ok")->click();
    }));
    QCOMPARE(desk.startDate(), evening);
}

void TestAdvancedOptionsDialogPickerZone::nowIsTheDevicesTime_data()
{
    QTest::addColumn<QByteArray>("zone");
    for (const char* zone : {"UTC0", "EET-2", "EST5"})
        QTest::addRow("computer in %s", zone) << QByteArray(zone);
}

void TestAdvancedOptionsDialogPickerZone::nowIsTheDevicesTime()
{
    QFETCH(QByteArray, zone);
    const LocalZone computersZone(zone);
    const PickerDesk desk;
    const QDateTime now(QDate(2030, 12, 31), QTime(22, 30, 15), Qt::UTC);
    QVERIFY(desk.pick("toolStopDate", [&now](QDialog* picker) {
        holdClock(now);
        buttonOf(picker, "Now")->click();
        QCOMPARE(calendarOf(picker)->selectedDate(), QDate(2031, 1, 1));
        QCOMPARE(editorOf(picker)->date(), QDate(2031, 1, 1));
        QCOMPARE(editorOf(picker)->time().toString(), QStringLiteral("00:30:15"));
        buttonOf(picker, "Ok")->click();
    }));
    QCOMPARE(desk.stopDate(), now.addSecs(7200));
}

// There, the clock goes from two to three.
void TestAdvancedOptionsDialogPickerZone::hourSkippedOnTheComputer()
{
    const LocalZone zone("CET-1CEST,M3.5.0,M10.5.0/3");
    const QDateTime skipped(QDate(2026, 3, 29), QTime(2, 30), Qt::UTC);
    PickerDesk desk;
    desk.dialog.lSetStartDate(true, skipped);
    QVERIFY(desk.pick("toolStartDate", [&skipped](QDialog* picker) {
        QCOMPARE(editorOf(picker)->time(), skipped.time());
        buttonOf(picker, "Ok")->click();
    }));
    QCOMPARE(desk.startDate(), skipped);
}

QTEST_MAIN(TestAdvancedOptionsDialogPickerZone)
#include "tst_advancedoptionsdialog_pickerzone.moc"
