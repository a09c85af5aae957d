// The repair of an impossible clock in the middle of a read, and what can come in between: the Cancel button,
// the end of the window, a time server's answer.

#include "readingrig.h"

#include "extendedrig.h"
#include "timerig.h"

#include <QDateTime>
#include <QProgressDialog>
#include <QTest>

using namespace TimeWords;
using namespace WindowWords;

namespace {

constexpr int threeDays = 3 * 86400;
constexpr int eightYears = 8 * 366 * 86400;

/// A logger that says 1970, once.
struct RepairRig : ReadingRig
{
    explicit RepairRig(bool connecting)
        : ReadingRig(connecting, secureLogger(), withRepair(extendedReadCommands()))
    {
        disturb("g", Fault::Kind::Reply, "0\r\n");
    }
};

void addRepairRows(const QList<QByteArray>& wanted)
{
    addReadingRows(withRepair(extendedReadCommands()), wanted);
}

} // namespace

class TestMainWindowRepair : public QObject
{
    Q_OBJECT

private slots:
    void cancelBeforeItPreventsIt_data() { addRepairRows({"g"}); }
    void cancelBeforeItPreventsIt();
    void cancelIsLookedAtBehindIt_data() { addRepairRows({"u", "Sz00000000"}); }
    void cancelIsLookedAtBehindIt();
    void barMovesBehindIt();
    void windowIsClosed_data() { addRepairRows({"u", "Sz00000000"}); }
    void windowIsClosed();
    void timeComes_data() { addCommandRows(withRepair(extendedConnectCommands()), {8, 9}); }
    void timeComes();
    void takesTheComputersClock();
    void singleUseLoggerIsRepairedAndRefused();
};

void TestMainWindowRepair::cancelBeforeItPreventsIt()
{
    QFETCH(const int, number);
    QFETCH(const bool, connecting);
    RepairRig rig(connecting);
    rig.atCommand(rig.number(number), [&rig] { rig.pressCancel(); });
    rig.run();
    QCOMPARE(rig.wire(), rig.commandsOfReadEndingAt(number));
    QCOMPARE(rig.logger->model().settings().timeZoneOffset, 7200);
    QCOMPARE(panels(rig), emptyPanels());
    QCOMPARE(differences(rig, rig.lostState()), QString());
}

// The clock and its zone belong together, so both are sent; only the next step is the last one.
void TestMainWindowRepair::cancelIsLookedAtBehindIt()
{
    QFETCH(const int, number);
    QFETCH(const bool, connecting);
    RepairRig rig(connecting);
    rig.atCommand(rig.number(number), [&rig] { rig.pressCancel(); });
    rig.run();
    const int nextStep = withRepair(extendedReadCommands()).indexOf("Gt") + 1;
    QCOMPARE(withoutSeconds(rig.wire()), rig.commandsOfReadEndingAt(nextStep));
    QCOMPARE(panels(rig), emptyPanels());
    QCOMPARE(differences(rig, rig.lostState()), QString());
}

void TestMainWindowRepair::barMovesBehindIt()
{
    RepairRig rig(false);
    const QList<QByteArray> commands = withRepair(extendedReadCommands());
    QList<int> values;
    for (const char* command : {"g", "u", "Sz00000000", "Gt"})
        rig.atCommand(commands.indexOf(command) + 1, [&] { values << rig.progressDialog()->value(); });
    rig.run();
    QCOMPARE(values, QList<int>({2, 2, 2, 3}));
    QCOMPARE(differences(rig, rig.readState()), QString());
}

// Nothing follows the command under way. A read of its own has cleared the texts by then.
void TestMainWindowRepair::windowIsClosed()
{
    QFETCH(const int, number);
    QFETCH(const bool, connecting);
    RepairRig rig(connecting);
    rig.atCommand(rig.number(number), [&rig] { rig.window.close(); });
    if (!connecting)
        expectExit(rig.robot, Yes);
    rig.run();
    QCOMPARE(closedWindowRemains(rig), QString());
    QCOMPARE(withoutSeconds(rig.wire()), rig.commandsUpTo(number));
}

void TestMainWindowRepair::timeComes()
{
    QFETCH(const int, command);
    WaitingRig waiting;
    TimeRig& rig = waiting.rig;
    rig.plug(secureLogger());
    rig.disturb("g", Fault::Kind::Reply, "0\r\n");
    rig.atCommand(command, [&waiting] { waiting.tellTimeUntil(fetchedServer); });
    rig.press("buttonConnect");
    QVERIFY(waiting.told);
    QCOMPARE(withoutSeconds(rig.wire()), withRepair(extendedConnectCommands()));
    QCOMPARE(rig.zone(), QStringLiteral("GMT, label, button"));
    QCOMPARE(differences(rig, connected()), QString());
}

// The reference time, three days ahead, is there.
void TestMainWindowRepair::takesTheComputersClock()
{
    LoggerModel model = secureLogger();
    model.settings().clockOffset = -eightYears;
    WaitingRig waiting(Q_INT64_C(1000) * threeDays);
    waiting.tellTimeUntil(fetchedServer);
    QVERIFY(waiting.told);
    TimeRig& rig = waiting.rig;
    rig.plug(model);
    const int set = withRepair(extendedConnectCommands()).indexOf("u") + 1;
    qint64 computerTime = 0;
    rig.atCommand(set, [&computerTime] { computerTime = QDateTime::currentSecsSinceEpoch(); });
    rig.press("buttonConnect");
    const QByteArray command = rig.wire().value(set - 1);
    QVERIFY2(qAbs(command.mid(1).toLongLong() - computerTime) <= 1, command.constData());
    QVERIFY(qAbs(rig.logger->model().settings().clockOffset) <= 2);
    QCOMPARE(differences(rig, connected()), QString());
}

// What it said before the repair counts: nobody knows what it has recorded since. The next connect finds
// the clock right.
void TestMainWindowRepair::singleUseLoggerIsRepairedAndRefused()
{
    LoggerModel model = secureLogger(false);
    model.settings().clockOffset = -eightYears;
    ProcedureRig rig;
    rig.plug(model);
    expectInvalidDevice(rig.robot);
    rig.press("buttonConnect");
    QCOMPARE(withoutSeconds(rig.wire()), withRepair(extendedConnectCommands(false)));
    QVERIFY(qAbs(rig.logger->model().settings().clockOffset) <= 2);
    QCOMPARE(rig.takeStatusLog(),
             QStringList({"Connecting to device... ", "Reading from device on ttyACM0", "Read successful",
                          "Invalid device detected.", "Disconnected from ttyACM0"}));
    rig.logger->clearExchanges();
    rig.press("buttonConnect");
    QCOMPARE(rig.wire(), extendedConnectCommands(false));
    QCOMPARE(differences(rig, connected()), QString());
}

QTEST_MAIN(TestMainWindowRepair)
#include "tst_mainwindow_repair.moc"
