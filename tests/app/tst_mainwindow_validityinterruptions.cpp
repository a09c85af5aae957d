// What the operator does while a logger's validity is asked for, and over the box that tells it is invalid.

#include "extendedrig.h"
#include "timerig.h"
#include "windowstate.h"
#include "windowwords.h"

#include <QAbstractButton>
#include <QTest>

using namespace TimeWords;
using namespace WindowWords;

namespace {

constexpr qint64 threeDays = Q_INT64_C(3) * 86400; // seconds

/// A connected logger that is about to be judged: at the end of a read, or because the reference time has
/// come.
struct JudgedRig : WaitingRig
{
    JudgedRig(bool reading, const LoggerModel& model, qint64 ahead)
        : WaitingRig(ahead * 1000)
        , reading(reading)
    {
        rig.plugAndConnect(model);
        rig.activate();
        rig.takeStatusLog();
        if (reading)
            rig.logger->model().settings().clockOffset = ahead;
    }

    /// The number of the command that asks for the logger's type.
    int question() const { return reading ? readCommands().size() : 1; }
    void judge(const QString& lastStatus)
    {
        if (reading)
            rig.press("buttonRead");
        else
            tellTimeUntil(lastStatus);
    }
    QList<QByteArray> wire() const { return reading ? readCommands() : QList<QByteArray>{"m"}; }
    QStringList statuses() const
    {
        return reading ? QStringList{"Reading from device on ttyACM0", "Read successful"}
                       : QStringList{fetchedServer};
    }

    const bool reading;
};

void addOccasionRows()
{
    QTest::addColumn<bool>("reading");
    QTest::newRow("reference time") << false;
    QTest::newRow("end of a read") << true;
}

} // namespace

class TestMainWindowValidityInterruptions : public QObject
{
    Q_OBJECT

private slots:
    void pressesDuringTheQuestion_data() { addOccasionRows(); }
    void pressesDuringTheQuestion();
    void pressesOverTheBox_data() { addOccasionRows(); }
    void pressesOverTheBox();
    void closedDuringTheQuestion_data() { addOccasionRows(); }
    void closedDuringTheQuestion();
};

void TestMainWindowValidityInterruptions::pressesDuringTheQuestion()
{
    QFETCH(const bool, reading);
    JudgedRig judged(reading, basicLogger(), 0);
    TimeRig& rig = judged.rig;
    int times = 0;
    rig.atCommand(judged.question(), [&] {
        ++times;
        rig.pressEverything();
    });
    judged.judge(fetchedServer);
    QCOMPARE(times, 1);
    QCOMPARE(rig.wire(), judged.wire());
    QCOMPARE(rig.takeStatusLog(), judged.statuses());
    QCOMPARE(differences(rig, idle(judged.statuses().last(), false)), QString());
}

// The status bar tells of it already, and the link is closed only once the box is.
void TestMainWindowValidityInterruptions::pressesOverTheBox()
{
    QFETCH(const bool, reading);
    JudgedRig judged(reading, basicLogger(), threeDays);
    TimeRig& rig = judged.rig;
    QStringList statusThen;
    connect(&rig.robot, &DialogRobot::sBoxOpened, this, [&] {
        for (const char* button : {"buttonConnect", "buttonRead", "buttonWrite", "buttonStart"})
            rig.find<QAbstractButton>(button)->click();
        rig.pressEverything();
        statusThen << rig.status();
    });
    expectInvalidDevice(rig.robot);
    judged.judge(leftPort);
    QCOMPARE(statusThen, QStringList(foundInvalid));
    QCOMPARE(rig.wire(), judged.wire());
    QCOMPARE(rig.takeStatusLog(), judged.statuses() + QStringList({foundInvalid, leftPort}));
    QCOMPARE(differences(rig, disconnected()), QString());
}

// The answer is lost with the link, but nobody is there to be told of a device.
void TestMainWindowValidityInterruptions::closedDuringTheQuestion()
{
    QFETCH(const bool, reading);
    JudgedRig judged(reading, basicLogger(), 0);
    TimeRig& rig = judged.rig;
    rig.atCommand(judged.question(), [&rig] { rig.window.close(); });
    judged.judge(fetchedServer);
    QCOMPARE(rig.wire(), judged.wire());
    QCOMPARE(rig.takeStatusLog(), judged.statuses());
    QCOMPARE(closedWindowRemains(rig), QString());
}

QTEST_MAIN(TestMainWindowValidityInterruptions)
#include "tst_mainwindow_validityinterruptions.moc"
