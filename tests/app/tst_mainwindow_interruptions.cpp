// Buttons and keys pressed while a procedure waits for the logger: nothing comes of them.

#include "procedurerig.h"
#include "support/nextchance.h"
#include "windowstate.h"
#include "windowwords.h"

#include <QStatusBar>
#include <QTest>

using namespace WindowWords;

class TestMainWindowInterruptions : public QObject
{
    Q_OBJECT

private slots:
    void presses_data();
    void presses();
    void duringConnect();
    void beforeConnectHasDialog();
    void duringRead();
    void beforeReadHasDialog();
    void duringWrite();
    void duringStart();
    void duringFailingProcedures();
    void duringBoxes();
};

void TestMainWindowInterruptions::presses_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("Connect") << Qt::Key_K;
    QTest::newRow("Read") << Qt::Key_R;
    QTest::newRow("Write") << Qt::Key_W;
    QTest::newRow("Start") << Qt::Key_A;
}

// Without a procedure under way each of the keys does something; or else the other tests here would prove
// nothing.
void TestMainWindowInterruptions::presses()
{
    QFETCH(const Qt::Key, key);
    ProcedureRig rig;
    rig.plugAndConnect();
    rig.activate();
    if (key == Qt::Key_A)
        expectStartConfirm(rig.robot, Yes);
    rig.pressKeys(key);
    QCOMPARE(rig.status() == QStringLiteral("Disconnected from ttyACM0"),
             key == Qt::Key_K || key == Qt::Key_A);
    QCOMPARE(rig.wire().isEmpty(), key == Qt::Key_K);
    QCOMPARE(rig.robot.problems(), QString());
}

void TestMainWindowInterruptions::duringConnect()
{
    ProcedureRig rig;
    rig.plug();
    int times = 0;
    rig.pressAtEveryCommand(&times);
    rig.activate();
    rig.press("buttonConnect");
    QCOMPARE(times, connectCommands().size());
    QCOMPARE(rig.wire(), connectCommands());
    QCOMPARE(panels(rig), panelsOfBasicLogger());
    QCOMPARE(differences(rig, connected()), QString());
}

// The two waits and the two exchanges before the progress dialog covers the window.
void TestMainWindowInterruptions::beforeConnectHasDialog()
{
    ProcedureRig rig;
    rig.plug();
    QStringList pressedAt;
    const auto pressAt = [&](const QString& when) {
        pressedAt << when + QLatin1String(rig.progressDialog() ? " with a dialog" : "");
        rig.pressEverything();
        rig.pressEverything();
    };
    rig.atCommand(1, [&] { pressAt(QStringLiteral("handshake")); });
    connect(rig.find<QStatusBar>("statusBar"), &QStatusBar::messageChanged, &rig.window,
            [&](const QString& message) {
                if (message == QStringLiteral("Connecting to device... "))
                    atNextChance(&rig.window, [&] { pressAt(QStringLiteral("read begun")); });
            });
    rig.atCommand(2, [&] { pressAt(QStringLiteral("identification")); });
    rig.activate();
    atNextChance(&rig.window, [&] { pressAt(QStringLiteral("port opened")); });
    rig.press("buttonConnect");
    QCOMPARE(pressedAt, QStringList({"port opened", "handshake", "read begun", "identification"}));
    QCOMPARE(rig.wire(), connectCommands());
    QCOMPARE(differences(rig, connected()), QString());
}

void TestMainWindowInterruptions::duringRead()
{
    ProcedureRig rig;
    rig.plugAndConnect();
    int times = 0;
    rig.pressAtEveryCommand(&times);
    rig.activate();
    rig.press("buttonRead");
    QCOMPARE(times, readCommands().size());
    QCOMPARE(rig.wire(), readCommands());
    QCOMPARE(panels(rig), panelsOfBasicLogger());
    QCOMPARE(differences(rig, idle(QStringLiteral("Read successful"), false)), QString());
}

void TestMainWindowInterruptions::beforeReadHasDialog()
{
    ProcedureRig rig;
    rig.plugAndConnect();
    int times = 0;
    rig.activate();
    atNextChance(&rig.window, [&] {
        ++times;
        rig.pressEverything();
    });
    rig.press("buttonRead");
    QCOMPARE(times, 1);
    QCOMPARE(rig.wire(), readCommands());
    QCOMPARE(differences(rig, idle(QStringLiteral("Read successful"), false)), QString());
}

void TestMainWindowInterruptions::duringWrite()
{
    ProcedureRig rig;
    rig.plugAndConnect();
    int times = 0;
    rig.pressAtEveryCommand(&times);
    rig.activate();
    rig.press("buttonWrite");
    QCOMPARE(times, writeCommandsOfBasicLogger().size());
    QCOMPARE(rig.wire(), writeCommandsOfBasicLogger());
    QCOMPARE(differences(rig, idle(QStringLiteral("Write successful"), false)), QString());
}

// A start disables nothing and covers nothing, so every one of these presses reaches its procedure.
void TestMainWindowInterruptions::duringStart()
{
    ProcedureRig rig;
    rig.plugAndConnect(extendedLogger());
    int times = 0;
    rig.pressAtEveryCommand(&times);
    expectStartConfirm(rig.robot, Yes);
    rig.activate();
    rig.press("buttonStart");
    QCOMPARE(times, 2);
    QCOMPARE(rig.wire(), QList<QByteArray>({"Go", "a"}));
    QCOMPARE(panels(rig), emptyPanels());
    QCOMPARE(differences(rig, disconnected()), QString());
}

// Silence makes every wait a long one, and the boxes that follow it come once.
void TestMainWindowInterruptions::duringFailingProcedures()
{
    ProcedureRig rig;
    rig.plugAndConnect();
    int times = 0;
    rig.pressAtEveryCommand(&times);
    rig.disturb("k", Fault::Kind::Silence);
    rig.disturb("Gt", Fault::Kind::Silence);
    rig.disturb("a", Fault::Kind::Silence);
    expectWriteFailed(rig.robot);
    rig.press("buttonWrite");
    expectStartModified(rig.robot, Yes);
    expectStartConfirm(rig.robot, Yes);
    expectStartFailed(rig.robot);
    rig.press("buttonStart");
    expectReadQuestion(rig.robot, Yes);
    expectReadFailed(rig.robot);
    rig.press("buttonRead");
    QCOMPARE(rig.wire(), writeCommandsOfBasicLogger() + QList<QByteArray>{"a"} + firstOf(readCommands(), 6)
                             << "m");
    QCOMPARE(times, rig.wire().size());
    QCOMPARE(differences(rig, disconnected()), QString());
}

// The boxes cover the window, but a press that gets past them still finds the procedure under way.
void TestMainWindowInterruptions::duringBoxes()
{
    ProcedureRig rig;
    int times = 0;
    connect(&rig.robot, &DialogRobot::sBoxOpened, &rig.robot, [&] {
        ++times;
        rig.pressEverything();
    });
    expectNoDevice(rig.robot);
    rig.press("buttonConnect");
    rig.plugAndConnect();
    rig.disturb("Ss", Fault::Kind::Silence);
    expectWriteFailed(rig.robot);
    rig.press("buttonWrite");
    rig.disturb("a", Fault::Kind::Silence);
    expectStartModified(rig.robot, Yes);
    expectStartConfirm(rig.robot, Yes);
    expectStartFailed(rig.robot);
    rig.press("buttonStart");
    rig.disturb("Gt", Fault::Kind::Silence);
    expectReadQuestion(rig.robot, Yes);
    expectReadFailed(rig.robot);
    rig.press("buttonRead");
    QCOMPARE(times, 7);
    QCOMPARE(rig.wire(), firstOf(writeCommandsOfBasicLogger(), 2) + QList<QByteArray>{"a"} +
                             firstOf(readCommands(), 6) + QList<QByteArray>{"m"});
    QCOMPARE(differences(rig, disconnected()), QString());
}

QTEST_MAIN(TestMainWindowInterruptions)
#include "tst_mainwindow_interruptions.moc"
