// Reading from a logger with extended firmware: what it has beyond the others, and where that goes.

#include "dialogs/advancedoptionsdialog.h"
#include "extendedrig.h"
#include "progresswatch.h"
#include "windowstate.h"
#include "windowwords.h"

#include <QDateTime>
#include <QLabel>
#include <QTest>

using namespace WindowWords;

namespace {

} // namespace

class TestMainWindowExtendedRead : public QObject
{
    Q_OBJECT

private slots:
    void readsInOrder_data();
    void readsInOrder();
    void fillsTheOptions();
    void fillsTheOptionsAnew();
    void tellsTheOptionsTheType_data();
    void tellsTheOptionsTheType();
    void showsTheZone();
    void repairsClock_data();
    void repairsClock();
    void leavesClockOfOlderFirmware();
    void repairNeedsNoAnswer();
    void movesBar_data();
    void movesBar();
};

void TestMainWindowExtendedRead::readsInOrder_data()
{
    QTest::addColumn<bool>("multiuse");
    QTest::newRow("Multiuse") << true;
    QTest::newRow("Single-use") << false;
}

void TestMainWindowExtendedRead::readsInOrder()
{
    QFETCH(const bool, multiuse);
    ProcedureRig rig;
    rig.plug(secureLogger(multiuse));
    rig.press("buttonConnect");
    QCOMPARE(rig.wire(), extendedConnectCommands(multiuse));
    QCOMPARE(panels(rig), panelsWith(panelsOfBasicLogger(),
                                     {"labelFirmwareVersion = 1.2.0",
                                      multiuse ? "labelType = Multiuse" : "labelType = Single-use"}));
    rig.logger->clearExchanges();
    rig.takeStatusLog();
    rig.press("buttonRead");
    QCOMPARE(rig.wire(), extendedReadCommands(multiuse));
    QCOMPARE(rig.takeStatusLog(), QStringList({"Reading from device on ttyACM0", "Read successful"}));
    QVERIFY(rig.find<QWidget>("buttonAdvanced")->isVisible());
    QVERIFY(!rig.find<QWidget>("checkLock")->isVisible());
    QCOMPARE(differences(rig, idle(QStringLiteral("Read successful"), false)), QString());
}

void TestMainWindowExtendedRead::fillsTheOptions()
{
    ProcedureRig rig;
    rig.plugAndConnect(secureLogger());
    QCOMPARE(storedOptions(rig.window),
             QStringList({"policies 4355", "password \"\"", "lock 1", "zone 7200",
                          "start 2024-05-16T08:00:00Z", "stop 2024-05-20T09:00:00Z"}));
    QCOMPARE(differences(rig, connected()), QString());
}

// Except for the password, which the device never tells.
void TestMainWindowExtendedRead::fillsTheOptionsAnew()
{
    ProcedureRig rig;
    rig.plugAndConnect(secureLogger());
    options(rig)->lSetPassword(QStringLiteral("known"));
    LoggerModel::Settings& settings = rig.logger->model().settings();
    settings.policies = 0xFFFF;
    settings.buttonLock = false;
    settings.timeZoneOffset = -12600;
    settings.startDate = 0;
    settings.stopDate = 0;
    rig.press("buttonRead");
    QCOMPARE(storedOptions(rig.window), QStringList({"policies 65535", "password \"known\"", "lock 0",
                                                     "zone -12600", "start off", "stop off"}));
    QCOMPARE(differences(rig, idle(QStringLiteral("Read successful"), false)), QString());
}

void TestMainWindowExtendedRead::tellsTheOptionsTheType_data()
{
    readsInOrder_data();
}

void TestMainWindowExtendedRead::tellsTheOptionsTheType()
{
    QFETCH(const bool, multiuse);
    ProcedureRig rig;
    rig.plugAndConnect(secureLogger(!multiuse));
    rig.logger->model().settings().multiuse = multiuse;
    rig.press("buttonRead");
    options(rig)->show();
    QCOMPARE(options(rig)->findChild<QWidget*>("groupMultiuse")->isEnabled(), multiuse);
    options(rig)->hide();
    QCOMPARE(differences(rig, idle(QStringLiteral("Read successful"), false)), QString());
}

// As the device has it; neither time configuration nor a reference time is there. Older firmware has none.
void TestMainWindowExtendedRead::showsTheZone()
{
    const QList<const char*> zoneLabels{"labelTimeZoneStatic", "labelTimeZone"};
    ProcedureRig rig;
    rig.plugAndConnect(secureLogger());
    QCOMPARE(visibleLabels(rig, zoneLabels),
             QStringList({"labelTimeZoneStatic = Time Zone on device:", "labelTimeZone = GMT+2:00"}));
    rig.logger->model().settings().timeZoneOffset = -12600;
    rig.press("buttonRead");
    QCOMPARE(visibleLabels(rig, zoneLabels).value(1), QStringLiteral("labelTimeZone = GMT-3:30"));
    rig.press("buttonConnect");
    QCOMPARE(visibleLabels(rig, zoneLabels), QStringList());
    rig.unplugAll();
    rig.plugAndConnect(basicLogger());
    QCOMPARE(visibleLabels(rig, zoneLabels), QStringList());
    QCOMPARE(differences(rig, connected()), QString());
}

void TestMainWindowExtendedRead::repairsClock_data()
{
    QTest::addColumn<QByteArray>("clock");
    QTest::addColumn<bool>("repaired");
    QTest::newRow("last second of 2016") << QByteArray("1483228799\r\n") << true;
    QTest::newRow("first second of 2017") << QByteArray("1483228800\r\n") << false;
    QTest::newRow("1970") << QByteArray("0\r\n") << true;
    QTest::newRow("below zero") << QByteArray("-1\r\n") << true;
    QTest::newRow("no number") << QByteArray("noon\r\n") << true;
}

void TestMainWindowExtendedRead::repairsClock()
{
    QFETCH(const QByteArray, clock);
    QFETCH(const bool, repaired);
    LoggerModel model = secureLogger();
    model.settings().clockOffset = -86400;
    ProcedureRig rig;
    rig.plug(model);
    rig.disturb("g", Fault::Kind::Reply, clock);
    QString shown;
    const int clockCommand = extendedConnectCommands().indexOf("g");
    rig.atCommand(clockCommand + (repaired ? 4 : 2), [&] { shown = rig.text("labelDateTime"); });
    if (repaired)
        QTest::ignoreMessage(QtDebugMsg, "Detected inconsistent time/date. Fixing.");
    rig.press("buttonConnect");

    QList<QByteArray> expected = extendedConnectCommands();
    const LoggerModel::Settings& settings = rig.logger->model().settings();
    if (repaired) {
        const QByteArray set = rig.wire().value(clockCommand + 1);
        QVERIFY2(set.startsWith("u17157744"), set.constData()); // about 12:00:00 on the test's day
        expected.insert(clockCommand + 1, set);
        expected.insert(clockCommand + 2, "Sz00000000");
        QVERIFY(qAbs(settings.clockOffset) <= 2);
        QVERIFY2(shown.startsWith(QStringLiteral("12:00:0")), qPrintable(shown));
    } else {
        QCOMPARE(shown, QDateTime(QDate(2017, 1, 1), QTime(0, 0)).toString("hh:mm:ss dd/MMM/yyyy"));
    }
    QCOMPARE(rig.wire(), expected);
    QCOMPARE(settings.timeZoneOffset, repaired ? 0 : 7200);
    QCOMPARE(options(rig)->lTimeZoneOffset(), settings.timeZoneOffset);
    QCOMPARE(differences(rig, connected()), QString());
}

void TestMainWindowExtendedRead::leavesClockOfOlderFirmware()
{
    LoggerModel model = basicLogger();
    model.settings().multiuse = true;
    ProcedureRig rig;
    rig.plug(model);
    rig.disturb("g", Fault::Kind::Reply, "0\r\n");
    rig.press("buttonConnect");
    QCOMPARE(rig.wire(), connectCommands());
    QCOMPARE(differences(rig, connected()), QString());
}

void TestMainWindowExtendedRead::repairNeedsNoAnswer()
{
    ProcedureRig rig;
    rig.plug(secureLogger());
    rig.disturb("g", Fault::Kind::Reply, "0\r\n");
    rig.disturb("u", Fault::Kind::Silence);
    rig.disturb("Sz", Fault::Kind::Silence);
    rig.press("buttonConnect");
    QCOMPARE(rig.wire().size(), extendedConnectCommands().size() + 2);
    QCOMPARE(differences(rig, connected()), QString());
}

void TestMainWindowExtendedRead::movesBar_data()
{
    QTest::addColumn<QByteArray>("silentCommand");
    QTest::addColumn<QList<int>>("values");
    const auto row = [](const char* name, const QByteArray& silentCommand, const QList<int>& values) {
        QTest::newRow(name) << silentCommand << values;
    };
    row("all is read", "", {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 17});
    row("G2 is silent", "G2", {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 17});
    row("z is silent", "z", {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 17});
}

void TestMainWindowExtendedRead::movesBar()
{
    QFETCH(const QByteArray, silentCommand);
    ProcedureRig rig;
    rig.plugAndConnect(secureLogger());
    if (!silentCommand.isEmpty())
        rig.disturb(silentCommand, Fault::Kind::Silence);
    const ProgressWatch watch;
    rig.press("buttonRead");
    QCOMPARE(watch.dialogs().size(), 1);
    QTEST(watch.dialogs().first().values, "values");
    QCOMPARE(differences(rig, idle(QStringLiteral("Read successful"), false)), QString());
}

QTEST_MAIN(TestMainWindowExtendedRead)
#include "tst_mainwindow_extendedread.moc"
