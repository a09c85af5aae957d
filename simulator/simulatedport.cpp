// One plugged logger: commands in, replies out, and the faults between them.

#include "simulator/simulatedport.h"

#include "simulator/pseudoterminal.h"

#include <QTimer>

#include <utility>

namespace {

const QByteArray lineEnd("\r\n");
const QByteArray lineNoise("\x07\xfe%\x81&~Q\x1f\xc0");
constexpr int overLongTail = 3000; // beyond any reply, and below what the line holds at once

} // namespace

SimulatedPort::SimulatedPort(LoggerModel model, QString portName, QObject* parent)
    : QObject(parent)
    , logger(std::move(model))
    , name(std::move(portName))
    , line(new PseudoTerminal(this))
{
    connect(line, &PseudoTerminal::sReceived, this, &SimulatedPort::onReceived);
    logger.attach();
}

SimulatedPort::~SimulatedPort() = default;

QByteArray SimulatedPort::terminalPath() const
{
    return line->path();
}

QList<QByteArray> SimulatedPort::commands() const
{
    QList<QByteArray> all;
    for (const Exchange& exchange : record)
        all << exchange.command;
    return all;
}

void SimulatedPort::clearExchanges()
{
    record.clear();
    ++generation;
}

bool SimulatedPort::isPlugged() const
{
    return line->isOpen();
}

void SimulatedPort::hangUp()
{
    if (!isPlugged())
        return;
    line->close();
    held.clear();
    emit sUnplugged();
}

// Whoever hears of the command may pull the plug.
void SimulatedPort::onReceived(const QByteArray& command)
{
    const Ticket ticket = open(command);
    emit sCommandReceived(ticket.exchange, command);
    if (!isPlugged())
        return;
    releaseHeldReplies();
    answer(ticket);
}

SimulatedPort::Ticket SimulatedPort::open(const QByteArray& command)
{
    record.append({command, {}, false});
    return {generation, record.size(), command};
}

void SimulatedPort::releaseHeldReplies()
{
    const QVector<HeldReply> late = held;
    held.clear();
    for (const HeldReply& each : late)
        sendLine(each.ticket, each.reply);
}

void SimulatedPort::answer(const Ticket& ticket)
{
    const Fault* planned =
        ticket.generation == generation ? plan.match(commands().mid(0, ticket.exchange)) : nullptr;
    if (planned == nullptr) {
        sendLine(ticket, logger.answer(ticket.command));
        return;
    }
    const Fault fault = *planned; // whoever hears of the reply may change the plan
    if (fault.kind == Fault::Kind::Unplug)
        hangUp();
    else
        disturb(fault, ticket, logger.answer(ticket.command));
}

void SimulatedPort::disturb(const Fault& fault, const Ticket& ticket, const QByteArray& reply)
{
    switch (fault.kind) {
    case Fault::Kind::Silence:
    case Fault::Kind::Unplug:
        return;
    case Fault::Kind::Late:
        return sendLate(fault.milliseconds, ticket, reply);
    case Fault::Kind::LateUntilNext:
        held.append({ticket, reply});
        return;
    case Fault::Kind::Pieces:
        return sendPieces(fault, ticket, reply);
    case Fault::Kind::Garbage:
        return sendRaw(ticket, fault.bytes.isEmpty() ? lineNoise : fault.bytes);
    case Fault::Kind::OverLong:
        return sendLine(ticket, reply + QByteArray(overLongTail, 'x'));
    case Fault::Kind::Reply:
        return sendRaw(ticket, fault.bytes);
    case Fault::Kind::UnplugAfterReply:
        return sendAndHangUp(ticket, reply);
    }
}

void SimulatedPort::sendLate(int milliseconds, const Ticket& ticket, const QByteArray& reply)
{
    auto* const timer = new QTimer(this);
    timer->setTimerType(Qt::PreciseTimer); // any other may be early
    timer->setSingleShot(true);
    connect(timer, &QTimer::timeout, this, [this, timer, ticket, reply] {
        timer->deleteLater();
        sendLine(ticket, reply);
    });
    timer->start(milliseconds);
}

void SimulatedPort::sendPieces(const Fault& fault, const Ticket& ticket, const QByteArray& reply)
{
    QList<QByteArray> pieces = fault.pieces;
    if (pieces.isEmpty())
        pieces = {reply.left(1), reply.mid(1) + lineEnd};
    line->sendPieces(pieces);
    note(ticket, pieces.join());
}

void SimulatedPort::sendAndHangUp(const Ticket& ticket, const QByteArray& reply)
{
    connect(line, &PseudoTerminal::sTaken, this, &SimulatedPort::hangUp);
    line->sendPieces({reply + lineEnd});
    note(ticket, reply);
}

// The line end makes an empty text a reply too.
void SimulatedPort::sendLine(const Ticket& ticket, const QByteArray& reply)
{
    if (!isPlugged())
        return;
    line->send(reply + lineEnd);
    note(ticket, reply);
}

void SimulatedPort::sendRaw(const Ticket& ticket, const QByteArray& bytes)
{
    if (bytes.isEmpty())
        return;
    line->send(bytes);
    note(ticket, bytes);
}

void SimulatedPort::note(const Ticket& ticket, const QByteArray& sent)
{
    if (ticket.generation == generation) {
        Exchange& exchange = record[ticket.exchange - 1];
        exchange.reply += sent;
        exchange.answered = true;
    }
    emit sAnswered(ticket.exchange, ticket.command, sent);
}
