// The answer of a time server comes in the middle of a procedure, at every single exchange and over its
// boxes: nothing comes between the procedure's own commands, and nothing in the window changes but the status
// bar.

#include "extendedrig.h"
#include "timerig.h"
#include "windowstate.h"
#include "windowwords.h"

#include <QTest>

using namespace TimeWords;
using namespace WindowWords;

namespace {

struct QuickRig : WaitingRig
{
    QuickRig() { rig.skipIdleWaits(); }
};

/// The answer is due at the n-th command of what follows.
void answerAt(WaitingRig& waiting, int command)
{
    waiting.rig.atCommand(command, [&waiting] { waiting.tellTimeUntil(fetchedServer); });
}

/// The answer comes as soon as the first box is open.
void answerOverABox(WaitingRig& waiting)
{
    QObject::connect(&waiting.rig.robot, &DialogRobot::sBoxOpened, &waiting.rig.window, [&waiting] {
        if (!waiting.told)
            waiting.tellTimeUntil(fetchedServer);
    });
}

} // namespace

class TestMainWindowTimeAnswers : public QObject
{
    Q_OBJECT

private slots:
    void duringConnect_data() { addCommandRows(lockedConnectCommands()); }
    void duringConnect();
    void duringRead_data() { addCommandRows(extendedReadCommands()); }
    void duringRead();
    void duringWrite_data() { addCommandRows(extendedWriteCommands()); }
    void duringWrite();
    void duringStart_data() { addCommandRows({"Go", "a"}); }
    void duringStart();
    void overTheUnlockDialog();
    void overTheReadQuestion_data();
    void overTheReadQuestion();
    void overAnEnding_data();
    void overAnEnding();
};

void TestMainWindowTimeAnswers::duringConnect()
{
    QFETCH(const int, command);
    QuickRig waiting;
    TimeRig& rig = waiting.rig;
    const UnlockHand hand(rig, {rightPassword});
    rig.plug(lockedLogger());
    answerAt(waiting, command);
    rig.press("buttonConnect");
    QVERIFY(waiting.told);
    QCOMPARE(rig.wire(), lockedConnectCommands());
    QCOMPARE(differences(rig, connected()), QString());
}

void TestMainWindowTimeAnswers::duringRead()
{
    QFETCH(const int, command);
    QuickRig waiting;
    TimeRig& rig = waiting.rig;
    rig.plugAndConnect(secureLogger());
    answerAt(waiting, command);
    rig.press("buttonRead");
    QVERIFY(waiting.told);
    QCOMPARE(rig.wire(), extendedReadCommands());
    const bool atTheEnd = command == extendedReadCommands().size();
    QCOMPARE(differences(rig, idle(atTheEnd ? fetchedServer : QStringLiteral("Read successful"), false)),
             QString());
}

// At the first command it is in time to be sent to the logger.
void TestMainWindowTimeAnswers::duringWrite()
{
    QFETCH(const int, command);
    QuickRig waiting;
    TimeRig& rig = waiting.rig;
    rig.plugAndConnect(secureLogger());
    answerAt(waiting, command);
    rig.press("buttonWrite");
    QVERIFY(waiting.told);
    QList<QByteArray> expected = extendedWriteCommands();
    if (command == 1) {
        expected.insert(1, "Sz00007200");
        expected.insert(2, rig.wire().value(2));
        QVERIFY(expected.at(2).startsWith('u'));
    }
    QCOMPARE(rig.wire(), expected);
    QCOMPARE(differences(rig, idle(QStringLiteral("Write successful"), false)), QString());
}

void TestMainWindowTimeAnswers::duringStart()
{
    QFETCH(const int, command);
    QuickRig waiting;
    TimeRig& rig = waiting.rig;
    rig.plugAndConnect(secureLogger());
    expectStartConfirm(rig.robot, Yes);
    answerAt(waiting, command);
    rig.press("buttonStart");
    QVERIFY(waiting.told);
    QCOMPARE(rig.wire(), QList<QByteArray>({"Go", "a"}));
    QCOMPARE(differences(rig, disconnected()), QString());
}

void TestMainWindowTimeAnswers::overTheUnlockDialog()
{
    WaitingRig waiting;
    TimeRig& rig = waiting.rig;
    const UnlockHand hand(rig, {rightPassword});
    connect(&hand, &UnlockHand::sShown, this, [&waiting] { waiting.tellTimeUntil(fetchedServer); });
    rig.plug(lockedLogger());
    rig.press("buttonConnect");
    QVERIFY(waiting.told);
    QCOMPARE(rig.wire(), lockedConnectCommands());
    QCOMPARE(differences(rig, connected()), QString());
}

void TestMainWindowTimeAnswers::overTheReadQuestion_data()
{
    QTest::addColumn<bool>("reading");
    QTest::newRow("Yes") << true;
    QTest::newRow("No") << false;
}

void TestMainWindowTimeAnswers::overTheReadQuestion()
{
    QFETCH(const bool, reading);
    WaitingRig waiting;
    TimeRig& rig = waiting.rig;
    rig.plugAndConnect(secureLogger());
    rig.type("lineInfo", QStringLiteral("Batch 8"));
    answerOverABox(waiting);
    expectReadQuestion(rig.robot, reading ? Yes : No);
    rig.press("buttonRead");
    QVERIFY(waiting.told);
    QCOMPARE(rig.wire(), reading ? extendedReadCommands() : QList<QByteArray>());
    QCOMPARE(differences(rig, reading ? idle(QStringLiteral("Read successful"), false)
                                      : idle(fetchedServer, true)),
             QString());
}

void TestMainWindowTimeAnswers::overAnEnding_data()
{
    QTest::addColumn<bool>("reading");
    QTest::addColumn<bool>("cancelled");
    QTest::newRow("failed read") << true << false;
    QTest::newRow("failed write") << false << false;
    QTest::newRow("cancelled write") << false << true;
}

// A read looks at the device once, behind its box; a write doesn't.
void TestMainWindowTimeAnswers::overAnEnding()
{
    QFETCH(const bool, reading);
    QFETCH(const bool, cancelled);
    constexpr int lastCommand = 3;
    WaitingRig waiting;
    TimeRig& rig = waiting.rig;
    rig.plugAndConnect(secureLogger());
    if (cancelled)
        rig.atCommand(lastCommand, [&rig] { rig.pressCancel(); });
    else
        rig.disturb(lastCommand, Fault::Kind::Silence);
    answerOverABox(waiting);
    cancelled ? expectWriteCanceled(rig.robot)
              : (reading ? expectReadFailed(rig.robot) : expectWriteFailed(rig.robot));
    rig.press(reading ? "buttonRead" : "buttonWrite");
    QVERIFY(waiting.told);
    QCOMPARE(rig.wire(), reading ? firstOf(extendedReadCommands(), lastCommand) << "m"
                                 : firstOf(extendedWriteCommands(), lastCommand));
    const WindowState written = cancelled ? idle(QStringLiteral("Write successful"), false)
                                          : idle(QStringLiteral("Write failed. Please retry"), true);
    QCOMPARE(differences(rig, reading ? disconnected() : written), QString());
}

QTEST_MAIN(TestMainWindowTimeAnswers)
#include "tst_mainwindow_timeanswers.moc"
