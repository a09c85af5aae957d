#pragma once

#include <QObject>
#include <QTimer>

class SimulatedPort;

/// Spares a test the rest of a reply wait in which nothing can happen any more: once the program has taken
/// the whole reply from the line, its clock moves on to the end of the wait.
///
/// Exchanges with a fault, and those that follow one, keep their whole wait, and so does everything without a
/// reply.
class QuickWire : public QObject
{
    Q_OBJECT

public:
    /// Belongs to @p port and goes with it. To be made before the program opens the port.
    explicit QuickWire(SimulatedPort* port);
    ~QuickWire() override;

private:
    void onCommand();
    void onAnswered(int exchange);
    void lookWhetherTaken();
    bool holdsReply(int timeout) const;

    SimulatedPort* port;
    int readerEnd;
    QTimer timer;        ///< at every turn of the event loop
    qint64 received = 0; ///< when the command under way came in
    bool disturbed = false;
    bool disturbedBefore = false;
};
