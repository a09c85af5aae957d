// The dialog of advanced options: what it refuses to accept, and in which order.

#include "advanceddesk.h"

#include <QTest>

namespace {

const QDateTime longAgo(QDate(2011, 5, 7), QTime(12, 34, 56), Qt::UTC);

void expectEmptyPassword(AdvancedDesk& desk)
{
    desk.robot.expectWarning(
        QStringLiteral("Empty password field"),
        QStringLiteral("<p>Please specify a password or disable any options requering it.</p>"));
}

void expectNoStart(AdvancedDesk& desk)
{
    desk.robot.expectWarning(QStringLiteral("No START enabled"),
                             QStringLiteral("<p>No valid START configuration enabled.<br>Please enable at "
                                            "least <b>one</b> START option.</p>"));
}

void expectNoStop(AdvancedDesk& desk)
{
    desk.robot.expectWarning(
        QStringLiteral("No STOP enabled"),
        QStringLiteral("<p>No valid STOP configuration enabled.<br>Please enable at least "
                       "<b>one</b> STOP option.</p>"));
}

void expectCaution(AdvancedDesk& desk)
{
    desk.robot.expectWarning(
        QStringLiteral("Attention"),
        QStringLiteral(
            "<p>Your current security configuration is <b>valid</b>.<br> However, it only allows a "
            "RESET after the reports are generated, and <em>report generation</em> is password "
            "protected.<br>Please note that, in such configuration, forgetting the device's "
            "password will render it inoperative and non-resettable.<br>Please store its password "
            "properly.</p>"));
}

} // namespace

class TestAdvancedOptionsDialogRules : public QObject
{
    Q_OBJECT

private slots:
    void passwordIsDemanded_data();
    void passwordIsDemanded();
    void passwordComesFirst();
    void startComesBeforeStop();
    void startDateIsAStart();
    void stopDateIsNoStop();
    void oneStartAndOneStopSuffice_data();
    void oneStartAndOneStopSuffice();
    void resetBehindThePasswordIsCautioned_data();
    void resetBehindThePasswordIsCautioned();
    void refusalStoresNothing();
    void cancelAsksForNothing();
};

void TestAdvancedOptionsDialogRules::passwordIsDemanded_data()
{
    QTest::addColumn<bool>("demanded");
    QTest::newRow("checkConfigPassw") << true;
    QTest::newRow("radioPasswOnce") << true;
    QTest::newRow("radioPasswAlways") << true;
    QTest::newRow("radioPasswNone") << false;
}

void TestAdvancedOptionsDialogRules::passwordIsDemanded()
{
    QFETCH(bool, demanded);
    AdvancedDesk desk;
    desk.dialog.lSetPassword(QStringLiteral("earlier"));
    desk.open();
    desk.check(QTest::currentDataTag());
    desk.passwordField()->clear();
    if (demanded)
        expectEmptyPassword(desk);
    QCOMPARE(desk.accept(), !demanded);
    QCOMPARE(desk.dialog.lPassword(), QStringLiteral("earlier"));
    QCOMPARE(desk.robot.problems(), QString());
}

void TestAdvancedOptionsDialogRules::passwordComesFirst()
{
    AdvancedDesk desk;
    desk.dialog.lSetPolicies(4);
    desk.dialog.lSetStopDate(true, longAgo);
    desk.open();
    expectEmptyPassword(desk);
    QVERIFY(!desk.accept());
    QCOMPARE(desk.robot.problems(), QString());
}

void TestAdvancedOptionsDialogRules::startComesBeforeStop()
{
    AdvancedDesk desk;
    desk.dialog.lSetPolicies(0);
    desk.open();
    expectNoStart(desk);
    QVERIFY(!desk.accept());
    desk.check("checkStartButton");
    expectNoStop(desk);
    QVERIFY(!desk.accept());
    desk.check("checkStopButton");
    QVERIFY(desk.accept());
    QCOMPARE(desk.robot.problems(), QString());
}

void TestAdvancedOptionsDialogRules::startDateIsAStart()
{
    AdvancedDesk desk;
    desk.dialog.lSetPolicies(256);
    desk.dialog.lSetStartDate(true, QDateTime::currentDateTimeUtc().addDays(1));
    desk.open();
    QVERIFY(desk.accept());
    QCOMPARE(desk.robot.problems(), QString());
}

void TestAdvancedOptionsDialogRules::stopDateIsNoStop()
{
    AdvancedDesk desk;
    desk.dialog.lSetPolicies(3);
    desk.dialog.lSetStopDate(true, QDateTime::currentDateTimeUtc().addDays(1));
    desk.open();
    expectNoStop(desk);
    QVERIFY(!desk.accept());
    QCOMPARE(desk.robot.problems(), QString());
}

void TestAdvancedOptionsDialogRules::oneStartAndOneStopSuffice_data()
{
    QTest::addColumn<QByteArray>("start");
    QTest::addColumn<QByteArray>("stop");
    for (const char* start : {"checkStartButton", "checkStartSoftware"}) {
        for (const char* stop : {"checkStopButton", "checkStopUSBAttach"})
            QTest::addRow("%s %s", start, stop) << QByteArray(start) << QByteArray(stop);
    }
}

void TestAdvancedOptionsDialogRules::oneStartAndOneStopSuffice()
{
    QFETCH(QByteArray, start);
    QFETCH(QByteArray, stop);
    AdvancedDesk desk;
    desk.dialog.lSetPolicies(0);
    desk.open();
    desk.check(start);
    desk.check(stop);
    QVERIFY(desk.accept());
    QCOMPARE(desk.robot.problems(), QString());
}

void TestAdvancedOptionsDialogRules::resetBehindThePasswordIsCautioned_data()
{
    QTest::addColumn<int>("policies");
    QTest::addColumn<bool>("cautioned");
    QTest::newRow("once") << 259 + 8192 + 1024 << true;
    QTest::newRow("always") << 259 + 8192 + 2048 << true;
    QTest::newRow("configuration only") << 259 + 8192 + 4 << false;
    QTest::newRow("reset at any time") << 259 + 4 + 2048 << false;
    QTest::newRow("no password") << 259 + 8192 << false;
}

// The same with a Single-use device, whose reset options can't be changed.
void TestAdvancedOptionsDialogRules::resetBehindThePasswordIsCautioned()
{
    QFETCH(int, policies);
    QFETCH(bool, cautioned);
    for (const bool multiuse : {true, false}) {
        AdvancedDesk desk;
        desk.dialog.lSetMultiuse(multiuse);
        desk.dialog.lSetPassword(QStringLiteral("secret"));
        desk.dialog.lSetPolicies(policies);
        desk.open();
        if (cautioned)
            expectCaution(desk);
        QVERIFY(desk.accept());
        QCOMPARE(desk.dialog.lPolicies(), policies);
        QCOMPARE(desk.robot.problems(), QString());
    }
}

void TestAdvancedOptionsDialogRules::refusalStoresNothing()
{
    AdvancedDesk desk;
    desk.dialog.lSetPassword(QStringLiteral("old"));
    desk.dialog.lSetButtonLock(false);
    desk.open();
    desk.check("checkLockButton");
    desk.check("checkConfigPassw");
    desk.check("checkStopButton", false);
    desk.passwordField()->setText(QStringLiteral("new"));
    expectNoStop(desk);
    const LogLines log;
    QVERIFY(!desk.accept());
    QCOMPARE(programLines(log), QStringList());
    QCOMPARE(desk.dialog.lPolicies(), 259);
    QCOMPARE(desk.dialog.lPassword(), QStringLiteral("old"));
    QVERIFY(!desk.dialog.lButtonLock());
    QCOMPARE(desk.passwordField()->text(), QStringLiteral("new"));
    QCOMPARE(desk.robot.problems(), QString());
}

void TestAdvancedOptionsDialogRules::cancelAsksForNothing()
{
    AdvancedDesk desk;
    desk.dialog.lSetPolicies(4);
    desk.dialog.lSetStartDate(true, longAgo);
    desk.open();
    desk.dialog.reject();
    QVERIFY(!desk.dialog.isVisible());
    QCOMPARE(desk.robot.problems(), QString());
}

QTEST_MAIN(TestAdvancedOptionsDialogRules)
#include "tst_advancedoptionsdialog_rules.moc"
