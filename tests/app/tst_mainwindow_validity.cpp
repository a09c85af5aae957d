// Loggers whose clock can't be trusted: found at the end of a read, or when the reference time comes.

#include "device/brumaloggerinterface.h"
#include "dialogs/advancedoptionsdialog.h"
#include "extendedrig.h"
#include "timerig.h"
#include "windowstate.h"
#include "windowwords.h"

#include <QAbstractButton>
#include <QApplication>
#include <QPointer>
#include <QTest>

using namespace TimeWords;
using namespace WindowWords;

Q_DECLARE_METATYPE(LoggerModel)

namespace {

constexpr int twoDays = 172800;
/// Both clocks tick once a second, so a test can't tell their distance to the second.
constexpr int uncertainty = 5;

LoggerModel loggerAhead(LoggerModel model, int seconds)
{
    model.settings().clockOffset = seconds;
    return model;
}

const QStringList found{foundInvalid, leftPort};

} // namespace

class TestMainWindowValidity : public QObject
{
    Q_OBJECT

private slots:
    void judgesClockAfterRead_data();
    void judgesClockAfterRead();
    void leavesInTheMiddleOfAConnect();
    void judgesClockByReferenceTime_data();
    void judgesClockByReferenceTime();
    void readsByReferenceTime_data() { judgesClockByReferenceTime_data(); }
    void readsByReferenceTime();
    void silenceIsTakenAsInvalid();
    void asksBeforeItLosesChanges_data();
    void asksBeforeItLosesChanges();
    void startIsCalledOff();
    void invalidDeviceThatIsKeptIsNotStarted();
    void optionsAreClosed();
    void acceptedOptionsOfALostDeviceAreNoChange();
    void cautionOfLostOptionsIsClosed();
    void pickerIsClosed_data();
    void pickerIsClosed();
    void noDeviceIsNotJudged();
};

void TestMainWindowValidity::judgesClockAfterRead_data()
{
    QTest::addColumn<LoggerModel>("model");
    QTest::addColumn<bool>("valid");
    LoggerModel basicMultiuse = basicLogger();
    basicMultiuse.settings().multiuse = true;
    const int within = twoDays - uncertainty;
    const int beyond = twoDays + uncertainty;
    const auto row = [](const char* name, const LoggerModel& model, int ahead, bool valid) {
        QTest::newRow(name) << loggerAhead(model, ahead) << valid;
    };
    row("basic Single-use, almost two days ahead", basicLogger(), within, true);
    row("basic Single-use, almost two days behind", basicLogger(), -within, true);
    row("basic Single-use, two days ahead", basicLogger(), beyond, false);
    row("basic Single-use, two days behind", basicLogger(), -beyond, false);
    row("basic Multiuse, two days behind", basicMultiuse, -beyond, true);
    // Its zone is two hours ahead, and the clock shows it.
    row("extended Single-use, almost two days ahead", secureLogger(false), within - 7200, true);
    row("extended Single-use, two days ahead", secureLogger(false), beyond - 7200, false);
    row("extended Single-use, two days behind", secureLogger(false), -beyond - 7200, false);
    row("extended Multiuse, two days behind", secureLogger(true), -beyond - 7200, true);
}

void TestMainWindowValidity::judgesClockAfterRead()
{
    QFETCH(const LoggerModel, model);
    QFETCH(const bool, valid);
    ProcedureRig rig;
    LoggerModel right = model;
    right.settings().clockOffset = 0;
    rig.plugAndConnect(right);
    rig.logger->model() = model;
    rig.takeStatusLog();
    if (!valid)
        expectInvalidDevice(rig.robot);
    rig.press("buttonRead");
    QCOMPARE(rig.wire().last(), QByteArray("m"));
    QCOMPARE(rig.takeStatusLog(), QStringList({"Reading from device on ttyACM0", "Read successful"}) +
                                      (valid ? QStringList() : found));
    QCOMPARE(differences(rig, valid ? idle(QStringLiteral("Read successful"), false) : disconnected()),
             QString());
}

// The connect says nothing of its own, and nothing looks connected.
void TestMainWindowValidity::leavesInTheMiddleOfAConnect()
{
    ProcedureRig rig;
    rig.plug(loggerAhead(basicLogger(), 2 * twoDays));
    expectInvalidDevice(rig.robot);
    rig.press("buttonConnect");
    QCOMPARE(rig.wire(), connectCommands());
    QCOMPARE(panels(rig), emptyPanels());
    QCOMPARE(rig.takeStatusLog(),
             QStringList({"Connecting to device... ", "Reading from device on ttyACM0", "Read successful"}) +
                 found);
    QCOMPARE(differences(rig, disconnected()), QString());
}

void TestMainWindowValidity::judgesClockByReferenceTime_data()
{
    QTest::addColumn<LoggerModel>("model");
    QTest::addColumn<bool>("valid");
    LoggerModel basicMultiuse = basicLogger();
    basicMultiuse.settings().multiuse = true;
    QTest::newRow("basic Single-use") << basicLogger() << false;
    QTest::newRow("basic Multiuse") << basicMultiuse << true;
    QTest::newRow("extended Single-use") << secureLogger(false) << false;
    QTest::newRow("extended Multiuse") << secureLogger(true) << true;
    QTest::newRow("Single-use two days ahead") << loggerAhead(basicLogger(), twoDays - 10) << true;
}

// Right by the computer's clock, which is three days off.
void TestMainWindowValidity::judgesClockByReferenceTime()
{
    QFETCH(const LoggerModel, model);
    QFETCH(const bool, valid);
    DoubtfulRig waiting(model);
    TimeRig& rig = waiting.rig;
    if (!valid)
        expectInvalidDevice(rig.robot);
    waiting.tellTimeUntil(valid ? fetchedServer : found.last());
    QVERIFY(waiting.told);
    QVERIFY(QTest::qWaitFor([&] { return rig.wire().size() == 1; }));
    QCOMPARE(rig.wire(), QList<QByteArray>({"m"}));
    QCOMPARE(rig.takeStatusLog(), QStringList(fetchedServer) + (valid ? QStringList() : found));
    QCOMPARE(differences(rig, valid ? idle(fetchedServer, false) : disconnected()), QString());
}

// The same in a read, for which the reference time is already there.
void TestMainWindowValidity::readsByReferenceTime()
{
    QFETCH(const LoggerModel, model);
    QFETCH(const bool, valid);
    WaitingRig waiting(Q_INT64_C(3) * 86400 * 1000);
    waiting.tellTimeUntil(fetchedServer);
    QVERIFY(waiting.told);
    TimeRig& rig = waiting.rig;
    rig.takeStatusLog();
    rig.plug(model);
    if (!valid)
        expectInvalidDevice(rig.robot);
    rig.press("buttonConnect");
    QStringList statuses{"Connecting to device... ", "Reading from device on ttyACM0", "Read successful"};
    statuses += valid ? QStringList("Connected to device on ttyACM0") : found;
    QCOMPARE(rig.takeStatusLog(), statuses);
    QCOMPARE(differences(rig, valid ? connected() : disconnected()), QString());
}

void TestMainWindowValidity::silenceIsTakenAsInvalid()
{
    DoubtfulRig waiting(secureLogger());
    TimeRig& rig = waiting.rig;
    rig.disturb("m", Fault::Kind::Silence);
    expectInvalidDevice(rig.robot);
    waiting.tellTimeUntil(found.last());
    QVERIFY(waiting.told);
    QCOMPARE(differences(rig, disconnected()), QString());
}

void TestMainWindowValidity::asksBeforeItLosesChanges_data()
{
    QTest::addColumn<bool>("leaving");
    QTest::newRow("Yes") << true;
    QTest::newRow("No stays connected, and nothing can be done") << false;
}

void TestMainWindowValidity::asksBeforeItLosesChanges()
{
    QFETCH(const bool, leaving);
    DoubtfulRig waiting(basicLogger());
    TimeRig& rig = waiting.rig;
    rig.type("lineInfo", QStringLiteral("Batch 8"));
    expectInvalidDevice(rig.robot);
    expectDisconnecting(rig.robot, leaving ? Yes : No);
    waiting.tellTimeUntil(leaving ? found.last() : found.first());
    QVERIFY(waiting.told);
    QVERIFY(QTest::qWaitFor([&] { return rig.robot.boxes().size() == 2; }));
    WindowState stays = idle(found.first(), true);
    stays.controls = Controls::Disabled;
    QCOMPARE(differences(rig, leaving ? disconnected() : stays), QString());
}

// The question was answered with Yes, but there is nothing left to start.
void TestMainWindowValidity::startIsCalledOff()
{
    DoubtfulRig waiting(secureLogger(false));
    TimeRig& rig = waiting.rig;
    connect(&rig.robot, &DialogRobot::sBoxOpened, this, [&](const QString& title) {
        if (title == QStringLiteral("Confirm"))
            waiting.tellTimeUntil(found.last());
    });
    expectInvalidDevice(rig.robot); // over the question, and so answered first
    expectStartConfirm(rig.robot, Yes);
    rig.press("buttonStart");
    QVERIFY(waiting.told);
    QCOMPARE(rig.wire(), QList<QByteArray>({"m"}));
    QCOMPARE(differences(rig, disconnected()), QString());
}

void TestMainWindowValidity::optionsAreClosed()
{
    DoubtfulRig waiting(secureLogger(false));
    TimeRig& rig = waiting.rig;
    expectInvalidDevice(rig.robot);
    QTimer::singleShot(0, options(rig), [&] { waiting.tellTimeUntil(found.last()); });
    rig.press("buttonAdvanced");
    QVERIFY(waiting.told);
    QVERIFY(!options(rig)->isVisible());
    QCOMPARE(differences(rig, disconnected()), QString());
}

// The device stays connected by the operator's will, but nothing can be done with it.
void TestMainWindowValidity::invalidDeviceThatIsKeptIsNotStarted()
{
    DoubtfulRig waiting(secureLogger(false));
    TimeRig& rig = waiting.rig;
    rig.type("lineInfo", QStringLiteral("Batch 8"));
    expectStartModified(rig.robot, Yes);
    connect(&rig.robot, &DialogRobot::sBoxOpened, this, [&](const QString& title) {
        if (title != QStringLiteral("Confirm"))
            return;
        waiting.tellTimeUntil(found.first());
        QVERIFY(QTest::qWaitFor([&] { return rig.robot.boxes().size() == 4; }));
    });
    expectInvalidDevice(rig.robot); // this one and the next over the question, and so answered first
    expectDisconnecting(rig.robot, No);
    expectStartConfirm(rig.robot, Yes);
    rig.press("buttonStart");
    QCOMPARE(rig.wire(), QList<QByteArray>({"m"}));
    WindowState stays = idle(found.first(), true);
    stays.controls = Controls::Disabled;
    QCOMPARE(differences(rig, stays), QString());
}

// The logger is found invalid just when OK is pressed.
void TestMainWindowValidity::acceptedOptionsOfALostDeviceAreNoChange()
{
    DoubtfulRig waiting(secureLogger(false));
    TimeRig& rig = waiting.rig;
    expectInvalidDevice(rig.robot);
    rig.atCommand(1, [&] { options(rig)->accept(); });
    QTimer::singleShot(0, options(rig), [&] { waiting.tellTimeUntil(found.last()); });
    rig.press("buttonAdvanced");
    QVERIFY(waiting.told);
    QCOMPARE(differences(rig, disconnected()), QString());
}

void TestMainWindowValidity::cautionOfLostOptionsIsClosed()
{
    LoggerModel model = secureLogger(false);
    model.settings().policies |= PolicyResetDone | PolicyPasswAlways;
    DoubtfulRig waiting(model);
    TimeRig& rig = waiting.rig;
    options(rig)->lSetPassword(rightPassword);
    bool stillThere = true;
    connect(&rig.robot, &DialogRobot::sBoxOpened, this, [&](const QString& title) {
        if (title != QStringLiteral("Attention"))
            return;
        const QWidget* caution = QApplication::activeModalWidget();
        waiting.tellTimeUntil(found.last());
        stillThere = caution->isVisible();
    });
    expectInvalidDevice(rig.robot); // over the caution, and so answered first
    expectResetCaution(rig.robot);
    QTimer::singleShot(0, options(rig), [&] { options(rig)->accept(); });
    rig.press("buttonAdvanced");
    QVERIFY(waiting.told);
    QVERIFY(!stillThere);
    QCOMPARE(differences(rig, disconnected()), QString());
}

void TestMainWindowValidity::pickerIsClosed_data()
{
    QTest::addColumn<bool>("months");
    QTest::newRow("picker") << false;
    QTest::newRow("menu of the months") << true;
}

void TestMainWindowValidity::pickerIsClosed()
{
    QFETCH(const bool, months);
    DoubtfulRig waiting(secureLogger(false));
    TimeRig& rig = waiting.rig;
    expectInvalidDevice(rig.robot);
    QPointer<QWidget> picker;
    QTimer::singleShot(0, options(rig), [&] {
        QTimer::singleShot(0, options(rig), [&] {
            picker = QApplication::activeModalWidget();
            QTimer::singleShot(0, options(rig), [&] { waiting.tellTimeUntil(found.last()); });
            if (months)
                picker->findChild<QToolButton*>("qt_calendar_monthbutton")->showMenu();
        });
        options(rig)->findChild<QAbstractButton*>("toolStartDate")->click();
    });
    rig.press("buttonAdvanced");
    QVERIFY(waiting.told);
    QVERIFY(!picker);
    QVERIFY(!options(rig)->isVisible());
    QCOMPARE(differences(rig, disconnected()), QString());
}

void TestMainWindowValidity::noDeviceIsNotJudged()
{
    DoubtfulRig waiting(basicLogger());
    TimeRig& rig = waiting.rig;
    rig.press("buttonConnect");
    rig.takeStatusLog();
    waiting.tellTimeUntil(fetchedServer);
    QVERIFY(waiting.told);
    QCOMPARE(rig.wire(), QList<QByteArray>());
    WindowState after = disconnected();
    after.status = fetchedServer;
    QCOMPARE(differences(rig, after), QString());
}

QTEST_MAIN(TestMainWindowValidity)
#include "tst_mainwindow_validity.moc"
