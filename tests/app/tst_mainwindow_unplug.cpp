// The plug is pulled in the middle of a procedure, at every single command; then comes another logger.

#include "procedurerig.h"
#include "pulledplug.h"
#include "windowstate.h"
#include "windowwords.h"

#include <QAbstractEventDispatcher>
#include <QTest>

using namespace WindowWords;

class TestMainWindowUnplug : public QObject
{
    Q_OBJECT

private slots:
    void duringConnect_data() { addCommandRows(connectCommands()); }
    void duringConnect();
    void duringRead_data() { addCommandRows(readCommands()); }
    void duringRead();
    void duringWrite_data() { addCommandRows(writeCommandsOfBasicLogger()); }
    void duringWrite();
    void duringStart_data() { addCommandRows({"Go", "a"}); }
    void duringStart();
    void rightAfterReply_data();
    void rightAfterReply();
    void beforeProcedure_data();
    void beforeProcedure();
    void beforeDisconnecting();
    void comesToRest_data();
    void comesToRest();
};

void TestMainWindowUnplug::duringConnect()
{
    QFETCH(const int, command);
    ProcedureRig rig;
    rig.plug();
    QList<QByteArray> wire;
    pullAt(rig, command, &wire);
    const bool proved = command > 1;
    if (proved)
        expectLostInRead(rig, command == connectCommands().size());
    else
        expectNoDevice(rig.robot);
    rig.press("buttonConnect");
    QCOMPARE(wire, firstOf(connectCommands(), command));
    QCOMPARE(panels(rig), emptyPanels());
    QCOMPARE(differences(rig, proved ? disconnected() : beforeAnyConnect()), QString());
    QCOMPARE(troubleWithNextLogger(rig), QString());
}

void TestMainWindowUnplug::duringRead()
{
    QFETCH(const int, command);
    ProcedureRig rig;
    rig.plugAndConnect();
    QList<QByteArray> wire;
    pullAt(rig, command, &wire);
    expectLostInRead(rig, command == readCommands().size());
    rig.press("buttonRead");
    QCOMPARE(wire, firstOf(readCommands(), command));
    QCOMPARE(panels(rig), emptyPanels());
    QCOMPARE(differences(rig, disconnected()), QString());
    QCOMPARE(troubleWithNextLogger(rig), QString());
}

// A text that can't be written is no failure, but neither can what follows it.
void TestMainWindowUnplug::duringWrite()
{
    QFETCH(const int, command);
    ProcedureRig rig;
    rig.plugAndConnect();
    QList<QByteArray> wire;
    pullAt(rig, command, &wire);
    expectWriteFailed(rig.robot);
    rig.press("buttonWrite");
    QCOMPARE(wire, firstOf(writeCommandsOfBasicLogger(), command));
    QCOMPARE(panels(rig), panelsOfBasicLogger());
    QCOMPARE(differences(rig, idle(QStringLiteral("Write failed. Please retry"), true)), QString());
    QCOMPARE(troubleWithNextLogger(rig), QString());
}

void TestMainWindowUnplug::duringStart()
{
    QFETCH(const int, command);
    ProcedureRig rig;
    rig.plugAndConnect(extendedLogger());
    QList<QByteArray> wire;
    pullAt(rig, command, &wire);
    expectStartConfirm(rig.robot, Yes);
    if (command == 1)
        expectStartDisabled(rig.robot);
    else
        expectStartFailed(rig.robot);
    rig.press("buttonStart");
    QCOMPARE(wire, firstOf({"Go", "a"}, command));
    QCOMPARE(differences(rig, connected()), QString());
    QCOMPARE(troubleWithNextLogger(rig), QString());
}

void TestMainWindowUnplug::rightAfterReply_data()
{
    addCommandRows(readCommands(), {1, 2, 6, 10, 13});
}

// The command itself succeeds, the next one doesn't.
void TestMainWindowUnplug::rightAfterReply()
{
    QFETCH(const int, command);
    ProcedureRig rig;
    rig.plugAndConnect();
    QList<QByteArray> wire;
    QString serial;
    connect(rig.logger, &SimulatedPort::sUnplugged, rig.logger, [&] {
        wire = rig.wire();
        serial = rig.text("labelSerial");
    });
    rig.disturb(command, Fault::Kind::UnplugAfterReply);
    expectLostInRead(rig, false);
    rig.press("buttonRead");
    QCOMPARE(wire, firstOf(readCommands(), command));
    QCOMPARE(serial, QStringLiteral("BL-0042"));
    QCOMPARE(differences(rig, disconnected()), QString());
    QCOMPARE(troubleWithNextLogger(rig), QString());
}

void TestMainWindowUnplug::beforeProcedure_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::newRow("read") << QByteArray("buttonRead");
    QTest::newRow("write") << QByteArray("buttonWrite");
    QTest::newRow("start") << QByteArray("buttonStart");
}

// Nobody notices the pulled plug until the next procedure.
void TestMainWindowUnplug::beforeProcedure()
{
    QFETCH(const QByteArray, button);
    ProcedureRig rig;
    rig.plugAndConnect();
    rig.unplugAll();
    WindowState after = connected();
    if (button == "buttonRead") {
        expectLostInRead(rig, false);
        after = disconnected();
    } else if (button == "buttonWrite") {
        expectWriteFailed(rig.robot);
        after = idle(QStringLiteral("Write failed. Please retry"), true);
    } else {
        expectStartConfirm(rig.robot, Yes);
        expectStartFailed(rig.robot);
    }
    rig.press(button.constData());
    QCOMPARE(differences(rig, after), QString());
    QCOMPARE(troubleWithNextLogger(rig), QString());
}

void TestMainWindowUnplug::beforeDisconnecting()
{
    ProcedureRig rig;
    rig.plugAndConnect();
    rig.unplugAll();
    rig.press("buttonConnect");
    QCOMPARE(panels(rig), emptyPanels());
    QCOMPARE(differences(rig, disconnected()), QString());
    QCOMPARE(troubleWithNextLogger(rig), QString());
}

void TestMainWindowUnplug::comesToRest_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::newRow("nothing pressed") << QByteArray();
    QTest::newRow("write") << QByteArray("buttonWrite");
    QTest::newRow("start") << QByteArray("buttonStart");
}

// The dead line stays open until the operator disconnects, which may be the next day. Nothing is to be done
// until then, so the event loop sleeps.
void TestMainWindowUnplug::comesToRest()
{
    QFETCH(const QByteArray, button);
    ProcedureRig rig;
    rig.plugAndConnect();
    rig.unplugAll();
    if (button == "buttonWrite") {
        expectWriteFailed(rig.robot);
        rig.press("buttonWrite");
    } else if (button == "buttonStart") {
        expectStartConfirm(rig.robot, Yes);
        expectStartFailed(rig.robot);
        rig.press("buttonStart");
    }
    int turns = 0;
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake, &rig.window,
            [&] { ++turns; });
    QTest::qWait(300);
    QVERIFY2(turns < 300, QByteArray::number(turns) + " turns of the event loop in 300 ms");
    QCOMPARE(rig.robot.problems(), QString());
}

QTEST_MAIN(TestMainWindowUnplug)
#include "tst_mainwindow_unplug.moc"
