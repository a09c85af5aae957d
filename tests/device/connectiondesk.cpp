// A link about to be connected, and the lines of the log that tell how it went.

#include "connectiondesk.h"

#include "devicerig.h"

ConnectionDesk::ConnectionDesk()
    : logger(bench.plug(distinctLogger(), {}, ownPortName()))
{
}

void ConnectionDesk::reply(const QByteArray& bytes) const
{
    Fault fault;
    fault.kind = Fault::Kind::Reply;
    fault.bytes = bytes;
    logger->faults().add(fault);
}

QString connectingLine(const QString& portName)
{
    return QStringLiteral("debug: Brumalogger: Connecting to port  \"%1\" ...").arg(portName);
}

QString connectedLine(const QString& portName)
{
    return QStringLiteral("debug: Brumalogger: Succesfully connected to  \"%1\"").arg(portName);
}

QString unableLine(const QString& portName)
{
    return QStringLiteral("warning: Brumalogger: Unable to connect to port  \"%1\"").arg(portName);
}

QString unprovedLine()
{
    return QStringLiteral("warning: Brumalogger: Port open, but communication unsucessfull");
}

QString disconnectedLine(const QString& portName)
{
    return QStringLiteral("debug: Disconnected from port  \"%1\"").arg(portName);
}
