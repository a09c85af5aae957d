#pragma once

#include "device/brumaloggerinterface.h"
#include "simulator/usbbench.h"

#include <QString>

/// A plugged logger and a link that is not connected to it yet.
class ConnectionDesk
{
public:
    ConnectionDesk();

    /// The link's own port.
    QSerialPort* port() const { return link.findChild<QSerialPort*>(); }
    /// The logger answers "i" and all else with @p bytes; with nothing if they are empty.
    void reply(const QByteArray& bytes) const;

    UsbBench bench;
    BrumaloggerInterface link;
    SimulatedPort* logger;
};

// What the log tells of a connection, as LogLines keeps it.

QString connectingLine(const QString& portName);
QString connectedLine(const QString& portName);
QString unableLine(const QString& portName);
QString unprovedLine();
QString disconnectedLine(const QString& portName);
