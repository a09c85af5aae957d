// A prompt for a version that must be installed comes in the middle of a procedure, at every single exchange:
// it closes the window, and nothing more is said or sent.

#include "extendedrig.h"
#include "updaterig.h"
#include "windowstate.h"
#include "windowwords.h"

#include <QTest>

using namespace WindowWords;

namespace {

constexpr auto Ok = QMessageBox::Ok;
constexpr auto Cancel = QMessageBox::Cancel;

} // namespace

class TestMainWindowMandatoryPrompts : public QObject
{
    Q_OBJECT

private slots:
    void duringConnect_data() { addCommandRows(lockedConnectCommands()); }
    void duringConnect();
    void duringRead_data() { addCommandRows(extendedReadCommands()); }
    void duringRead();
    void duringReadOfSingleUseLogger_data() { addCommandRows(extendedReadCommands(false), {20, 21}); }
    void duringReadOfSingleUseLogger();
    void duringWrite_data() { addCommandRows(extendedWriteCommands()); }
    void duringWrite();
    void duringStart_data() { addCommandRows({"Go", "a"}); }
    void duringStart();
    void staysDuringReadAfterNo();
    void overTheUnlockDialog();

private:
    void read(bool multiuse);
};

// The texts of the read have changed the window by the time that the question for the exit looks.
void TestMainWindowMandatoryPrompts::duringConnect()
{
    QFETCH(const int, command);
    UpdateRig update(mandatoryFile);
    ProcedureRig& rig = update.rig;
    rig.plug(lockedLogger());
    const UnlockHand hand(rig, {rightPassword});
    expectMandatoryUpdate(rig.robot, newestVersion, Ok);
    const int lastOfTheLock = lockedConnectCommands().indexOf("?Secret") + 1;
    const int modifiedFrom = lockedConnectCommands().indexOf("Gt") + 2;
    if (command >= modifiedFrom && command < lockedConnectCommands().size())
        expectExit(rig.robot, Yes);
    update.promptAt(command);
    rig.press("buttonConnect");
    QVERIFY(update.prompted);
    QCOMPARE(closedWindowRemains(rig), QString());
    QCOMPARE(rig.wire(), firstOf(lockedConnectCommands(), command));
    QCOMPARE(rig.logger->model().settings().locked, command < lastOfTheLock);
    QCOMPARE(rig.takeStatusLog().contains(QStringLiteral("Reading from device on ttyACM0")),
             command > lastOfTheLock);
    QCOMPARE(update.browser.opened, newerAddress);
}

void TestMainWindowMandatoryPrompts::duringRead()
{
    read(true);
}

// From where its read is another one.
void TestMainWindowMandatoryPrompts::duringReadOfSingleUseLogger()
{
    read(false);
}

void TestMainWindowMandatoryPrompts::read(bool multiuse)
{
    QFETCH(const int, command);
    const QList<QByteArray> commands = extendedReadCommands(multiuse);
    ConnectedUpdateRig update(mandatoryFile, secureLogger(multiuse));
    expectMandatoryUpdate(update.rig.robot, newestVersion, Cancel);
    if (command >= 3 && command < commands.size())
        expectExit(update.rig.robot, Yes);
    update.promptAt(command);
    update.rig.press("buttonRead");
    QVERIFY(update.prompted);
    QCOMPARE(closedWindowRemains(update.rig), QString());
    QCOMPARE(update.rig.wire(), firstOf(commands, command));
    QCOMPARE(update.browser.opened, QList<QUrl>());
}

void TestMainWindowMandatoryPrompts::duringWrite()
{
    QFETCH(const int, command);
    ConnectedUpdateRig update(mandatoryFile, secureLogger());
    expectMandatoryUpdate(update.rig.robot, newestVersion, Ok);
    update.promptAt(command);
    update.rig.press("buttonWrite");
    QVERIFY(update.prompted);
    QCOMPARE(closedWindowRemains(update.rig), QString());
    QCOMPARE(update.rig.wire(), firstOf(extendedWriteCommands(), command));
}

void TestMainWindowMandatoryPrompts::duringStart()
{
    QFETCH(const int, command);
    ConnectedUpdateRig update(mandatoryFile, secureLogger());
    expectStartConfirm(update.rig.robot, Yes);
    expectMandatoryUpdate(update.rig.robot, newestVersion, Ok);
    update.promptAt(command);
    update.rig.press("buttonStart");
    QVERIFY(update.prompted);
    QCOMPARE(closedWindowRemains(update.rig), QString());
    QCOMPARE(update.rig.wire(), firstOf({"Go", "a"}, command));
}

void TestMainWindowMandatoryPrompts::staysDuringReadAfterNo()
{
    ConnectedUpdateRig update(mandatoryFile, secureLogger());
    expectMandatoryUpdate(update.rig.robot, newestVersion, Ok);
    expectExit(update.rig.robot, No);
    update.promptAt(extendedReadCommands().size() / 2);
    update.rig.press("buttonRead");
    QVERIFY(update.prompted);
    QCOMPARE(update.rig.wire(), extendedReadCommands());
    QCOMPARE(differences(update.rig, idle(QStringLiteral("Read successful"), false)), QString());
}

void TestMainWindowMandatoryPrompts::overTheUnlockDialog()
{
    UpdateRig update(mandatoryFile);
    ProcedureRig& rig = update.rig;
    rig.plug(lockedLogger());
    const UnlockHand hand(rig, {});
    connect(&hand, &UnlockHand::sShown, &rig.window, [&update] {
        update.prompted = update.prompt();
        QTRY_VERIFY(!update.rig.window.isVisible());
    });
    expectMandatoryUpdate(rig.robot, newestVersion, Ok);
    rig.press("buttonConnect");
    QVERIFY(update.prompted);
    QCOMPARE(closedWindowRemains(rig), QString());
    QCOMPARE(rig.wire(), firstOf(lockedConnectCommands(), lockedConnectCommands().indexOf("?Secret")));
}

QTEST_MAIN(TestMainWindowMandatoryPrompts)
#include "tst_mainwindow_mandatoryprompts.moc"
