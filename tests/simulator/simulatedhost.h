#pragma once

#include <QByteArray>
#include <QList>
#include <QSerialPort>
#include <QString>

/// The computer's side of a simulated port: opens it as any program would, and keeps each chunk that arrives.
class SimulatedHost
{
public:
    explicit SimulatedHost(const QString& portName);

    bool open();
    void close() { serial.close(); }
    void send(const QByteArray& command) { serial.write(command); }
    /// Sends @p command and waits until the line is complete; the reply comes without line end.
    QByteArray ask(const QByteArray& command);

    /// True once the line has hung up. The system then gives an end of file or an error, as it happens.
    bool isCutOff() const;

    QByteArray received() const { return chunks.join(); }

    QSerialPort serial;
    QList<QByteArray> chunks; ///< one for each readyRead since the last ask()
};
