// What can come in between while a write sets the logger's clock: the end of the window, and another query
// for the reference time.

#include "extendedrig.h"
#include "timerig.h"
#include "windowstate.h"
#include "windowwords.h"
#include "zoneaccess.h"

#include "dialogs/settingsdialog.h"

#include <QDateTime>
#include <QTest>

using namespace TimeWords;
using namespace WindowWords;

namespace {

constexpr qint64 fiveHours = Q_INT64_C(5) * 3600 * 1000; // ms

/// A synchronising write, whose "u" stands without its seconds.
QList<QByteArray> writeCommands(bool extended)
{
    QList<QByteArray> commands = extended ? extendedWriteCommands() : writeCommandsOfBasicLogger();
    if (extended)
        commands.insert(1, "Sz00007200");
    commands.insert(extended ? 2 : 1, "u");
    return commands;
}

void addSynchronisationRows()
{
    QTest::addColumn<bool>("extended");
    QTest::addColumn<int>("command");
    QTest::newRow("extended, Sz") << true << 2;
    QTest::newRow("extended, u") << true << 3;
    QTest::newRow("basic, u") << false << 2;
}

} // namespace

class TestMainWindowTimeSyncFaults : public QObject
{
    Q_OBJECT

private slots:
    void windowIsClosed_data() { addSynchronisationRows(); }
    void windowIsClosed();
    void otherTimeComes_data() { addSynchronisationRows(); }
    void otherTimeComes();
    void otherTimeIsAskedFor_data() { addSynchronisationRows(); }
    void otherTimeIsAskedFor();
    void sendsTheTimeOfTheMoment();
};

void TestMainWindowTimeSyncFaults::windowIsClosed()
{
    QFETCH(const bool, extended);
    QFETCH(const int, command);
    SynchronisedRig synchronised(extended ? secureLogger() : basicLogger());
    TimeRig& rig = synchronised.rig;
    rig.atCommand(command, [&rig] { rig.window.close(); });
    rig.press("buttonWrite");
    QCOMPARE(closedWindowRemains(rig), QString());
    QCOMPARE(withoutSeconds(rig.wire()), firstOf(writeCommands(extended), command));
}

// The figures on the device's clock are sent and not the reference time, so the new answer changes nothing.
void TestMainWindowTimeSyncFaults::otherTimeComes()
{
    QFETCH(const bool, extended);
    QFETCH(const int, command);
    SynchronisedRig synchronised(extended ? secureLogger() : basicLogger());
    TimeRig& rig = synchronised.rig;
    bool came = false;
    rig.atCommand(command, [&] {
        synchronised.servers.answer(NtpAnswer::currentTime(fiveHours));
        rig.check("checkUsePool", true);
        rig.dialog->accept();
        came = rig.comesTo(fetchedPool);
    });
    rig.press("buttonWrite");
    QVERIFY(came);
    QCOMPARE(withoutSeconds(rig.wire()), writeCommands(extended));
    QVERIFY(qAbs(rig.logger->model().settings().clockOffset) <= 2);
    QCOMPARE(rig.takeStatusLog(),
             QStringList({"Writing to device...", fetchingPool, fetchedPool, "Write successful"}));
    QCOMPARE(differences(rig, idle(QStringLiteral("Write successful"), false)), QString());
}

// There is no reference time until the answer, but what was begun with one is brought to its end.
void TestMainWindowTimeSyncFaults::otherTimeIsAskedFor()
{
    QFETCH(const bool, extended);
    QFETCH(const int, command);
    SynchronisedRig synchronised(extended ? secureLogger() : basicLogger());
    TimeRig& rig = synchronised.rig;
    rig.atCommand(command, [&] {
        synchronised.servers.answer(NtpAnswer::silence());
        rig.check("checkUsePool", true);
        rig.dialog->accept();
    });
    rig.press("buttonWrite");
    QCOMPARE(withoutSeconds(rig.wire()), writeCommands(extended));
    QVERIFY(qAbs(rig.logger->model().settings().clockOffset) <= 2);
    QCOMPARE(differences(rig, idle(QStringLiteral("Write successful"), false)), QString());
}

// The window's clock is looked at when the zone has been taken: meanwhile it may have ticked, or here, to be
// seen better, gone over to another zone.
void TestMainWindowTimeSyncFaults::sendsTheTimeOfTheMoment()
{
    SynchronisedRig synchronised(secureLogger());
    TimeRig& rig = synchronised.rig;
    rig.atCommand(2, [&rig] { setZone(rig.window, QStringLiteral("GMT+5:00")); });
    rig.press("buttonWrite");
    QCOMPARE(withoutSeconds(rig.wire()), writeCommands(true));
    const qint64 sent = rig.wire().value(2).mid(1).toLongLong();
    const qint64 shown = QDateTime::currentSecsSinceEpoch() + Q_INT64_C(5) * 3600;
    QVERIFY2(qAbs(sent - (shown - 7200)) < 30, QByteArray::number(sent));
    QCOMPARE(rig.robot.problems(), QString());
}

QTEST_MAIN(TestMainWindowTimeSyncFaults)
#include "tst_mainwindow_timesyncfaults.moc"
