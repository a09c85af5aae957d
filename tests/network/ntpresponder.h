#pragma once

#include "network/ntppacket.h"

#include <QHostAddress>
#include <QObject>
#include <QVector>

#include <functional>

class QUdpSocket;

/// A datagram that reached an NtpResponder.
struct NtpRequest
{
    /// As sent, whatever its length.
    QByteArray bytes;
    QHostAddress sender;
    quint16 senderPort = 0;
    /// When the responder read it; UTC.
    QDateTime arrival;
};

/// What one request is answered with: any number of datagrams, from the responder's address or another one.
struct NtpAnswer
{
    /// Makes the datagram; asked once for each copy, when that is sent.
    std::function<QByteArray(const NtpRequest&)> bytes;
    /// How many datagrams are sent; 0 is silence.
    int copies = 1;
    /// True keeps the answer back until NtpResponder::release().
    bool held = false;
    /// Where the answer is sent from, if not from where the request arrived; port 0 lets the system choose.
    QHostAddress fromAddress;
    quint16 fromPort = 0;

    /// @p packet. Its originate timestamp, if 0, is the request's transmit timestamp, as from any server.
    static NtpAnswer packet(const NtpPacket& packet);
    /// What a server answers whose clock is @p offsetMsecs ahead of this computer's, and was set just now.
    static NtpAnswer currentTime(qint64 offsetMsecs = 0);
    /// @p datagram as it is, however short or long; an empty one is sent, too.
    static NtpAnswer datagram(const QByteArray& datagram);
    static NtpAnswer silence();

    /// The same answer, sent @p count times.
    [[nodiscard]] NtpAnswer times(int count) const;
    /// The same answer, kept back.
    [[nodiscard]] NtpAnswer later() const;
    /// The same answer, sent from @p address and @p port, which have to be free; port 0 is any.
    [[nodiscard]] NtpAnswer from(const QHostAddress& address, quint16 port = 0) const;
};

/// A time server that answers what a test tells it to, also what no real server would send. Each request is
/// kept and announced. Without a plan it is silent.
class NtpResponder : public QObject
{
    Q_OBJECT

public:
    explicit NtpResponder(QObject* parent = nullptr);

    /// Listens at @p address and @p port; port 0 is any. False if they are taken or not allowed;
    /// errorString() says why.
    [[nodiscard]] bool listen(const QHostAddress& address, quint16 port = 123);
    QString errorString() const;
    /// The port it listens at; 0 before listen().
    quint16 port() const;

    /// The n-th request from now on gets the n-th of @p answers; all later ones the last. None is silence.
    void setPlan(const QVector<NtpAnswer>& answers);
    /// Every request from now on gets @p answer.
    void setAnswer(const NtpAnswer& answer);

    /// Sends the answers kept back, in the order of their requests.
    void release();
    /// Sends @p datagram from the address listened at, asked for or not. False if it could not be sent.
    [[nodiscard]] bool send(const QByteArray& datagram, const QHostAddress& address, quint16 port);

    /// All requests so far, in order.
    const QVector<NtpRequest>& requests() const;

signals:
    /// A request came in. It is the last of requests(), and its answer, unless kept back, has been sent.
    void requested(const NtpRequest& request);
    /// An answer could not be sent; @p error is the system's text.
    void sendingFailed(const QString& error);

private slots:
    void readRequests();

private:
    struct HeldAnswer
    {
        NtpRequest request;
        NtpAnswer answer;
    };

    NtpAnswer nextAnswer();
    void handle(const NtpRequest& request);
    void send(const NtpRequest& request, const NtpAnswer& answer);
    void sendFrom(QUdpSocket* from, const NtpRequest& request, const NtpAnswer& answer);

    QUdpSocket* socket;
    QVector<NtpAnswer> plan;
    QVector<NtpRequest> received;
    QVector<HeldAnswer> held;
};
