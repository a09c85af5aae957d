// The reference time finds a logger invalid while a question or a notice about that very logger is open.

#include "extendedrig.h"
#include "support/loglines.h"
#include "timerig.h"
#include "windowstate.h"
#include "windowwords.h"

#include <QTest>

using namespace TimeWords;
using namespace WindowWords;

namespace {

const QString question = QStringLiteral("Disconnecting");

/// The logger of @p waiting is judged, up to @p status, over the first box called @p title.
void judgeOver(WaitingRig& waiting, const QString& title, const QString& status)
{
    QObject::connect(&waiting.rig.robot, &DialogRobot::sBoxOpened, &waiting.rig.window,
                     [&waiting, title, status, over = false](const QString& opened) mutable {
                         if (over || opened != title)
                             return;
                         over = true;
                         waiting.tellTimeUntil(status);
                     });
}

} // namespace

class TestMainWindowValidityQuestions : public QObject
{
    Q_OBJECT

private slots:
    void answerAboutALostDeviceLeadsNowhere_data();
    void answerAboutALostDeviceLeadsNowhere();
    void answerAboutAKeptDeviceCounts_data();
    void answerAboutAKeptDeviceCounts();
    void noticeOfALostDeviceIsTheLast();
};

void TestMainWindowValidityQuestions::answerAboutALostDeviceLeadsNowhere_data()
{
    QTest::addColumn<bool>("started");
    QTest::addColumn<bool>("leaving");
    QTest::newRow("Disconnect, Yes") << false << true;
    QTest::newRow("Disconnect, No") << false << false;
    QTest::newRow("started, Yes") << true << true;
    QTest::newRow("started, No") << true << false;
}

// The logger has been left behind the same question, asked once more over the first one.
void TestMainWindowValidityQuestions::answerAboutALostDeviceLeadsNowhere()
{
    QFETCH(const bool, started);
    QFETCH(const bool, leaving);
    DoubtfulRig waiting(basicLogger());
    TimeRig& rig = waiting.rig;
    rig.type("lineInfo", QStringLiteral("Batch 8"));
    judgeOver(waiting, question, leftPort);
    if (started) {
        expectStartModified(rig.robot, Yes);
        expectStartConfirm(rig.robot, Yes);
    }
    expectInvalidDevice(rig.robot);
    expectDisconnecting(rig.robot, Yes);
    expectDisconnecting(rig.robot, leaving ? Yes : No);
    {
        const LogLines log;
        rig.press(started ? "buttonStart" : "buttonConnect");
        QCOMPARE(log.all().filter(QStringLiteral("Disconnected from port")).size(), 1);
    }
    QVERIFY(waiting.told);
    QCOMPARE(rig.takeStatusLog(), QStringList({fetchedServer, foundInvalid, leftPort}));
    QCOMPARE(rig.wire(), started ? QList<QByteArray>({"a", "m"}) : QList<QByteArray>({"m"}));
    QCOMPARE(panels(rig), emptyPanels());
    QCOMPARE(differences(rig, disconnected()), QString());
}

void TestMainWindowValidityQuestions::answerAboutAKeptDeviceCounts_data()
{
    QTest::addColumn<bool>("leaving");
    QTest::newRow("Yes") << true;
    QTest::newRow("No") << false;
}

// Nothing can be done any more with the invalid logger that is kept, but leaving it.
void TestMainWindowValidityQuestions::answerAboutAKeptDeviceCounts()
{
    QFETCH(const bool, leaving);
    DoubtfulRig waiting(basicLogger());
    TimeRig& rig = waiting.rig;
    rig.type("lineInfo", QStringLiteral("Batch 8"));
    judgeOver(waiting, question, foundInvalid);
    expectInvalidDevice(rig.robot);
    expectDisconnecting(rig.robot, No);
    expectDisconnecting(rig.robot, leaving ? Yes : No);
    rig.press("buttonConnect");
    QVERIFY(waiting.told);
    WindowState kept = idle(foundInvalid, true);
    kept.controls = Controls::Disabled;
    QCOMPARE(differences(rig, leaving ? disconnected() : kept), QString());
}

// The read has failed at its end only, so the link is open and the controls are enabled.
void TestMainWindowValidityQuestions::noticeOfALostDeviceIsTheLast()
{
    WaitingRig waiting(Q_INT64_C(3) * 86400 * 1000);
    TimeRig& rig = waiting.rig;
    rig.plug(secureLogger(false));
    rig.takeStatusLog();
    rig.disturb("l", Fault::Kind::Silence);
    judgeOver(waiting, QStringLiteral("Notice"), leftPort);
    expectReadFailed(rig.robot);
    expectInvalidDevice(rig.robot); // over the notice, and so answered first
    expectReadIncorrect(rig.robot);
    rig.press("buttonConnect");
    QVERIFY(waiting.told);
    QCOMPARE(rig.wire(), extendedConnectCommands(false) << "m");
    QCOMPARE(rig.takeStatusLog(),
             QStringList({"Connecting to device... ", "Reading from device on ttyACM0",
                          "Read failed. Please retry.", fetchedServer, foundInvalid, leftPort}));
    QCOMPARE(differences(rig, disconnected()), QString());
}

QTEST_MAIN(TestMainWindowValidityQuestions)
#include "tst_mainwindow_validityquestions.moc"
