// The computer's side of a simulated port.

#include "simulatedhost.h"

#include <QTest>

SimulatedHost::SimulatedHost(const QString& portName)
{
    serial.setPortName(portName);
    QObject::connect(&serial, &QSerialPort::readyRead, &serial, [this] { chunks << serial.readAll(); });
}

bool SimulatedHost::open()
{
    return serial.setBaudRate(115200) && serial.open(QIODevice::ReadWrite);
}

QByteArray SimulatedHost::ask(const QByteArray& command)
{
    chunks.clear();
    send(command);
    const bool complete = QTest::qWaitFor([this] { return received().endsWith("\r\n"); });
    return complete ? received().chopped(2) : QByteArray("(no reply)");
}

bool SimulatedHost::isCutOff() const
{
    return serial.error() == QSerialPort::ReadError || serial.error() == QSerialPort::ResourceError;
}
