// The window is closed in the middle of a procedure, at every single command: nothing more is said or sent.

#include "procedurerig.h"
#include "progresswatch.h"
#include "support/nextchance.h"
#include "windowstate.h"
#include "windowwords.h"

#include <QStatusBar>
#include <QTest>

using namespace WindowWords;

namespace {

/// Changes count from here to the last step: the first setting that a connect reads is another than that of
/// the empty window.
constexpr int firstModifiedInConnect = 8;
/// A read on its own begins with emptying the lines, right behind its first command.
constexpr int firstModifiedInRead = 2;

} // namespace

class TestMainWindowClosing : public QObject
{
    Q_OBJECT

private slots:
    void duringConnect_data() { addCommandRows(connectCommands()); }
    void duringConnect();
    void duringRead_data() { addCommandRows(readCommands()); }
    void duringRead();
    void duringWrite_data();
    void duringWrite();
    void duringStart_data();
    void duringStart();
    void beforeHandshake();
    void beforeFirstIdentification_data();
    void beforeFirstIdentification();
    void staysOpenAfterNo_data();
    void staysOpenAfterNo();
    void staysOpenAfterNoInStart();
};

void TestMainWindowClosing::duringConnect()
{
    QFETCH(const int, command);
    ProcedureRig rig;
    rig.plug();
    const ProgressWatch watch;
    rig.atCommand(command, [&rig] { rig.window.close(); });
    if (command >= firstModifiedInConnect && command < connectCommands().size())
        expectExit(rig.robot, Yes);
    rig.press("buttonConnect");
    QCOMPARE(closedWindowRemains(rig), QString());
    QCOMPARE(rig.wire(), firstOf(connectCommands(), command));
    QCOMPARE(watch.dialogs().size(), command > 2 ? 1 : 0); // behind the identification
}

void TestMainWindowClosing::duringRead()
{
    QFETCH(const int, command);
    ProcedureRig rig;
    rig.plugAndConnect();
    const ProgressWatch watch;
    rig.atCommand(command, [&rig] { rig.window.close(); });
    if (command >= firstModifiedInRead && command <= stepsOfRead)
        expectExit(rig.robot, Yes);
    rig.press("buttonRead");
    QCOMPARE(closedWindowRemains(rig), QString());
    QCOMPARE(rig.wire(), firstOf(readCommands(), command));
    QCOMPARE(watch.dialogs().size(), command > 1 ? 1 : 0);
}

void TestMainWindowClosing::duringWrite_data()
{
    QTest::addColumn<int>("command");
    QTest::addColumn<bool>("modified");
    const QList<QByteArray> commands = writeCommandsOfBasicLogger();
    for (int number = 1; number <= commands.size(); ++number) {
        const QByteArray name = commands.at(number - 1).left(2);
        QTest::addRow("%d %s", number, name.constData()) << number << false;
        QTest::addRow("%d %s with changes", number, name.constData()) << number << true;
    }
}

void TestMainWindowClosing::duringWrite()
{
    QFETCH(const int, command);
    QFETCH(const bool, modified);
    ProcedureRig rig;
    rig.plugAndConnect();
    if (modified) {
        rig.type("lineInfo", QStringLiteral("Batch 7"));
        expectExit(rig.robot, Yes);
    }
    rig.atCommand(command, [&rig] { rig.window.close(); });
    rig.press("buttonWrite");
    QCOMPARE(closedWindowRemains(rig), QString());
    QCOMPARE(rig.wire(), firstOf(writeCommandsOfBasicLogger(), command));
}

void TestMainWindowClosing::duringStart_data()
{
    QTest::addColumn<int>("command");
    QTest::addColumn<bool>("modified");
    QTest::newRow("1 Go") << 1 << false;
    QTest::newRow("1 Go with changes") << 1 << true;
    QTest::newRow("2 a") << 2 << false;
    QTest::newRow("2 a with changes") << 2 << true;
}

void TestMainWindowClosing::duringStart()
{
    QFETCH(const int, command);
    QFETCH(const bool, modified);
    ProcedureRig rig;
    rig.plugAndConnect(extendedLogger());
    if (modified) {
        rig.type("lineInfo", QStringLiteral("Batch 8"));
        expectStartModified(rig.robot, Yes);
    }
    expectStartConfirm(rig.robot, Yes);
    if (modified)
        expectExit(rig.robot, Yes);
    rig.atCommand(command, [&rig] { rig.window.close(); });
    rig.press("buttonStart");
    QCOMPARE(closedWindowRemains(rig), QString());
    QCOMPARE(rig.wire(), firstOf({"Go", "a"}, command));
}

// The port is open, and its first wait runs.
void TestMainWindowClosing::beforeHandshake()
{
    ProcedureRig rig;
    rig.plug();
    atNextChance(&rig.window, [&rig] { rig.window.close(); });
    rig.press("buttonConnect");
    QCOMPARE(closedWindowRemains(rig), QString());
    QCOMPARE(rig.wire(), QList<QByteArray>());
}

void TestMainWindowClosing::beforeFirstIdentification_data()
{
    QTest::addColumn<bool>("connecting");
    QTest::newRow("in a connect") << true;
    QTest::newRow("in a read") << false;
}

// The wait with which every read begins.
void TestMainWindowClosing::beforeFirstIdentification()
{
    QFETCH(const bool, connecting);
    ProcedureRig rig;
    const auto closeSoon = [&rig] { atNextChance(&rig.window, [&rig] { rig.window.close(); }); };
    if (connecting) {
        rig.plug();
        connect(rig.find<QStatusBar>("statusBar"), &QStatusBar::messageChanged, &rig.window,
                [closeSoon](const QString& message) {
                    if (message == QStringLiteral("Connecting to device... "))
                        closeSoon();
                });
        rig.press("buttonConnect");
    } else {
        rig.plugAndConnect();
        closeSoon();
        rig.press("buttonRead");
    }
    QCOMPARE(closedWindowRemains(rig), QString());
    QCOMPARE(rig.wire(), connecting ? QList<QByteArray>({"i"}) : QList<QByteArray>());
}

void TestMainWindowClosing::staysOpenAfterNo_data()
{
    addCommandRows(firstOf(readCommands(), stepsOfRead));
}

// The question comes up in the middle of the exchange, and the read goes on around it.
void TestMainWindowClosing::staysOpenAfterNo()
{
    QFETCH(const int, command);
    ProcedureRig rig;
    rig.plugAndConnect();
    if (command < firstModifiedInRead) {
        rig.type("lineInfo", QStringLiteral("Batch 8"));
        expectReadQuestion(rig.robot, Yes);
    }
    expectExit(rig.robot, No);
    rig.atCommand(command, [&rig] { rig.window.close(); });
    rig.press("buttonRead");
    QCOMPARE(rig.wire(), readCommands());
    QCOMPARE(panels(rig), panelsOfBasicLogger());
    QCOMPARE(differences(rig, idle(QStringLiteral("Read successful"), false)), QString());
}

void TestMainWindowClosing::staysOpenAfterNoInStart()
{
    ProcedureRig rig;
    rig.plugAndConnect();
    rig.type("lineInfo", QStringLiteral("Batch 8"));
    expectStartModified(rig.robot, Yes);
    expectStartConfirm(rig.robot, Yes);
    expectExit(rig.robot, No);
    expectDisconnecting(rig.robot, Yes);
    rig.atCommand(1, [&rig] { rig.window.close(); });
    rig.press("buttonStart");
    QCOMPARE(rig.wire(), QList<QByteArray>({"a"}));
    QCOMPARE(differences(rig, disconnected()), QString());
}

QTEST_MAIN(TestMainWindowClosing)
#include "tst_mainwindow_closing.moc"
