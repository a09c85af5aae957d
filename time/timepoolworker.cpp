// One query of one time server, from name to answer.

#include "time/timepoolworker.h"

#include <QDebug>

namespace {

constexpr quint16 ntpPort = 123;
constexpr int requestInterval = 1000;
constexpr int queryTimeout = 10000;

} // namespace

TimePoolWorker::TimePoolWorker(QObject* parent)
    : QObject(parent)
{
    connect(&requestTimer, &QTimer::timeout, this, &TimePoolWorker::plEmitNtpRequest);
    connect(&timeoutTimer, &QTimer::timeout, this, &TimePoolWorker::plTimeout);
    connect(&ntpClient, &NtpClient::replyReceived, this, &TimePoolWorker::plOnNtpReply);
}

void TimePoolWorker::query(const QString& host)
{
    this->host = host;
    qDebug() << "[PoolWorker] Querying:" << host;
    // By the slot's name: with its address, a look-up that outlives the worker leaves memory behind.
    QHostInfo::lookupHost(host, this, SLOT(plOnServerInfo(QHostInfo)));
    timeoutTimer.start(queryTimeout);
}

void TimePoolWorker::plOnServerInfo(const QHostInfo& host)
{
    if (host.error() != QHostInfo::NoError || host.addresses().isEmpty())
        return;
    address = host.addresses().constFirst();
    qDebug() << "[PoolWorker] Got HostInfo:" << address.toString();
    requestTimer.start(requestInterval);
    plEmitNtpRequest();
}

void TimePoolWorker::plEmitNtpRequest()
{
    qDebug() << "[PoolWorker] Emitting NTP request against" << address.toString();
    // A request that can't be sent now is made good by the next tick.
    ntpClient.sendRequest(address, ntpPort);
}

void TimePoolWorker::plOnNtpReply(const QHostAddress& /*host*/, quint16 /*port*/, const NtpReply& reply)
{
    if (!timeoutTimer.isActive())
        return;
    plStop();
    qDebug() << "[PoolWorker] Got NTP reply:" << reply.referenceTime();
    emit sQuerySuccesful(reply.referenceTime());
}

void TimePoolWorker::plTimeout()
{
    // Without a good look-up there was nobody to wait for: such a query never times out, on purpose.
    if (!requestTimer.isActive())
        return;
    plStop();
    qDebug() << "[PoolWorker] Timeout for" << host;
    emit sQueryTimeout();
}

void TimePoolWorker::plStop()
{
    requestTimer.stop();
    timeoutTimer.stop();
}
