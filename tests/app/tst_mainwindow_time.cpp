// The reference time in the window: when it is asked for, and what the status bar says of it.

#include "timerig.h"

#include "dialogs/settingsdialog.h"
#include "time/timepoolworker.h"

#include <QComboBox>
#include <QSignalSpy>
#include <QTest>

using namespace TimeWords;

class TestMainWindowTime : public QObject
{
    Q_OBJECT

private slots:
    void asksOneServerAtTheStart();
    void asksThePoolAtTheStart();
    void asksNobodyWithTimeConfigurationOff();
    void unchangedServerIsNotAskedAgain();
    void otherServerIsAsked();
    void poolIsAskedAtEveryAcceptance();
    void backFromThePoolTheServerIsAskedAgain();
    void silenceIsTold_data();
    void silenceIsTold();
    void silenceIsNotToldWithTimeConfigurationOff();
    void resultIsNotToldWithTimeConfigurationOff();
};

void TestMainWindowTime::asksOneServerAtTheStart()
{
    Servers servers(NtpAnswer::currentTime().later());
    TimeRig rig(timeSettings());
    QCOMPARE(rig.status(), fetchingServer);
    servers.awaitRequest();
    QCOMPARE(rig.status(), fetchingServer);
    servers.release();
    QVERIFY(rig.comesTo(fetchedServer));
}

void TestMainWindowTime::asksThePoolAtTheStart()
{
    Servers servers(NtpAnswer::currentTime().later());
    TimeRig rig(timeSettings(true));
    QCOMPARE(rig.status(), fetchingPool);
    // The first row's text is no host name.
    QVERIFY(QTest::qWaitFor([&] { return servers.requests() >= poolSize - 1; }));
    servers.release();
    QVERIFY(rig.comesTo(fetchedPool));
}

void TestMainWindowTime::asksNobodyWithTimeConfigurationOff()
{
    const Servers servers;
    TimeRig rig(quietSettings());
    rig.dialog->accept();
    QVERIFY(otherQueryPasses());
    QCOMPARE(servers.requests(), 0);
    QCOMPARE(rig.status(), QString());
}

void TestMainWindowTime::unchangedServerIsNotAskedAgain()
{
    const Servers servers(NtpAnswer::currentTime());
    TimeRig rig(timeSettings());
    QVERIFY(rig.comesTo(fetchedServer));
    rig.dialog->accept();
    QVERIFY(otherQueryPasses());
    QCOMPARE(rig.status(), fetchedServer);
    QCOMPARE(servers.requests(), 1);
}

void TestMainWindowTime::otherServerIsAsked()
{
    const Servers servers(NtpAnswer::currentTime());
    TimeRig rig(timeSettings());
    QVERIFY(rig.comesTo(fetchedServer));
    child<QComboBox>(*rig.dialog, "comboServerList")->setCurrentIndex(3);
    rig.dialog->accept();
    QCOMPARE(rig.status(), QStringLiteral("Fetching time and date from 0.pool.ntp.org..."));
    QVERIFY(rig.comesTo(QStringLiteral("Successfully fetched time and date from 0.pool.ntp.org.")));
}

void TestMainWindowTime::poolIsAskedAtEveryAcceptance()
{
    const Servers servers(NtpAnswer::currentTime());
    TimeRig rig(timeSettings(true));
    for (int round = 0; round < 3; round++) {
        QVERIFY(rig.comesTo(fetchedPool));
        rig.dialog->accept();
        QCOMPARE(rig.status(), fetchingPool);
    }
    QVERIFY(rig.comesTo(fetchedPool));
}

void TestMainWindowTime::backFromThePoolTheServerIsAskedAgain()
{
    const Servers servers(NtpAnswer::currentTime());
    TimeRig rig(timeSettings());
    QVERIFY(rig.comesTo(fetchedServer));
    rig.check("checkUsePool", true);
    rig.dialog->accept();
    QVERIFY(rig.comesTo(fetchedPool));
    rig.check("checkUsePool", false);
    rig.dialog->accept();
    QCOMPARE(rig.status(), fetchingServer);
    QVERIFY(rig.comesTo(fetchedServer));
}

void TestMainWindowTime::silenceIsTold_data()
{
    QTest::addColumn<bool>("pool");
    QTest::addColumn<QString>("message");
    QTest::newRow("server") << false << failedServer;
    QTest::newRow("pool") << true << failedPool;
}

void TestMainWindowTime::silenceIsTold()
{
    QFETCH(bool, pool);
    QFETCH(QString, message);
    const Servers servers;
    TimeRig rig(timeSettings(pool));
    QVERIFY(rig.comesTo(message));
    QCOMPARE(rig.zone(), QString());
    rig.plugAndConnect();
    QVERIFY(!rig.isEnabled("buttonToolTimeZone"));
    QCOMPARE(rig.zone(), QString());

    // A single server is not asked again, also when it failed.
    const int requests = servers.requests();
    rig.takeStatusLog();
    rig.dialog->accept();
    QVERIFY(otherQueryPasses());
    QCOMPARE(rig.takeStatusLog(), pool ? QStringList(fetchingPool) : QStringList());
    QCOMPARE(servers.requests() > requests, pool);
}

void TestMainWindowTime::silenceIsNotToldWithTimeConfigurationOff()
{
    const Servers servers;
    TimeRig rig(timeSettings());
    servers.awaitRequest();
    rig.check("checkDisableTime", true);
    TimePoolWorker later; // begins after the window's query, and ends after it
    QSignalSpy ended(&later, &TimePoolWorker::sQueryTimeout);
    later.query(QStringLiteral("time.nist.gov"));
    QVERIFY(ended.wait(queryPatience));
    QVERIFY(otherQueryPasses());
    QCOMPARE(rig.status(), fetchingServer);
}

void TestMainWindowTime::resultIsNotToldWithTimeConfigurationOff()
{
    Servers servers(NtpAnswer::currentTime().later());
    TimeRig rig(timeSettings());
    servers.awaitRequest();
    rig.plugAndConnect();
    const QString connected = rig.status();
    rig.check("checkDisableTime", true);
    rig.takeStatusLog();
    servers.release();
    QVERIFY(otherQueryPasses());
    QCOMPARE(rig.takeStatusLog(), QStringList());
    QCOMPARE(rig.status(), connected);
    QCOMPARE(rig.zone(), QString());
}

QTEST_MAIN(TestMainWindowTime)
#include "tst_mainwindow_time.moc"
