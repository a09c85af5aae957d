// Stands in for the C library's wall clock in this process; the toolkit's clock classes read it.

#include "support/testclock.h"

#include <QDateTime>

#include <algorithm>
#include <ctime>
#include <sys/time.h>
#include <unistd.h>

namespace {

constexpr qint64 microsPerMilli = 1000;
constexpr qint64 microsPerSecond = 1000000;
constexpr qint64 nanosPerMicro = 1000;
constexpr qint64 largestStep = 2 * microsPerMilli;
constexpr qint64 spinStep = 100;
constexpr qint64 patienceWithSpinning = 2 * microsPerMilli;
constexpr unsigned rest = 300;

struct Clock
{
    qint64 moved = 0;
    bool stallsIgnored = false;
    qint64 lastReading = 0;
    qint64 stalled = 0;
    qint64 spinningSince = 0;
};

Clock& theClock()
{
    static Clock clock;
    return clock;
}

qint64 realMicros()
{
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    return now.tv_sec * microsPerSecond + now.tv_nsec / nanosPerMicro;
}

// A reply wait does nothing but read the clock, most of the time. Between these readings the computer is left
// to the tests beside this one.
void restFromSpinning()
{
    Clock& clock = theClock();
    const qint64 real = realMicros();
    if (real - clock.lastReading > spinStep)
        clock.spinningSince = real;
    else if (real - clock.spinningSince > patienceWithSpinning)
        usleep(rest);
}

qint64 readMicros()
{
    restFromSpinning();
    Clock& clock = theClock();
    const qint64 real = realMicros();
    if (clock.stallsIgnored)
        clock.stalled += std::max<qint64>(0, real - clock.lastReading - largestStep);
    clock.lastReading = real;
    return real - clock.stalled + clock.moved;
}

} // namespace

void TestClock::shift(qint64 msecs)
{
    theClock().moved += msecs * microsPerMilli;
}

void TestClock::set(qint64 msecs)
{
    theClock().moved += msecs * microsPerMilli - readMicros();
}

void TestClock::ignoreStalls()
{
    theClock().lastReading = realMicros();
    theClock().spinningSince = theClock().lastReading;
    theClock().stallsIgnored = true;
    set(QDateTime(QDate::currentDate(), QTime(12, 0)).toMSecsSinceEpoch());
}

void TestClock::reset()
{
    theClock() = Clock();
}

extern "C" int gettimeofday(timeval* tv, void* /*zone*/) noexcept
{
    const qint64 now = readMicros();
    tv->tv_sec = now / microsPerSecond;
    tv->tv_usec = now % microsPerSecond;
    return 0;
}
