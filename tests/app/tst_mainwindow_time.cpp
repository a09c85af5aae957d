// The reference time in the window: when it is asked for, what the status bar says, and which zone is shown.

#include "procedurerig.h"

#include "dialogs/settingsdialog.h"
#include "network/ntpresponder.h"
#include "time/timepoolworker.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

#include <memory>
#include <vector>

namespace {

const QString fetchingServer = QStringLiteral("Fetching time and date from time.google.com...");
const QString fetchingPool = QStringLiteral("Fetching time and date from server pool...");
const QString fetchedServer = QStringLiteral("Successfully fetched time and date from time.google.com.");
const QString fetchedPool = QStringLiteral("Successfully fetched time and date from server pool.");
const QString failedServer = QStringLiteral("Unable to fetch date and time from time.google.com. "
                                            "Check your connections or try another server.");
const QString failedPool = QStringLiteral("Unable to fetch date and time from server pool. "
                                          "Check your connections or try another server.");
constexpr int queryPatience = 30000;
constexpr int poolSize = 7;

Settings timeSettings(bool pool = false)
{
    return quietSettingsWith(
        {{QStringLiteral("disabletime"), QStringLiteral("0")},
         {QStringLiteral("useserverpool"), pool ? QStringLiteral("1") : QStringLiteral("0")}});
}

/// The seven servers; silent until they are told otherwise.
class Servers
{
public:
    Servers()
    {
        for (int i = 1; i <= poolSize; i++) {
            all.push_back(std::make_unique<NtpResponder>());
            if (!all.back()->listen(QHostAddress(QStringLiteral("127.1.0.%1").arg(i))))
                qFatal("no server at 127.1.0.%d: %s", i, qPrintable(all.back()->errorString()));
        }
    }
    void answer(const NtpAnswer& answer)
    {
        for (const auto& server : all)
            server->setAnswer(answer);
    }
    void release()
    {
        for (const auto& server : all)
            server->release();
    }
    int requests() const
    {
        int count = 0;
        for (const auto& server : all)
            count += server->requests().size();
        return count;
    }

private:
    std::vector<std::unique_ptr<NtpResponder>> all;
};

class Rig : public ProcedureRig
{
public:
    explicit Rig(const Settings& settings)
        : ProcedureRig(settings)
        , dialog(window.findChild<SettingsDialog*>())
    {
    }
    void check(const char* box, bool checked) { child<QCheckBox>(*dialog, box)->setChecked(checked); }
    bool comesTo(const QString& message)
    {
        return QTest::qWaitFor([&] { return status() == message; }, queryPatience);
    }
    /// The zone label, the one beside it and the button behind it, as far as they are there.
    QString zone() const
    {
        const auto* button = find<QToolButton>("buttonToolTimeZone");
        QStringList words;
        if (find<QLabel>("labelTimeZone")->isVisible())
            words << text("labelTimeZone");
        if (find<QLabel>("labelTimeZoneStatic")->isVisible())
            words << QStringLiteral("label");
        if (button->isVisible())
            words << (button->isEnabled() ? QStringLiteral("button") : QStringLiteral("disabled button"));
        return words.join(QStringLiteral(", "));
    }

    SettingsDialog* dialog;
};

/// Basic firmware, its clock @p seconds ahead of the true time.
LoggerModel loggerAhead(int seconds)
{
    LoggerModel model = basicLogger();
    model.settings().clockOffset = seconds;
    return model;
}

} // namespace

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
    void resultIsNotToldWithTimeConfigurationOff();
    void zoneOfTheDevicesClock_data();
    void zoneOfTheDevicesClock();
    void zoneIsHiddenWithoutReferenceTime();
    void zoneIsHiddenWithTimeConfigurationOff();
    void answerDuringAReadTouchesNoControls();
    void answerWithoutADevice();
};

void TestMainWindowTime::asksOneServerAtTheStart()
{
    Servers servers;
    servers.answer(NtpAnswer::currentTime().later());
    Rig rig(timeSettings());
    QCOMPARE(rig.status(), fetchingServer);
    QVERIFY(QTest::qWaitFor([&] { return servers.requests() > 0; }));
    QCOMPARE(rig.status(), fetchingServer);
    servers.release();
    QVERIFY(rig.comesTo(fetchedServer));
}

void TestMainWindowTime::asksThePoolAtTheStart()
{
    Servers servers;
    servers.answer(NtpAnswer::currentTime().later());
    Rig rig(timeSettings(true));
    QCOMPARE(rig.status(), fetchingPool);
    // The first row's text is no host name.
    QVERIFY(QTest::qWaitFor([&] { return servers.requests() >= poolSize - 1; }));
    servers.release();
    QVERIFY(rig.comesTo(fetchedPool));
}

void TestMainWindowTime::asksNobodyWithTimeConfigurationOff()
{
    const Servers servers;
    Rig rig(quietSettings());
    rig.dialog->accept();
    // A server asked by somebody else answers later than one asked before.
    NtpResponder other;
    QVERIFY(other.listen(QHostAddress(QStringLiteral("127.3.0.1"))));
    other.setAnswer(NtpAnswer::currentTime());
    TimePoolWorker worker;
    QSignalSpy answered(&worker, &TimePoolWorker::sQuerySuccesful);
    worker.query(QStringLiteral("several.test"));
    QVERIFY(answered.wait());
    QCOMPARE(servers.requests(), 0);
    QCOMPARE(rig.status(), QString());
}

void TestMainWindowTime::unchangedServerIsNotAskedAgain()
{
    Servers servers;
    servers.answer(NtpAnswer::currentTime());
    Rig rig(timeSettings());
    QVERIFY(rig.comesTo(fetchedServer));
    rig.dialog->accept();
    QCOMPARE(rig.status(), fetchedServer);
    QCOMPARE(servers.requests(), 1);
}

void TestMainWindowTime::otherServerIsAsked()
{
    Servers servers;
    servers.answer(NtpAnswer::currentTime());
    Rig rig(timeSettings());
    QVERIFY(rig.comesTo(fetchedServer));
    child<QComboBox>(*rig.dialog, "comboServerList")->setCurrentIndex(3);
    rig.dialog->accept();
    QCOMPARE(rig.status(), QStringLiteral("Fetching time and date from 0.pool.ntp.org..."));
    QVERIFY(rig.comesTo(QStringLiteral("Successfully fetched time and date from 0.pool.ntp.org.")));
}

void TestMainWindowTime::poolIsAskedAtEveryAcceptance()
{
    Servers servers;
    servers.answer(NtpAnswer::currentTime());
    Rig rig(timeSettings(true));
    for (int round = 0; round < 3; round++) {
        QVERIFY(rig.comesTo(fetchedPool));
        rig.dialog->accept();
        QCOMPARE(rig.status(), fetchingPool);
    }
    QVERIFY(rig.comesTo(fetchedPool));
}

void TestMainWindowTime::backFromThePoolTheServerIsAskedAgain()
{
    Servers servers;
    servers.answer(NtpAnswer::currentTime());
    Rig rig(timeSettings());
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
    Rig rig(timeSettings(pool));
    QVERIFY(rig.comesTo(message));
    QCOMPARE(rig.zone(), QString());
}

void TestMainWindowTime::resultIsNotToldWithTimeConfigurationOff()
{
    Servers servers;
    servers.answer(NtpAnswer::currentTime().later());
    Rig rig(timeSettings());
    QVERIFY(QTest::qWaitFor([&] { return servers.requests() > 0; }));
    rig.plugAndConnect();
    const QString connected = rig.status();
    rig.check("checkDisableTime", true);
    rig.takeStatusLog();
    servers.release();

    // A later query tells when this one's answer has come.
    NtpResponder other;
    QVERIFY(other.listen(QHostAddress(QStringLiteral("127.3.0.1"))));
    other.setAnswer(NtpAnswer::currentTime());
    TimePoolWorker worker;
    QSignalSpy answered(&worker, &TimePoolWorker::sQuerySuccesful);
    worker.query(QStringLiteral("several.test"));
    QVERIFY(answered.wait());
    QCOMPARE(rig.takeStatusLog(), QStringList());
    QCOMPARE(rig.status(), connected);
    QCOMPARE(rig.zone(), QString());
}

void TestMainWindowTime::zoneOfTheDevicesClock_data()
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
void TestMainWindowTime::zoneOfTheDevicesClock()
{
    QFETCH(int, ahead);
    QFETCH(QString, zone);
    Servers servers;
    servers.answer(NtpAnswer::currentTime().later());
    Rig rig(timeSettings());
    rig.plugAndConnect(loggerAhead(ahead));
    QCOMPARE(rig.zone(), QString());
    QVERIFY(QTest::qWaitFor([&] { return servers.requests() > 0; }));
    servers.release();
    QVERIFY(rig.comesTo(fetchedServer));
    QCOMPARE(rig.zone(), zone);
    QCOMPARE(rig.robot.problems(), QString());
}

void TestMainWindowTime::zoneIsHiddenWithoutReferenceTime()
{
    const Servers servers;
    Rig rig(timeSettings());
    rig.plugAndConnect(loggerAhead(7200));
    QCOMPARE(rig.zone(), QString());
    QVERIFY(rig.comesTo(failedServer));
    QCOMPARE(rig.zone(), QString());
}

void TestMainWindowTime::zoneIsHiddenWithTimeConfigurationOff()
{
    Servers servers;
    servers.answer(NtpAnswer::currentTime());
    Rig rig(timeSettings());
    QVERIFY(rig.comesTo(fetchedServer));
    rig.plugAndConnect(loggerAhead(7200));
    rig.check("checkDisableTime", true);
    rig.dialog->accept();
    QVERIFY(!rig.find<QLabel>("labelTimeZone")->isVisible());
    QVERIFY(!rig.find<QLabel>("labelTimeZoneStatic")->isVisible());
}

void TestMainWindowTime::answerDuringAReadTouchesNoControls()
{
    Servers servers;
    servers.answer(NtpAnswer::currentTime().later());
    Rig rig(timeSettings());
    rig.plugAndConnect(loggerAhead(7200));
    QVERIFY(QTest::qWaitFor([&] { return servers.requests() > 0; }));
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

void TestMainWindowTime::answerWithoutADevice()
{
    Servers servers;
    servers.answer(NtpAnswer::currentTime());
    Rig rig(timeSettings());
    QVERIFY(rig.comesTo(fetchedServer));
    QCOMPARE(rig.zone(), QString());
    QVERIFY(!rig.controlsEnabled());
    QCOMPARE(rig.robot.problems(), QString());
}

QTEST_MAIN(TestMainWindowTime)
#include "tst_mainwindow_time.moc"
