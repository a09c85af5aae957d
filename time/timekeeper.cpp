// The clock at an offset: reference clock, device clock and the clocks on display are all instances of it.

#include "time/timekeeper.h"

namespace {

constexpr int tickInterval = 1000;

} // namespace

TimeKeeper::TimeKeeper(const QDateTime& start, QObject* parent)
    : QObject(parent)
{
    connect(&timer, &QTimer::timeout, this, &TimeKeeper::plUpdate);
    setTime(start);
}

TimeKeeper::TimeKeeper(QObject* parent)
    : TimeKeeper(QDateTime::currentDateTime(), parent)
{
}

void TimeKeeper::setTime(const QDateTime& time)
{
    currentTime = time;
    offsetMsecs = time.toMSecsSinceEpoch() - QDateTime::currentDateTime().toMSecsSinceEpoch();
    timer.start(tickInterval);
}

void TimeKeeper::setRunning(bool run)
{
    if (run)
        timer.start(tickInterval);
    else
        timer.stop();
}

bool TimeKeeper::isRunning() const
{
    return timer.isActive();
}

QDateTime TimeKeeper::time() const
{
    return currentTime;
}

QDateTime TimeKeeper::timeUtc() const
{
    return currentTime.toTimeSpec(Qt::UTC);
}

void TimeKeeper::plUpdate()
{
    // Taken from the computer's clock each time, so that missed ticks cost nothing and nothing drifts.
    currentTime = QDateTime::currentDateTime().addMSecs(offsetMsecs);
    emit sUpdate(currentTime);
}
