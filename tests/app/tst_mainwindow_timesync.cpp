// The reference time on its way to the logger: when a write sends it, and in which terms.

#include "dialogs/advancedoptionsdialog.h"
#include "extendedrig.h"
#include "progresswatch.h"
#include "timerig.h"
#include "windowstate.h"
#include "windowwords.h"

#include <QDateTime>
#include <QTest>

using namespace TimeWords;
using namespace WindowWords;

namespace {

/// "u" and the seconds, as the wire has it, of the commands; empty if there is none.
QByteArray clockCommand(const QList<QByteArray>& commands)
{
    for (const QByteArray& command : commands) {
        if (command.startsWith('u'))
            return command;
    }
    return {};
}

/// What a write sends that sets the clock with @p commands: they follow the range.
QList<QByteArray> writeWith(const QList<QByteArray>& all, const QList<QByteArray>& commands)
{
    return all.mid(0, 1) + commands + all.mid(1);
}

QDateTime shownTime(const ProcedureRig& rig)
{
    QDateTime time = QDateTime::fromString(rig.text("labelDateTime"), QStringLiteral("hh:mm:ss dd/MMM/yyyy"));
    time.setTimeSpec(Qt::UTC);
    return time;
}

} // namespace

class TestMainWindowTimeSync : public QObject
{
    Q_OBJECT

private slots:
    void extendedLoggerTakesZoneAndTrueTime_data();
    void extendedLoggerTakesZoneAndTrueTime();
    void olderLoggerTakesTheFiguresOnTheClock();
    void nothingIsSentWithoutReferenceTime_data();
    void nothingIsSentWithoutReferenceTime();
    void failsAtSilence_data();
    void failsAtSilence();
    void cancelIsAFailureOnExtendedFirmware_data();
    void cancelIsAFailureOnExtendedFirmware();
    void cancelOnOlderFirmware();
    void movesBar_data();
    void movesBar();
};

void TestMainWindowTimeSync::extendedLoggerTakesZoneAndTrueTime_data()
{
    QTest::addColumn<int>("zone");
    QTest::addColumn<QByteArray>("command");
    QTest::newRow("an hour ahead") << 3600 << QByteArray("Sz00003600");
    QTest::newRow("GMT") << 0 << QByteArray("Sz00000000");
    QTest::newRow("three hours and a half behind") << -12600 << QByteArray("Sz-0012600");
}

// The window shows 12:00:00 in a zone an hour ahead, and the device is sent 11:00:00.
void TestMainWindowTimeSync::extendedLoggerTakesZoneAndTrueTime()
{
    QFETCH(const int, zone);
    QFETCH(const QByteArray, command);
    LoggerModel model = secureLogger();
    model.settings().timeZoneOffset = zone;
    SynchronisedRig synchronised(model);
    TimeRig& rig = synchronised.rig;
    QDateTime shown;
    rig.atCommand(2, [&] { shown = shownTime(rig); });
    rig.press("buttonWrite");
    const QByteArray set = clockCommand(rig.wire());
    QVERIFY2(qAbs(set.mid(1).toLongLong() - (shown.toSecsSinceEpoch() - zone)) <= 1, set.constData());
    QCOMPARE(rig.wire(), writeWith(extendedWriteCommands(), {command, set}));
    const LoggerModel::Settings& settings = rig.logger->model().settings();
    QCOMPARE(settings.timeZoneOffset, zone);
    QVERIFY2(qAbs(settings.clockOffset) <= 2, QByteArray::number(settings.clockOffset));
    QCOMPARE(rig.takeStatusLog(), QStringList({"Writing to device...", "Write successful"}));
    QCOMPARE(differences(rig, idle(QStringLiteral("Write successful"), false)), QString());
}

void TestMainWindowTimeSync::olderLoggerTakesTheFiguresOnTheClock()
{
    LoggerModel model = basicLogger();
    model.settings().clockOffset = 7200;
    SynchronisedRig synchronised(model);
    TimeRig& rig = synchronised.rig;
    QDateTime shown;
    rig.atCommand(2, [&] { shown = shownTime(rig); });
    rig.press("buttonWrite");
    const QByteArray set = clockCommand(rig.wire());
    QVERIFY2(qAbs(set.mid(1).toLongLong() - shown.toSecsSinceEpoch()) <= 1, set.constData());
    QCOMPARE(rig.wire(), writeWith(writeCommandsOfBasicLogger(), {set}));
    QVERIFY(qAbs(rig.logger->model().settings().clockOffset - 7200) <= 2);
    QCOMPARE(differences(rig, idle(QStringLiteral("Write successful"), false)), QString());
}

void TestMainWindowTimeSync::nothingIsSentWithoutReferenceTime_data()
{
    QTest::addColumn<bool>("extended");
    QTest::addColumn<bool>("configured");
    QTest::newRow("extended, before the first answer") << true << true;
    QTest::newRow("extended, time configuration off") << true << false;
    QTest::newRow("basic, before the first answer") << false << true;
    QTest::newRow("basic, time configuration off") << false << false;
}

void TestMainWindowTimeSync::nothingIsSentWithoutReferenceTime()
{
    QFETCH(const bool, extended);
    QFETCH(const bool, configured);
    const Servers servers(configured ? NtpAnswer::silence() : NtpAnswer::currentTime());
    TimeRig rig(timeSettings());
    if (!configured) {
        QVERIFY(rig.comesTo(fetchedServer));
        rig.check("checkDisableTime", true);
    }
    rig.plugAndConnect(extended ? secureLogger() : basicLogger());
    const ProgressWatch watch;
    rig.press("buttonWrite");
    QCOMPARE(rig.wire(), extended ? extendedWriteCommands() : writeCommandsOfBasicLogger());
    QCOMPARE(watch.dialogs().first().values.mid(0, 2), QList<int>({0, 1}));
    QCOMPARE(rig.robot.problems(), QString());
}

void TestMainWindowTimeSync::failsAtSilence_data()
{
    QTest::addColumn<bool>("extended");
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<int>("sent");
    QTest::newRow("extended, Sz") << true << QByteArray("Sz") << 2;
    QTest::newRow("extended, u") << true << QByteArray("u") << 3;
    QTest::newRow("basic, u") << false << QByteArray("u") << 2;
}

void TestMainWindowTimeSync::failsAtSilence()
{
    QFETCH(const bool, extended);
    QFETCH(const QByteArray, command);
    QFETCH(const int, sent);
    SynchronisedRig synchronised(extended ? secureLogger() : basicLogger());
    TimeRig& rig = synchronised.rig;
    rig.disturb(command, Fault::Kind::Silence);
    expectWriteFailed(rig.robot);
    rig.press("buttonWrite");
    QCOMPARE(rig.wire().size(), sent);
    QVERIFY(rig.wire().last().startsWith(command));
    QCOMPARE(differences(rig, idle(QStringLiteral("Write failed. Please retry"), true)), QString());
}

void TestMainWindowTimeSync::cancelIsAFailureOnExtendedFirmware_data()
{
    QTest::addColumn<int>("command");
    QTest::newRow("at the zone") << 2;
    QTest::newRow("at the clock") << 3;
}

// Looked at only behind both commands, so that the device has them both.
void TestMainWindowTimeSync::cancelIsAFailureOnExtendedFirmware()
{
    QFETCH(const int, command);
    SynchronisedRig synchronised(secureLogger());
    TimeRig& rig = synchronised.rig;
    rig.atCommand(command, [&rig] { rig.pressCancel(); });
    expectWriteCanceled(rig.robot);
    expectWriteFailed(rig.robot);
    rig.press("buttonWrite");
    QCOMPARE(rig.wire().size(), 3);
    QVERIFY(rig.wire().last().startsWith('u'));
    QCOMPARE(differences(rig, idle(QStringLiteral("Write failed. Please retry"), true)), QString());
}

void TestMainWindowTimeSync::cancelOnOlderFirmware()
{
    SynchronisedRig synchronised(basicLogger());
    TimeRig& rig = synchronised.rig;
    rig.atCommand(2, [&rig] { rig.pressCancel(); });
    expectWriteCanceled(rig.robot);
    rig.press("buttonWrite");
    QCOMPARE(rig.wire().size(), 2);
    QCOMPARE(differences(rig, idle(QStringLiteral("Write successful"), false)), QString());
}

void TestMainWindowTimeSync::movesBar_data()
{
    QTest::addColumn<bool>("extended");
    QTest::addColumn<QList<int>>("values");
    QTest::newRow("extended") << true << QList<int>({0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 17});
    QTest::newRow("basic") << false << QList<int>({0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 17});
}

void TestMainWindowTimeSync::movesBar()
{
    QFETCH(const bool, extended);
    SynchronisedRig synchronised(extended ? secureLogger() : basicLogger());
    TimeRig& rig = synchronised.rig;
    const ProgressWatch watch;
    rig.press("buttonWrite");
    QCOMPARE(watch.dialogs().size(), 1);
    QTEST(watch.dialogs().first().values, "values");
    QCOMPARE(rig.robot.problems(), QString());
}

QTEST_MAIN(TestMainWindowTimeSync)
#include "tst_mainwindow_timesync.moc"
