#pragma once

#include "app/mainwindow.h"
#include "support/privatemember.h"
#include "time/timemanager.h"

// The ten seconds that a pool has to answer can't be waited for at every exchange of a test.

struct WindowTimeManager
{
    using Member = QSharedPointer<TimeManager> MainWindow::*;
    friend Member memberOf(WindowTimeManager);
};
template struct PrivateMember<WindowTimeManager, &MainWindow::timeManager>;

struct PoolWorkers
{
    using Member = QList<TimePoolWorker*> TimeManager::*;
    friend Member memberOf(PoolWorkers);
};
template struct PrivateMember<PoolWorkers, &TimeManager::poolWorkers>;

struct TimeoutTimer
{
    using Member = QTimer TimePoolWorker::*;
    friend Member memberOf(TimeoutTimer);
};
template struct PrivateMember<TimeoutTimer, &TimePoolWorker::timeoutTimer>;

/// The time of each server of the pool that has not answered yet is over at the next turn of the event loop.
inline void endPoolPatience(MainWindow& window)
{
    const QSharedPointer<TimeManager>& manager = window.*memberOf(WindowTimeManager());
    for (TimePoolWorker* worker : (*manager).*memberOf(PoolWorkers())) {
        QTimer& timer = worker->*memberOf(TimeoutTimer());
        if (timer.isActive())
            timer.start(0);
    }
}
