#pragma once

#include "time/ntpclient.h"

#include <QHostInfo>
#include <QTimer>

/// Obtains the time from one NTP host: looks the name up, then asks once a second until the host answers or
/// ten seconds have passed since the query began. Reports once per query.
///
/// A host that doesn't resolve is never reported, neither at once nor as a time-out.
class TimePoolWorker : public QObject
{
    Q_OBJECT

public:
    explicit TimePoolWorker(QObject* parent = nullptr);

    /// Starts a query, also while another one runs. Only the first address of @p host is asked, on UDP port
    /// 123.
    void query(const QString& host);

signals:
    /// The host answered; @p time is the answer's reference timestamp, in local time spec. It says when the
    /// server's clock was last set, so it is more or less behind the true time.
    void sQuerySuccesful(QDateTime time);
    /// The host resolved but didn't answer.
    void sQueryTimeout();

private slots:
    void plOnServerInfo(const QHostInfo& host);
    void plEmitNtpRequest();
    void plOnNtpReply(const QHostAddress& host, quint16 port, const NtpReply& reply);
    void plTimeout();

private:
    void plStop();

    QString host;
    QHostAddress address;
    QTimer requestTimer;
    QTimer timeoutTimer;
    NtpClient ntpClient;
};
