// Queries for the reference time: one server, or the reduction of a pool's answers to one time.

#include "time/timemanager.h"

#include "time/timezonetable.h"

#include <QDebug>

TimeManager::TimeManager(QObject* parent)
    : QObject(parent)
    , zones(timeZoneTable())
{
    connect(&singleWorker, &TimePoolWorker::sQuerySuccesful, this, &TimeManager::plOnSingleWorkerReply);
    connect(&singleWorker, &TimePoolWorker::sQueryTimeout, this, &TimeManager::plOnSingleWorkerTimeout);
}

TimeManager::~TimeManager()
{
    qDeleteAll(poolWorkers);
}

void TimeManager::queryServer(const QString& host)
{
    plStartQuery(host, false);
    qDebug() << "Querying " << host;
    singleWorker.query(host);
}

void TimeManager::queryPool(const QStringList& hosts)
{
    plDropPoolWorkers();
    poolSize = hosts.size();
    poolAnswers = 0;
    plStartQuery(QString(), true);
    for (const QString& host : hosts)
        plAddPoolWorker(host);
}

void TimeManager::plStartQuery(const QString& server, bool pool)
{
    queriedServer = server;
    querying = true;
    querySuccesful = false;
    queryTimedOut = false;
    poolQuery = pool;
}

void TimeManager::plFinishQuery(bool succesful)
{
    querying = false;
    querySuccesful = succesful;
    queryTimedOut = !succesful;

    reports++;
    if (succesful)
        emit sQuerySuccesful();
    else
        emit sQueryTimeout();
    reports--;
    if (reports == 0)
        plReleaseRetiredWorkers();
}

// Whoever hears of a query's end may start the next one, also from an event loop of its own. The worker that
// brought the end is still at it then, and can't go before that is over.
void TimeManager::plDropPoolWorkers()
{
    if (reports == 0) {
        qDeleteAll(poolWorkers);
    } else {
        for (TimePoolWorker* worker : qAsConst(poolWorkers))
            worker->disconnect(this);
        retiredWorkers += poolWorkers;
    }
    poolWorkers.clear();
}

void TimeManager::plReleaseRetiredWorkers()
{
    for (TimePoolWorker* worker : qAsConst(retiredWorkers))
        worker->deleteLater();
    retiredWorkers.clear();
}

void TimeManager::plAddPoolWorker(const QString& host)
{
    auto* worker = new TimePoolWorker;
    connect(worker, &TimePoolWorker::sQuerySuccesful, this, &TimeManager::plOnPoolWorkerReply);
    connect(worker, &TimePoolWorker::sQueryTimeout, this, &TimeManager::plOnPoolWorkerTimeout);
    worker->query(host);
    poolWorkers.append(worker);
}

void TimeManager::plOnSingleWorkerReply(const QDateTime& time)
{
    keeper.setTime(time);
    plFinishQuery(true);
}

void TimeManager::plOnSingleWorkerTimeout()
{
    plFinishQuery(false);
}

void TimeManager::plOnPoolWorkerReply(const QDateTime& time)
{
    if (!querying)
        return;
    const bool first = poolAnswers == 0;
    poolAnswers++;
    // The reference timestamps of the servers all lie behind the true time: the latest is the best of them.
    if (first || time.toSecsSinceEpoch() > currentTimeUtc().toSecsSinceEpoch()) {
        qDebug() << "Updating time to " << time;
        keeper.setTime(time);
    }
    if (poolAnswers < poolSize * 3 / 4)
        return;
    qDebug() << "75% of answers. Finishing pool query:" << currentTimeUtc();
    plFinishQuery(true);
}

void TimeManager::plOnPoolWorkerTimeout()
{
    if (!querying)
        return;
    if (poolAnswers < poolSize / 2) {
        qDebug() << "Pool query timeout.";
        plFinishQuery(false);
        return;
    }
    qDebug() << "Timeout but 50% answers. Finishing pool query:" << currentTimeUtc();
    plFinishQuery(true);
}

bool TimeManager::isQuerySuccesful() const
{
    return querySuccesful;
}

bool TimeManager::isQuerying() const
{
    return querying;
}

bool TimeManager::isQueryTimedOut() const
{
    return queryTimedOut;
}

bool TimeManager::isPoolQuery() const
{
    return poolQuery;
}

QString TimeManager::serverName() const
{
    return queriedServer;
}

QDateTime TimeManager::currentTimeUtc() const
{
    return keeper.timeUtc();
}

QDateTime TimeManager::currentTimeLocal() const
{
    return keeper.time().toLocalTime();
}
