// The window is closed in the middle of a procedure with extended firmware, at every single exchange.

#include "dialogs/advancedoptionsdialog.h"
#include "dialogs/passworddialog.h"
#include "extendedrig.h"
#include "support/nextchance.h"
#include "windowstate.h"
#include "windowwords.h"

#include <QTest>

using namespace WindowWords;

namespace {

const int firstTry = 8; // number of the "?" in a connect with a locked logger

} // namespace

class TestMainWindowExtendedClosing : public QObject
{
    Q_OBJECT

private slots:
    void duringConnect_data() { addCommandRows(lockedConnectCommands()); }
    void duringConnect();
    void duringRead_data() { addCommandRows(extendedReadCommands()); }
    void duringRead();
    void duringWrite_data() { addCommandRows(extendedWriteCommands()); }
    void duringWrite();
    void behindTheAnswerOfTheLock();
    void overTheUnlockDialog();
    void overABoxOfTheUnlockDialog_data();
    void overABoxOfTheUnlockDialog();
    void overTheOptions();
    void overTheOptionsBeforeTheyAreThere();
};

// Nothing follows the command under way, and the lock is as it was unless the password was just being tried.
void TestMainWindowExtendedClosing::duringConnect()
{
    QFETCH(const int, command);
    ProcedureRig rig;
    rig.plug(lockedLogger());
    const UnlockHand hand(rig, {rightPassword});
    rig.atCommand(command, [&rig] { rig.window.close(); });
    const int modifiedFrom = lockedConnectCommands().indexOf("Gt") + 2;
    if (command >= modifiedFrom && command < lockedConnectCommands().size())
        expectExit(rig.robot, Yes);
    rig.press("buttonConnect");
    QCOMPARE(closedWindowRemains(rig), QString());
    QCOMPARE(rig.wire(), firstOf(lockedConnectCommands(), command));
    QCOMPARE(rig.logger->model().settings().locked, command < firstTry);
}

void TestMainWindowExtendedClosing::duringRead()
{
    QFETCH(const int, command);
    ProcedureRig rig;
    rig.plugAndConnect(secureLogger());
    rig.atCommand(command, [&rig] { rig.window.close(); });
    if (command >= 3 && command < extendedReadCommands().size())
        expectExit(rig.robot, Yes);
    rig.press("buttonRead");
    QCOMPARE(closedWindowRemains(rig), QString());
    QCOMPARE(rig.wire(), firstOf(extendedReadCommands(), command));
}

void TestMainWindowExtendedClosing::duringWrite()
{
    QFETCH(const int, command);
    ProcedureRig rig;
    rig.plugAndConnect(secureLogger());
    rig.atCommand(command, [&rig] { rig.window.close(); });
    rig.press("buttonWrite");
    QCOMPARE(closedWindowRemains(rig), QString());
    QCOMPARE(rig.wire(), firstOf(extendedWriteCommands(), command));
}

// In the rest of the reply wait, when the logger has said that it is locked: nobody is asked for a password.
void TestMainWindowExtendedClosing::behindTheAnswerOfTheLock()
{
    ProcedureRig rig;
    rig.WindowRig::plug(lockedLogger());
    const UnlockHand hand(rig, {});
    connect(rig.logger, &SimulatedPort::sAnswered, &rig.window, [&rig](int, const QByteArray& command) {
        if (command == "#")
            atNextChance(&rig.window, [&rig] { rig.window.close(); });
    });
    rig.press("buttonConnect");
    QCOMPARE(hand.showings(), 0);
    QCOMPARE(closedWindowRemains(rig), QString());
    QCOMPARE(rig.wire(), QList<QByteArray>({"i", "i", "#"}));
}

void TestMainWindowExtendedClosing::overTheUnlockDialog()
{
    ProcedureRig rig;
    rig.plug(lockedLogger());
    const UnlockHand hand(rig, {});
    bool dialogStays = true;
    connect(&hand, &UnlockHand::sShown, &rig.window, [&] {
        rig.window.close();
        dialogStays = unlockDialog(rig)->isVisible();
    });
    rig.press("buttonConnect");
    QVERIFY(!dialogStays);
    QCOMPARE(hand.showings(), 1);
    QCOMPARE(closedWindowRemains(rig), QString());
    QCOMPARE(rig.wire(), firstOf(lockedConnectCommands(), firstTry - 1));
}

void TestMainWindowExtendedClosing::overABoxOfTheUnlockDialog_data()
{
    QTest::addColumn<bool>("silent");
    QTest::addColumn<int>("box");
    QTest::newRow("no answer") << true << 1;
    QTest::newRow("no answer, and so the wrong password") << true << 2;
    QTest::newRow("wrong password") << false << 1;
}

// Nothing more is said over a window that is gone.
void TestMainWindowExtendedClosing::overABoxOfTheUnlockDialog()
{
    QFETCH(const bool, silent);
    QFETCH(const int, box);
    ProcedureRig rig;
    rig.plug(lockedLogger());
    if (silent)
        rig.disturb("?", Fault::Kind::Silence);
    const UnlockHand hand(rig, {QStringLiteral("wrong")});
    if (silent)
        expectPasswordUnanswered(rig.robot);
    if (!silent || box == 2)
        expectWrongPassword(rig.robot);
    bool dialogStays = true;
    connect(&rig.robot, &DialogRobot::sBoxOpened, &rig.window, [&] {
        if (rig.robot.boxes().size() != box)
            return;
        rig.window.close();
        dialogStays = unlockDialog(rig)->isVisible();
    });
    rig.press("buttonConnect");
    QVERIFY(!dialogStays);
    QCOMPARE(rig.robot.boxes().size(), box);
    QVERIFY(!unlockDialog(rig)->lUnlocked());
    QCOMPARE(closedWindowRemains(rig), QString());
    QCOMPARE(rig.wire(), firstOf(lockedConnectCommands(), firstTry - 1) << "?wrong");
}

void TestMainWindowExtendedClosing::overTheOptions()
{
    ProcedureRig rig;
    rig.plugAndConnect(secureLogger());
    atNextChance(&rig.window, [&rig] { rig.window.close(); });
    rig.press("buttonAdvanced");
    QCOMPARE(closedWindowRemains(rig), QString());
    QCOMPARE(rig.wire(), QList<QByteArray>());
}

// A stored password that is too long brings a warning before the dialog is on the screen.
void TestMainWindowExtendedClosing::overTheOptionsBeforeTheyAreThere()
{
    ProcedureRig rig;
    rig.plugAndConnect(secureLogger());
    options(rig)->lSetPassword(QString(31, QLatin1Char('x')));
    rig.robot.expectWarning(
        QStringLiteral("Password too long"),
        QStringLiteral("Password may not be larger than 30 characters.\nYour input was truncated."),
        "AdvancedOptionsDialog");
    connect(&rig.robot, &DialogRobot::sBoxOpened, &rig.window, [&rig] { rig.window.close(); });
    rig.press("buttonAdvanced");
    QCOMPARE(closedWindowRemains(rig), QString());
    QCOMPARE(rig.wire(), QList<QByteArray>());
}

QTEST_MAIN(TestMainWindowExtendedClosing)
#include "tst_mainwindow_extendedclosing.moc"
