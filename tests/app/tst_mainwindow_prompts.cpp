// A prompt for a newer version comes in the middle of a procedure, at every single exchange: nothing comes of
// it whatever the answer, which goes by turns.

#include "extendedrig.h"
#include "support/nextchance.h"
#include "updaterig.h"
#include "windowstate.h"
#include "windowwords.h"

#include <QTest>

using namespace WindowWords;

namespace {

const QString readDone = QStringLiteral("Read successful");
const QString writeDone = QStringLiteral("Write successful");

using CommandList = QList<QByteArray> (*)(bool multiuse);

/// Rows for every command of both types of logger.
void addRowsOfBothTypes(CommandList commandsOf)
{
    QTest::addColumn<bool>("multiuse");
    QTest::addColumn<int>("command");
    for (const bool multiuse : {true, false}) {
        const QList<QByteArray> commands = commandsOf(multiuse);
        for (int number = 1; number <= commands.size(); ++number)
            QTest::addRow("%s, %d %s", multiuse ? "Multiuse" : "Single-use", number,
                          commands.at(number - 1).left(2).constData())
                << multiuse << number;
    }
}

/// The newer version is on offer at the n-th command from now.
void offerAt(UpdateRig& update, int command)
{
    expectUpdate(update.rig.robot, newestVersion, command % 2 == 1 ? QMessageBox::Ok : QMessageBox::Cancel);
    update.promptAt(command);
}

/// What the browser shows after that.
QList<QUrl> addressesAfter(int command)
{
    return command % 2 == 1 ? newerAddress : QList<QUrl>();
}

} // namespace

class TestMainWindowPrompts : public QObject
{
    Q_OBJECT

private slots:
    void duringConnect_data() { addRowsOfBothTypes(&lockedConnectCommands); }
    void duringConnect();
    void duringRead_data() { addRowsOfBothTypes(&extendedReadCommands); }
    void duringRead();
    void duringWrite_data() { addCommandRows(extendedWriteCommands()); }
    void duringWrite();
    void duringStart_data() { addCommandRows({"Go", "a"}); }
    void duringStart();
    void longDuringRead();
    void overTheUnlockDialog();
};

void TestMainWindowPrompts::duringConnect()
{
    QFETCH(const bool, multiuse);
    QFETCH(const int, command);
    UpdateRig update(newerFile);
    ProcedureRig& rig = update.rig;
    rig.plug(lockedLogger(LoggerModel::State::Idle, multiuse));
    const UnlockHand hand(rig, {rightPassword});
    offerAt(update, command);
    rig.press("buttonConnect");
    QVERIFY(update.prompted);
    QCOMPARE(hand.showings(), 1);
    QCOMPARE(rig.wire(), lockedConnectCommands(multiuse));
    QCOMPARE(update.browser.opened, addressesAfter(command));
    QCOMPARE(differences(rig, connected()), QString());
}

void TestMainWindowPrompts::duringRead()
{
    QFETCH(const bool, multiuse);
    QFETCH(const int, command);
    ConnectedUpdateRig update(newerFile, secureLogger(multiuse));
    offerAt(update, command);
    update.rig.press("buttonRead");
    QVERIFY(update.prompted);
    QCOMPARE(update.rig.wire(), extendedReadCommands(multiuse));
    QCOMPARE(update.browser.opened, addressesAfter(command));
    QCOMPARE(differences(update.rig, idle(readDone, false)), QString());
}

void TestMainWindowPrompts::duringWrite()
{
    QFETCH(const int, command);
    ConnectedUpdateRig update(newerFile, secureLogger());
    offerAt(update, command);
    update.rig.press("buttonWrite");
    QVERIFY(update.prompted);
    QCOMPARE(update.rig.wire(), extendedWriteCommands());
    QCOMPARE(update.browser.opened, addressesAfter(command));
    QCOMPARE(differences(update.rig, idle(writeDone, false)), QString());
}

void TestMainWindowPrompts::duringStart()
{
    QFETCH(const int, command);
    ConnectedUpdateRig update(newerFile, secureLogger());
    expectStartConfirm(update.rig.robot, Yes);
    offerAt(update, command);
    update.rig.press("buttonStart");
    QVERIFY(update.prompted);
    QCOMPARE(update.rig.wire(), QList<QByteArray>({"Go", "a"}));
    QCOMPARE(update.browser.opened, addressesAfter(command));
    QCOMPARE(differences(update.rig, disconnected()), QString());
}

// The answer to a command is taken while the prompt is open, and is still good when it goes.
void TestMainWindowPrompts::longDuringRead()
{
    ConnectedUpdateRig update(newerFile, secureLogger());
    ProcedureRig& rig = update.rig;
    rig.atCommand(2, [&] { atNextChance(&rig.window, [&] { update.prompted = update.prompt(); }); });
    connect(&rig.robot, &DialogRobot::sBoxOpened, &rig.window, [] { QTest::qWait(300); });
    expectUpdate(rig.robot, newestVersion, QMessageBox::Ok);
    rig.press("buttonRead");
    QVERIFY(update.prompted);
    QCOMPARE(rig.wire(), extendedReadCommands());
    QCOMPARE(differences(rig, idle(readDone, false)), QString());
}

void TestMainWindowPrompts::overTheUnlockDialog()
{
    UpdateRig update(newerFile);
    ProcedureRig& rig = update.rig;
    rig.plug(lockedLogger());
    const UnlockHand hand(rig, {rightPassword});
    connect(&hand, &UnlockHand::sShown, &rig.window, [&update] { update.prompted = update.prompt(); });
    expectUpdate(rig.robot, newestVersion, QMessageBox::Ok);
    rig.press("buttonConnect");
    QVERIFY(update.prompted);
    QCOMPARE(hand.showings(), 1);
    QCOMPARE(rig.wire(), lockedConnectCommands());
    QCOMPARE(differences(rig, connected()), QString());
}

QTEST_MAIN(TestMainWindowPrompts)
#include "tst_mainwindow_prompts.moc"
