// A prompt for a newer version comes over each box of the procedures with extended firmware. It is on top and
// answered first. One that closes the window takes along the box below, and nothing more is said or sent.

#include "extendedrig.h"
#include "support/nextchance.h"
#include "updaterig.h"
#include "windowstate.h"
#include "windowwords.h"

#include "device/brumaloggerinterface.h"
#include "dialogs/advancedoptionsdialog.h"

#include <QAbstractButton>
#include <QDateTime>
#include <QTest>

using namespace WindowWords;

namespace {

constexpr auto Ok = QMessageBox::Ok;
using Box = void (*)(DialogRobot&);

/// A box in the course of a procedure.
struct Scene
{
    const char* name;
    void (*prepare)(ProcedureRig&);
    const char* button;
    QList<Box> boxes;       ///< all that the procedure shows, with the operator's answers
    int number;             ///< of the box that the prompt comes over, from 1 on
    bool modified;          ///< whether the window has changes to lose then
    QList<QByteArray> sent; ///< until then
    QList<QByteArray> rest; ///< what is sent behind it
    WindowState after;
};

LoggerModel loggerWith(int policies)
{
    LoggerModel model = secureLogger();
    model.settings().policies = policies;
    return model;
}

void plugAndChange(ProcedureRig& rig)
{
    rig.plugAndConnect(secureLogger());
    rig.type("lineInfo", QStringLiteral("Batch 8"));
}

void plugLoggerWithPastDate(ProcedureRig& rig)
{
    LoggerModel model = secureLogger();
    model.settings().startDate = QDateTime(QDate(2024, 5, 14), QTime(8, 0), Qt::UTC).toSecsSinceEpoch();
    model.settings().stopDate = 0;
    rig.plugAndConnect(model);
}

void plugSilentLock(ProcedureRig& rig)
{
    rig.plug(lockedLogger());
    rig.disturb("?", Fault::Kind::Silence);
}

void plugUnreadable(ProcedureRig& rig)
{
    rig.plug(secureLogger());
    rig.disturb("Gt", Fault::Kind::Silence);
}

void connectAndSilence(ProcedureRig& rig, const QByteArray& command)
{
    rig.plugAndConnect(secureLogger());
    rig.disturb(command, Fault::Kind::Silence);
}

/// From "Gt" on, and also when it is asked whether it is valid.
void connectAndLoseTheLogger(ProcedureRig& rig)
{
    connectAndSilence(rig, "Gt");
    rig.atCommand(7, [&rig] { rig.disturb("", Fault::Kind::Silence); });
}

/// The advanced options, with a password, in which something is done as soon as they are there.
void connectAndUseOptions(ProcedureRig& rig, int policies, void (*use)(AdvancedOptionsDialog*))
{
    rig.plugAndConnect(loggerWith(policies));
    options(rig)->lSetPassword(rightPassword);
    atNextChance(options(rig), [&rig, use] {
        use(options(rig));
        if (options(rig)->isVisible())
            options(rig)->reject();
    });
}

void acceptCautiousOptions(ProcedureRig& rig)
{
    connectAndUseOptions(rig, 0x1103 | PolicyResetDone | PolicyPasswAlways,
                         [](AdvancedOptionsDialog* dialog) { dialog->accept(); });
}

void demandPassword(ProcedureRig& rig)
{
    connectAndUseOptions(rig, 0x1103, [](AdvancedOptionsDialog* dialog) {
        dialog->findChild<QAbstractButton*>("checkConfigPassw")->click();
    });
}

const Box disconnecting = [](DialogRobot& robot) { expectDisconnecting(robot, Yes); };
const Box readQuestion = [](DialogRobot& robot) { expectReadQuestion(robot, No); };
const Box startModified = [](DialogRobot& robot) { expectStartModified(robot, Yes); };
const Box startConfirm = [](DialogRobot& robot) { expectStartConfirm(robot, Yes); };
const Box noPasswordAnswer = [](DialogRobot& robot) { expectPasswordUnanswered(robot); };

QList<Scene> unlockScenes()
{
    WindowState givenUp = beforeAnyConnect();
    givenUp.status = QStringLiteral("Connecting to device... ");
    const QList<QByteArray> attempt{"i", "i", "#", "x", "G0", "G1", "G2", "?secret"};
    const auto plugLocked = [](ProcedureRig& rig) { rig.plug(lockedLogger()); };
    const QList<Box> unanswered{noPasswordAnswer, &expectWrongPassword};
    return {
        {"wrong password",
         plugLocked,
         "buttonConnect",
         {&expectWrongPassword},
         1,
         false,
         attempt,
         {},
         givenUp},
        {"silence to the password",
         &plugSilentLock,
         "buttonConnect",
         unanswered,
         1,
         false,
         attempt,
         {},
         givenUp},
        {"behind that silence", &plugSilentLock, "buttonConnect", unanswered, 2, false, attempt, {}, givenUp},
    };
}

QList<Scene> readScenes()
{
    const QList<QByteArray> failed = firstOf(extendedReadCommands(), 7);
    const QList<QByteArray> failedConnect = QList<QByteArray>{"i"} + failed;
    const QList<Box> lost{&expectReadFailed, &expectInvalidDevice};
    const QList<Box> incorrect{&expectReadFailed, &expectReadIncorrect};
    const auto silence = [](ProcedureRig& rig) { connectAndSilence(rig, "Gt"); };
    const WindowState changed = idle(connected().status, true);
    return {
        {"read question", &plugAndChange, "buttonRead", {readQuestion}, 1, true, {}, {}, changed},
        {"read failed", silence, "buttonRead", {&expectReadFailed}, 1, true, failed, {"m"}, disconnected()},
        {"read lost", &connectAndLoseTheLogger, "buttonRead", lost, 1, true, failed, {"m"}, disconnected()},
        {"found invalid",
         &connectAndLoseTheLogger,
         "buttonRead",
         lost,
         2,
         false,
         failed + QList<QByteArray>{"m"},
         {},
         disconnected()},
        {"read of a connect failed",
         &plugUnreadable,
         "buttonConnect",
         incorrect,
         1,
         false,
         failedConnect,
         {"m"},
         mixed()},
        {"connect incorrect",
         &plugUnreadable,
         "buttonConnect",
         incorrect,
         2,
         false,
         failedConnect + QList<QByteArray>{"m"},
         {},
         mixed()},
    };
}

QList<Scene> writeScenes()
{
    const QList<QByteArray> begun = firstOf(extendedWriteCommands(), 2);
    const auto silence = [](ProcedureRig& rig) { connectAndSilence(rig, "Ss"); };
    const auto cancel = [](ProcedureRig& rig) {
        rig.plugAndConnect(secureLogger());
        rig.atCommand(2, [&rig] { rig.pressCancel(); });
    };
    const WindowState untouched = idle(connected().status, false);
    const WindowState failed = idle(QStringLiteral("Write failed. Please retry"), true);
    const WindowState cancelled = idle(QStringLiteral("Write successful"), false);
    return {
        {"past date",
         &plugLoggerWithPastDate,
         "buttonWrite",
         {&expectInvalidDates},
         1,
         false,
         {},
         {},
         untouched},
        {"write failed", silence, "buttonWrite", {&expectWriteFailed}, 1, false, begun, {}, failed},
        {"write cancelled", cancel, "buttonWrite", {&expectWriteCanceled}, 1, false, begun, {}, cancelled},
    };
}

QList<Scene> startScenes()
{
    const QList<Box> changed{startModified, startConfirm, disconnecting};
    const QList<Box> disabled{startConfirm, &expectStartDisabled};
    const QList<Box> failed{startConfirm, &expectStartFailed};
    const QList<QByteArray> start{"Go", "a"};
    const auto plugUnstartable = [](ProcedureRig& rig) { rig.plugAndConnect(loggerWith(0x1101)); };
    const auto silence = [](ProcedureRig& rig) { connectAndSilence(rig, "a"); };
    const WindowState untouched = idle(connected().status, false);
    return {
        {"start with changes", &plugAndChange, "buttonStart", changed, 1, true, {}, start, disconnected()},
        {"start to be confirmed", &plugAndChange, "buttonStart", changed, 2, true, {}, start, disconnected()},
        {"started with changes", &plugAndChange, "buttonStart", changed, 3, true, start, {}, disconnected()},
        {"start disabled", plugUnstartable, "buttonStart", disabled, 2, false, {"Go"}, {}, untouched},
        {"start failed", silence, "buttonStart", failed, 2, false, start, {}, untouched},
        {"disconnect with changes",
         &plugAndChange,
         "buttonConnect",
         {disconnecting},
         1,
         true,
         {},
         {},
         disconnected()},
    };
}

QList<Scene> optionScenes()
{
    const WindowState changed = idle(connected().status, true);
    const WindowState untouched = idle(connected().status, false);
    return {
        {"caution",
         &acceptCautiousOptions,
         "buttonAdvanced",
         {&expectResetCaution},
         1,
         false,
         {},
         {},
         changed},
        {"disclaimer",
         &demandPassword,
         "buttonAdvanced",
         {&expectPasswordDisclaimer},
         1,
         false,
         {},
         {},
         untouched},
    };
}

} // namespace

Q_DECLARE_METATYPE(Scene)

class TestMainWindowPromptBoxes : public QObject
{
    Q_OBJECT

private slots:
    void overBox_data();
    void overBox();
    void closesOverBox_data() { overBox_data(); }
    void closesOverBox();
};

void TestMainWindowPromptBoxes::overBox_data()
{
    QTest::addColumn<Scene>("scene");
    for (const Scene& scene : unlockScenes() + readScenes() + writeScenes() + startScenes() + optionScenes())
        QTest::newRow(scene.name) << scene;
}

void TestMainWindowPromptBoxes::overBox()
{
    QFETCH(const Scene, scene);
    UpdateRig update(newerFile);
    ProcedureRig& rig = update.rig;
    const UnlockHand hand(rig, {QStringLiteral("secret")});
    scene.prepare(rig);
    for (int number = 1; number <= scene.boxes.size(); ++number) {
        if (number == scene.number)
            expectUpdate(rig.robot, newestVersion, Ok);
        scene.boxes.at(number - 1)(rig.robot);
    }
    update.promptOverBox(scene.number);
    rig.press(scene.button);
    QVERIFY(update.prompted);
    QCOMPARE(rig.wire(), scene.sent + scene.rest);
    QCOMPARE(update.browser.opened, newerAddress);
    QCOMPARE(differences(rig, scene.after), QString());
}

void TestMainWindowPromptBoxes::closesOverBox()
{
    QFETCH(const Scene, scene);
    UpdateRig update(mandatoryFile);
    ProcedureRig& rig = update.rig;
    const UnlockHand hand(rig, {QStringLiteral("secret")});
    scene.prepare(rig);
    for (const Box& before : scene.boxes.mid(0, scene.number - 1))
        before(rig.robot);
    expectMandatoryUpdate(rig.robot, newestVersion, Ok);
    if (scene.modified)
        expectExit(rig.robot, Yes);
    scene.boxes.at(scene.number - 1)(rig.robot);
    update.closeOverBox(scene.number);
    rig.press(scene.button);
    QVERIFY(update.prompted);
    QCOMPARE(closedWindowRemains(rig), QString());
    QCOMPARE(rig.wire(), scene.sent);
    QCOMPARE(update.browser.opened, newerAddress);
}

QTEST_MAIN(TestMainWindowPromptBoxes)
#include "tst_mainwindow_promptboxes.moc"
