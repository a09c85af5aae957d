// The transcript file, one line per direction.

#include "simulator/transcript.h"

#include "simulator/simulatedport.h"
#include "simulator/wiretext.h"

Transcript::Transcript(QObject* parent)
    : QObject(parent)
{
}

bool Transcript::open(const QString& fileName)
{
    file.setFileName(fileName);
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate);
}

void Transcript::follow(const SimulatedPort* port, bool named)
{
    const QString prefix = named ? port->portName() + QLatin1Char(' ') : QString();
    connect(port, &SimulatedPort::sCommandReceived, this, [this, prefix](int, const QByteArray& command) {
        write(prefix + QStringLiteral("> ") + escapeWireText(command));
    });
    connect(port, &SimulatedPort::sAnswered, this,
            [this, prefix](int, const QByteArray&, const QByteArray& reply) {
                write(prefix + QStringLiteral("< ") + escapeWireText(reply));
            });
    connect(port, &SimulatedPort::sUnplugged, this,
            [this, prefix] { write(prefix + QStringLiteral("! unplugged")); });
}

void Transcript::write(const QString& line)
{
    if (!file.isOpen())
        return;
    file.write(line.toUtf8() + '\n');
    file.flush();
}
