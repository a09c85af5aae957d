#pragma once

#include "device/brumaloggerinterface.h"
#include "simulator/usbbench.h"

#include <QMetaType>

#include <functional>
#include <memory>

/// A name for a port, of this process alone: an open port is locked by its name for all processes, mock or
/// not, so tests that run side by side must not have the same.
QString ownPortName(int number = 0);

/// A logger on a mock USB port and a link connected to it.
///
/// The test clock takes no notice of stalls, so that a logger which answers at once is in time on any
/// machine.
class DeviceRig
{
public:
    explicit DeviceRig(const LoggerModel& model = {});

    /// From now on the reply to every command is @p bytes, exactly.
    void reply(const QByteArray& bytes) const;
    /// From now on there are no replies.
    void silence() const;
    /// From now on this is the only fault.
    void disturb(const Fault& fault) const;
    /// No faults and an empty record.
    void calm() const;
    /// The commands since connecting, or since calm().
    QList<QByteArray> wire() const { return logger->commands(); }
    /// The link's own port.
    QSerialPort* port() const { return link.findChild<QSerialPort*>(); }

    UsbBench bench;
    BrumaloggerInterface link;
    SimulatedPort* logger;
};

/// Something to do with a link, and whether it worked.
using Operation = std::function<bool(BrumaloggerInterface& link)>;
Q_DECLARE_METATYPE(Operation)

/// Milliseconds since it was made, on the clock that reply waits go by.
class Stopwatch
{
public:
    Stopwatch();
    qint64 elapsed() const;

private:
    qint64 started;
};

/// How far past its end a wait may run: from one look at the clock to the next, with some room.
constexpr qint64 waitMargin = 15;

/// True if @p elapsed is the time of a wait of @p wait milliseconds.
bool isWait(qint64 elapsed, qint64 wait);

/// A logger with firmware 1.2.0 and a value of its own in every place.
LoggerModel distinctLogger();
