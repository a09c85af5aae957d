// The link and the simulated logger together, without faults: what the one writes the other stores and gives
// back.

#include "devicerig.h"
#include "storedfields.h"

#include "support/testclock.h"

#include <QTest>

namespace {

QDateTime utc(qint64 seconds)
{
    return QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC);
}

} // namespace

class TestBrumaloggerInterfaceModel : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { TestClock::reset(); }

    void readsTheIdentity();
    void readsTheSetup();
    void readsTextsAndLock();
    void readsPoliciesAndDates();
    void writesTheSetup();
    void writesTextsAndPassword();
    void writesPoliciesAndDates();
    void setsTheClock();
    void startsTheLogger();
    void settingChangesNothingRead();
    void basicFirmwareHasNoExtendedCommands();
};

void TestBrumaloggerInterfaceModel::readsTheIdentity()
{
    DeviceRig rig(distinctLogger());
    QVERIFY(rig.link.lGetIdentification(nullptr, nullptr, nullptr));
    QCOMPARE(rig.link.lDeviceName(), QStringLiteral("Brumalogger USB"));
    QCOMPARE(rig.link.lFirmwareVersion(), QStringLiteral("1.2.0"));
    QCOMPARE(rig.link.lHardwareRevision(), QStringLiteral("2.4"));
    QVERIFY(rig.link.lCheckIdentification());
    QString serial;
    QVERIFY(rig.link.lGetSerial(&serial));
    QCOMPARE(serial, QStringLiteral("BL-0042"));
    bool multiuse = false;
    QVERIFY(rig.link.lGetMultiuse(&multiuse));
    QVERIFY(multiuse);
    QList<int> values({0, 0, 0});
    QVERIFY(rig.link.lGetValuesO(&values[0], &values[1], &values[2]));
    QCOMPARE(values, QList<int>({11, -22, 33}));
}

void TestBrumaloggerInterfaceModel::readsTheSetup()
{
    DeviceRig rig(distinctLogger());
    float min = 0;
    float max = 0;
    QVERIFY(rig.link.lGetTempRange(&min, &max));
    QCOMPARE(min, -20.5F);
    QCOMPARE(max, 6.25F);
    int number = 0;
    QVERIFY(rig.link.lGetSamplingTime(&number));
    QCOMPARE(number, 660);
    QVERIFY(rig.link.lGetStartDelay(&number));
    QCOMPARE(number, 7200);
    QVERIFY(rig.link.lGetTimeZoneOffset(&number));
    QCOMPARE(number, -10800);
    bool flag = false;
    QVERIFY(rig.link.lGetButtonLock(&flag));
    QVERIFY(flag);
}

void TestBrumaloggerInterfaceModel::readsTextsAndLock()
{
    DeviceRig rig(distinctLogger());
    QStringList texts;
    for (unsigned int slot = 0; slot < 5; ++slot) {
        QString text;
        QVERIFY(rig.link.lGetText(slot, &text));
        texts << text;
    }
    QCOMPARE(texts,
             QStringList({QStringLiteral("Northern Pharma"), QStringLiteral("Z\u00fcrich"),
                          QStringLiteral("Batch 7"), QStringLiteral("Land"), QStringLiteral("B1234")}));
    bool locked = true;
    QVERIFY(rig.link.lGetLocked(&locked));
    QVERIFY(!locked);
    int state = 0;
    QVERIFY(rig.link.lGetState(&state));
    QCOMPARE(state, 2);
    bool low = false;
    QVERIFY(rig.link.lGetLowBattery(&low));
    QVERIFY(low);
}

void TestBrumaloggerInterfaceModel::readsPoliciesAndDates()
{
    DeviceRig rig(distinctLogger());
    int policies = 0;
    QVERIFY(rig.link.lGetPolicies(&policies));
    QCOMPARE(policies, 8195);
    bool enabled = false;
    QDateTime date;
    QVERIFY(rig.link.lGetStartDate(&enabled, &date));
    QVERIFY(enabled);
    QCOMPARE(date.toSecsSinceEpoch(), 1900000000);
    QVERIFY(rig.link.lGetStopDate(&enabled, &date));
    QCOMPARE(date.toSecsSinceEpoch(), 1900086400);
    bool known = false;
    QVERIFY(rig.link.lGetLastReset(&known, &date));
    QVERIFY(known);
    QCOMPARE(date.toSecsSinceEpoch(), 1700000000);
}

void TestBrumaloggerInterfaceModel::writesTheSetup()
{
    DeviceRig rig(distinctLogger());
    QVERIFY(rig.link.lSetTempRange(-40, 85));
    QVERIFY(rig.link.lSetSamplingTime(57600));
    QVERIFY(rig.link.lSetStartDelay(60));
    QVERIFY(rig.link.lSetButtonLock(false));
    QVERIFY(rig.link.lSetTimeZoneOffset(-12600));
    const LoggerModel::Settings& stored = rig.logger->model().settings();
    QCOMPARE(stored.tempMin, -40000);
    QCOMPARE(stored.tempMax, 85000);
    QCOMPARE(stored.samplingTime, 57600);
    QCOMPARE(stored.startDelay, 60);
    QCOMPARE(stored.buttonLock, false);
    QCOMPARE(stored.timeZoneOffset, -12600);
}

void TestBrumaloggerInterfaceModel::writesTextsAndPassword()
{
    DeviceRig rig(distinctLogger());
    QVERIFY(rig.link.lSetText(0, QStringLiteral("Tromsø Depot"), 60));
    QVERIFY(rig.link.lSetText(1, {}, 60));
    QVERIFY(rig.link.lSetText(3, QStringLiteral("Sea"), -1));
    QVERIFY(rig.link.lSendCommandK());
    QVERIFY(rig.link.lSetPassword(QStringLiteral("Secret 1")));
    const LoggerModel::Settings& stored = rig.logger->model().settings();
    QCOMPARE(stored.texts[0], QStringLiteral("Tromsø Depot"));
    QCOMPARE(stored.texts[1], QString());
    QCOMPARE(stored.texts[3], QStringLiteral("Sea"));
    QCOMPARE(stored.password, QStringLiteral("Secret 1"));

    bool accepted = true;
    QVERIFY(rig.link.lTryPassword(QStringLiteral("secret 1"), &accepted));
    QVERIFY(!accepted);
    QVERIFY(rig.link.lTryPassword(QStringLiteral("Secret 1"), &accepted));
    QVERIFY(accepted);
}

void TestBrumaloggerInterfaceModel::writesPoliciesAndDates()
{
    DeviceRig rig(distinctLogger());
    QVERIFY(rig.link.lSetPolicies(65535));
    QVERIFY(rig.link.lSetStartDate(true, utc(2000000000)));
    QVERIFY(rig.link.lSetStopDate(false, utc(2000000000)));
    const LoggerModel::Settings& stored = rig.logger->model().settings();
    QCOMPARE(stored.policies, 65535);
    QCOMPARE(stored.startDate, 2000000000);
    QCOMPARE(stored.stopDate, 0);
}

// The clock takes true UTC, and gives back the figures of its zone.
void TestBrumaloggerInterfaceModel::setsTheClock()
{
    DeviceRig rig(distinctLogger());
    QVERIFY(rig.link.lSetDateTime(utc(1750000000)));
    QDateTime now;
    QVERIFY(rig.link.lGetDateTime(&now));
    const qint64 passed = now.toSecsSinceEpoch() - (1750000000 - 10800);
    QVERIFY(passed >= 0);
    QVERIFY(passed <= 1);
}

void TestBrumaloggerInterfaceModel::startsTheLogger()
{
    DeviceRig rig(distinctLogger());
    QVERIFY(rig.link.lStartLogger());
    QVERIFY(!rig.link.lStartLogger()); // since it is recording
    int state = 0;
    QVERIFY(rig.link.lGetState(&state));
    QCOMPARE(state, 4);
}

void TestBrumaloggerInterfaceModel::settingChangesNothingRead()
{
    DeviceRig rig(distinctLogger());
    BrumaloggerInterface& link = rig.link;
    float min = 0;
    float max = 0;
    QVERIFY(link.lGetTempRange(&min, &max));
    QVERIFY(link.lGetSamplingTime(nullptr));
    QVERIFY(link.lGetStartDelay(nullptr));
    QVERIFY(link.lGetButtonLock(nullptr));
    QVERIFY(link.lGetTimeZoneOffset(nullptr));
    QVERIFY(link.lGetDateTime(nullptr));
    const int timestamp = link.lTimestamp();
    QVERIFY(link.lGetPolicies(nullptr));
    QVERIFY(link.lGetText(2, nullptr));

    QVERIFY(link.lSetTempRange(2, 8));
    QVERIFY(link.lSetSamplingTime(60));
    QVERIFY(link.lSetStartDelay(120));
    QVERIFY(link.lSetButtonLock(false));
    QVERIFY(link.lSetTimeZoneOffset(7200));
    QVERIFY(link.lSetDateTime(utc(1750000000)));
    QVERIFY(link.lSetPolicies(1));
    QVERIFY(link.lSetText(2, QStringLiteral("Batch 8"), 60));
    QCOMPARE(link.lTempMin(), -20.5F);
    QCOMPARE(link.lTempMax(), 6.25F);
    QCOMPARE(link.lSamplingTime(), 660);
    QCOMPARE(link.lStartDelay(), 7200);
    QVERIFY(link.lButtonLock());
    QCOMPARE(link.lTimeZoneOffset(), -10800);
    QCOMPARE(link.lTimestamp(), timestamp);
    QVERIFY(qAbs(link.lDeviceDateTime().toSecsSinceEpoch() - timestamp) < 60);
    QCOMPARE(link.*memberOf(Policies()), 8195);
    QCOMPARE((link.*memberOf(Texts())).value(2), QStringLiteral("Batch 7"));
}

void TestBrumaloggerInterfaceModel::basicFirmwareHasNoExtendedCommands()
{
    LoggerModel model = distinctLogger();
    model.settings().firmware = QStringLiteral("1.1.9");
    DeviceRig rig(model);
    int number = 0;
    bool flag = false;
    QDateTime date;
    QVERIFY(!rig.link.lGetPolicies(&number));
    QVERIFY(!rig.link.lGetTimeZoneOffset(&number));
    QVERIFY(!rig.link.lGetStartDate(&flag, &date));
    QVERIFY(!rig.link.lGetState(&number));
    QVERIFY(!rig.link.lGetLocked(&flag));
    QVERIFY(!rig.link.lSetPolicies(1));
    QVERIFY(!rig.link.lSetPassword({}));
    QVERIFY(rig.link.lGetSamplingTime(&number));
    QCOMPARE(number, 660);
}

QTEST_MAIN(TestBrumaloggerInterfaceModel)
#include "tst_brumaloggerinterface_model.moc"
