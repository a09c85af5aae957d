#pragma once

#include <QtGlobal>

/// The computer's clock as the program under test sees it; the computer's own until something here is called.
/// Read without a pause for 2 ms, as in a reply wait, it takes a rest of 0.3 ms before each further reading.
namespace TestClock {

/// Moves the clock by @p msecs.
void shift(qint64 msecs);
/// Sets the clock to @p msecs since the epoch; it runs on from there.
void set(qint64 msecs);
/// From now on the clock advances by 2 ms at the most from one reading to the next. A reply wait reads it all
/// the time, so a wait of 75 ms offers the simulated logger some 40 turns of work, however busy the machine
/// is. Not for tests that look at the clock's own running. The clock starts at noon then, because a wait
/// whose deadline lies past midnight ends at once.
void ignoreStalls();
/// Back to the computer's clock.
void reset();

} // namespace TestClock
