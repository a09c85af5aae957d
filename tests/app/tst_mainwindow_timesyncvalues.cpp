// To the second: what a write sends for a time on the window's clock and a zone.

#include "dialogs/advancedoptionsdialog.h"
#include "extendedrig.h"
#include "timerig.h"
#include "windowstate.h"
#include "windowwords.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QEvent>
#include <QTest>
#include <QTimer>

using namespace WindowWords;

namespace {

constexpr int clockInterval = 1000; // ms

/// Keeps the ticks from all clocks of the program, so that each shows the time that it was set to.
class HeldClocks : public QObject
{
public:
    HeldClocks() { QCoreApplication::instance()->installEventFilter(this); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const auto* timer = event->type() == QEvent::Timer ? qobject_cast<QTimer*>(watched) : nullptr;
        return (timer && timer->interval() == clockInterval) || QObject::eventFilter(watched, event);
    }
};

const QByteArray eleven = "u1715770800";
const QByteArray noon = "u1715774400";
const QByteArray halfPastThree = "u1715787000";

/// A logger on whose clock it is noon, and stays so. A reference time is there.
struct NoonRig : SynchronisedRig
{
    /// @p before was connected before it.
    explicit NoonRig(const LoggerModel& model, const LoggerModel& before = basicLogger())
        : SynchronisedRig(before)
    {
        rig.press("buttonConnect");
        rig.unplugAll();
        rig.plug(model);
        rig.disturb("g", Fault::Kind::Reply, noon.mid(1) + "\r\n");
        rig.press("buttonConnect");
        rig.logger->clearExchanges();
    }

    HeldClocks clocks;
};

LoggerModel inZone(LoggerModel model, int offset)
{
    model.settings().timeZoneOffset = offset;
    return model;
}

} // namespace

class TestMainWindowTimeSyncValues : public QObject
{
    Q_OBJECT

private slots:
    void trueTimeOfTheShownOne_data();
    void trueTimeOfTheShownOne();
    void zoneOfTheStoreCounts_data();
    void zoneOfTheStoreCounts();
    void olderLoggerTakesTheShownTime();
};

void TestMainWindowTimeSyncValues::trueTimeOfTheShownOne_data()
{
    QTest::addColumn<bool>("multiuse");
    QTest::newRow("Multiuse") << true;
    QTest::newRow("Single-use") << false;
}

void TestMainWindowTimeSyncValues::trueTimeOfTheShownOne()
{
    QFETCH(const bool, multiuse);
    NoonRig synchronised(inZone(secureLogger(multiuse), 3600));
    TimeRig& rig = synchronised.rig;
    rig.press("buttonWrite");
    QVERIFY(rig.text("labelDateTime").startsWith(QStringLiteral("12:00:00 15/")));
    QList<QByteArray> expected = extendedWriteCommands();
    expected.insert(1, "Sz00003600");
    expected.insert(2, eleven);
    QCOMPARE(rig.wire(), expected);
    QCOMPARE(differences(rig, idle(QStringLiteral("Write successful"), false)), QString());
}

void TestMainWindowTimeSyncValues::zoneOfTheStoreCounts_data()
{
    QTest::addColumn<int>("offset");
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QByteArray>("clock");
    QTest::newRow("three hours and a half behind") << -12600 << QByteArray("Sz-0012600") << halfPastThree;
    QTest::newRow("GMT") << 0 << QByteArray("Sz00000000") << noon;
}

// The device's own zone, an hour ahead, counts no more once the operator has another one in mind.
void TestMainWindowTimeSyncValues::zoneOfTheStoreCounts()
{
    QFETCH(const int, offset);
    QFETCH(const QByteArray, zone);
    QFETCH(const QByteArray, clock);
    NoonRig synchronised(inZone(secureLogger(), 3600));
    TimeRig& rig = synchronised.rig;
    options(rig)->lSetTimeZoneOffset(offset);
    rig.press("buttonWrite");
    QCOMPARE(rig.wire().mid(1, 2), QList<QByteArray>({zone, clock}));
    QCOMPARE(rig.logger->model().settings().timeZoneOffset, offset);
    QCOMPARE(differences(rig, idle(QStringLiteral("Write successful"), false)), QString());
}

// The zone of the logger before this one is still in the store.
void TestMainWindowTimeSyncValues::olderLoggerTakesTheShownTime()
{
    NoonRig synchronised(basicLogger(), secureLogger());
    TimeRig& rig = synchronised.rig;
    QCOMPARE(options(rig)->lTimeZoneOffset(), 7200);
    rig.press("buttonWrite");
    QList<QByteArray> expected = writeCommandsOfBasicLogger();
    expected.insert(1, noon);
    QCOMPARE(rig.wire(), expected);
    QCOMPARE(differences(rig, idle(QStringLiteral("Write successful"), false)), QString());
}

QTEST_MAIN(TestMainWindowTimeSyncValues)
#include "tst_mainwindow_timesyncvalues.moc"
