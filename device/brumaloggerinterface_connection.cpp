// Finding the logger among the serial ports, opening its port, closing it.

#include "device/brumaloggerinterface.h"

#include <QDebug>
#include <QSerialPortInfo>

namespace {

constexpr auto usbManufacturer = "Polar Ridge Works";
constexpr auto usbDescription = "Brumalogger USB";
constexpr quint16 usbVendor = 0x03EB;
constexpr quint16 usbProduct = 0x8015;
constexpr qint32 baudRate = 115200;

bool hasLoggerIdentifiers(const QSerialPortInfo& info)
{
    return info.hasProductIdentifier() && info.productIdentifier() == usbProduct &&
           info.hasVendorIdentifier() && info.vendorIdentifier() == usbVendor;
}

bool isLogger(const QSerialPortInfo& info)
{
    return info.manufacturer() == QLatin1String(usbManufacturer) ||
           info.description() == QLatin1String(usbDescription) || hasLoggerIdentifiers(info);
}

} // namespace

bool BrumaloggerInterface::lConnectAuto()
{
    const QList<QSerialPortInfo> ports = QSerialPortInfo::availablePorts();
    if (ports.isEmpty())
        return false;

    lDisconnect(); // an earlier attempt may have left the port open
    for (const QSerialPortInfo& info : ports) {
        if (isLogger(info))
            return lConnect(info.portName());
    }
    return false;
}

bool BrumaloggerInterface::lConnect(const QString& portName)
{
    if (port->isOpen())
        return true;

    qDebug() << "Brumalogger: Connecting to port " << portName << "...";
    port->setPortName(portName);
    port->setBaudRate(baudRate, QSerialPort::AllDirections);
    port->open(QIODevice::ReadWrite);
    const bool usable = port->isOpen() && port->isWritable();
    lWait(waitTime);

    if (!usable) {
        qWarning() << "Brumalogger: Unable to connect to port " << portName;
        connected = false;
        return false;
    }

    connected = lCheckIdentification() && port->isOpen(); // closed, if the program is ended during the wait
    if (connected)
        qDebug() << "Brumalogger: Succesfully connected to " << portName;
    else
        qWarning() << "Brumalogger: Port open, but communication unsucessfull";
    return connected;
}

void BrumaloggerInterface::lDisconnect()
{
    port->close();
    connected = false;
    qDebug() << "Disconnected from port " << port->portName();
}

bool BrumaloggerInterface::lCheckIdentification()
{
    return plExchange(QStringLiteral("i")) &&
           reply.split(QLatin1Char(',')).constFirst() == QLatin1String(usbDescription);
}

// A diagnostic hook that nothing is connected to.
void BrumaloggerInterface::plOnTimeUpdate()
{
    qDebug() << deviceClock.timeUtc().toString(QStringLiteral("dd/MM/yyyy hh:mm:ss"));
}
