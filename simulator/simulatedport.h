#pragma once

#include "simulator/faultplan.h"
#include "simulator/loggermodel.h"

#include <QObject>
#include <QVector>

class PseudoTerminal;

/// One plugged logger: its model behind a pseudo-terminal, with faults on the wire and a record of it.
///
/// One burst of bytes is one command. A reply goes out with a line end behind it; the record leaves that off.
class SimulatedPort : public QObject
{
    Q_OBJECT

public:
    struct Exchange
    {
        QByteArray command;
        QByteArray reply;      ///< all that was sent for it so far
        bool answered = false; ///< true once anything was sent
    };

    /// Plugs in @p model behind a line that has yet to be named in /dev; check isPlugged().
    SimulatedPort(LoggerModel model, QString portName, QObject* parent);
    ~SimulatedPort() override;

    LoggerModel& model() { return logger; }
    const LoggerModel& model() const { return logger; }
    FaultPlan& faults() { return plan; }
    /// As the port is called in discovery: "ttyACM0".
    QString portName() const { return name; }
    /// The file that /dev's name for this port stands for.
    QByteArray terminalPath() const;

    /// The record since plugging, or since clearExchanges().
    const QVector<Exchange>& exchanges() const { return record; }
    QList<QByteArray> commands() const;
    /// Empties the record; faults count exchanges and commands from here on.
    void clearExchanges();

    bool isPlugged() const;
    /// Hangs up the line and says so with sUnplugged(); the second time does nothing.
    void hangUp();

signals:
    /// Before the command is answered; unplugging from here is safe and leaves it unanswered.
    void sCommandReceived(int exchange, const QByteArray& command);
    /// After a reply was handed to the line; its own line end is left off.
    void sAnswered(int exchange, const QByteArray& command, const QByteArray& reply);
    void sUnplugged();

private:
    /// Which exchange a reply belongs to, also after the record was emptied.
    struct Ticket
    {
        int generation = 0;
        int exchange = 0;
        QByteArray command;
    };
    struct HeldReply
    {
        Ticket ticket;
        QByteArray reply;
    };

    void onReceived(const QByteArray& command);
    Ticket open(const QByteArray& command);
    void releaseHeldReplies();
    void answer(const Ticket& ticket);
    void disturb(const Fault& fault, const Ticket& ticket, const QByteArray& reply);
    void sendLate(int milliseconds, const Ticket& ticket, const QByteArray& reply);
    void sendPieces(const Fault& fault, const Ticket& ticket, const QByteArray& reply);
    void sendAndHangUp(const Ticket& ticket, const QByteArray& reply);
    void sendLine(const Ticket& ticket, const QByteArray& reply);
    void sendRaw(const Ticket& ticket, const QByteArray& bytes);
    void note(const Ticket& ticket, const QByteArray& sent);

    LoggerModel logger;
    FaultPlan plan;
    QString name;
    PseudoTerminal* line;
    QVector<Exchange> record;
    QVector<HeldReply> held;
    int generation = 0;
};
