#pragma once

#include "time/timekeeper.h"
#include "time/timepoolworker.h"
#include "time/timezonematch.h"

#include <QList>
#include <QStringList>

/// The reference time, against which a device's clock is judged and set, and the time zones.
///
/// Until a query succeeds the reference time is the computer's clock; from then on it is the computer's clock
/// at the offset that the last answer gave. A failed query changes nothing but the flags. A query of hosts
/// that don't resolve never ends.
///
/// A query may be started from within either signal; the manager itself must not go there.
class TimeManager : public QObject
{
    Q_OBJECT

public:
    /// Shows the computer's time and asks nobody yet.
    explicit TimeManager(QObject* parent = nullptr);
    ~TimeManager() override;

    /// Asks one server. A query that still runs is forgotten, but its answer still counts if it comes.
    void queryServer(const QString& host);
    /// Asks all @p hosts at once and takes the latest time of their answers, every answer being somewhat
    /// behind the true time. Ends with three quarters of the answers, or with the first time-out: then half
    /// are enough.
    void queryPool(const QStringList& hosts);

    /// The last finished query produced a time.
    bool isQuerySuccesful() const;
    /// A query is under way.
    bool isQuerying() const;
    /// The last finished query failed.
    bool isQueryTimedOut() const;
    /// The last started query was a pool query.
    bool isPoolQuery() const;
    /// Host of the last single-server query; empty from the start of a pool query on.
    QString serverName() const;

    /// The reference time as of its clock's last tick, in UTC.
    QDateTime currentTimeUtc() const;
    /// The same instant in the computer's zone.
    QDateTime currentTimeLocal() const;

    /// The table; its first row is the program's default zone.
    const QList<TimeZoneMatch>& timeZones() const;
    /// The row nearest to @p offset, in seconds east of UTC; the earlier row of two as near. The empty result
    /// if every row is half a day or more away.
    TimeZoneMatch matchTimeZoneByOffset(int offset) const;
    /// The zone of a clock that shows @p date and @p time now: the row that brings the reference time nearest
    /// to it. The empty result if every row leaves half a day or more.
    TimeZoneMatch matchTimeZoneByDateTime(const QDate& date, const QTime& time) const;
    /// The row called exactly @p name, or the empty result.
    TimeZoneMatch timeZoneByName(const QString& name) const;

signals:
    /// A query has set the reference time.
    void sQuerySuccesful();
    /// A query ended without a time, or with too few answers.
    void sQueryTimeout();

private slots:
    void plOnSingleWorkerReply(const QDateTime& time);
    void plOnSingleWorkerTimeout();
    void plOnPoolWorkerReply(const QDateTime& time);
    void plOnPoolWorkerTimeout();

private:
    void plStartQuery(const QString& server, bool pool);
    void plFinishQuery(bool succesful);
    void plDropPoolWorkers();
    void plReleaseRetiredWorkers();
    void plAddPoolWorker(const QString& host);

    QString queriedServer;
    int poolSize = 0;
    int poolAnswers = 0;
    TimePoolWorker singleWorker;
    TimeKeeper keeper;
    QList<TimeZoneMatch> zones;
    QList<TimePoolWorker*> poolWorkers;
    QList<TimePoolWorker*> retiredWorkers; ///< of queries before, dropped while one of them reported
    int reports = 0;                       ///< reports of a query's end that are under way
    bool querying = false;
    bool querySuccesful = false;
    bool queryTimedOut = false;
    bool poolQuery = false;
};
