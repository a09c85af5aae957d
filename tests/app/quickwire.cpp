// Moves the program's clock to the end of a reply wait once the reply has been taken.

#include "quickwire.h"

#include "simulator/simulatedport.h"
#include "support/testclock.h"

#include <QDateTime>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

namespace {

constexpr qint64 replyWait = 75;
constexpr int arrivalLimit = 20; // ms; the kernel needs microseconds to carry a reply to the reader's end

} // namespace

QuickWire::QuickWire(SimulatedPort* port)
    : QObject(port)
    , port(port)
    , readerEnd(::open(port->terminalPath().constData(), O_RDONLY | O_NOCTTY | O_NONBLOCK | O_CLOEXEC))
{
    if (readerEnd < 0)
        qFatal("the simulated logger's line can't be watched");
    connect(&timer, &QTimer::timeout, this, &QuickWire::lookWhetherTaken);
    connect(port, &SimulatedPort::sCommandReceived, this, &QuickWire::onCommand);
    connect(port, &SimulatedPort::sAnswered, this, &QuickWire::onAnswered);
    connect(port, &SimulatedPort::sUnplugged, &timer, &QTimer::stop);
}

QuickWire::~QuickWire()
{
    ::close(readerEnd);
}

void QuickWire::onCommand()
{
    timer.stop();
    received = QDateTime::currentMSecsSinceEpoch();
    disturbedBefore = disturbed;
    disturbed = port->faults().match(port->commands()) != nullptr;
}

// Until the reply has arrived, the line looks as if it had been taken.
void QuickWire::onAnswered(int exchange)
{
    if (!disturbed && !disturbedBefore && exchange == port->exchanges().size() && holdsReply(arrivalLimit))
        timer.start();
}

void QuickWire::lookWhetherTaken()
{
    const qint64 rest = received + replyWait - QDateTime::currentMSecsSinceEpoch();
    if (rest > 0 && holdsReply(0))
        return;
    timer.stop(); // also where nobody takes it, since the line was closed
    TestClock::shift(qMax<qint64>(0, rest));
}

bool QuickWire::holdsReply(int timeout) const
{
    pollfd end = {readerEnd, POLLIN, 0};
    return poll(&end, 1, timeout) > 0;
}
