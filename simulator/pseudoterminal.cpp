// The pseudo-terminal behind a simulated port: opening, bursts in, bytes and pieces out.

#include "simulator/pseudoterminal.h"

#include <QSocketNotifier>

#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

namespace {

constexpr int longestBurst = 4096;
constexpr int pumpInterval = 1;  // ms between looks at a reader that has yet to take something
constexpr int arrivalLimit = 20; // ms; the kernel needs microseconds to carry bytes to the reader's end

// Without this the line would send every reply back as a command.
bool makeRaw(int terminal)
{
    termios settings{};
    if (tcgetattr(terminal, &settings) != 0)
        return false;
    cfmakeraw(&settings);
    return tcsetattr(terminal, TCSANOW, &settings) == 0;
}

void closeEnd(int* end)
{
    if (*end >= 0)
        ::close(*end);
    *end = -1;
}

} // namespace

PseudoTerminal::PseudoTerminal(QObject* parent)
    : QObject(parent)
{
    timer.setInterval(pumpInterval);
    connect(&timer, &QTimer::timeout, this, &PseudoTerminal::pump);
    if (!openEnds()) {
        close();
        return;
    }
    notifier = new QSocketNotifier(deviceEnd, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, &PseudoTerminal::receive);
}

PseudoTerminal::~PseudoTerminal()
{
    close();
}

bool PseudoTerminal::openEnds()
{
    deviceEnd = posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    std::array<char, 64> path{};
    if (deviceEnd < 0 || grantpt(deviceEnd) != 0 || unlockpt(deviceEnd) != 0 ||
        ptsname_r(deviceEnd, path.data(), path.size()) != 0)
        return false;
    readerPath = path.data();
    // Not opened by its path: the mock hardware tree takes charge of what is opened so, and knows no
    // FIONREAD.
    readerEnd = ioctl(deviceEnd, TIOCGPTPEER, O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    return readerEnd >= 0 && makeRaw(readerEnd);
}

void PseudoTerminal::receive()
{
    std::array<char, longestBurst> burst{};
    const ssize_t count = ::read(deviceEnd, burst.data(), burst.size());
    if (count > 0)
        emit sReceived(QByteArray(burst.data(), static_cast<int>(count)));
}

void PseudoTerminal::send(const QByteArray& bytes)
{
    queue.append({bytes, false});
    pump();
}

void PseudoTerminal::sendPieces(const QList<QByteArray>& pieces)
{
    for (const QByteArray& piece : pieces) {
        if (!piece.isEmpty())
            queue.append({piece, true});
    }
    announces = true;
    pump();
}

void PseudoTerminal::close()
{
    queue.clear();
    timer.stop();
    announces = false;
    // It may be this notifier's signal that led here, so it is silenced and not deleted.
    if (notifier != nullptr)
        notifier->setEnabled(false);
    closeEnd(&deviceEnd);
    closeEnd(&readerEnd);
}

// The timer runs only while something waits for the reader.
void PseudoTerminal::pump()
{
    if (!isOpen())
        return;
    while (!queue.isEmpty() && (!queue.first().apart || isTaken())) {
        const int before = queue.size();
        writeFront();
        if (queue.size() == before)
            break;
    }
    const bool finished = queue.isEmpty() && (!announces || isTaken());
    if (!finished) {
        timer.start();
        return;
    }
    timer.stop();
    if (announces) {
        announces = false;
        emit sTaken();
    }
}

void PseudoTerminal::writeFront()
{
    Write& front = queue.first();
    const ssize_t count =
        ::write(deviceEnd, front.bytes.constData(), static_cast<size_t>(front.bytes.size()));
    if (count > 0)
        front.bytes.remove(0, static_cast<int>(count));
    if (!front.bytes.isEmpty()) {
        front.apart = false;
        return;
    }
    queue.removeFirst();
    waitForArrival();
}

bool PseudoTerminal::isTaken() const
{
    int waiting = 0;
    return ioctl(readerEnd, FIONREAD, &waiting) != 0 || waiting == 0;
}

// Bytes just written are not yet to be seen at the reader's end, which would pass for taken. A reader in
// another process may be faster than this look at it, hence the limit.
void PseudoTerminal::waitForArrival() const
{
    pollfd end = {readerEnd, POLLIN, 0};
    poll(&end, 1, arrivalLimit);
}
