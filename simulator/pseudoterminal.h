#pragma once

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QTimer>

class QSocketNotifier;

/// The line between a simulated device and whoever opens its terminal: both ends of a pseudo-terminal.
///
/// Nothing here blocks; all is driven by the event loop. The reader's end is kept open as well, so that the
/// line lives before the first reader opens it and after the last one has closed it.
class PseudoTerminal : public QObject
{
    Q_OBJECT

public:
    explicit PseudoTerminal(QObject* parent = nullptr);
    ~PseudoTerminal() override;

    bool isOpen() const { return deviceEnd >= 0; }
    /// The reader's end, as "/dev/pts/5".
    QByteArray path() const { return readerPath; }

    /// Sends @p bytes behind all that is still queued.
    void send(const QByteArray& bytes);
    /// Sends each piece only once the reader has taken what went before, so that each is a chunk of its own;
    /// announces the end with sTaken().
    void sendPieces(const QList<QByteArray>& pieces);
    /// Both ends close: the reader sees a hang-up.
    void close();

signals:
    /// One burst of bytes from the reader.
    void sReceived(const QByteArray& bytes);
    /// The reader has taken all that was given to sendPieces().
    void sTaken();

private:
    struct Write
    {
        QByteArray bytes;
        bool apart; ///< waits until the reader has taken what went before
    };

    bool openEnds();
    void receive();
    void pump();
    void writeFront();
    bool isTaken() const;
    void waitForArrival() const;

    int deviceEnd = -1;
    int readerEnd = -1;
    QByteArray readerPath;
    QSocketNotifier* notifier = nullptr;
    QTimer timer;
    QList<Write> queue;
    bool announces = false;
};
