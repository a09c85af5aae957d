// A prompt for a newer version comes in the middle of a procedure or over another dialog. Nothing comes of
// the one; the other closes the window, and nothing more is said or sent.

#include "extendedrig.h"
#include "support/nextchance.h"
#include "updaterig.h"
#include "windowstate.h"
#include "windowwords.h"

#include <QAction>
#include <QTest>

using namespace WindowWords;

namespace {

constexpr auto Ok = QMessageBox::Ok;
constexpr auto Cancel = QMessageBox::Cancel;
const QString newest = QStringLiteral("1.4.0");
const QString readDone = QStringLiteral("Read successful");
const QString writeDone = QStringLiteral("Write successful");

/// An update rig whose window is connected to a logger.
struct ConnectedRig : UpdateRig
{
    explicit ConnectedRig(const QByteArray& file)
        : UpdateRig(file)
    {
        rig.plugAndConnect(secureLogger());
    }
};

/// Commands of a procedure: the first, one in the middle, the last but one and the last.
void addSomeCommandRows(const QList<QByteArray>& commands)
{
    const int last = commands.size();
    addCommandRows(commands, {1, last / 2, last - 1, last});
}

} // namespace

class TestMainWindowPrompts : public QObject
{
    Q_OBJECT

private slots:
    void duringConnect_data() { addCommandRows(lockedConnectCommands(), {1, 2, 4, 8, 9, 27, 28}); }
    void duringConnect();
    void duringRead_data() { addSomeCommandRows(extendedReadCommands()); }
    void duringRead();
    void duringWrite_data() { addSomeCommandRows(extendedWriteCommands()); }
    void duringWrite();
    void duringStart_data() { addCommandRows({"Go", "a"}); }
    void duringStart();
    void longDuringRead();
    void closesDuringConnect_data() { addSomeCommandRows(lockedConnectCommands()); }
    void closesDuringConnect();
    void closesDuringRead_data() { addCommandRows(extendedReadCommands()); }
    void closesDuringRead();
    void closesDuringWrite_data() { addCommandRows(extendedWriteCommands()); }
    void closesDuringWrite();
    void closesDuringStart_data() { addCommandRows({"Go", "a"}); }
    void closesDuringStart();
    void staysDuringReadAfterNo();
    void overTheUnlockDialog();
    void closesOverTheUnlockDialog();
    void overAQuestion();
    void closesOverAQuestion_data();
    void closesOverAQuestion();
    void overTheExitQuestion_data();
    void overTheExitQuestion();
    void closesOverADialog_data();
    void closesOverADialog();
};

void TestMainWindowPrompts::duringConnect()
{
    QFETCH(const int, command);
    UpdateRig update(newerFile);
    ProcedureRig& rig = update.rig;
    rig.plug(lockedLogger());
    const UnlockHand hand(rig, {rightPassword});
    expectUpdate(rig.robot, newest, Cancel);
    update.promptAt(command);
    rig.press("buttonConnect");
    QVERIFY(update.prompted);
    QCOMPARE(rig.wire(), lockedConnectCommands());
    QCOMPARE(differences(rig, connected()), QString());
}

void TestMainWindowPrompts::duringRead()
{
    QFETCH(const int, command);
    ConnectedRig update(newerFile);
    expectUpdate(update.rig.robot, newest, Ok);
    update.promptAt(command);
    update.rig.press("buttonRead");
    QVERIFY(update.prompted);
    QCOMPARE(update.rig.wire(), extendedReadCommands());
    QCOMPARE(update.browser.opened, newerAddress);
    QCOMPARE(differences(update.rig, idle(readDone, false)), QString());
}

void TestMainWindowPrompts::duringWrite()
{
    QFETCH(const int, command);
    ConnectedRig update(newerFile);
    expectUpdate(update.rig.robot, newest, Ok);
    update.promptAt(command);
    update.rig.press("buttonWrite");
    QVERIFY(update.prompted);
    QCOMPARE(update.rig.wire(), extendedWriteCommands());
    QCOMPARE(differences(update.rig, idle(writeDone, false)), QString());
}

void TestMainWindowPrompts::duringStart()
{
    QFETCH(const int, command);
    ConnectedRig update(newerFile);
    expectStartConfirm(update.rig.robot, Yes);
    expectUpdate(update.rig.robot, newest, Ok);
    update.promptAt(command);
    update.rig.press("buttonStart");
    QVERIFY(update.prompted);
    QCOMPARE(update.rig.wire(), QList<QByteArray>({"Go", "a"}));
    QCOMPARE(differences(update.rig, disconnected()), QString());
}

// The answer to a command is taken while the prompt is open, and is still good when it goes.
void TestMainWindowPrompts::longDuringRead()
{
    ConnectedRig update(newerFile);
    ProcedureRig& rig = update.rig;
    rig.atCommand(2, [&] { atNextChance(&rig.window, [&] { update.prompted = update.prompt(); }); });
    connect(&rig.robot, &DialogRobot::sBoxOpened, &rig.window, [] { QTest::qWait(300); });
    expectUpdate(rig.robot, newest, Ok);
    rig.press("buttonRead");
    QVERIFY(update.prompted);
    QCOMPARE(rig.wire(), extendedReadCommands());
    QCOMPARE(differences(rig, idle(readDone, false)), QString());
}

void TestMainWindowPrompts::closesDuringConnect()
{
    QFETCH(const int, command);
    UpdateRig update(mandatoryFile);
    ProcedureRig& rig = update.rig;
    rig.plug(lockedLogger());
    const UnlockHand hand(rig, {rightPassword});
    expectMandatoryUpdate(rig.robot, newest, Ok);
    const int modifiedFrom = lockedConnectCommands().indexOf("Gt") + 2;
    if (command >= modifiedFrom && command < lockedConnectCommands().size())
        expectExit(rig.robot, Yes);
    update.promptAt(command);
    rig.press("buttonConnect");
    QVERIFY(update.prompted);
    QCOMPARE(closedWindowRemains(rig), QString());
    QCOMPARE(rig.wire(), firstOf(lockedConnectCommands(), command));
    QCOMPARE(update.browser.opened, newerAddress);
}

void TestMainWindowPrompts::closesDuringRead()
{
    QFETCH(const int, command);
    ConnectedRig update(mandatoryFile);
    expectMandatoryUpdate(update.rig.robot, newest, Cancel);
    if (command >= 3 && command < extendedReadCommands().size())
        expectExit(update.rig.robot, Yes);
    update.promptAt(command);
    update.rig.press("buttonRead");
    QVERIFY(update.prompted);
    QCOMPARE(closedWindowRemains(update.rig), QString());
    QCOMPARE(update.rig.wire(), firstOf(extendedReadCommands(), command));
    QCOMPARE(update.browser.opened, QList<QUrl>());
}

void TestMainWindowPrompts::closesDuringWrite()
{
    QFETCH(const int, command);
    ConnectedRig update(mandatoryFile);
    expectMandatoryUpdate(update.rig.robot, newest, Ok);
    update.promptAt(command);
    update.rig.press("buttonWrite");
    QVERIFY(update.prompted);
    QCOMPARE(closedWindowRemains(update.rig), QString());
    QCOMPARE(update.rig.wire(), firstOf(extendedWriteCommands(), command));
}

void TestMainWindowPrompts::closesDuringStart()
{
    QFETCH(const int, command);
    ConnectedRig update(mandatoryFile);
    expectStartConfirm(update.rig.robot, Yes);
    expectMandatoryUpdate(update.rig.robot, newest, Ok);
    update.promptAt(command);
    update.rig.press("buttonStart");
    QVERIFY(update.prompted);
    QCOMPARE(closedWindowRemains(update.rig), QString());
    QCOMPARE(update.rig.wire(), firstOf({"Go", "a"}, command));
}

void TestMainWindowPrompts::staysDuringReadAfterNo()
{
    ConnectedRig update(mandatoryFile);
    expectMandatoryUpdate(update.rig.robot, newest, Ok);
    expectExit(update.rig.robot, No);
    update.promptAt(extendedReadCommands().size() / 2);
    update.rig.press("buttonRead");
    QVERIFY(update.prompted);
    QCOMPARE(update.rig.wire(), extendedReadCommands());
    QCOMPARE(differences(update.rig, idle(readDone, false)), QString());
}

void TestMainWindowPrompts::overTheUnlockDialog()
{
    UpdateRig update(newerFile);
    ProcedureRig& rig = update.rig;
    rig.plug(lockedLogger());
    const UnlockHand hand(rig, {rightPassword});
    connect(&hand, &UnlockHand::sShown, &rig.window, [&update] { update.prompted = update.prompt(); });
    expectUpdate(rig.robot, newest, Ok);
    rig.press("buttonConnect");
    QVERIFY(update.prompted);
    QCOMPARE(hand.showings(), 1);
    QCOMPARE(rig.wire(), lockedConnectCommands());
    QCOMPARE(differences(rig, connected()), QString());
}

void TestMainWindowPrompts::closesOverTheUnlockDialog()
{
    UpdateRig update(mandatoryFile);
    ProcedureRig& rig = update.rig;
    rig.plug(lockedLogger());
    const UnlockHand hand(rig, {});
    connect(&hand, &UnlockHand::sShown, &rig.window, [&update] {
        update.prompted = update.prompt();
        QTRY_VERIFY(!update.rig.window.isVisible());
    });
    expectMandatoryUpdate(rig.robot, newest, Ok);
    rig.press("buttonConnect");
    QVERIFY(update.prompted);
    QCOMPARE(closedWindowRemains(rig), QString());
    QCOMPARE(rig.wire(), firstOf(lockedConnectCommands(), lockedConnectCommands().indexOf("?Secret")));
}

// The prompt is on top and answered first.
void TestMainWindowPrompts::overAQuestion()
{
    ConnectedRig update(newerFile);
    ProcedureRig& rig = update.rig;
    rig.type("lineInfo", QStringLiteral("Batch 8"));
    update.promptOverTheNextBox();
    expectUpdate(rig.robot, newest, Ok);
    expectReadQuestion(rig.robot, No);
    rig.press("buttonRead");
    QVERIFY(update.prompted);
    QCOMPARE(rig.wire(), QList<QByteArray>());
    QCOMPARE(update.browser.opened, newerAddress);
    QCOMPARE(differences(rig, idle(connected().status, true)), QString());
}

void TestMainWindowPrompts::closesOverAQuestion_data()
{
    QTest::addColumn<QString>("button");
    QTest::newRow("read") << QStringLiteral("buttonRead");
    QTest::newRow("start") << QStringLiteral("buttonStart");
    QTest::newRow("disconnect") << QStringLiteral("buttonConnect");
}

void TestMainWindowPrompts::closesOverAQuestion()
{
    QFETCH(const QString, button);
    ConnectedRig update(mandatoryFile);
    ProcedureRig& rig = update.rig;
    rig.type("lineInfo", QStringLiteral("Batch 8"));
    update.promptOverTheNextBox();
    connect(&rig.robot, &DialogRobot::sBoxOpened, &rig.window, [&](const QString& title) {
        if (title != QStringLiteral("Update Required") && title != QStringLiteral("Exit"))
            QTRY_VERIFY(!rig.window.isVisible());
    });
    expectMandatoryUpdate(rig.robot, newest, Ok);
    expectExit(rig.robot, Yes);
    if (button == QStringLiteral("buttonRead"))
        expectReadQuestion(rig.robot, Yes);
    else if (button == QStringLiteral("buttonStart"))
        expectStartModified(rig.robot, Yes);
    else
        expectDisconnecting(rig.robot, Yes);
    rig.press(qPrintable(button));
    QVERIFY(update.prompted);
    QCOMPARE(closedWindowRemains(rig), QString());
    QCOMPARE(rig.wire(), QList<QByteArray>());
}

void TestMainWindowPrompts::overTheExitQuestion_data()
{
    QTest::addColumn<bool>("exits");
    QTest::newRow("Yes") << true;
    QTest::newRow("No") << false;
}

// A window that is about to close isn't closed once more, so the question is asked once.
void TestMainWindowPrompts::overTheExitQuestion()
{
    QFETCH(const bool, exits);
    ConnectedRig update(mandatoryFile);
    ProcedureRig& rig = update.rig;
    rig.type("lineInfo", QStringLiteral("Batch 8"));
    update.promptOverTheNextBox();
    expectMandatoryUpdate(rig.robot, newest, Ok);
    expectExit(rig.robot, exits ? Yes : No);
    QCOMPARE(rig.window.close(), exits);
    QVERIFY(update.prompted);
    if (exits)
        QCOMPARE(closedWindowRemains(rig), QString());
    else
        QCOMPARE(differences(rig, idle(connected().status, true)), QString());
}

void TestMainWindowPrompts::closesOverADialog_data()
{
    QTest::addColumn<QString>("opener");
    QTest::newRow("settings") << QStringLiteral("actionSettings");
    QTest::newRow("advanced options") << QStringLiteral("buttonAdvanced");
}

void TestMainWindowPrompts::closesOverADialog()
{
    QFETCH(const QString, opener);
    ConnectedRig update(mandatoryFile);
    ProcedureRig& rig = update.rig;
    atNextChance(&rig.window, [&] { update.prompted = update.prompt(); });
    expectMandatoryUpdate(rig.robot, newest, Ok);
    if (opener.startsWith(QLatin1String("action")))
        rig.find<QAction>(qPrintable(opener))->trigger();
    else
        rig.press(qPrintable(opener));
    QVERIFY(update.prompted);
    QCOMPARE(closedWindowRemains(rig), QString());
}

QTEST_MAIN(TestMainWindowPrompts)
#include "tst_mainwindow_prompts.moc"
