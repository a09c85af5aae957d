// A write that meets silence, a refusal or the Cancel button, at every single command.

#include "procedurerig.h"
#include "progresswatch.h"
#include "windowstate.h"
#include "windowwords.h"

#include <QComboBox>
#include <QSpinBox>
#include <QTest>

using namespace WindowWords;

namespace {

/// Numbers of commands in a write, from 1 on.
constexpr int firstText = 5;
constexpr int lastText = 8;

bool isText(int command)
{
    return command >= firstText && command <= lastText;
}

WindowState failed()
{
    return idle(QStringLiteral("Write failed. Please retry"), true);
}

WindowState written()
{
    return idle(QStringLiteral("Write successful"), false);
}

QList<QByteArray> commandsUpTo(int command)
{
    return firstOf(writeCommandsOfBasicLogger(), command);
}

/// A rig with a logger that has been read.
struct ConnectedRig : ProcedureRig
{
    ConnectedRig()
    {
        plugAndConnect();
        takeStatusLog();
    }
};

} // namespace

class TestMainWindowWriteFailures : public QObject
{
    Q_OBJECT

private slots:
    void failsAtSilence_data();
    void failsAtSilence();
    void goesOnAfterSilentText_data();
    void goesOnAfterSilentText();
    void failsAtReply_data();
    void failsAtReply();
    void takesOkAmongBlanks();
    void goesOnAfterRefusedText();
    void failsOnRecordingLogger();
    void stopsAtCancel_data();
    void stopsAtCancel();
    void ordersItsEnd();
    void movesBar_data();
    void movesBar();
    void writesAgainAfterFailure();
    void delayOfZeroIsNotSent();
};

void TestMainWindowWriteFailures::failsAtSilence_data()
{
    addCommandRows(writeCommandsOfBasicLogger(), {1, 2, 3, 4, 9, 10});
}

void TestMainWindowWriteFailures::failsAtSilence()
{
    QFETCH(const int, command);
    ConnectedRig rig;
    rig.disturb(command, Fault::Kind::Silence);
    expectWriteFailed(rig.robot);
    rig.press("buttonWrite");
    QCOMPARE(rig.wire(), commandsUpTo(command));
    QCOMPARE(panels(rig), panelsOfBasicLogger());
    QCOMPARE(rig.takeStatusLog(), QStringList({"Writing to device...", "Write failed. Please retry"}));
    QCOMPARE(differences(rig, failed()), QString());
}

void TestMainWindowWriteFailures::goesOnAfterSilentText_data()
{
    addCommandRows(writeCommandsOfBasicLogger(), {5, 6, 7, 8});
}

void TestMainWindowWriteFailures::goesOnAfterSilentText()
{
    QFETCH(const int, command);
    ConnectedRig rig;
    rig.type("lineInfo", QStringLiteral("Batch 7")); // the same again, which counts as a change
    QVERIFY(rig.isModified());
    rig.disturb(command, Fault::Kind::Silence);
    rig.press("buttonWrite");
    QCOMPARE(rig.wire(), commandsUpTo(command) << "S3Land"
                                               << "k");
    QCOMPARE(differences(rig, written()), QString());
}

void TestMainWindowWriteFailures::failsAtReply_data()
{
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<QByteArray>("reply");
    const auto row = [](const char* name, const char* command, const char* reply) {
        QTest::newRow(name) << QByteArray(command) << QByteArray(reply);
    };
    for (const char* command : {"St", "Ss", "Sd", "Sl", "S3", "k"})
        QTest::addRow("OK to %s", command) << QByteArray(command) << QByteArray("OK\r\n");
    row("a longer reply", "Ss", "ok.\r\n");
    row("twice ok", "Ss", "ok\r\nok\r\n");
    row("an empty line", "Ss", "\r\n");
    row("an error", "Sd", "error: bad value\r\n");
    row("bytes that are no text", "Sl", "\xff\xfe\x07");
}

void TestMainWindowWriteFailures::failsAtReply()
{
    QFETCH(const QByteArray, command);
    QFETCH(const QByteArray, reply);
    ConnectedRig rig;
    rig.disturb(command, Fault::Kind::Reply, reply);
    expectWriteFailed(rig.robot);
    rig.press("buttonWrite");
    QVERIFY2(rig.wire().last().startsWith(command), rig.wire().last().constData());
    QCOMPARE(rig.wire(), commandsUpTo(rig.wire().size()));
    QCOMPARE(differences(rig, failed()), QString());
}

void TestMainWindowWriteFailures::takesOkAmongBlanks()
{
    ConnectedRig rig;
    rig.disturb("S", Fault::Kind::Reply, "\r\n  ok \r\n");
    rig.disturb("k", Fault::Kind::Pieces);
    rig.press("buttonWrite");
    QCOMPARE(rig.wire(), writeCommandsOfBasicLogger());
    QCOMPARE(differences(rig, written()), QString());
}

void TestMainWindowWriteFailures::goesOnAfterRefusedText()
{
    ConnectedRig rig;
    rig.disturb("S1", Fault::Kind::Reply, "OK\r\n");
    rig.press("buttonWrite");
    QCOMPARE(rig.wire(), commandsUpTo(6) << "S3Land"
                                         << "k");
    QCOMPARE(differences(rig, written()), QString());
}

void TestMainWindowWriteFailures::failsOnRecordingLogger()
{
    LoggerModel model = basicLogger();
    model.settings().state = LoggerModel::State::Recording;
    ProcedureRig rig;
    rig.plugAndConnect(model);
    expectWriteFailed(rig.robot);
    rig.press("buttonWrite");
    QCOMPARE(rig.wire(), commandsUpTo(1));
    QCOMPARE(differences(rig, failed()), QString());
}

void TestMainWindowWriteFailures::stopsAtCancel_data()
{
    addCommandRows(writeCommandsOfBasicLogger());
}

// Changes that were never written are forgotten: the box alone tells the operator.
void TestMainWindowWriteFailures::stopsAtCancel()
{
    QFETCH(const int, command);
    ConnectedRig rig;
    rig.type("lineInfo", QStringLiteral("Batch 7"));
    QVERIFY(rig.isModified());
    rig.atCommand(command, [&rig] { rig.pressCancel(); });
    expectWriteCanceled(rig.robot);
    rig.press("buttonWrite");
    const QList<QByteArray> closing = isText(command) ? QList<QByteArray>{"S3Land"} : QList<QByteArray>();
    QCOMPARE(rig.wire(), commandsUpTo(command) + closing);
    QCOMPARE(rig.takeStatusLog(), QStringList({"Writing to device...", "Write successful"}));
    QCOMPARE(differences(rig, written()), QString());
}

// The box about the cancel comes first. That about a failure comes with the bar full and the dialog gone.
void TestMainWindowWriteFailures::ordersItsEnd()
{
    ConnectedRig rig;
    const ProgressWatch watch;
    QList<QList<int>> valuesAtBoxes;
    QList<bool> controlsAtBoxes;
    connect(&rig.robot, &DialogRobot::sBoxOpened, &rig.robot, [&] {
        valuesAtBoxes << watch.dialogs().last().values;
        controlsAtBoxes << rig.isEnabled("buttonWrite");
    });
    rig.atCommand(3, [&rig] { rig.pressCancel(); });
    expectWriteCanceled(rig.robot);
    rig.press("buttonWrite");
    rig.logger->clearExchanges();
    rig.disturb(3, Fault::Kind::Silence);
    expectWriteFailed(rig.robot);
    rig.press("buttonWrite");
    QCOMPARE(valuesAtBoxes, QList<QList<int>>({{0, 1, 2}, {0, 1, 2, 17}}));
    QCOMPARE(controlsAtBoxes, QList<bool>({false, false}));
    QCOMPARE(differences(rig, failed()), QString());
}

void TestMainWindowWriteFailures::movesBar_data()
{
    QTest::addColumn<int>("silentText");
    QTest::addColumn<QList<int>>("values");
    const auto row = [](const char* name, int silentText, const QList<int>& values) {
        QTest::newRow(name) << silentText << values;
    };
    row("S0 fails", 5, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 17});
    row("S1 fails", 6, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 17});
    row("S2 fails", 7, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 17});
    row("S4 fails", 8, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 17});
}

void TestMainWindowWriteFailures::movesBar()
{
    QFETCH(const int, silentText);
    ConnectedRig rig;
    rig.disturb(silentText, Fault::Kind::Silence);
    const ProgressWatch watch;
    rig.press("buttonWrite");
    QCOMPARE(watch.dialogs().size(), 1);
    QTEST(watch.dialogs().first().values, "values");
    QCOMPARE(differences(rig, written()), QString());
}

void TestMainWindowWriteFailures::writesAgainAfterFailure()
{
    ConnectedRig rig;
    rig.disturb("Sl", Fault::Kind::Silence);
    expectWriteFailed(rig.robot);
    rig.press("buttonWrite");
    QVERIFY(rig.isModified());
    rig.logger->faults().clear();
    rig.logger->clearExchanges();
    rig.press("buttonWrite");
    QCOMPARE(rig.wire(), writeCommandsOfBasicLogger());
    QCOMPARE(differences(rig, written()), QString());
}

// No operator gets there, but the rule behind the box's limits is the link's.
void TestMainWindowWriteFailures::delayOfZeroIsNotSent()
{
    ProcedureRig rig;
    rig.plugAndConnect();
    rig.find<QComboBox>("comboDelay")->setCurrentText(QStringLiteral("Custom"));
    rig.find<QSpinBox>("spinDelay")->setMinimum(0);
    rig.find<QSpinBox>("spinDelay")->setValue(0);
    expectWriteFailed(rig.robot);
    rig.press("buttonWrite");
    QCOMPARE(rig.wire(), writeCommandsOfBasicLogger().mid(0, 2));
    QCOMPARE(rig.status(), QStringLiteral("Write failed. Please retry"));
    QVERIFY(rig.isModified());
    QCOMPARE(rig.robot.problems(), QString());
}

QTEST_MAIN(TestMainWindowWriteFailures)
#include "tst_mainwindow_writefailures.moc"
