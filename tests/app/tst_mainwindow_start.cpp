// Starting the logger: what is asked, what the logger must allow, and the end of the connection.

#include "procedurerig.h"
#include "progresswatch.h"
#include "windowstate.h"
#include "windowwords.h"

#include <QDateTime>
#include <QTest>

using namespace WindowWords;

namespace {

WindowState untouched(bool modified)
{
    return idle(QStringLiteral("Connected to device on ttyACM0"), modified);
}

LoggerModel::State stateOf(const ProcedureRig& rig)
{
    return rig.logger->model().settings().state;
}

/// Extended firmware with @p policies.
LoggerModel loggerWith(int policies)
{
    LoggerModel model = extendedLogger();
    model.settings().policies = policies;
    return model;
}

} // namespace

class TestMainWindowStart : public QObject
{
    Q_OBJECT

private slots:
    void starts_data();
    void starts();
    void startsByKeys();
    void leavesTheControlsAlone();
    void staysAfterNo();
    void asksTwiceWithChanges_data();
    void asksTwiceWithChanges();
    void asksBeforeLeaving_data();
    void asksBeforeLeaving();
    void obeysPolicies_data();
    void obeysPolicies();
    void refusesWithoutPolicies_data();
    void refusesWithoutPolicies();
    void failsAtReply_data();
    void failsAtReply();
    void failsWithChanges();
    void startsAfterFailure();
    void waitsForSlowReply();
};

void TestMainWindowStart::starts_data()
{
    QTest::addColumn<bool>("extended");
    QTest::addColumn<QList<QByteArray>>("wire");
    QTest::newRow("basic firmware") << false << QList<QByteArray>({"a"});
    QTest::newRow("extended firmware") << true << QList<QByteArray>({"Go", "a"});
}

void TestMainWindowStart::starts()
{
    QFETCH(const bool, extended);
    ProcedureRig rig;
    rig.plugAndConnect(extended ? extendedLogger() : basicLogger());
    expectStartConfirm(rig.robot, Yes);
    rig.press("buttonStart");
    QTEST(rig.wire(), "wire");
    QVERIFY(stateOf(rig) == LoggerModel::State::Recording);
    QCOMPARE(panels(rig), emptyPanels());
    QCOMPARE(differences(rig, disconnected()), QString());
}

void TestMainWindowStart::startsByKeys()
{
    ProcedureRig rig;
    rig.plugAndConnect();
    expectStartConfirm(rig.robot, Yes);
    rig.activate();
    rig.pressKeys(Qt::Key_A);
    QCOMPARE(rig.wire(), QList<QByteArray>({"a"}));
    QCOMPARE(differences(rig, disconnected()), QString());
}

void TestMainWindowStart::leavesTheControlsAlone()
{
    ProcedureRig rig;
    rig.plugAndConnect(extendedLogger());
    const ProgressWatch watch;
    QList<QByteArray> withControls;
    connect(rig.logger, &SimulatedPort::sCommandReceived, this, [&](int, const QByteArray& command) {
        if (rig.isEnabled("buttonRead") && rig.controlsMixture().isEmpty())
            withControls << command;
    });
    expectStartConfirm(rig.robot, Yes);
    rig.press("buttonStart");
    QCOMPARE(withControls, QList<QByteArray>({"Go", "a"}));
    QVERIFY(watch.dialogs().isEmpty());
    QCOMPARE(differences(rig, disconnected()), QString());
}

void TestMainWindowStart::staysAfterNo()
{
    ProcedureRig rig;
    rig.plugAndConnect();
    expectStartConfirm(rig.robot, No);
    rig.press("buttonStart");
    QCOMPARE(rig.wire(), QList<QByteArray>());
    QCOMPARE(panels(rig), panelsOfBasicLogger());
    QCOMPARE(differences(rig, untouched(false)), QString());
}

void TestMainWindowStart::asksTwiceWithChanges_data()
{
    QTest::addColumn<bool>("second");
    QTest::newRow("No to the first") << false;
    QTest::newRow("No to the second") << true;
}

void TestMainWindowStart::asksTwiceWithChanges()
{
    QFETCH(const bool, second);
    ProcedureRig rig;
    rig.plugAndConnect();
    rig.type("lineInfo", QStringLiteral("Batch 8"));
    expectStartModified(rig.robot, second ? Yes : No);
    if (second)
        expectStartConfirm(rig.robot, No);
    rig.press("buttonStart");
    QCOMPARE(rig.wire(), QList<QByteArray>());
    QCOMPARE(rig.text("lineInfo"), QStringLiteral("Batch 8"));
    QCOMPARE(differences(rig, untouched(true)), QString());
}

void TestMainWindowStart::asksBeforeLeaving_data()
{
    QTest::addColumn<bool>("leaving");
    QTest::newRow("Yes") << true;
    QTest::newRow("No stays connected to the started logger") << false;
}

void TestMainWindowStart::asksBeforeLeaving()
{
    QFETCH(const bool, leaving);
    ProcedureRig rig;
    rig.plugAndConnect();
    rig.type("lineInfo", QStringLiteral("Batch 8"));
    expectStartModified(rig.robot, Yes);
    expectStartConfirm(rig.robot, Yes);
    expectDisconnecting(rig.robot, leaving ? Yes : No);
    rig.press("buttonStart");
    QCOMPARE(rig.wire(), QList<QByteArray>({"a"}));
    QVERIFY(stateOf(rig) == LoggerModel::State::Recording);
    QCOMPARE(rig.logger->model().settings().texts[2], QStringLiteral("Batch 7"));
    QCOMPARE(panels(rig),
             leaving ? emptyPanels() : panelsWith(panelsOfBasicLogger(), {"lineInfo = Batch 8"}));
    QCOMPARE(differences(rig, leaving ? disconnected() : untouched(true)), QString());
}

void TestMainWindowStart::obeysPolicies_data()
{
    QTest::addColumn<int>("policies");
    QTest::addColumn<bool>("allowed");
    QTest::newRow("start by software alone") << 0x0002 << true;
    QTest::newRow("everything") << 0xFFFF << true;
    QTest::newRow("nothing") << 0x0000 << false;
    QTest::newRow("everything but start by software") << 0xFFFD << false;
    QTest::newRow("start by button alone") << 0x0001 << false;
}

void TestMainWindowStart::obeysPolicies()
{
    QFETCH(const int, policies);
    QFETCH(const bool, allowed);
    ProcedureRig rig;
    rig.plugAndConnect(loggerWith(policies));
    expectStartConfirm(rig.robot, Yes);
    if (!allowed)
        expectStartDisabled(rig.robot);
    rig.press("buttonStart");
    QCOMPARE(rig.wire(), allowed ? QList<QByteArray>({"Go", "a"}) : QList<QByteArray>({"Go"}));
    QVERIFY(stateOf(rig) == (allowed ? LoggerModel::State::Recording : LoggerModel::State::Idle));
    QCOMPARE(differences(rig, allowed ? disconnected() : untouched(false)), QString());
}

void TestMainWindowStart::refusesWithoutPolicies_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::newRow("silence") << QByteArray();
    QTest::newRow("an empty line") << QByteArray("\r\n");
    QTest::newRow("a text") << QByteArray("yes\r\n");
    QTest::newRow("a number with a unit") << QByteArray("2 bits\r\n");
    QTest::newRow("an error") << QByteArray("error: locked\r\n");
    QTest::newRow("a number too large") << QByteArray("99999999999\r\n");
    QTest::newRow("bytes that are no text") << QByteArray("\xff\xfe\x32");
}

// The word that was read with the connection, or at an earlier start, doesn't count.
void TestMainWindowStart::refusesWithoutPolicies()
{
    QFETCH(const QByteArray, reply);
    ProcedureRig rig;
    rig.plugAndConnect(loggerWith(0x0002));
    rig.disturb("Go", Fault::Kind::Reply, reply);
    expectStartConfirm(rig.robot, Yes);
    expectStartDisabled(rig.robot);
    rig.press("buttonStart");
    QCOMPARE(rig.wire(), QList<QByteArray>({"Go"}));
    QVERIFY(stateOf(rig) == LoggerModel::State::Idle);
    QCOMPARE(differences(rig, untouched(false)), QString());
}

void TestMainWindowStart::failsAtReply_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::newRow("silence") << QByteArray();
    QTest::newRow("OK") << QByteArray("OK\r\n");
    QTest::newRow("a longer reply") << QByteArray("ok, started\r\n");
    QTest::newRow("an empty line") << QByteArray("\r\n");
    QTest::newRow("an error") << QByteArray("error: not idle\r\n");
}

void TestMainWindowStart::failsAtReply()
{
    QFETCH(const QByteArray, reply);
    ProcedureRig rig;
    rig.plugAndConnect();
    rig.disturb("a", Fault::Kind::Reply, reply);
    expectStartConfirm(rig.robot, Yes);
    expectStartFailed(rig.robot);
    rig.press("buttonStart");
    QCOMPARE(rig.wire(), QList<QByteArray>({"a"}));
    QCOMPARE(panels(rig), panelsOfBasicLogger());
    QCOMPARE(differences(rig, untouched(false)), QString());
}

void TestMainWindowStart::failsWithChanges()
{
    ProcedureRig rig;
    rig.plugAndConnect();
    rig.type("lineInfo", QStringLiteral("Batch 8"));
    rig.disturb("a", Fault::Kind::Silence);
    expectStartModified(rig.robot, Yes);
    expectStartConfirm(rig.robot, Yes);
    expectStartFailed(rig.robot);
    rig.press("buttonStart");
    QCOMPARE(rig.text("lineInfo"), QStringLiteral("Batch 8"));
    QCOMPARE(differences(rig, untouched(true)), QString());
}

void TestMainWindowStart::startsAfterFailure()
{
    ProcedureRig rig;
    rig.plugAndConnect();
    rig.disturb("a", Fault::Kind::Reply, "error: busy\r\n");
    expectStartConfirm(rig.robot, Yes);
    expectStartFailed(rig.robot);
    rig.press("buttonStart");
    rig.logger->faults().clear();
    rig.logger->model().settings().state = LoggerModel::State::Idle;
    expectStartConfirm(rig.robot, Yes);
    rig.press("buttonStart");
    QCOMPARE(rig.wire(), QList<QByteArray>({"a", "a"}));
    QCOMPARE(differences(rig, disconnected()), QString());
}

// Four times the usual wait, to its end: the reply after three of them counts. The time is that of the clock
// by which the program waits.
void TestMainWindowStart::waitsForSlowReply()
{
    ProcedureRig rig;
    rig.plugAndConnect();
    Fault fault;
    fault.kind = Fault::Kind::Late;
    fault.command = "a";
    fault.milliseconds = 225;
    rig.logger->faults().add(fault);
    qint64 sent = 0;
    rig.atCommand(1, [&sent] { sent = QDateTime::currentMSecsSinceEpoch(); });
    expectStartConfirm(rig.robot, Yes);
    rig.press("buttonStart");
    const qint64 waited = QDateTime::currentMSecsSinceEpoch() - sent;
    QVERIFY2(waited >= 280 && waited <= 340, QByteArray::number(waited).constData());
    QCOMPARE(differences(rig, disconnected()), QString());
}

QTEST_MAIN(TestMainWindowStart)
#include "tst_mainwindow_start.moc"
