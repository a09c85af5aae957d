// The exchange: one command out, one reply wait, one reply. Every operation on the device rests on it.

#include "device/brumaloggerinterface.h"

#include <QCoreApplication>
#include <QDebug>
#include <QScopedValueRollback>
#include <QSocketNotifier>
#include <QTime>

#include <poll.h>

namespace {

constexpr int fastWait = 75;
constexpr int slowWait = 150;
constexpr int spinSlice = 10;

// True once the plug was pulled, false without a line.
bool isHungUp(int line)
{
    pollfd query{line, POLLIN, 0};
    return poll(&query, 1, 0) == 1 && (query.revents & POLLHUP) != 0;
}

} // namespace

BrumaloggerInterface::BrumaloggerInterface(QObject* parent)
    : QObject(parent)
    , port(new QSerialPort(this))
    , defaultPortName(QStringLiteral("/dev/ttyACM0"))
    , waitTime(fastWait)
{
    connect(port, &QIODevice::readyRead, this, &BrumaloggerInterface::plOnReadyRead);
    connect(port, QOverload<QSerialPort::SerialPortError>::of(&QSerialPort::error), this,
            &BrumaloggerInterface::plOnPortError);
    connect(port, QOverload<QSerialPort::SerialPortError>::of(&QSerialPort::error), this,
            &BrumaloggerInterface::plStopAsking);
}

void BrumaloggerInterface::lSetFastMode(bool fast)
{
    fastMode = fast;
    waitTime = fast ? fastWait : slowWait;
}

// The one place where the program waits. The deadline is a time of day: one that wraps at midnight has passed
// at once, and a wait held up over midnight goes on until that time comes again.
void BrumaloggerInterface::lWait(int msecs)
{
    const QTime deadline = QTime::currentTime().addMSecs(msecs);
    while (QTime::currentTime() < deadline)
        QCoreApplication::processEvents(QEventLoop::AllEvents, spinSlice);
}

// The wait runs to its end whenever the reply comes, since a reply has no end mark of its own.
bool BrumaloggerInterface::plExchange(const QString& command, int waitMs)
{
    const QScopedValueRollback<bool> guard(busy, true);
    const int wait = waitMs >= 0 ? waitMs : waitTime;
    reply.clear();
    replyReady = false;
    if (!plWriteRaw(command.toUtf8()))
        return false;
    lWait(wait);
    return replyReady;
}

bool BrumaloggerInterface::plExchangeForReply(const QString& command)
{
    return plExchange(command) && !reply.isEmpty();
}

bool BrumaloggerInterface::plExchangeForNumber(const QString& command, int* number)
{
    if (!plExchangeForReply(command))
        return false;
    bool converted = false;
    const int value = reply.toInt(&converted);
    if (converted)
        *number = value;
    return converted;
}

bool BrumaloggerInterface::plExchangeForOk(const QString& command, int waitMs)
{
    return plExchange(command, waitMs) && reply == QLatin1String("ok");
}

bool BrumaloggerInterface::plWriteRaw(const QByteArray& bytes)
{
    return port->write(bytes) == bytes.size();
}

// Runs once for each chunk that the driver delivers; chunks and lines are joined without a separator.
void BrumaloggerInterface::plOnReadyRead()
{
    QString chunk;
    while (port->bytesAvailable() != 0) {
        const QByteArray line = port->readLine().trimmed();
        chunk += QString::fromUtf8(line.constData()); // up to the first NUL
    }
    reply += chunk;
    replyReady = true;
}

void BrumaloggerInterface::plOnPortError(QSerialPort::SerialPortError error)
{
    if (error == QSerialPort::ReadError)
        qWarning() << QObject::tr("I/O error when reading %1: %2").arg(port->portName(), port->errorString());
}

// A line that was hung up is ready at every turn of the event loop, and the port would read or write and fail
// each time, until it is closed.
void BrumaloggerInterface::plStopAsking()
{
    if (!isHungUp(port->handle()))
        return;
    for (QSocketNotifier* notifier : port->findChildren<QSocketNotifier*>())
        notifier->setEnabled(false);
}
