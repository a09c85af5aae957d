// A program for the simulator to run: opens the first serial port, sends each argument as a command and
// prints the replies. "--ports" prints the ports instead, "--exit N" ends with N, "--crash" with a signal,
// "--wait" waits for one.

#include <QCoreApplication>
#include <QSerialPort>
#include <QSerialPortInfo>

#include <csignal>
#include <iostream>
#include <unistd.h>

namespace {

constexpr int patience = 5000; // ms for a reply

QByteArray ask(QSerialPort* serial, const QByteArray& command)
{
    serial->write(command);
    QByteArray reply;
    while (!reply.endsWith("\r\n") && serial->waitForReadyRead(patience))
        reply += serial->readAll();
    return reply.trimmed();
}

int talk(const QStringList& commands)
{
    const QList<QSerialPortInfo> ports = QSerialPortInfo::availablePorts();
    QSerialPort serial;
    if (!ports.isEmpty())
        serial.setPort(ports.first());
    if (!serial.open(QIODevice::ReadWrite))
        return 3;
    for (const QString& command : commands)
        std::cout << ask(&serial, command.toUtf8()).constData() << std::endl;
    return 0;
}

int listPorts()
{
    for (const QSerialPortInfo& port : QSerialPortInfo::availablePorts()) {
        std::cout << qPrintable(port.portName()) << '|' << qPrintable(port.manufacturer()) << '|'
                  << qPrintable(port.description()) << '|' << std::hex << port.vendorIdentifier() << '|'
                  << port.productIdentifier() << std::endl;
    }
    return 0;
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    const QString first = arguments.value(0);
    if (first == QLatin1String("--ports"))
        return listPorts();
    if (first == QLatin1String("--exit"))
        return arguments.value(1).toInt();
    if (first == QLatin1String("--crash"))
        return raise(SIGKILL);
    if (first == QLatin1String("--wait")) {
        std::cout << "waiting" << std::endl;
        return pause();
    }
    return talk(arguments);
}
