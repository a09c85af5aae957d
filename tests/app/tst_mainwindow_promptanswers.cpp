// A prompt for a newer version and the answer of a time server cross: the one comes while the other is being
// told, or while the logger is asked whether the new time makes it invalid.

#include "extendedrig.h"
#include "timerig.h"
#include "updaterig.h"
#include "windowstate.h"
#include "windowwords.h"

#include <QTest>

using namespace TimeWords;
using namespace WindowWords;

namespace {

constexpr auto Ok = QMessageBox::Ok;
constexpr qint64 threeDays = Q_INT64_C(3) * 86400 * 1000;

/// A connected Single-use logger, and a time to judge it by that is @p ahead milliseconds ahead.
class JudgingRig
{
public:
    JudgingRig(const QByteArray& file, qint64 ahead)
        : servers(NtpAnswer::currentTime(ahead).later())
        , update(file, secureLogger(false), timeSettings())
    {
        servers.awaitRequest();
    }

    /// Lets the time come, and returns once the window has done all that follows from it.
    bool tellTimeUntil(const QString& status)
    {
        servers.release();
        return QTest::qWaitFor([&] { return update.rig.status() == status; }, queryPatience);
    }
    bool tellTimeUntilClosed()
    {
        servers.release();
        return QTest::qWaitFor([this] { return !update.rig.window.isVisible(); }, queryPatience);
    }

    Servers servers;
    ConnectedUpdateRig update;
};

void addAheadRows()
{
    QTest::addColumn<qint64>("ahead");
    QTest::addColumn<QString>("status");
    QTest::newRow("logger is valid") << qint64(0) << TimeWords::fetchedServer;
    QTest::newRow("logger is invalid") << threeDays << leftPort;
}

void addModifiedRows()
{
    QTest::addColumn<bool>("modified");
    QTest::newRow("without changes") << false;
    QTest::newRow("with changes") << true;
}

} // namespace

class TestMainWindowPromptAnswers : public QObject
{
    Q_OBJECT

private slots:
    void answers_data() { addAheadRows(); }
    void answers();
    void duringTheQuestion_data() { addAheadRows(); }
    void duringTheQuestion();
    void closesDuringTheQuestion_data() { addAheadRows(); }
    void closesDuringTheQuestion();
    void overInvalidDevice();
    void closesOverInvalidDevice_data() { addModifiedRows(); }
    void closesOverInvalidDevice();
    void overTheDisconnect();
    void closesOverTheDisconnect();
};

// A time far off makes a Single-use logger invalid: that is said over the prompt, and the logger is gone.
void TestMainWindowPromptAnswers::answers()
{
    QFETCH(const qint64, ahead);
    QFETCH(const QString, status);
    JudgingRig judging(newerFile, ahead);
    UpdateRig& update = judging.update;
    ProcedureRig& rig = update.rig;
    bool told = false;
    connect(&rig.robot, &DialogRobot::sBoxOpened, &rig.window, [&](const QString& title) {
        if (title == QStringLiteral("Update Available"))
            told = judging.tellTimeUntil(status);
    });
    if (status == leftPort)
        expectInvalidDevice(rig.robot);
    expectUpdate(rig.robot, newestVersion, Ok);
    QVERIFY(update.prompt());
    QVERIFY(told);
    QCOMPARE(update.browser.opened, newerAddress);
    QCOMPARE(differences(rig, status == leftPort ? disconnected() : idle(status, false)), QString());
}

// The judgement is told behind the prompt.
void TestMainWindowPromptAnswers::duringTheQuestion()
{
    QFETCH(const qint64, ahead);
    QFETCH(const QString, status);
    JudgingRig judging(newerFile, ahead);
    UpdateRig& update = judging.update;
    expectUpdate(update.rig.robot, newestVersion, Ok);
    if (status == leftPort)
        expectInvalidDevice(update.rig.robot);
    update.promptAt(1);
    QVERIFY(judging.tellTimeUntil(status));
    QTRY_VERIFY(update.prompted);
    QTRY_COMPARE(update.rig.wire(), QList<QByteArray>({"m"}));
    QCOMPARE(update.browser.opened, newerAddress);
    QCOMPARE(differences(update.rig, status == leftPort ? disconnected() : idle(status, false)), QString());
}

void TestMainWindowPromptAnswers::closesDuringTheQuestion()
{
    QFETCH(const qint64, ahead);
    JudgingRig judging(mandatoryFile, ahead);
    UpdateRig& update = judging.update;
    expectMandatoryUpdate(update.rig.robot, newestVersion, Ok);
    update.promptAt(1);
    QVERIFY(judging.tellTimeUntilClosed());
    QVERIFY(update.prompted);
    QCOMPARE(closedWindowRemains(update.rig), QString());
    QCOMPARE(update.rig.wire(), QList<QByteArray>({"m"}));
    QVERIFY(!update.rig.takeStatusLog().contains(QStringLiteral("Invalid device detected.")));
}

void TestMainWindowPromptAnswers::overInvalidDevice()
{
    JudgingRig judging(newerFile, threeDays);
    UpdateRig& update = judging.update;
    expectUpdate(update.rig.robot, newestVersion, Ok);
    expectInvalidDevice(update.rig.robot);
    update.promptOverBox();
    QVERIFY(judging.tellTimeUntil(leftPort));
    QVERIFY(update.prompted);
    QCOMPARE(update.rig.wire(), QList<QByteArray>({"m"}));
    QCOMPARE(differences(update.rig, disconnected()), QString());
}

void TestMainWindowPromptAnswers::closesOverInvalidDevice()
{
    QFETCH(const bool, modified);
    JudgingRig judging(mandatoryFile, threeDays);
    UpdateRig& update = judging.update;
    if (modified)
        update.rig.type("lineInfo", QStringLiteral("Batch 8"));
    expectMandatoryUpdate(update.rig.robot, newestVersion, Ok);
    if (modified)
        expectExit(update.rig.robot, Yes);
    expectInvalidDevice(update.rig.robot);
    update.closeOverBox();
    QVERIFY(judging.tellTimeUntilClosed());
    QTRY_VERIFY(update.prompted);
    QCOMPARE(closedWindowRemains(update.rig), QString());
    QCOMPARE(update.rig.wire(), QList<QByteArray>({"m"}));
}

void TestMainWindowPromptAnswers::overTheDisconnect()
{
    JudgingRig judging(newerFile, threeDays);
    UpdateRig& update = judging.update;
    update.rig.type("lineInfo", QStringLiteral("Batch 8"));
    expectInvalidDevice(update.rig.robot);
    expectUpdate(update.rig.robot, newestVersion, Ok);
    expectDisconnecting(update.rig.robot, Yes);
    update.promptOverBox(2);
    QVERIFY(judging.tellTimeUntil(leftPort));
    QVERIFY(update.prompted);
    QCOMPARE(update.rig.wire(), QList<QByteArray>({"m"}));
    QCOMPARE(differences(update.rig, disconnected()), QString());
}

void TestMainWindowPromptAnswers::closesOverTheDisconnect()
{
    JudgingRig judging(mandatoryFile, threeDays);
    UpdateRig& update = judging.update;
    update.rig.type("lineInfo", QStringLiteral("Batch 8"));
    expectInvalidDevice(update.rig.robot);
    expectMandatoryUpdate(update.rig.robot, newestVersion, Ok);
    expectExit(update.rig.robot, Yes);
    expectDisconnecting(update.rig.robot, Yes);
    update.closeOverBox(2);
    QVERIFY(judging.tellTimeUntilClosed());
    QTRY_VERIFY(update.prompted);
    QCOMPARE(closedWindowRemains(update.rig), QString());
    QCOMPARE(update.rig.wire(), QList<QByteArray>({"m"}));
}

QTEST_MAIN(TestMainWindowPromptAnswers)
#include "tst_mainwindow_promptanswers.moc"
