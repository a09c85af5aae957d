// The answer of a time server comes in the middle of a procedure, at every single exchange: nothing comes
// between the procedure's own commands, and nothing in the window changes but the status bar.

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

QTEST_MAIN(TestMainWindowTimeAnswers)
#include "tst_mainwindow_timeanswers.moc"
