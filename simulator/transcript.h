#pragma once

#include <QByteArray>
#include <QFile>
#include <QObject>
#include <QString>

class SimulatedPort;

/// The wire as a readable file, complete at any moment: "> Gs" is a command, "< 300" a reply, "! unplugged"
/// an event.
class Transcript : public QObject
{
    Q_OBJECT

public:
    explicit Transcript(QObject* parent = nullptr);

    bool open(const QString& fileName);
    /// What happens from here on is left out.
    void close() { file.close(); }
    /// Writes down what happens at @p port; @p named puts the port's name before each line.
    void follow(const SimulatedPort* port, bool named);

private:
    void write(const QString& line);

    QFile file;
};
