// The dialog of advanced options as a store: what is in it, what showing and closing do to it.

#include "advanceddesk.h"

#include "support/environmentvariable.h"
#include "support/minimised.h"
#include "support/testclock.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QTest>

namespace {

const QDateTime noon(QDate(2031, 5, 7), QTime(12, 34, 56), Qt::UTC);

QString dateText(const QDateTime& date, const char* zone)
{
    return date.toString(QStringLiteral("hh:mm dd/MMM/yyyy")) + QStringLiteral(" (%1)").arg(zone);
}

const QString oldWord = QStringLiteral("debug: Current policies: 259");

/// Opens the dialog on an old password without a lock, and changes a bit each way, the lock and the password.
void editEverything(AdvancedDesk& desk)
{
    desk.dialog.lSetPassword(QStringLiteral("old"));
    desk.dialog.lSetButtonLock(false);
    desk.open();
    desk.check("checkStartButton", false);
    desk.check("checkConfigPassw");
    desk.check("checkLockButton");
    desk.passwordField()->setText(QStringLiteral("new"));
}

} // namespace

class TestAdvancedOptionsDialogStore : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void beginning();
    void beginsWithThePresentDates();
    void accessors();
    void keepsTheFiguresOfADate_data();
    void keepsTheFiguresOfADate();
    void proposesDates_data();
    void proposesDates();
    void datesThatAreOffAreNotHandedOut();
    void cancelKeepsTheValues();
    void acceptTakesTheValues();
    void cancelKeepsTheDateFlags();
    void editsOutliveMinimising();
    void showingIsLoggedFirst();
    void showingRefreshesTheControls();
    void showingFollowsMultiuse();
    void noticeAboutTheEffect();
    void displaysDates();
    void okAndCancelButtons();
};

void TestAdvancedOptionsDialogStore::cleanup()
{
    TestClock::reset();
}

void TestAdvancedOptionsDialogStore::beginning()
{
    const AdvancedDesk desk;
    QCOMPARE(desk.dialog.lPolicies(), 259);
    QCOMPARE(desk.dialog.lPassword(), QString());
    QCOMPARE(desk.dialog.lTimeZoneName(), QStringLiteral("GMT"));
    QCOMPARE(desk.dialog.lTimeZoneOffset(), 0);
    QVERIFY(!desk.dialog.lStartEnabled() && !desk.dialog.lStopEnabled());
}

void TestAdvancedOptionsDialogStore::beginsWithThePresentDates()
{
    const LocalZone zone("EET-2");
    holdClock(noon);
    AdvancedDesk desk;
    TestClock::shift(3600000);
    desk.open();
    desk.button("checkStartDate")->click();
    desk.button("checkStopDate")->click();
    QCOMPARE(desk.startDate(), noon);
    QCOMPARE(desk.stopDate(), noon);
}

void TestAdvancedOptionsDialogStore::accessors()
{
    AdvancedDesk desk;
    desk.dialog.lSetPolicies(8195);
    desk.dialog.lSetPassword(QStringLiteral("secret"));
    desk.dialog.lSetTimeZoneName(QStringLiteral("GMT+5:30"));
    desk.dialog.lSetTimeZoneOffset(19800);
    for (const bool lock : {true, false}) {
        desk.dialog.lSetButtonLock(lock);
        QCOMPARE(desk.dialog.lButtonLock(), lock);
    }
    QCOMPARE(desk.dialog.lPolicies(), 8195);
    QCOMPARE(desk.dialog.lPassword(), QStringLiteral("secret"));
    QCOMPARE(desk.dialog.lTimeZoneName(), QStringLiteral("GMT+5:30"));
    QCOMPARE(desk.dialog.lTimeZoneOffset(), 19800);
}

void TestAdvancedOptionsDialogStore::keepsTheFiguresOfADate_data()
{
    QTest::addColumn<QDateTime>("date");
    const QDate day(2031, 5, 7);
    const QTime time(12, 34, 56);
    QTest::newRow("UTC") << QDateTime(day, time, Qt::UTC);
    QTest::newRow("local") << QDateTime(day, time, Qt::LocalTime);
    QTest::newRow("offset east") << QDateTime(day, time, Qt::OffsetFromUTC, 7200);
    QTest::newRow("offset west") << QDateTime(day, time, Qt::OffsetFromUTC, -34200);
}

void TestAdvancedOptionsDialogStore::keepsTheFiguresOfADate()
{
    QFETCH(QDateTime, date);
    AdvancedDesk desk;
    desk.dialog.lSetTimeZoneOffset(7200);
    desk.dialog.lSetStartDate(true, date);
    desk.dialog.lSetStopDate(true, date.addDays(1));
    QVERIFY(desk.dialog.lStartEnabled() && desk.dialog.lStopEnabled());
    QCOMPARE(desk.startDate().toSecsSinceEpoch(), noon.toSecsSinceEpoch());
    QCOMPARE(desk.startDate().offsetFromUtc(), 0);
    QCOMPARE(desk.startDate().time(), noon.time());
    QCOMPARE(desk.stopDate().toSecsSinceEpoch(), noon.addDays(1).toSecsSinceEpoch());
    QCOMPARE(desk.stopDate().offsetFromUtc(), 0);
}

void TestAdvancedOptionsDialogStore::proposesDates_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<int>("offset");
    for (const char* zone : {"UTC0", "EET-2", "EST5"}) {
        QTest::addRow("at Greenwich, computer in %s", zone) << QByteArray(zone) << 0;
        QTest::addRow("east, computer in %s", zone) << QByteArray(zone) << 19800;
        QTest::addRow("west, computer in %s", zone) << QByteArray(zone) << -39600;
    }
}

void TestAdvancedOptionsDialogStore::proposesDates()
{
    QFETCH(QByteArray, zone);
    QFETCH(int, offset);
    const LocalZone computersZone(zone);
    AdvancedDesk desk;
    desk.dialog.lSetTimeZoneOffset(offset);
    holdClock(noon);
    desk.dialog.lSetStartDate(false, noon.addYears(3));
    desk.dialog.lSetStopDate(false, noon.addYears(3));
    QVERIFY(!desk.dialog.lStartEnabled() && !desk.dialog.lStopEnabled());
    desk.open();
    desk.button("checkStartDate")->click();
    desk.button("checkStopDate")->click();
    const QDateTime start = noon.addSecs(offset + 6 * 60 * 60);
    const QDateTime stop = noon.addSecs(offset + 24 * 60 * 60);
    QCOMPARE(desk.startDate(), start);
    QCOMPARE(desk.stopDate(), stop);
    QCOMPARE(desk.button("checkStartDate")->text(),
             QStringLiteral("START automatically on: ") + dateText(start, "GMT"));
    QCOMPARE(desk.button("checkStopDate")->text(),
             QStringLiteral("STOP automatically on: ") + dateText(stop, "GMT"));
}

void TestAdvancedOptionsDialogStore::datesThatAreOffAreNotHandedOut()
{
    AdvancedDesk desk;
    desk.dialog.lSetStartDate(false, noon);
    desk.dialog.lSetStopDate(false, noon);
    const QDateTime mine = noon.addYears(1);
    for (const auto get : {&AdvancedOptionsDialog::lStartDate, &AdvancedOptionsDialog::lStopDate}) {
        bool enabled = true;
        QDateTime date = mine;
        (desk.dialog.*get)(&enabled, &date);
        QVERIFY(!enabled);
        QCOMPARE(date, mine);
    }
}

void TestAdvancedOptionsDialogStore::cancelKeepsTheValues()
{
    AdvancedDesk desk;
    editEverything(desk);
    const LogLines log;
    desk.dialog.reject();
    QCOMPARE(programLines(log), QStringList(oldWord));
    QCOMPARE(desk.dialog.lPolicies(), 259);
    QCOMPARE(desk.dialog.lPassword(), QStringLiteral("old"));
    QVERIFY(!desk.dialog.lButtonLock());
}

void TestAdvancedOptionsDialogStore::acceptTakesTheValues()
{
    AdvancedDesk desk;
    editEverything(desk);
    QCOMPARE(desk.dialog.lPolicies(), 259);
    const LogLines log;
    QVERIFY(desk.accept());
    QCOMPARE(programLines(log), QStringList("debug: Current policies: 262"));
    QCOMPARE(desk.dialog.lPolicies(), 262);
    QCOMPARE(desk.dialog.lPassword(), QStringLiteral("new"));
    QVERIFY(desk.dialog.lButtonLock());
    QCOMPARE(desk.robot.problems(), QString());
}

void TestAdvancedOptionsDialogStore::cancelKeepsTheDateFlags()
{
    AdvancedDesk desk;
    desk.dialog.lSetStopDate(true, noon);
    desk.open();
    desk.button("checkStartDate")->click();
    desk.button("checkStopDate")->click();
    desk.dialog.reject();
    QVERIFY(desk.dialog.lStartEnabled());
    QVERIFY(!desk.dialog.lStopEnabled());
}

// Before the warning of a password that is too long.
void TestAdvancedOptionsDialogStore::editsOutliveMinimising()
{
    AdvancedDesk desk;
    editEverything(desk);
    desk.find<QLabel>("labelChangesEffect")->show();
    bringBack(desk.dialog);
    QVERIFY(!desk.isChecked("checkStartButton"));
    QVERIFY(desk.isChecked("checkConfigPassw"));
    QVERIFY(desk.isChecked("checkLockButton"));
    QCOMPARE(desk.passwordField()->text(), QStringLiteral("new"));
    QVERIFY(desk.find<QLabel>("labelChangesEffect")->isVisible());
}

void TestAdvancedOptionsDialogStore::showingIsLoggedFirst()
{
    AdvancedDesk desk;
    desk.dialog.lSetPassword(QString(31, QLatin1Char('p')));
    const LogLines log;
    QStringList beforeTheBox;
    QObject::connect(&desk.robot, &DialogRobot::sBoxOpened, &desk.window,
                     [&] { beforeTheBox = programLines(log); });
    desk.open();
    QCOMPARE(beforeTheBox, QStringList(oldWord));
    QCOMPARE(programLines(log), QStringList(oldWord));
}

void TestAdvancedOptionsDialogStore::showingRefreshesTheControls()
{
    AdvancedDesk desk;
    desk.openAndAccept();
    desk.dialog.lSetPolicies(2 + 512 + 1024);
    desk.dialog.lSetPassword(QStringLiteral("secret"));
    desk.dialog.lSetButtonLock(true);
    desk.dialog.lSetStartDate(true, noon);
    desk.passwordField()->setEchoMode(QLineEdit::Normal);
    desk.open();
    for (const char* on : {"checkStartSoftware", "checkStopUSBAttach", "radioPasswOnce", "checkLockButton",
                           "checkStartDate", "radioResetAlways"})
        QVERIFY2(desk.isChecked(on), on);
    for (const char* off : {"checkStartButton", "checkStopButton", "checkConfigPassw", "checkStopDate"})
        QVERIFY2(!desk.isChecked(off), off);
    QCOMPARE(desk.passwordField()->text(), QStringLiteral("secret"));
    QCOMPARE(desk.passwordField()->echoMode(), QLineEdit::Password);
    QVERIFY(desk.isEnabled("linePassw"));
}

void TestAdvancedOptionsDialogStore::showingFollowsMultiuse()
{
    AdvancedDesk desk;
    for (const bool multiuse : {false, true, false}) {
        desk.dialog.lSetMultiuse(multiuse);
        desk.open();
        QCOMPARE(desk.isEnabled("groupMultiuse"), multiuse);
        desk.dialog.reject();
    }
}

void TestAdvancedOptionsDialogStore::noticeAboutTheEffect()
{
    AdvancedDesk desk;
    desk.dialog.lSetPolicies(259 + 4);
    desk.dialog.lSetPassword(QStringLiteral("secret"));
    desk.open();
    const auto* notice = desk.find<QLabel>("labelChangesEffect");
    QVERIFY(!notice->isVisible());
    desk.button("radioPasswNone")->click();
    desk.button("checkLockButton")->click();
    QVERIFY(!notice->isVisible());
    desk.button("checkConfigPassw")->click();
    QVERIFY(notice->isVisible());
    desk.dialog.reject();
    desk.open();
    QVERIFY(!notice->isVisible());
    QCOMPARE(desk.robot.problems(), QString());
}

void TestAdvancedOptionsDialogStore::displaysDates()
{
    AdvancedDesk desk;
    desk.dialog.lSetTimeZoneName(QStringLiteral("GMT+2:00"));
    desk.dialog.lSetTimeZoneOffset(7200);
    desk.dialog.lSetStartDate(true, noon);
    desk.dialog.lSetStopDate(false, noon);
    desk.open();
    QCOMPARE(desk.button("checkStartDate")->text(),
             QStringLiteral("START automatically on: ") + dateText(noon, "GMT+2:00"));
    QCOMPARE(desk.button("checkStopDate")->text(), QStringLiteral("STOP automatically on:  - "));
    QVERIFY(desk.isEnabled("toolStartDate") && !desk.isEnabled("toolStopDate"));

    desk.button("checkStartDate")->click();
    desk.button("checkStopDate")->click();
    QCOMPARE(desk.button("checkStartDate")->text(), QStringLiteral("START automatically on:  - "));
    QCOMPARE(desk.button("checkStopDate")->text(),
             QStringLiteral("STOP automatically on: ") + dateText(desk.stopDate(), "GMT+2:00"));
    QVERIFY(!desk.isEnabled("toolStartDate") && desk.isEnabled("toolStopDate"));
}

void TestAdvancedOptionsDialogStore::okAndCancelButtons()
{
    AdvancedDesk desk;
    const auto* buttons = desk.find<QDialogButtonBox>("buttonBox");
    desk.open();
    buttons->button(QDialogButtonBox::Ok)->click();
    QCOMPARE(desk.dialog.result(), static_cast<int>(QDialog::Accepted));
    QVERIFY(!desk.dialog.isVisible());
    desk.open();
    buttons->button(QDialogButtonBox::Cancel)->click();
    QCOMPARE(desk.dialog.result(), static_cast<int>(QDialog::Rejected));
    QVERIFY(!desk.dialog.isVisible());
}

QTEST_MAIN(TestAdvancedOptionsDialogStore)
#include "tst_advancedoptionsdialog_store.moc"
