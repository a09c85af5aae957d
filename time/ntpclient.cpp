// The two datagrams of SNTP: the request that goes out, the answer that comes in.

#include "time/ntpclient.h"

#include <QUdpSocket>
#include <QtEndian>

namespace {

using Request = std::array<uchar, Ntp::headerSize>;

Request requestSentAt(const QDateTime& now)
{
    const qint64 msecs = now.toMSecsSinceEpoch() + Ntp::epochOffsetMsecs;
    const auto seconds = static_cast<quint32>(msecs / 1000);
    const auto fraction = static_cast<quint32>((msecs % 1000 << 32U) / 1000);

    Request request{};
    request[Ntp::flagsField] = Ntp::clientRequest;
    qToBigEndian(seconds, request.data() + Ntp::transmitTimestamp);
    qToBigEndian(fraction, request.data() + Ntp::transmitTimestamp + sizeof(seconds));
    return request;
}

} // namespace

NtpClient::NtpClient(QObject* parent)
    : NtpClient(QHostAddress::Any, 0, parent)
{
}

NtpClient::NtpClient(const QHostAddress& bindAddress, quint16 bindPort, QObject* parent)
    : QObject(parent)
    , socket(new QUdpSocket(this))
{
    socket->bind(bindAddress, bindPort, QAbstractSocket::DefaultForPlatform);
    connect(socket, &QUdpSocket::readyRead, this, &NtpClient::readPendingDatagrams);
}

bool NtpClient::sendRequest(const QHostAddress& address, quint16 port)
{
    if (socket->state() != QAbstractSocket::BoundState)
        return false;
    const Request request = requestSentAt(QDateTime::currentDateTimeUtc());
    return socket->writeDatagram(reinterpret_cast<const char*>(request.data()), request.size(), address,
                                 port) >= 0;
}

void NtpClient::readPendingDatagrams()
{
    while (socket->hasPendingDatagrams()) {
        Ntp::Packet packet{};
        QHostAddress address;
        quint16 port = 0;
        if (socket->readDatagram(reinterpret_cast<char*>(packet.data()), packet.size(), &address, &port) <
            Ntp::headerSize)
            continue;
        emit replyReceived(address, port, NtpReply(packet, QDateTime::currentDateTime()));
    }
}
