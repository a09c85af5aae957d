// The clock at an offset: what it shows, when it ticks, and what the computer's own clock does to it.

#include "time/timekeeper.h"

#include "support/testclock.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

namespace {

// A tick is due after 1000 ms, of which the timer may be short by a twentieth.
constexpr qint64 earliestTick = 900;
constexpr int tickTimeout = 10000;
constexpr qint64 latestTick = 1500; // of several; a busy computer may delay some of them
constexpr int twoTicks = 2200;
constexpr qint64 hour = 3600000;

qint64 now()
{
    return QDateTime::currentMSecsSinceEpoch();
}

/// A clock of @p start under test: its ticks, and how far it can have come.
class Subject
{
public:
    explicit Subject(const QDateTime& start)
        : created(now())
        , keeper(start, nullptr)
        , ticks(&keeper, &TimeKeeper::sUpdate)
    {
    }

    /// Lets the next tick come; false if none does.
    bool tick()
    {
        ticks.clear();
        return ticks.wait(tickTimeout);
    }
    /// Milliseconds since the epoch that the clock shows.
    qint64 shown() const { return keeper.time().toMSecsSinceEpoch(); }
    /// What a clock that began at @p start could show at the most by now.
    qint64 latest(qint64 start) const { return start + now() - created; }

private:
    qint64 created; // before the clock, so that no clock is ahead of it

public:
    TimeKeeper keeper;
    QSignalSpy ticks;
};

QDateTime someDate()
{
    return {QDate(2021, 3, 4), QTime(5, 6, 7, 89), Qt::UTC};
}

} // namespace

class TestTimeKeeper : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { TestClock::reset(); }

    void newClockShowsItsStart();
    void newClockWithoutStartShowsComputersTime();
    void clockBelongsToItsParent();
    void ticksCarryTheTimePassed();
    void ticksOnceASecond();
    void anyStartIsKeptAsAnOffset_data();
    void anyStartIsKeptAsAnOffset();
    void tickTurnsTheTimeLocal();
    void utcIsTheSameInstant_data();
    void utcIsTheSameInstant();
    void stoppedClockKeepsItsValue();
    void startedAgainItHasMissedNothing();
    void settingMovesTheClock();
    void settingStartsAStoppedClock();
    void settingRestartsThePhase();
    void movedComputerClockMovesTheNextTick_data();
    void movedComputerClockMovesTheNextTick();
    void blockedLoopCostsNoTime();
};

void TestTimeKeeper::newClockShowsItsStart()
{
    const TimeKeeper keeper(someDate(), nullptr);
    QCOMPARE(keeper.time(), someDate());
    QCOMPARE(keeper.time().timeSpec(), Qt::UTC);
    QVERIFY(keeper.isRunning());
}

void TestTimeKeeper::newClockWithoutStartShowsComputersTime()
{
    const qint64 before = now();
    const TimeKeeper keeper;
    QVERIFY(keeper.time().toMSecsSinceEpoch() >= before);
    QVERIFY(keeper.time().toMSecsSinceEpoch() <= now());
    QCOMPARE(keeper.time().timeSpec(), Qt::LocalTime);
    QVERIFY(keeper.isRunning());
}

void TestTimeKeeper::clockBelongsToItsParent()
{
    QObject parent;
    auto* dated = new TimeKeeper(someDate(), &parent);
    auto* undated = new TimeKeeper(&parent);
    QCOMPARE(parent.findChildren<TimeKeeper*>(), QList<TimeKeeper*>({dated, undated}));
}

void TestTimeKeeper::ticksCarryTheTimePassed()
{
    const qint64 start = someDate().toMSecsSinceEpoch();
    Subject subject(someDate());
    for (int count = 1; count <= 2; ++count) {
        QVERIFY(subject.tick());
        QCOMPARE(subject.ticks.first().first().toDateTime(), subject.keeper.time());
        QVERIFY(subject.shown() >= start + count * earliestTick);
        QVERIFY(subject.shown() <= subject.latest(start));
    }
}

void TestTimeKeeper::ticksOnceASecond()
{
    Subject subject(someDate());
    qint64 shortest = tickTimeout;
    for (int count = 0; count < 4; ++count) {
        const qint64 before = subject.shown();
        QVERIFY(subject.tick());
        shortest = qMin(shortest, subject.shown() - before);
    }
    QVERIFY2(shortest <= latestTick, qPrintable(QString::number(shortest)));
}

void TestTimeKeeper::anyStartIsKeptAsAnOffset_data()
{
    QTest::addColumn<QDateTime>("start");
    QTest::newRow("the epoch") << QDateTime::fromSecsSinceEpoch(0, Qt::UTC);
    QTest::newRow("before the epoch") << QDateTime(QDate(1931, 5, 6), QTime(7, 8, 9), Qt::UTC);
    QTest::newRow("beyond 32 bits") << QDateTime(QDate(2107, 8, 9), QTime(1, 2, 3), Qt::UTC);
    QTest::newRow("an hour ahead") << QDateTime::currentDateTime().addMSecs(hour);
    QTest::newRow("a second behind") << QDateTime::currentDateTime().addMSecs(-1000);
    QTest::newRow("another zone") << QDateTime(QDate(2020, 1, 2), QTime(3, 4, 5), Qt::OffsetFromUTC, -12600);
}

void TestTimeKeeper::anyStartIsKeptAsAnOffset()
{
    QFETCH(QDateTime, start);
    const qint64 startMsecs = start.toMSecsSinceEpoch();
    Subject subject(start);
    QCOMPARE(subject.shown(), startMsecs);
    QVERIFY(subject.tick());
    QVERIFY(subject.shown() >= startMsecs + earliestTick);
    QVERIFY(subject.shown() <= subject.latest(startMsecs));
}

void TestTimeKeeper::tickTurnsTheTimeLocal()
{
    Subject subject(someDate());
    QVERIFY(subject.tick());
    QCOMPARE(subject.keeper.time().timeSpec(), Qt::LocalTime);
    QCOMPARE(subject.ticks.first().first().toDateTime().timeSpec(), Qt::LocalTime);
    QCOMPARE(subject.keeper.timeUtc().timeSpec(), Qt::UTC);
    QCOMPARE(subject.keeper.timeUtc().toMSecsSinceEpoch(), subject.shown());
}

void TestTimeKeeper::utcIsTheSameInstant_data()
{
    QTest::addColumn<QDateTime>("start");
    QTest::newRow("given in UTC") << someDate();
    QTest::newRow("given in local time") << someDate().toLocalTime();
    QTest::newRow("given east of UTC") << someDate().toOffsetFromUtc(7200);
}

void TestTimeKeeper::utcIsTheSameInstant()
{
    QFETCH(QDateTime, start);
    const TimeKeeper keeper(start, nullptr);
    QCOMPARE(keeper.time().timeSpec(), start.timeSpec());
    QCOMPARE(keeper.timeUtc().timeSpec(), Qt::UTC);
    QCOMPARE(keeper.timeUtc().date(), someDate().date());
    QCOMPARE(keeper.timeUtc().time(), someDate().time());
}

void TestTimeKeeper::stoppedClockKeepsItsValue()
{
    Subject subject(someDate());
    subject.keeper.setRunning(false);
    QVERIFY(!subject.keeper.isRunning());
    QVERIFY(!subject.ticks.wait(twoTicks));
    QCOMPARE(subject.keeper.time(), someDate());
}

void TestTimeKeeper::startedAgainItHasMissedNothing()
{
    const qint64 start = someDate().toMSecsSinceEpoch();
    Subject subject(someDate());
    subject.keeper.setRunning(false);
    TestClock::shift(hour); // passes while it stands still
    subject.keeper.setRunning(true);
    QVERIFY(subject.keeper.isRunning());
    QVERIFY(subject.tick());
    QVERIFY(subject.shown() >= start + hour + earliestTick);
    QVERIFY(subject.shown() <= subject.latest(start));
}

void TestTimeKeeper::settingMovesTheClock()
{
    const QDateTime set = someDate().addYears(-9);
    Subject subject(someDate());
    subject.keeper.setTime(set);
    QCOMPARE(subject.keeper.time(), set);
    QVERIFY(subject.tick());
    QVERIFY(subject.shown() >= set.toMSecsSinceEpoch() + earliestTick);
    QVERIFY(subject.shown() <= subject.latest(set.toMSecsSinceEpoch()));
}

void TestTimeKeeper::settingStartsAStoppedClock()
{
    Subject subject(QDateTime::currentDateTime());
    subject.keeper.setRunning(false);
    subject.keeper.setTime(someDate());
    QVERIFY(subject.keeper.isRunning());
    QVERIFY(subject.tick());
    QVERIFY(subject.shown() >= someDate().toMSecsSinceEpoch() + earliestTick);
}

void TestTimeKeeper::settingRestartsThePhase()
{
    Subject subject(someDate());
    QTest::qWait(600);
    QElapsedTimer sinceSetting;
    sinceSetting.start();
    subject.keeper.setTime(someDate());
    QVERIFY(subject.tick());
    QVERIFY(sinceSetting.elapsed() >= earliestTick);
}

void TestTimeKeeper::movedComputerClockMovesTheNextTick_data()
{
    QTest::addColumn<qint64>("move");
    QTest::newRow("ahead an hour") << hour;
    QTest::newRow("back two hours") << -2 * hour;
    QTest::newRow("ahead ten years") << 87600 * hour;
    QTest::newRow("back half a second") << qint64(-500);
}

void TestTimeKeeper::movedComputerClockMovesTheNextTick()
{
    QFETCH(qint64, move);
    const qint64 start = someDate().toMSecsSinceEpoch();
    Subject subject(someDate());
    TestClock::shift(move);
    QCOMPARE(subject.shown(), start);
    QVERIFY(subject.tick());
    QVERIFY(subject.shown() >= start + move + earliestTick);
    QVERIFY(subject.shown() <= subject.latest(start)); // the move is in now()
}

void TestTimeKeeper::blockedLoopCostsNoTime()
{
    constexpr int blocked = 2500;
    const qint64 start = someDate().toMSecsSinceEpoch();
    Subject subject(someDate());
    QTest::qSleep(blocked);
    QVERIFY(subject.tick());
    QCOMPARE(subject.ticks.count(), 1);
    QVERIFY(subject.shown() >= start + blocked);
    QVERIFY(subject.shown() <= subject.latest(start));
}

QTEST_MAIN(TestTimeKeeper)
#include "tst_timekeeper.moc"
