// What a logger with extended firmware tells of its condition: its last reset, and a battery that is low.

#include "extendedrig.h"
#include "windowstate.h"

#include <QDateTime>
#include <QLabel>
#include <QTest>

namespace {

const QString lowBattery = QStringLiteral(
    "<p><span style=\" font-weight:600; color:#ff0000;\">The device's battery is LOW.</span></p>");
const QString replaceBattery = QStringLiteral(
    "<p><span style=\"font-weight:600; color:#ff0000;\">Please replace the battery immediately.</span></p>");
const QString refrainFromUse = QStringLiteral(
    "<p><span style=\"font-weight:600; color:#ff0000;\">Please refrain from using this device.</span></p>");

QStringList lastReset(const ProcedureRig& rig)
{
    return visibleLabels(rig, {"labelLastResetStatic", "labelLastReset"});
}

QStringList shownLastReset()
{
    const QString date = QDateTime::fromSecsSinceEpoch(1714557600).toString("hh:mm:ss dd/MMM/yyyy");
    return {QStringLiteral("labelLastResetStatic = Date/time of last reset:"),
            QStringLiteral("labelLastReset = %1 (GMT)").arg(date)};
}

} // namespace

class TestMainWindowCondition : public QObject
{
    Q_OBJECT

private slots:
    void showsLastReset_data();
    void showsLastReset();
    void hidesLastResetOfTheDeviceBefore();
    void showsLowBattery_data();
    void showsLowBattery();
    void lowBatteryStaysUntilTheDisconnect();
};

void TestMainWindowCondition::showsLastReset_data()
{
    QTest::addColumn<bool>("multiuse");
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<bool>("shown");
    QTest::newRow("known") << true << QByteArray("1714557600\r\n") << true;
    QTest::newRow("never") << true << QByteArray("0\r\n") << false;
    QTest::newRow("a text") << true << QByteArray("yesterday\r\n") << false;
    QTest::newRow("silence") << true << QByteArray() << false;
    QTest::newRow("Single-use") << false << QByteArray("1714557600\r\n") << false;
}

void TestMainWindowCondition::showsLastReset()
{
    QFETCH(const bool, multiuse);
    QFETCH(const QByteArray, reply);
    QFETCH(const bool, shown);
    ProcedureRig rig;
    rig.plug(secureLogger(multiuse));
    rig.disturb("z", Fault::Kind::Reply, reply);
    rig.press("buttonConnect");
    QCOMPARE(rig.wire(), extendedConnectCommands(multiuse));
    QCOMPARE(lastReset(rig), shown ? shownLastReset() : QStringList());
    QCOMPARE(differences(rig, connected()), QString());
}

void TestMainWindowCondition::hidesLastResetOfTheDeviceBefore()
{
    ProcedureRig rig;
    rig.plugAndConnect(secureLogger());
    QCOMPARE(lastReset(rig), shownLastReset());
    QStringList atTheNextStep;
    rig.atCommand(3, [&] { atTheNextStep = lastReset(rig); });
    rig.logger->model().settings().lastReset = 0;
    rig.press("buttonRead");
    QCOMPARE(atTheNextStep, QStringList());
    QCOMPARE(lastReset(rig), QStringList());
    QCOMPARE(differences(rig, idle(QStringLiteral("Read successful"), false)), QString());
}

void TestMainWindowCondition::showsLowBattery_data()
{
    QTest::addColumn<bool>("multiuse");
    QTest::addColumn<bool>("low");
    QTest::addColumn<QString>("shown");
    QTest::newRow("Multiuse, low") << true << true << lowBattery + replaceBattery;
    QTest::newRow("Single-use, low") << false << true << lowBattery + refrainFromUse;
    QTest::newRow("Multiuse, fine") << true << false << QString();
    QTest::newRow("Single-use, fine") << false << false << QString();
}

void TestMainWindowCondition::showsLowBattery()
{
    QFETCH(const bool, multiuse);
    QFETCH(const bool, low);
    QFETCH(const QString, shown);
    LoggerModel model = secureLogger(multiuse);
    model.settings().lowBattery = low;
    ProcedureRig rig;
    rig.plugAndConnect(model);
    QCOMPARE(rig.text("labelLowBattery"), shown);
    QCOMPARE(differences(rig, connected()), QString());
}

void TestMainWindowCondition::lowBatteryStaysUntilTheDisconnect()
{
    LoggerModel model = secureLogger();
    model.settings().lowBattery = true;
    ProcedureRig rig;
    rig.plugAndConnect(model);
    rig.logger->model().settings().lowBattery = false;
    rig.press("buttonRead");
    QCOMPARE(rig.text("labelLowBattery"), lowBattery + replaceBattery);
    rig.press("buttonConnect");
    QCOMPARE(rig.text("labelLowBattery"), QString());
    rig.press("buttonConnect");
    QCOMPARE(rig.text("labelLowBattery"), QString());
    QCOMPARE(differences(rig, connected()), QString());
}

QTEST_MAIN(TestMainWindowCondition)
#include "tst_mainwindow_condition.moc"
