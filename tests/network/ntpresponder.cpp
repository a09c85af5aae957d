#include "network/ntpresponder.h"

#include <QNetworkDatagram>
#include <QUdpSocket>

#include <utility>

namespace {

constexpr int originateOffset = 24;
constexpr int transmitOffset = 40;
constexpr int timestampSize = 8;

QByteArray answering(const NtpRequest& request, const NtpPacket& packet)
{
    QByteArray bytes = packet.toBytes();
    if (packet.originate == 0 && request.bytes.size() >= NtpPacket::size)
        bytes.replace(originateOffset, timestampSize, request.bytes.mid(transmitOffset, timestampSize));
    return bytes;
}

NtpAnswer madeBy(const std::function<QByteArray(const NtpRequest&)>& bytes)
{
    NtpAnswer answer;
    answer.bytes = bytes;
    return answer;
}

} // namespace

NtpAnswer NtpAnswer::packet(const NtpPacket& packet)
{
    return madeBy([packet](const NtpRequest& request) { return answering(request, packet); });
}

NtpAnswer NtpAnswer::currentTime(qint64 offsetMsecs)
{
    return madeBy([offsetMsecs](const NtpRequest& request) {
        auto packet = NtpPacket::at(QDateTime::currentDateTimeUtc().addMSecs(offsetMsecs));
        packet.receive = ntpTimestamp(request.arrival.addMSecs(offsetMsecs));
        return answering(request, packet);
    });
}

NtpAnswer NtpAnswer::datagram(const QByteArray& datagram)
{
    return madeBy([datagram](const NtpRequest&) { return datagram; });
}

NtpAnswer NtpAnswer::silence()
{
    return datagram({}).times(0);
}

NtpAnswer NtpAnswer::times(int count) const
{
    NtpAnswer answer = *this;
    answer.copies = count;
    return answer;
}

NtpAnswer NtpAnswer::later() const
{
    NtpAnswer answer = *this;
    answer.held = true;
    return answer;
}

NtpAnswer NtpAnswer::from(const QHostAddress& address, quint16 port) const
{
    NtpAnswer answer = *this;
    answer.fromAddress = address;
    answer.fromPort = port;
    return answer;
}

NtpResponder::NtpResponder(QObject* parent)
    : QObject(parent)
    , socket(new QUdpSocket(this))
{
    connect(socket, &QUdpSocket::readyRead, this, &NtpResponder::readRequests);
}

bool NtpResponder::listen(const QHostAddress& address, quint16 port)
{
    return socket->bind(address, port, QAbstractSocket::DontShareAddress);
}

QString NtpResponder::errorString() const
{
    return socket->errorString();
}

quint16 NtpResponder::port() const
{
    return socket->localPort();
}

void NtpResponder::setPlan(const QVector<NtpAnswer>& answers)
{
    plan = answers;
}

void NtpResponder::setAnswer(const NtpAnswer& answer)
{
    setPlan({answer});
}

void NtpResponder::release()
{
    const auto answers = std::exchange(held, {});
    for (const auto& [request, answer] : answers)
        send(request, answer);
}

bool NtpResponder::send(const QByteArray& datagram, const QHostAddress& address, quint16 port)
{
    return socket->writeDatagram(datagram, address, port) == datagram.size();
}

const QVector<NtpRequest>& NtpResponder::requests() const
{
    return received;
}

void NtpResponder::readRequests()
{
    while (socket->hasPendingDatagrams()) {
        const auto datagram = socket->receiveDatagram();
        handle({datagram.data(), datagram.senderAddress(), static_cast<quint16>(datagram.senderPort()),
                QDateTime::currentDateTimeUtc()});
    }
}

void NtpResponder::handle(const NtpRequest& request)
{
    received.append(request);
    const auto answer = nextAnswer();
    if (answer.held)
        held.append({request, answer});
    else
        send(request, answer);
    emit requested(request);
}

NtpAnswer NtpResponder::nextAnswer()
{
    if (plan.isEmpty())
        return NtpAnswer::silence();
    return plan.size() > 1 ? plan.takeFirst() : plan.first();
}

void NtpResponder::send(const NtpRequest& request, const NtpAnswer& answer)
{
    if (answer.fromAddress.isNull()) {
        sendFrom(socket, request, answer);
        return;
    }
    QUdpSocket other;
    if (other.bind(answer.fromAddress, answer.fromPort, QAbstractSocket::DontShareAddress))
        sendFrom(&other, request, answer);
    else
        emit sendingFailed(other.errorString());
}

void NtpResponder::sendFrom(QUdpSocket* from, const NtpRequest& request, const NtpAnswer& answer)
{
    for (int copy = 0; copy < answer.copies; ++copy) {
        if (from->writeDatagram(answer.bytes(request), request.sender, request.senderPort) < 0)
            emit sendingFailed(from->errorString());
    }
}
