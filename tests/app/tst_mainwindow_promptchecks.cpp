// A prompt for a newer version comes while a read repairs the logger's clock, asks for its condition or finds
// out whether it is valid.

#include "extendedrig.h"
#include "updaterig.h"
#include "windowstate.h"
#include "windowwords.h"

#include <QTest>

using namespace WindowWords;

namespace {

constexpr auto Ok = QMessageBox::Ok;
constexpr int fourDays = 4 * 86400; // seconds

/// A logger just before the press of Connect or Read, which sends @p commands.
struct CheckedRig : UpdateRig
{
    CheckedRig(const QByteArray& file, bool connecting, const LoggerModel& model,
               const QList<QByteArray>& reading)
        : UpdateRig(file)
        , connecting(connecting)
        , commands(connecting ? QList<QByteArray>{"i"} + reading : reading)
    {
        if (connecting)
            rig.plug(model);
        else
            rig.plugAndConnect(model);
    }

    /// The number on the wire of the last @p command.
    int number(const QByteArray& command) const { return commands.lastIndexOf(command) + 1; }
    QList<QByteArray> upTo(const QByteArray& command) const { return firstOf(commands, number(command)); }
    void run() { rig.press(connecting ? "buttonConnect" : "buttonRead"); }
    WindowState readState() const
    {
        return connecting ? connected() : idle(QStringLiteral("Read successful"), false);
    }

    const bool connecting;
    const QList<QByteArray> commands;
};

/// A logger that says 1970, once.
struct RepairedRig : CheckedRig
{
    RepairedRig(const QByteArray& file, bool connecting)
        : CheckedRig(file, connecting, secureLogger(), withRepair(extendedReadCommands()))
    {
        rig.disturb("g", Fault::Kind::Reply, "0\r\n");
    }
};

/// A Single-use logger whose clock is far off, or one that is silent in the end.
struct InvalidRig : CheckedRig
{
    InvalidRig(const QByteArray& file, bool connecting, bool silent)
        : CheckedRig(file, connecting, secureLogger(false), extendedReadCommands(false))
    {
        if (silent)
            rig.disturb(number("m"), Fault::Kind::Silence);
        else
            rig.logger->model().settings().clockOffset = fourDays;
    }
};

LoggerModel exhaustedLogger(bool multiuse)
{
    LoggerModel model = secureLogger(multiuse);
    model.settings().lowBattery = true;
    return model;
}

void addRepairRows()
{
    QTest::addColumn<bool>("connecting");
    QTest::addColumn<QByteArray>("command");
    for (const QByteArray& command :
         {QByteArray("g"), QByteArray("u"), QByteArray("Sz00000000"), QByteArray("Gt")}) {
        QTest::addRow("%s in a connect", command.constData()) << true << command;
        QTest::addRow("%s in a read", command.constData()) << false << command;
    }
}

void addOccasionRows()
{
    QTest::addColumn<bool>("connecting");
    QTest::newRow("in a connect") << true;
    QTest::newRow("in a read") << false;
}

void addInvalidityRows()
{
    QTest::addColumn<bool>("connecting");
    QTest::addColumn<bool>("silent");
    QTest::newRow("clock off in a connect") << true << false;
    QTest::newRow("clock off in a read") << false << false;
    QTest::newRow("silence in a connect") << true << true;
    QTest::newRow("silence in a read") << false << true;
}

} // namespace

class TestMainWindowPromptChecks : public QObject
{
    Q_OBJECT

private slots:
    void duringRepair_data() { addRepairRows(); }
    void duringRepair();
    void closesDuringRepair_data() { addRepairRows(); }
    void closesDuringRepair();
    void duringCondition_data();
    void duringCondition();
    void duringSilenceOnTheBattery_data() { addOccasionRows(); }
    void duringSilenceOnTheBattery();
    void closesDuringSilenceOnTheBattery_data() { addOccasionRows(); }
    void closesDuringSilenceOnTheBattery();
    void duringTestOfValidity_data() { addInvalidityRows(); }
    void duringTestOfValidity();
    void closesDuringTestOfValidity_data() { addInvalidityRows(); }
    void closesDuringTestOfValidity();
    void overInvalidDevice_data() { addOccasionRows(); }
    void overInvalidDevice();
    void closesOverInvalidDevice_data() { addOccasionRows(); }
    void closesOverInvalidDevice();
};

void TestMainWindowPromptChecks::duringRepair()
{
    QFETCH(const bool, connecting);
    QFETCH(const QByteArray, command);
    RepairedRig update(newerFile, connecting);
    expectUpdate(update.rig.robot, newestVersion, Ok);
    update.promptAt(update.number(command));
    update.run();
    QVERIFY(update.prompted);
    QCOMPARE(withoutSeconds(update.rig.wire()), update.commands);
    const LoggerModel::Settings& settings = update.rig.logger->model().settings();
    QCOMPARE(settings.timeZoneOffset, 0);
    QVERIFY(qAbs(settings.clockOffset) <= 2);
    QCOMPARE(update.browser.opened, newerAddress);
    QCOMPARE(differences(update.rig, update.readState()), QString());
}

// A read of its own has cleared the texts by then.
void TestMainWindowPromptChecks::closesDuringRepair()
{
    QFETCH(const bool, connecting);
    QFETCH(const QByteArray, command);
    RepairedRig update(mandatoryFile, connecting);
    expectMandatoryUpdate(update.rig.robot, newestVersion, Ok);
    if (!connecting)
        expectExit(update.rig.robot, Yes);
    update.promptAt(update.number(command));
    update.run();
    QVERIFY(update.prompted);
    QCOMPARE(closedWindowRemains(update.rig), QString());
    QCOMPARE(withoutSeconds(update.rig.wire()), update.upTo(command));
}

void TestMainWindowPromptChecks::duringCondition_data()
{
    QTest::addColumn<bool>("connecting");
    QTest::addColumn<bool>("multiuse");
    QTest::addColumn<QByteArray>("command");
    for (const bool connecting : {true, false}) {
        const char* occasion = connecting ? "connect" : "read";
        QTest::addRow("last reset in a %s", occasion) << connecting << true << QByteArray("z");
        QTest::addRow("battery in a %s", occasion) << connecting << true << QByteArray("l");
        QTest::addRow("battery of a Single-use logger in a %s", occasion)
            << connecting << false << QByteArray("l");
    }
}

void TestMainWindowPromptChecks::duringCondition()
{
    QFETCH(const bool, connecting);
    QFETCH(const bool, multiuse);
    QFETCH(const QByteArray, command);
    CheckedRig update(newerFile, connecting, exhaustedLogger(multiuse), extendedReadCommands(multiuse));
    ProcedureRig& rig = update.rig;
    expectUpdate(rig.robot, newestVersion, Ok);
    update.promptAt(update.number(command));
    update.run();
    QVERIFY(update.prompted);
    QCOMPARE(rig.wire(), update.commands);
    QCOMPARE(visibleLabels(rig, {"labelLastReset"}).size(), multiuse ? 1 : 0);
    const QString advice = multiuse ? QStringLiteral("Please replace the battery immediately.")
                                    : QStringLiteral("Please refrain from using this device.");
    QVERIFY(rig.text("labelLowBattery").contains(advice));
    QCOMPARE(differences(rig, update.readState()), QString());
}

void TestMainWindowPromptChecks::duringSilenceOnTheBattery()
{
    QFETCH(const bool, connecting);
    CheckedRig update(newerFile, connecting, secureLogger(), extendedReadCommands());
    ProcedureRig& rig = update.rig;
    rig.disturb("l", Fault::Kind::Silence);
    expectUpdate(rig.robot, newestVersion, Ok);
    expectReadFailed(rig.robot);
    if (connecting)
        expectReadIncorrect(rig.robot);
    update.promptAt(update.number("l"));
    update.run();
    QVERIFY(update.prompted);
    QCOMPARE(rig.wire(), update.commands);
    QCOMPARE(differences(rig, connecting ? connected()
                                         : idle(QStringLiteral("Read failed. Please retry."), false)),
             QString());
}

void TestMainWindowPromptChecks::closesDuringSilenceOnTheBattery()
{
    QFETCH(const bool, connecting);
    CheckedRig update(mandatoryFile, connecting, secureLogger(), extendedReadCommands());
    ProcedureRig& rig = update.rig;
    rig.disturb("l", Fault::Kind::Silence);
    expectMandatoryUpdate(rig.robot, newestVersion, Ok);
    expectExit(rig.robot, Yes);
    update.promptAt(update.number("l"));
    update.run();
    QVERIFY(update.prompted);
    QCOMPARE(closedWindowRemains(rig), QString());
    QCOMPARE(rig.wire(), update.upTo("l"));
}

// What the answer means is told behind the prompt.
void TestMainWindowPromptChecks::duringTestOfValidity()
{
    QFETCH(const bool, connecting);
    QFETCH(const bool, silent);
    InvalidRig update(newerFile, connecting, silent);
    expectUpdate(update.rig.robot, newestVersion, Ok);
    expectInvalidDevice(update.rig.robot);
    update.promptAt(update.number("m"));
    update.run();
    QVERIFY(update.prompted);
    QCOMPARE(update.rig.wire(), update.commands);
    QCOMPARE(panels(update.rig), emptyPanels());
    QCOMPARE(differences(update.rig, disconnected()), QString());
}

void TestMainWindowPromptChecks::closesDuringTestOfValidity()
{
    QFETCH(const bool, connecting);
    QFETCH(const bool, silent);
    InvalidRig update(mandatoryFile, connecting, silent);
    expectMandatoryUpdate(update.rig.robot, newestVersion, Ok);
    update.promptAt(update.number("m"));
    update.run();
    QVERIFY(update.prompted);
    QCOMPARE(closedWindowRemains(update.rig), QString());
    QCOMPARE(update.rig.wire(), update.commands);
    QVERIFY(!update.rig.takeStatusLog().contains(QStringLiteral("Invalid device detected.")));
}

void TestMainWindowPromptChecks::overInvalidDevice()
{
    QFETCH(const bool, connecting);
    InvalidRig update(newerFile, connecting, false);
    expectUpdate(update.rig.robot, newestVersion, Ok);
    expectInvalidDevice(update.rig.robot);
    update.promptOverBox();
    update.run();
    QVERIFY(update.prompted);
    QCOMPARE(update.rig.wire(), update.commands);
    QCOMPARE(update.browser.opened, newerAddress);
    QCOMPARE(differences(update.rig, disconnected()), QString());
}

void TestMainWindowPromptChecks::closesOverInvalidDevice()
{
    QFETCH(const bool, connecting);
    InvalidRig update(mandatoryFile, connecting, false);
    expectMandatoryUpdate(update.rig.robot, newestVersion, Ok);
    expectInvalidDevice(update.rig.robot);
    update.closeOverBox();
    update.run();
    QVERIFY(update.prompted);
    QCOMPARE(closedWindowRemains(update.rig), QString());
    QCOMPARE(update.rig.wire(), update.commands);
}

QTEST_MAIN(TestMainWindowPromptChecks)
#include "tst_mainwindow_promptchecks.moc"
