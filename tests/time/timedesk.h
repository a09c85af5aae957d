#pragma once

#include "time/timemanager.h"

#include <QSignalSpy>

/// The times that the tests' answers carry: noon of some day, and so much later.
inline QDateTime atSecond(int second, int msec = 0)
{
    return QDateTime(QDate(2030, 1, 2), QTime(12, 0), Qt::UTC).addSecs(second).addMSecs(msec);
}

/// The flags in one word, for comparison and for reading a failure.
inline QString flags(const TimeManager& manager)
{
    QStringList words;
    if (manager.isQuerying())
        words << QStringLiteral("querying");
    if (manager.isQuerySuccesful())
        words << QStringLiteral("succesful");
    if (manager.isQueryTimedOut())
        words << QStringLiteral("timed out");
    if (manager.isPoolQuery())
        words << QStringLiteral("pool");
    return words.join(QStringLiteral(", "));
}

/// Hosts that never resolve: their workers stay silent, and the test reports in their place.
inline QStringList silentHosts(int count)
{
    QStringList hosts;
    for (int i = 0; i < count; i++)
        hosts << QStringLiteral("host%1.invalid").arg(i);
    return hosts;
}

/// A manager and the signals it sent. The loop doesn't run between two reports, so its clock stands.
class Desk
{
public:
    Desk()
        : success(&manager, &TimeManager::sQuerySuccesful)
        , timeout(&manager, &TimeManager::sQueryTimeout)
    {
    }
    void answer(const QDateTime& time) { call("plOnPoolWorkerReply", time); }
    void single(const QDateTime& time) { call("plOnSingleWorkerReply", time); }
    void poolTimeout() { call("plOnPoolWorkerTimeout"); }
    void singleTimeout() { call("plOnSingleWorkerTimeout"); }
    /// The signals and the flags, for a comparison at one glance.
    QString outcome() const
    {
        return QStringLiteral("%1 succesful, %2 timed out; %3")
            .arg(success.count())
            .arg(timeout.count())
            .arg(flags(manager));
    }
    QDateTime now() const { return manager.currentTimeUtc(); }

private:
    void call(const char* slot, const QDateTime& time)
    {
        if (!QMetaObject::invokeMethod(&manager, slot, Q_ARG(QDateTime, time)))
            qFatal("no slot %s", slot);
    }
    void call(const char* slot)
    {
        if (!QMetaObject::invokeMethod(&manager, slot))
            qFatal("no slot %s", slot);
    }

public:
    TimeManager manager{nullptr};
    QSignalSpy success;
    QSignalSpy timeout;
};
