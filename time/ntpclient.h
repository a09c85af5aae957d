#pragma once

#include "time/ntpreply.h"

#include <QHostAddress>
#include <QObject>

class QUdpSocket;

/// Sends SNTP requests over UDP and hands on what comes back.
///
/// Keeps no account of its requests: every datagram of 48 bytes or more that reaches the socket is an answer,
/// whoever sent it and whatever it says. Time-outs and repetitions are the caller's.
class NtpClient : public QObject
{
    Q_OBJECT

public:
    /// A client on a port of the system's choice.
    explicit NtpClient(QObject* parent = nullptr);
    /// A client on a chosen address and port. If they can't be had, sendRequest() tells.
    NtpClient(const QHostAddress& bindAddress, quint16 bindPort, QObject* parent);

    /// Sends one request of 48 bytes, version 4, client mode, with the computer's time as its transmit
    /// timestamp. True when it was handed to the socket; false when the client has no port or the socket
    /// refused.
    bool sendRequest(const QHostAddress& address, quint16 port);

signals:
    /// An answer came from @p address and @p port. Emitted once per datagram; what is beyond 68 bytes is cut
    /// off.
    void replyReceived(QHostAddress address, quint16 port, NtpReply reply);

private slots:
    void readPendingDatagrams();

private:
    QUdpSocket* socket;
};
